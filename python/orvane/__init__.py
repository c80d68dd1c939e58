"""Three-dimensional business charts as VRML97 worlds.

The classes are those of Orvane's object model, with its names, made from its own tables when this
package is imported: help(orvane.GridInfo) says what each member means, in which unit, and what it
takes. Make a chart, set its properties, export it:

    chart = orvane.AreaGraph()
    chart.GridProps.ZAxisCellCount = 1
    chart.GetSeries(1).Height = [1, 3, 2, 4]
    chart.ExportToFile("chart.wrl")
    orvane.WriteProtos(".")

What is rejected raises AutomationError and changes nothing.
"""

import shutil
from pathlib import Path

from . import _classes
from ._classes import Object
from ._orvane import AutomationError, UnknownMember

ProtoFolder = Path(__file__).parent / "protos"
"""The folder with the three PROTO files that every world refers to."""


def WriteProtos(folder):
    """Copies the PROTO files to `folder`, which is made when missing: there, beside a world, the
    world finds them."""
    shutil.copytree(ProtoFolder, folder, dirs_exist_ok=True)


_model = _classes.make_all()
globals().update(_model)
__all__ = ["AutomationError", "Object", "ProtoFolder", "UnknownMember", "WriteProtos", *_model]

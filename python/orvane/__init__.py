"""Three-dimensional business charts as VRML97 worlds.

The classes are those of Orvane's object model, with its names, made from its own tables when this
package is imported: help(orvane.GridInfo) says what each member means, in which unit, and what it
takes. Make a chart, set its properties, export it:

    chart = orvane.AreaGraph()
    chart.GridProps.ZAxisCellCount = 1
    chart.GetSeries(1).Height = [1, 3, 2, 4]
    chart.ExportToFile("chart.wrl")
    orvane.WriteProtos(".")

What is rejected raises AutomationError and changes nothing; only Min and Max of a value axis keep
what they were given when its labels cannot be made anew.

From a table to a chart it is one call, for every kind of chart:

    orvane.column(frame, title="Rain in Seattle", grouped=True).save("rain.wrl")
"""

import os
from pathlib import Path

from . import _charts, _classes
from ._charts import chart, chart_kinds
from ._classes import Event, Object
from ._orvane import AutomationError, UnknownMember
from ._orvane import version as __version__
from ._orvane import write_protos as _write_protos

def WriteProtos(folder):
    """Writes the PROTO files to `folder`, which is made when missing: there, beside a world, the
    world finds them."""
    _write_protos(os.fsdecode(folder))


def _save(self, path):
    """Writes the chart as a world to `path`, with the PROTO files that the world refers to beside
    it. Raises OSError."""
    path = Path(path)
    if path.suffix.lower() != ".wrl":
        raise ValueError(f"{path}: a chart is saved as .wrl")
    if not self.ExportToFile(os.fsdecode(path)):
        raise OSError(f"{path} cannot be written")
    WriteProtos(path.parent)


_model = _classes.make_all()
_model |= _charts.functions
for _class in _model.values():
    if hasattr(_class, "ExportToFile"):
        _class.save = _save
globals().update(_model)
__all__ = [
    "AutomationError",
    "Event",
    "Object",
    "UnknownMember",
    "WriteProtos",
    "__version__",
    "chart",
    "chart_kinds",
    *_model,
]

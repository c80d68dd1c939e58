"""The package in the build tree: it says what the type tables say and does what the model does."""

import gc
import inspect
import keyword
import os
import pathlib
import pydoc
import tempfile
import unittest

import numpy
import orvane
from orvane import _orvane

TABLES = _orvane.types()

COMPONENT, TYPE_MISMATCH, OVERFLOW = 0x80040000, 0x80020005, 0x8002000A
UNKNOWN_MEMBER, ARGUMENT_COUNT, READ_ONLY = 0x80020006, 0x8002000E, 0x800A017F
LIST_INDEX, NO_NODE, OUT_OF_RANGE = 0x80040201, 0x80040203, 0x80040205


class Tables(unittest.TestCase):
    def test_every_class_is_there_with_every_member_documented(self):
        self.assertGreater(len(TABLES), 50)
        for table in TABLES:
            made = getattr(orvane, table.name)
            fresh = None if _orvane.create(table.name) is None else made()
            self.assertIn(table.name, orvane.__all__)
            page = pydoc.plain(pydoc.render_doc(made))
            self.assertIn(table.text, page)
            for member in table.members:
                with self.subTest(f"{table.name}.{member.name}"):
                    self.assertFalse(keyword.iskeyword(member.name))
                    attribute = inspect.getattr_static(made, member.name)
                    for told in (member.help.text, member.help.unit, member.help.range,
                                 member.type.name):
                        self.assertIn(told, attribute.__doc__)
                    self.assertIn(attribute.__doc__.splitlines()[0], page)
                    if fresh is not None and isinstance(attribute, property) and member.is_read:
                        getattr(fresh, member.name)
                    if member.is_method:
                        names = [each.name for each in member.parameters if not each.is_out]
                        self.assertEqual(list(inspect.signature(attribute).parameters)[1:], names)

        self.assertIn("Range: > 0. Initially: 8.", orvane.GridInfo.Width.__doc__)
        self.assertIn("Initially: #ffffff.", orvane.GridInfo.WallColor.__doc__)

    def test_parts_are_made_by_their_owners(self):
        with self.assertRaisesRegex(TypeError, "TextInfo"):
            orvane.TextInfo()


class Members(unittest.TestCase):
    def setUp(self):
        self.chart = orvane.ColumnGraph()
        self.series = self.chart.GetSeries(1)

    def assertRejects(self, number, pattern, call):
        with self.assertRaisesRegex(orvane.AutomationError, pattern) as caught:
            call()
        self.assertEqual(hex(caught.exception.number), hex(number))
        self.assertEqual(caught.exception.message, str(caught.exception))
        self.assertIn(caught.exception.source, ("Orvane", "Nodewright"))

    def test_errors_have_the_numbers_and_messages_of_the_model_and_change_nothing(self):
        grid, axis, group = self.chart.GridProps, self.chart.XAxisProps, orvane.Group()
        axis.Labels = ["a", "b"]
        self.series.Height = [1, 2]
        group.children = [orvane.Shape()]
        def let(object, name, value):
            return lambda: setattr(object, name, value)
        cases = [
            (COMPONENT, "^The graph must be wider than 0$", let(grid, "Width", 0)),
            (TYPE_MISMATCH, "got no object", let(grid, "Width", None)),
            (TYPE_MISMATCH, "takes no Python dict", let(grid, "Width", {})),
            (TYPE_MISMATCH, "takes no Python complex", let(grid, "Width", 1j)),
            (TYPE_MISMATCH, "takes no Python numpy.complex64", let(grid, "Width", numpy.complex64(1))),
            (TYPE_MISMATCH, "takes no Python bytes", let(self.chart.TitleProps, "Text", b"title")),
            (TYPE_MISMATCH, r"got a row of 2 number\(s\)", let(grid, "Width", [1, 2])),
            (OVERFLOW, "GridInfo.XAxisCellCount", let(grid, "XAxisCellCount", 10**400)),
            (OVERFLOW, "GridInfo.LineColor", let(grid, "LineColor", -(1 << 70))),
            (UNKNOWN_MEMBER, '^GridInfo has no member "Breadth"$', lambda: grid.Breadth),
            (UNKNOWN_MEMBER, '^GridInfo has no member "Breadth"$', let(grid, "Breadth", 1)),
            (READ_ONLY, "ColumnGraph.GridProps is read-only", let(self.chart, "GridProps", grid)),
            (READ_ONLY, "ColumnGraph.GetSeries is a method", let(self.chart, "GetSeries", 1)),
            (READ_ONLY, "Height is read-only", let(self.series, "Height", 3)),
            (ARGUMENT_COUNT, r"takes 1 to 2 argument\(s\), got 0", lambda: self.chart.GetSeries()),
            (LIST_INDEX, "Index 0 is outside", lambda: axis.Labels.Item.__setitem__(0, "z")),
            (TYPE_MISMATCH, "MFString.Append expects a String", let(axis, "Labels", ["x", "y", None])),
            (NO_NODE, "Group.children takes nodes only", let(group, "children", [orvane.Shape(), None])),
            (TYPE_MISMATCH, "MFFloat.Items expects a number", let(self.series, "Height", [5, "x"])),
            (TYPE_MISMATCH, "no array of 2 dimensions", let(self.series, "Height", numpy.ones((2, 2)))),
            (OVERFLOW, "1e\\+300 does not fit", let(self.series, "Height", numpy.array([5, 1e300]))),
        ]
        before = self.chart.ExportToString(True, True)
        for number, pattern, call in cases:
            with self.subTest(pattern):
                self.assertRejects(number, pattern, call)
                self.assertEqual(self.chart.ExportToString(True, True), before)
                self.assertEqual(len(group.children), 1)
        with self.assertRaises(ZeroDivisionError):  # What a caller's own code raises goes on as it is.
            axis.Labels = (str(1 // (2 - n)) for n in range(9))
        self.assertEqual(list(axis.Labels), ["a", "b"])

    def test_lists_take_what_reads_or_changes_them_meanwhile(self):
        labels, group = self.chart.XAxisProps.Labels, orvane.Group()
        self.chart.XAxisProps.Labels = ["a", "b"]
        self.chart.XAxisProps.Labels = (text.upper() for text in labels)
        self.assertEqual(list(labels), ["A", "B"])
        group.children = [orvane.Shape(), orvane.Group()]
        group.children = (node for node in group.children if isinstance(node, orvane.Shape))
        self.assertEqual(len(group.children), 1)

        class Shrinking:
            def __float__(self):
                numbers.clear()
                return 1.0
        numbers = [Shrinking(), *range(2000, 5000)]
        self.series.Height = numbers
        self.assertEqual(list(self.series.Height), [1, *range(2000, 5000)])

    def test_unknown_names_are_missing_attributes(self):
        self.assertEqual(self.chart.getseries(1), self.series)
        self.assertFalse(hasattr(self.chart, "Breadth"))
        self.assertEqual(getattr(self.chart, "Breadth", 7), 7)
        self.assertFalse(hasattr(self.chart, "__dict__"))

    def test_numbers_of_numpy_and_paths_are_values(self):
        grid = self.chart.GridProps
        for value in (numpy.float32(2.5), numpy.float64(2.5), numpy.array(2.5), "2.5"):
            grid.Width = 1
            grid.Width = value
            self.assertEqual(grid.Width, 2.5)
        for value in (numpy.int8(3), numpy.uint64(3), numpy.array(3), 2.6):
            grid.XAxisCellCount = 1
            grid.XAxisCellCount = value
            self.assertEqual(grid.XAxisCellCount, 3)
        self.chart.XAxisProps.ShowAxis = numpy.bool_(False)
        self.assertIs(self.chart.XAxisProps.ShowAxis, False)
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / os.fsdecode("wörld \xff.wrl".encode("latin-1"))
            self.assertIs(self.chart.ExportToFile(path), True)
            self.assertEqual(path.read_text("utf-8"), self.chart.ExportToString(True, True))

    def test_arrays_go_straight_into_lists(self):
        points = numpy.arange(12.0).reshape(4, 3)
        height = self.series.Height
        for code in "bBhHiIlLqQefd":
            with self.subTest(code):
                self.series.Height = numpy.arange(3, dtype=code)
                self.assertEqual(list(height), [0, 1, 2])
        rows = [
            (points[:, 1], [1, 4, 7, 10]),  # Every third number in memory.
            (points[::-1, 0], [9, 6, 3, 0]),
            (points[0].astype(">f8"), [0, 1, 2]),
            (memoryview(b"\1\2"), [1, 2]),
            (range(3), [0, 1, 2]),
            ((n / 2 for n in range(3)), [0, 0.5, 1]),
            ((1, "2", numpy.float32(3), True), [1, 2, 3, -1]),
            ([], []),
        ]
        for row, expected in rows:
            self.series.Height = row
            self.assertEqual(list(height), expected)
        self.series.Height = [0.1]
        self.assertEqual(height.Item(1), numpy.float32(0.1))

        list3 = orvane.MFVec3f()
        entries = [tuple(point) for point in points]
        for given in (points, points.astype("f4"), numpy.asfortranarray(points), points.tolist(),
                      list(points), points.ravel(), tuple(points.ravel()), points.astype(">i4")):
            list3.Items = []
            list3.Items = given
            self.assertEqual(list(list3), entries)
        self.assertEqual(list3.Items, tuple(points.ravel()))
        for wrong in (points.T, points[:, :2], [(1, 2)], [1, 2], points.reshape(2, 2, 3), 5, None):
            self.assertRejects(TYPE_MISMATCH, "MFVec3f.Items", lambda: setattr(list3, "Items", wrong))
        self.assertEqual(list(list3), entries)
        sky = orvane.Background().skyColor
        self.assertRejects(OUT_OF_RANGE, r"Background.skyColor .*\[0..1\]",
                           lambda: setattr(sky, "Items", [[0, 0, 2]]))

    def test_lists_of_texts_and_nodes_and_items_by_index(self):
        labels = self.chart.XAxisProps.Labels
        self.chart.XAxisProps.Labels = ("März", 5, "c")
        self.assertEqual(list(labels), ["März", "5", "c"])
        labels.Item[2] = "b"
        self.assertEqual((labels.Item(2), labels.Item[2], len(labels)), ("b", "b", 3))
        with self.assertRaises(TypeError):
            iter(labels.Item)
        group, shapes = orvane.Group(), [orvane.Shape(), orvane.Shape()]
        group.children = shapes
        self.assertEqual(list(group.children), shapes)
        shapes[0].geometry.Value = orvane.Cone()
        self.assertIsInstance(group.children.Item(1).geometry.Value, orvane.Cone)
        shapes[0].geometry.Value = None
        self.assertIsNone(shapes[0].geometry.Value)


class Events(unittest.TestCase):
    def test_handlers_are_called_until_unsubscribed_and_their_errors_come_back(self):
        grid, heard = orvane.ColumnGraph().GridProps, []
        first = grid.XCellCountChanged.Subscribe(heard.append)
        second = grid.xcellcountchanged.Subscribe(lambda count: 1 // (count - 3))
        grid.XAxisCellCount = 2
        with self.assertRaisesRegex(orvane.AutomationError, "XCellCountChanged failed: ZeroDiv") as caught:
            grid.XAxisCellCount = 3
        self.assertIsInstance(caught.exception.__cause__, ZeroDivisionError)
        grid.XCellCountChanged.Unsubscribe(second)

        def refuse(count):
            grid.Width = 0

        grid.XCellCountChanged.Subscribe(refuse)
        with self.assertRaisesRegex(orvane.AutomationError, "wider than 0") as caught:
            grid.XAxisCellCount = 5
        self.assertEqual(caught.exception.number, COMPONENT)
        grid.XCellCountChanged.Unsubscribe(first)
        self.assertEqual(heard, [2, 3, 5])
        with self.assertRaisesRegex(orvane.AutomationError, "no subscription"):
            grid.XCellCountChanged.Unsubscribe(first)


class Lifetimes(unittest.TestCase):
    def test_one_object_of_the_model_is_equal_to_itself_and_to_no_other(self):
        chart = orvane.AreaGraph()
        chart.GridProps.ZAxisCellCount = 2
        material = chart.GetSeries(1).Material
        self.assertEqual(material, chart.GetSeries(1).Material)
        self.assertEqual(len({material, chart.GetSeries(1).Material, chart.GetSeries(2).Material}), 2)
        self.assertNotEqual(material, material.diffuseColor)
        self.assertNotEqual(material, "Material")

    def test_what_is_held_stays_alive_without_its_owner(self):
        chart = orvane.AreaGraph()
        chart.GridProps.ZAxisCellCount = 2
        chart.GetSeries(2).Height = [1, 2, 3]
        height, item = chart.GetSeries(2).Height, chart.XAxisProps.Labels.Item
        chart.GridProps.ZAxisCellCount = 1
        del chart
        gc.collect()
        height.Append(4)
        self.assertEqual(list(height), [1, 2, 3, 4])
        with self.assertRaises(orvane.AutomationError):
            item(1)


class ChartsFromTables(unittest.TestCase):
    def test_tables_of_every_form_make_one_chart(self):
        class Pandas:
            """A data frame with an index of its own, in so far as tables of it are read."""

            index = type("Index", (list,), {"name": "m"})(["x", "y"])
            columns = ["a", "b"]

            def reset_index(self):
                rows = [("x", 1, 2.5), ("y", 3, float("nan"))]
                return type("Frame", (), {
                    "columns": ["m", "a", "b"], "index": type("Index", (list,), {"name": None})([0, 1]),
                    "itertuples": lambda self, index, name: rows})()

            itertuples = None

        polars = type("Frame", (), {
            "columns": ["m", "a", "b"], "iter_rows": lambda self: [("x", 1, 2.5), ("y", 3, None)]})()
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "t.csv")
            path.write_text("m,a,b\nx,1,2.5\ny,3,\n")
            tables = {
                "path": path,
                "columns": {"m": ["x", "y"], "a": numpy.array([1, 3]), "b": [2.5, None]},
                "rows": [["m", "a", "b"], ["x", 1, 2.5], ["y", numpy.float32(3), ""]],
                "dicts": [{"m": "x", "a": 1, "b": 2.5}, {"m": "y", "a": 3}],
                "numpy": numpy.array([("x", 1, 2.5), ("y", 3, numpy.nan)],
                                     [("m", "U1"), ("a", int), ("b", float)]),
                "pandas": Pandas(),
                "polars": polars,
            }
            worlds = {name: orvane.area(table, missing="zero", title="T").ExportToString(True, True)
                      for name, table in tables.items()}
            self.assertEqual(worlds, dict.fromkeys(tables, worlds["path"]))
            world = pathlib.Path(folder, "t.wrl")
            orvane.chart("column", path, missing="zero", grouped=True, size=[4, 3, 2]).save(world)
            self.assertIn("qm4_OutlinedColumnSeries", world.read_text())
            self.assertTrue(pathlib.Path(folder, "VR_GRAPH.wrl").exists())

    def test_what_is_wrong_is_said(self):
        table = {"m": ["x"], "a": [1]}
        for call, message in {
            lambda: orvane.chart("cake", table): 'there is no chart "cake"',
            lambda: orvane.area(table, spin=True): 'has no option "spin"',
            lambda: orvane.area(table, background="red"): "background: red is not a colour",
            lambda: orvane.area({"m": ["x"], "a": ["q"]}): 'table:2:3: "q" is not a number',
            lambda: orvane.column_surface(table): "surface is required",
            lambda: orvane.area(table).save("t.xyz"): "t.xyz: a chart is saved as .wrl",
        }.items():
            with self.assertRaisesRegex(ValueError, message):
                call()


if __name__ == "__main__":
    unittest.main()

"""Random property sequences, rejected steps among them, give the same world through the package as
they give in C++, and every step gives or raises the same."""

import array
import json
import math
import os
import random
import subprocess
import tempfile
import unittest

import numpy
import orvane
from orvane import _orvane

SEQUENCES = 1000
TABLES = {table.name: table for table in _orvane.types()}
CHARTS = [name for name in TABLES if hasattr(getattr(orvane, name), "ExportToString")]
TEXTS = ["", "  ", "plain", '"quoted" \\', "東京", "bad \udcff", "a.b.wrl", "12", "true"]
NUMBERS = [0, -1, 0.5, 3, 1e39, 1e-45, math.nan, math.inf, 1 << 40, 99999, numpy.float32(0.1)]


class Sequence:
    """A chart and what to do to it, drawn from the type tables."""

    def __init__(self, draw):
        self.draw = draw
        self.chart = draw.choice(CHARTS)
        self.steps = [*self.counts(), *(self.step() for _ in range(draw.randint(5, 40)))]
        self.steps.append(step("get", "ExportToString", [True, True]))

    def counts(self):
        """Gives the chart something to hold: a new chart has no series, slices or surfaces."""
        chart = names_of(self.chart)
        owners = [([], self.chart)]
        if "GridProps" in chart:
            owners.append(([{"name": "GridProps", "arguments": []}], "GridInfo"))
        for path, owner in owners:
            for name in names_of(owner):
                if name.endswith("Count") and self.draw.random() < 0.9:
                    yield step("let", name, [self.draw.randint(1, 4)], path)

    def step(self):
        table, path = TABLES[self.chart], []
        while True:
            member = self.draw.choice(table.members)
            if member.name.startswith("Export"):
                continue
            name = self.spelled(member.name)
            arguments = [self.value(each.type) for each in member.parameters if not each.is_out]
            if member.type.name.startswith("MF") and self.draw.random() < 0.6:
                return self.entries(member, name, path)
            if member.type.name in TABLES:
                table = TABLES[member.type.name]
                path = [*path, {"name": name, "arguments": arguments}]
                continue
            if not member.is_method and (member.is_let or self.draw.random() < 0.1):
                return step("let", name, [*arguments, self.value(member.type)], path)
            if arguments and self.draw.random() < 0.03:
                arguments.pop()
            return step("get", name, arguments, path)

    def spelled(self, name):
        return self.draw.choice([name] * 8 + [name.lower(), name.upper()])

    def entries(self, member, name, path):
        """Sets a list of numbers from something that holds several."""
        append = TABLES[member.type.name].members[names_of(member.type.name).index("Append")]
        width = len(append.parameters)
        if append.parameters[0].type.name != "Single":
            return step("get", name, [], path)
        count = self.draw.randint(0, 9) * width
        make = self.draw.choice([
            lambda numbers: numpy.array(numbers, numpy.float32).reshape((-1, width)[: min(width, 2)]),
            lambda numbers: numpy.array(numbers, numpy.float64),
            lambda numbers: numpy.array(numbers).astype(numpy.int32),
            lambda numbers: array.array("d", numbers),
            list,
        ])
        numbers = make([self.draw.uniform(0, 1.02) for _ in range(count)])
        return step("entries", name, [numbers if count else []], path)

    def value(self, type):
        draw = self.draw
        if draw.random() < 0.08:
            return draw.choice([*TEXTS, *NUMBERS, True, None])
        if type.enumeration is not None:
            values = list(getattr(orvane, type.name))
            return draw.choice([*values, *(v.name.lower() for v in values), len(values)])
        if type.name == "Boolean":
            return draw.random() < 0.5
        if type.name == "Int16":
            return draw.choice([1, 1, 1, 2, 2, 3, 4, 5, 6, 0, numpy.int16(2), "3"])
        if type.name == "Int32":
            return draw.choice([1, 2, draw.randrange(1 << 24), numpy.int32(draw.randrange(1 << 24))])
        if type.name in ("Single", "Double"):
            return draw.choice([draw.uniform(0.01, 9), numpy.float32(draw.random()), draw.random(), "1.5"])
        return draw.choice(TEXTS) if type.name == "String" else None


def step(do, name, arguments, path=()):
    return {"path": list(path), "do": do, "name": name, "arguments": arguments}


def names_of(table):
    return [member.name for member in TABLES[table].members]


def plain(value):
    """What goes into JSON for a value that JSON does not know."""
    if isinstance(value, (list, tuple, numpy.ndarray, array.array)):
        return [plain(number) for number in numpy.ravel(value).tolist()]
    if isinstance(value, numpy.generic):
        value = value.item()
    if isinstance(value, float) and not math.isfinite(value):
        return {"number": str(value)}
    if isinstance(value, str) and not value.isprintable():
        return {"bytes": list(value.encode("utf-8", "surrogateescape"))}
    return value


def as_json(steps):
    planned = lambda step: step | {
        "arguments": [plain(each) for each in step["arguments"]],
        "path": [hop | {"arguments": [plain(each) for each in hop["arguments"]]} for hop in step["path"]],
    }
    return [planned(step) for step in steps]


def read(object, name, arguments):
    member = getattr(object, name)
    return member(*arguments) if callable(member) else member


def mended(text):
    """`text` with its bytes that are no UTF-8 as JSON writes them."""
    return text.encode("utf-8", "surrogateescape").decode("utf-8", "replace")


def apply(chart, step):
    try:
        object = chart
        for hop in step["path"]:
            object = read(object, hop["name"], hop["arguments"])
        name, arguments = step["name"], step["arguments"]
        if step["do"] == "get":
            result = read(object, name, arguments)
            if isinstance(result, orvane.Object):
                return f"an object of class {type(result).__name__}"
            if isinstance(result, str):
                return mended(result)
            return list(result) if isinstance(result, tuple) else result
        if len(arguments) == 2:
            getattr(object, name)[arguments[0]] = arguments[1]
        else:
            setattr(object, name, arguments[0])
        return None
    except orvane.AutomationError as error:
        return {"number": error.number, "message": mended(error.message)}


class RandomSequences(unittest.TestCase):
    def test_same_results_and_worlds_as_in_cpp(self):
        draw = random.Random(20011)
        sequences = [Sequence(draw) for _ in range(SEQUENCES)]
        lines = [json.dumps({"chart": s.chart, "steps": as_json(s.steps)}) for s in sequences]
        with tempfile.TemporaryFile("w+", encoding="utf-8") as file:
            file.write("\n".join(lines))
            file.seek(0)
            cpp = subprocess.Popen(
                [os.environ["ORVANE_SEQUENCES"]], stdin=file, stdout=subprocess.PIPE, encoding="utf-8"
            )
        with cpp:
            self.compare(sequences, cpp.stdout)
        self.assertEqual(cpp.returncode, 0)

    def compare(self, sequences, output):
        steps = rejected = 0
        worlds = set()
        for number, (sequence, line) in enumerate(zip(sequences, output, strict=True)):
            chart = getattr(orvane, sequence.chart)()
            for step, expected in zip(sequence.steps, json.loads(line), strict=True):
                if (result := apply(chart, step)) != expected:
                    self.fail(f"sequence {number}, {step}:\n{result}\nin C++: {expected}")
                steps += 1
                rejected += isinstance(expected, dict)
            if isinstance(expected, str):
                worlds.add(expected)
        # The sequences are worth something: most steps are taken, some refused, worlds differ.
        self.assertGreater(len(worlds), 0.9 * SEQUENCES)
        self.assertGreater(rejected, 0.05 * steps)
        self.assertLess(rejected, 0.4 * steps)
        print(f"{steps} steps, {rejected} of them rejected, {len(worlds)} different worlds")


if __name__ == "__main__":
    unittest.main()

"""`pip install .` from the checkout, in a virtual environment with nothing but Debian's packages: the
package stands on its own, its example and the code in docs/python.md run, its stubs hold."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2]
EXAMPLE = SOURCE / "examples/python/every_chart.py"

MISUSE = """
import orvane

chart = orvane.AreaGraph()
chart.GridProps.Width = "wide"
chart.GridProps.Breadth = 1
chart.TitleProps.TextFont = 2.5
chart.GetSeries()
chart.XAxisProps.Labels = 5
width: str = chart.GridProps.Width
"""


class Wheel(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.python = cls.folder / "venv/bin/python"
        cls.run_program(sys.executable, "-m", "venv", "--system-site-packages", cls.folder / "venv")
        cls.run_program(cls.python, "-m", "pip", "install", "--no-build-isolation", "--no-index", SOURCE)

    @classmethod
    def run_program(cls, *command, status=0):
        """What a program says, run where nothing of the checkout is found by chance."""
        done = subprocess.run(
            command, cwd=cls.folder, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT
        )
        if done.returncode != status:
            raise AssertionError(f"{command} ended with {done.returncode}:\n{done.stdout}")
        return done.stdout

    def mypy(self, *what, status=0):
        return self.run_program(
            "/usr/bin/mypy", "--strict", "--python-executable", self.python,
            "--cache-dir", self.folder / "mypy", *what, status=status,
        )

    def test_loads_its_own_library_and_carries_the_proto_files(self):
        said = self.run_program(
            self.python, "-c",
            "import orvane\n"
            "print(*[line.split()[-1] for line in open('/proc/self/maps') if 'liborvane' in line], sep='\\n')\n"
            "orvane.WriteProtos('protos')",
        )
        package = self.folder / "venv/lib"
        self.assertTrue(said)
        for library in said.splitlines():
            self.assertIn(package, pathlib.Path(library).parents)
        for name in ("VR_GRAPH.wrl", "VR_NAV.wrl", "VR_UI.wrl"):
            proto = pathlib.Path(os.environ["ORVANE_PROTO_DIR"]) / name
            self.assertEqual((self.folder / "protos" / name).read_bytes(), proto.read_bytes())

    def test_example_makes_every_chart_and_the_worlds_parse(self):
        worlds = self.run_program(self.python, EXAMPLE, "worlds").split()
        kinds = self.run_program(
            self.python, "-c",
            "import orvane; print(*[name for name in orvane.__all__ if name.endswith('Graph')])",
        ).split()
        self.assertEqual([pathlib.Path(world).stem for world in worlds], kinds)
        for world in worlds:
            with self.subTest(world):
                text = (self.folder / world).read_text("utf-8")
                self.assertIn(pathlib.Path(world).stem, text)  # Its title.
                parsed = subprocess.run(
                    [os.environ["ORVANE_TOVRMLX3D"], world], cwd=self.folder, text=True,
                    stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                )
                self.assertEqual((parsed.returncode, parsed.stderr), (0, ""))

    def test_code_in_the_documentation_runs_and_says_what_it_says(self):
        page = (SOURCE / "docs/python.md").read_text("utf-8")
        code = "\n".join(re.findall(r"^    (.*)$", page.split("## One minute")[1].split("\n## ")[0], re.M))
        (self.folder / "minute.py").write_text(code, "utf-8")
        told = re.findall(r"# -> (.*)", code)
        self.assertEqual(self.run_program(self.python, "minute.py").splitlines(), told)
        self.assertTrue((self.folder / "rain.wrl").exists())
        self.mypy(self.folder / "minute.py")

    def test_stubs_are_sound_know_the_example_and_find_misuse(self):
        # mypy says nothing of what is wrong in an installed package.
        (stub,) = self.folder.glob("venv/lib/*/site-packages/orvane/__init__.pyi")
        (self.folder / "orvane").mkdir()
        shutil.copy(stub, self.folder / "orvane")
        self.mypy("-p", "orvane")
        shutil.rmtree(self.folder / "orvane")
        self.mypy(EXAMPLE)
        (self.folder / "misuse.py").write_text(MISUSE, "utf-8")
        found = self.mypy(self.folder / "misuse.py", status=1)
        lines = [int(line) for line in re.findall(r"misuse.py:(\d+): error", found)]
        self.assertEqual(lines, [5, 6, 7, 8, 9, 10], found)


if __name__ == "__main__":
    unittest.main()

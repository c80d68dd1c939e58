"""Builds the Python package: CMake makes the library, the module and the stubs, setuptools the wheel.

CMAKE_ARGS in the environment is handed on to CMake.
"""

import os
import re
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

import pybind11
from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent


class CMakeBuild(build_ext):
    def build_extension(self, extension):
        package = Path(self.get_ext_fullpath(extension.name)).resolve().parent
        options = {
            "CMAKE_BUILD_TYPE": "Release",
            "ORVANE_PYTHON": "ON",
            "ORVANE_TOOLS": "OFF",
            "ORVANE_TESTS": "OFF",
            "ORVANE_BENCH": "OFF",
            "Python_EXECUTABLE": sys.executable,
            "pybind11_DIR": pybind11.get_cmake_dir(),
        }
        configure = ["cmake", "-S", ROOT, "-B", self.build_temp]
        configure += [f"-D{name}={value}" for name, value in options.items()]
        configure += shlex.split(os.environ.get("CMAKE_ARGS", ""))
        if shutil.which("ninja"):
            configure += ["-G", "Ninja"]
        subprocess.run(configure, check=True)
        subprocess.run(
            ["cmake", "--build", self.build_temp, "--parallel", str(os.cpu_count()),
             "--target", "orvane_python_package"],
            check=True,
        )
        subprocess.run(
            ["cmake", "--install", self.build_temp, "--component", "python", "--prefix", package],
            check=True,
        )


setup(
    version=re.search(r"project\(Orvane VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1],
    ext_modules=[Extension("orvane._orvane", [])],
    cmdclass={"build_ext": CMakeBuild},
)

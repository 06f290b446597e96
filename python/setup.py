# SPDX-License-Identifier: MIT
#
# What pyproject.toml cannot say: the version is that of the library, the shared library lies in
# the package, and the wheel is for one platform but for every Python 3.
#
#   A2L2JSON_LIBRARY=<shared library> A2L2JSON_PLATFORM=<platform tag> pip wheel .

import os
import re
import shutil
from pathlib import Path

from setuptools import setup
from setuptools.command.build_py import build_py
from setuptools.dist import Distribution
from wheel.bdist_wheel import bdist_wheel

TOP = Path(__file__).resolve().parent.parent


def version():
    found = re.search(r"\bVERSION (\d+\.\d+\.\d+)", (TOP / "CMakeLists.txt").read_text())
    return found.group(1)


class WithLibrary(build_py):
    def run(self):
        super().run()
        library = Path(os.environ["A2L2JSON_LIBRARY"])
        # A link's name says less than that of what it leads to, and a wheel holds no links.
        name = "a2l2json.dll" if library.suffix == ".dll" else "liba2l2json.so"
        shutil.copy(library, Path(self.build_lib) / "a2l2json" / name)


class ForOnePlatform(Distribution):
    def has_ext_modules(self):
        return True


class AnyPython(bdist_wheel):
    def get_tag(self):
        platform = os.environ.get("A2L2JSON_PLATFORM") or super().get_tag()[2]
        return "py3", "none", platform


setup(
    version=version(),
    distclass=ForOnePlatform,
    cmdclass={"build_py": WithLibrary, "bdist_wheel": AnyPython},
)

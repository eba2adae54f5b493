"""Builds the extension over an installed Velmora and takes its libraries and tables into the wheel.

VELMORA_PREFIX names the installation (cmake --install PREFIX).
"""

import os
import re
import shutil
from pathlib import Path

from setuptools import setup
from setuptools.command.build_py import build_py

PREFIX = Path(os.environ["VELMORA_PREFIX"]).resolve()
RESOURCES = PREFIX / "share/velmora/resources"
LIBRARIES = sorted(PREFIX.glob("lib*/**/libvelmora*.so"))
VERSION = re.search(r"^Version: (.+)$", next(PREFIX.glob("lib*/**/velmora.pc")).read_text(), re.M)[1]


class BuildWithLibraries(build_py):
    """Puts the shared libraries and the tables beside the modules."""

    def run(self) -> None:
        super().run()
        package = Path(self.build_lib) / "velmora"
        (package / "lib").mkdir(parents=True, exist_ok=True)
        for library in LIBRARIES:
            if library.stem in ("libvelmora", "libvelmora-core", "libvelmora-almanac"):
                target = library.resolve()
                shutil.copy2(target, package / "lib" / re.sub(r"(\.so\.\d+\.\d+)\..*", r"\1", target.name))
        shutil.copytree(RESOURCES / "Data", package / "resources/Data", dirs_exist_ok=True)
        shutil.copy2(RESOURCES / "cities.table", package / "resources")


setup(version=VERSION, cffi_modules=["build_interface.py:interface"], cmdclass={"build_py": BuildWithLibraries})

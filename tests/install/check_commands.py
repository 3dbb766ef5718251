#!/usr/bin/env python3
"""Follows the commands of README.md that install the libraries and build the smallest application.

They run in a copy of the project, as after ./panel demo. The preset is configured for real and its
target looked up; what that would compile is taken from the build that is under test.
"""

import argparse
import pathlib
import shutil
import tempfile

from document import BLOCK, Reader
from install_tools import expect

BUILD = "cmake --build --preset demo --target install"
# what is copied was linked for another folder: leave its run path as it is
CONFIGURE = "cmake --preset demo"
LOOK_UP = "cmake --build --preset demo -- -t query install"


class Newcomer(Reader):
    def adapted(self, text):
        text = text.replace(BUILD, f"{LOOK_UP} && cmake --install build/demo")
        return text.replace(CONFIGURE, f"{CONFIGURE} -DCMAKE_BUILD_WITH_INSTALL_RPATH=ON")


def copy_project(source, build, project):
    left_out = shutil.ignore_patterns("build", ".git", "docs", "tests", "abi")
    shutil.copytree(source, project, ignore=left_out, symlinks=True)
    for folder in ("lib", "bin"):
        built = project / "build/demo" / folder
        built.mkdir(parents=True)
        for file in (build / folder).iterdir():
            if file.name.startswith(("libTAMFx", "libQTPANFx", "qtpanfx-printer")):
                shutil.copy(file, built, follow_symlinks=False)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("compiler", "build", "source"):
        parser.add_argument(f"--{name}", required=True, type=pathlib.Path)
    options = parser.parse_args()
    options.compiler = str(options.compiler)
    text = (options.source / "README.md").read_text(encoding="utf-8")
    expect(text.count(BUILD) == 1, f"README.md says: {BUILD}")
    with tempfile.TemporaryDirectory(prefix="qtpanfx-readme-") as name:
        newcomer = Newcomer(pathlib.Path(name), options)
        newcomer.folder = newcomer.home / "QTPANFx"
        copy_project(options.source, options.build, newcomer.folder)
        windows = 0
        for kind, window, content in BLOCK.findall(text):
            if window:
                newcomer.open_window(content)
                windows += 1
            elif kind == "sh":
                newcomer.follow(content)
        expect(windows == 2, "the application was built by CMake and by pkg-config")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Installs the builds with Qt 6 and with Qt 5 into one place and uses both.

Ends with status 77, which means skipped, where one of the two has not been built.
"""

import argparse
import pathlib
import sys
import tempfile

from install_tools import EXAMPLES, Tree, cached, expect, run

PACKAGES = {"6": "QTPANFx", "5": "QTPANFx-qt5"}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("cmake", "generator", "compiler", "libdir"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("builds", nargs="+", type=pathlib.Path)
    options = parser.parse_args()
    built = [build for build in options.builds if list((build / "lib").glob("libQTPANFx*.so"))]
    builds = {cached(build, "QTPANFX_QT_MAJOR"): build for build in built}
    if set(builds) != {"5", "6"}:
        print("skipped: there is no build with each of the Qt versions")
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="qtpanfx-both-") as name:
        folder = pathlib.Path(name)
        tree = Tree(folder / "prefix", options.libdir, options)
        for build in builds.values():
            run(options.cmake, "--install", build, "--prefix", tree.prefix)
        for qt, package in PACKAGES.items():
            by_cmake = folder / f"cmake{qt}"
            tree.build(EXAMPLES / "first-page", by_cmake, f"-DQTPANFX={package}")
            by_pkg_config = folder / f"hello{qt}"
            tree.compile(package, EXAMPLES / "first-page/main.cpp", by_pkg_config)
            for program in (by_cmake / "hello", by_pkg_config):
                expect(tree.qt_versions(program) == {qt}, f"{package} brings Qt {qt} and no other")
                tree.expect_lives(program, EXAMPLES / "first-page/root", package)


if __name__ == "__main__":
    main()

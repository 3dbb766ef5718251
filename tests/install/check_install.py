#!/usr/bin/env python3
"""Installs a build into a temporary folder and uses it as an application's developer would.

Checks that programs build and run against it through the CMake package and through pkg-config,
that one on the foundation library alone needs no Qt, that the libraries carry the name that
programs look for at start, and that they export what their headers show and nothing else.
"""

import argparse
import pathlib
import re
import sys
import tempfile

from install_tools import EXAMPLES, HERE, Tree, cached, expect, expect_refused, foreign_symbol, run

LAYOUT = """<layout><Base><background>back.png</background></Base><Components><label>
<hello title="Hello"><position x="1" y="1" width="99" height="30"/></hello>
</label></Components></layout>
"""
PBM_PICTURE = "P1 2 2 1 0 0 1\n"  # any format will do: the file's content tells it

CLASS = re.compile(r"\b(?:class|struct)\s+(?:QTPANFX|TAMFX)_EXPORT\s+(\w+)")
FUNCTION = re.compile(r"^(?:QTPANFX|TAMFX)_EXPORT\s+[^;{]*?(\w+)\(", re.MULTILINE)


class Install(Tree):
    def __init__(self, options, folder):
        super().__init__(folder / "prefix", options.libdir, options)
        self.work = folder / "work"
        self.root = folder / "root"
        self.write_root()

    def write_root(self):
        """The file system of an instrument, with one page."""
        resources = self.root / "app/bin/resource"
        for place in (resources / "layout", resources / "img", self.root / "data/config"):
            place.mkdir(parents=True)
        (resources / "layout/home.resource").write_text(LAYOUT)
        (resources / "img/back.png").write_text(PBM_PICTURE)
        (self.root / "data/config/config_zelapp.cfg").write_text(
            "Language = \nResourcePath = /app/bin/resource/\n"
        )

    def install(self):
        run(self.options.cmake, "--install", self.options.build, "--prefix", self.prefix)

    def check_run(self, program, how):
        env = {**self.environment(), "QTPANFX_SYSROOT": str(self.root)}
        out = run(program, env=env, timeout=60)
        expect("label visible" in out, f"an application built by {how} shows its page")

    def check_foundation_run(self, program, how):
        layout = self.root / "app/bin/resource/layout/home.resource"
        out = run(program, layout, env=self.environment(), timeout=60)
        expect("label seen" in out, f"a program on the foundation built by {how} runs")
        loaded = self.loaded(program)
        name = f"libTAMFx.so.{self.options.soversion}"
        expect(f"{name} =>" in loaded, f"and uses the installed libTAMFx ({how})")
        expect("Qt" not in loaded, f"and loads no Qt ({how})")

    def check_cmake_package(self):
        package = f"-DQTPANFX={self.options.package}"
        build = self.work / "cmake"
        self.build(HERE / "panel", build, package)
        self.check_run(build / "panel_consumer", "find_package")
        self.build(HERE / "foundation", self.work / "tamfx")
        self.check_foundation_run(self.work / "tamfx/foundation_consumer", "find_package")
        for example, program in (("first-page", "hello"), ("own-component", "tank")):
            build = self.work / example
            self.build(EXAMPLES / example, build, package)
            self.expect_lives(build / program, EXAMPLES / example / "root", "find_package")

    def check_pkg_config(self):
        package = self.options.package
        for name in (package, "TAMFx"):
            version = self.pkg_config("--modversion", name)
            expect(version == [self.options.version], f"{name}.pc says {self.options.version}")
        words = " ".join(self.pkg_config("--cflags", "--libs", "TAMFx"))
        expect("Qt5" not in words and "Qt6" not in words, "TAMFx.pc asks for no Qt")
        self.compile(package, HERE / "panel/main.cpp", self.work / "panel")
        self.check_run(self.work / "panel", "pkg-config")
        self.compile("TAMFx", HERE / "foundation/main.cpp", self.work / "foundation")
        self.check_foundation_run(self.work / "foundation", "pkg-config")
        self.compile(package, EXAMPLES / "first-page/main.cpp", self.work / "hello")
        self.expect_lives(self.work / "hello", EXAMPLES / "first-page/root", "pkg-config")

    def check_old_qt(self):
        """A Qt before the oldest that README.md names is refused, by the package and the project."""
        qt = f"Qt{self.options.qt}"
        old, oldest = {"5": ("5.14.2", "5.15"), "6": ("6.3.2", "6.4")}[self.options.qt]
        folder = self.work / "old-qt"
        folder.mkdir()
        (folder / f"{qt}Config.cmake").write_text("")
        (folder / f"{qt}ConfigVersion.cmake").write_text(
            f"set(PACKAGE_VERSION {old})\n"
            "if(NOT PACKAGE_FIND_VERSION VERSION_GREATER PACKAGE_VERSION)\n"
            "    set(PACKAGE_VERSION_COMPATIBLE ON)\nendif()\n"
        )
        project = pathlib.Path(self.options.src).parent
        for source, option, what in (
            (HERE / "panel", f"-DQTPANFX={self.options.package}", "find_package"),
            (project, f"-DQTPANFX_QT_MAJOR={self.options.qt}", "the project"),
        ):
            expect_refused(
                f'compatible with requested version "{oldest}"', f"{what} with Qt {old}",
                self.options.cmake, "-S", source, "-B", folder / source.name,
                "-G", self.options.generator, f"-D{qt}_DIR={folder}", option,
                f"-DCMAKE_CXX_COMPILER={self.options.compiler}",
                f"-DCMAKE_PREFIX_PATH={self.prefix}",
                # and not the system's Qt instead, which is looked for beside the programs in PATH
                f"-DCMAKE_MAKE_PROGRAM={cached(self.options.build, 'CMAKE_MAKE_PROGRAM')}",
                "-DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF",
                "-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF",
            )

    def check_header_tree(self):
        for header in pathlib.Path(self.options.src).rglob("*.h"):
            name = header.relative_to(self.options.src)
            if not (self.prefix / "include/QTPANFx" / name).is_file():
                sys.exit(f"FAILED: {name} is not installed")
        expect(True, "every header is installed under include/QTPANFx")

    def exported_names(self):
        """The classes and functions that the installed headers mark as exported."""
        names = set()
        for header in (self.prefix / "include").rglob("*.h"):
            text = header.read_text(encoding="utf-8")
            names.update(CLASS.findall(text))
            names.update(FUNCTION.findall(text))
        return names

    def check_symbols(self, library):
        path = self.libraries / f"lib{library}.so"
        dynamic = run("readelf", "-d", path)
        soname = f"lib{library}.so.{self.options.soversion}"
        expect(f"soname: [{soname}]" in dynamic, f"programs look for lib{library} as {soname}")
        names = self.exported_names()
        mangled = [line.split()[2] for line in run("nm", "-D", "--defined-only", path).splitlines()]
        ours = [symbol for symbol in mangled if not foreign_symbol(symbol)]
        ours = run("c++filt", input="\n".join(ours)).splitlines()
        stray = [symbol for symbol in ours if not names.intersection(re.findall(r"\w+", symbol))]
        expect(len(ours) > 50, f"lib{library} exports something ({len(ours)} symbols)")
        expect(not stray, f"lib{library} exports only what its headers mark: {stray[:10]}")
        local = [symbol for symbol in ours if "(anonymous namespace)" in symbol]
        expect(not local, f"lib{library} exports nothing file-local: {local[:10]}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("cmake", "build", "generator", "compiler", "package", "version", "soversion",
                 "qt", "src", "libdir"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="qtpanfx-install-") as name:
        installed = Install(options, pathlib.Path(name))
        installed.work.mkdir()
        installed.install()
        installed.check_header_tree()
        for library in ("TAMFx", options.package):
            installed.check_symbols(library)
        dynamic = run("readelf", "-d", installed.libraries / "libTAMFx.so")
        expect("Qt" not in dynamic, "libTAMFx needs no Qt")
        installed.check_pkg_config()
        installed.check_cmake_package()
        installed.check_old_qt()


if __name__ == "__main__":
    main()

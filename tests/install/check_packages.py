#!/usr/bin/env python3
"""Judges the Debian packages of a build: makes them, or with --made takes those that it made.

Checks the names, that no two packages hold one file, what each depends on, that the libraries are
stripped, and that a program can be built against the unpacked packages and comes up. Of a build for
the instrument also that nothing of the door for development machines is left in the library. Making
packages of a build that can't give good ones has to be refused.
"""

import argparse
import pathlib
import re
import shutil
import sys
import tempfile

from install_tools import EXAMPLES, Tree, cached, expect, expect_refused, run

QT_DEVELOPMENT = {"5": "qtbase5-dev (>= 5.15)", "6": "qt6-base-dev (>= 6.4)"}
QT_LIBRARIES = {
    "5": ("libqt5core5", "libqt5gui5", "libqt5widgets5"),
    "6": ("libqt6core6", "libqt6gui6", "libqt6widgets6"),
}
DOOR = b"QTPANFX_SYSROOT"


class Build:
    """A build folder, and what its packages have to be called."""

    def __init__(self, folder):
        self.folder = folder
        self.cmake = cached(folder, "CMAKE_COMMAND")
        self.cpack = cached(folder, "CMAKE_CPACK_COMMAND")
        self.generator = cached(folder, "CMAKE_GENERATOR")
        self.compiler = cached(folder, "CMAKE_CXX_COMPILER")
        self.libdir = cached(folder, "CMAKE_INSTALL_LIBDIR")
        self.version = cached(folder, "CMAKE_PROJECT_VERSION")
        self.qt = cached(folder, "QTPANFX_QT_MAJOR")
        self.for_instrument = cached(folder, "QTPANFX_SYSROOT") == "OFF"
        config = (folder / "CPackConfig.cmake").read_text(encoding="utf-8")
        soversion = re.search(r'set\(CPACK_QTPANFX_SOVERSION "(\d+)"\)', config).group(1)
        self.package = "QTPANFx-qt5" if self.qt == "5" else "QTPANFx"
        base = "libqtpanfx-qt5" if self.qt == "5" else "libqtpanfx"
        self.foundation = f"libtamfx{soversion}"
        self.library = f"{base}-{soversion}" if self.qt == "5" else f"{base}{soversion}"
        self.library_dev = f"{base}-dev"
        self.soname = f"lib{self.package}.so.{soversion}"

    def make(self, *options):
        return (self.cpack, "-G", "DEB", *options)

    def wanted(self):
        """Package by package the dependencies that are written down in the build."""
        same = f"(= {self.version})"
        foundation = f"{self.foundation} {same}"
        wanted = {
            self.foundation: [],
            "libtamfx-dev": [foundation],
            "libqtpanfx-headers": [f"libtamfx-dev {same}"],
            self.library: [foundation],
            self.library_dev: [
                f"{self.library} {same}", f"libqtpanfx-headers {same}", QT_DEVELOPMENT[self.qt],
            ],
        }
        if self.qt == "6":
            wanted["qtpanfx-tools"] = []
        return wanted

    def used_libraries(self):
        """The packages of libraries that programs and libraries were linked to, by their beginnings."""
        core, gui, widgets = QT_LIBRARIES[self.qt]
        used = {
            self.foundation: ["libc6", "libpugixml", "libsqlite3", "libstdc++6"],
            self.library: ["libc6", core, gui, widgets, "libstdc++6"],
        }
        if self.qt == "6":
            used["qtpanfx-tools"] = ["libc6", core, gui, "libstdc++6"]
        return used


def field(package, name):
    return run("dpkg-deb", "-f", package, name).strip()


def files(package):
    lines = run("dpkg-deb", "-c", package).splitlines()
    return {line.split()[5] for line in lines if not line.startswith("d")}


def unpack(packages, root):
    owners = {}
    for package, path in packages.items():
        for file in files(path):
            owner = owners.setdefault(file, package)
            if owner != package:
                sys.exit(f"FAILED: {file} is in {owner} and in {package}")
        copyright_file = f"./usr/share/doc/{package}/copyright"
        expect(owners.get(copyright_file) == package, f"{package} tells its licence")
        run("dpkg-deb", "-x", path, root)


def check_dependencies(packages, build):
    used = build.used_libraries()
    for package, wanted in build.wanted().items():
        depends = field(packages[package], "Depends")
        left = [entry for entry in depends.split(", ") if entry]
        for entry in wanted:
            expect(entry in left, f"{package} depends on {entry}")
            left.remove(entry)
        for name in used.get(package, ()):
            expect(any(entry.startswith(name) for entry in left), f"{package} depends on {name}")
        strange = [
            entry for entry in left if not entry.startswith((*used.get(package, ()), "libgcc"))
        ]
        expect(not strange, f"{package} depends on nothing else: {strange}")


def check_headers(tree):
    """What the development packages do not depend on must not be asked for by a header."""
    asking = [
        header.name
        for header in (tree.prefix / "include").rglob("*.h")
        if re.search(r"#include <(?:pugixml|sqlite3)", header.read_text(encoding="utf-8"))
    ]
    expect(not asking, f"no header needs pugixml or SQLite: {asking}")


def check_libraries(tree, build):
    libraries = list(tree.libraries.glob("lib*.so"))
    expect(len(libraries) == 2, f"there are two libraries in {build.libdir}")
    for path in libraries:
        expect(".symtab" not in run("readelf", "-SW", path), f"{path.name} is stripped")
        if cached(build.folder, "CMAKE_SKIP_INSTALL_RPATH") == "ON":
            dynamic = run("readelf", "-d", path)
            expect("PATH" not in dynamic, f"{path.name} is found by the system, without RUNPATH")
    door = DOOR in (tree.libraries / build.soname).read_bytes()
    if build.for_instrument:
        expect(not door, f"{build.soname} does not know {DOOR.decode()}")
    else:
        expect(door, f"{build.soname} is for development and obeys {DOOR.decode()}")


def check_refusals(build, folder):
    for reason, definition in (
        ("puts libraries into /usr/lib,", "CPACK_QTPANFX_LIBDIR=lib"),
        ("no program no-such-tool", "CPACK_QTPANFX_NEEDED=no-such-tool=its-package"),
    ):
        command = build.make("-B", folder, "-D", "CPACK_QTPANFX_MULTIARCH=m", "-D", definition)
        expect_refused(reason, "cpack refuses", *command, cwd=build.folder)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--made", action="store_true", help="judge the packages in the build folder")
    options = parser.parse_args()
    if not shutil.which("dpkg-shlibdeps") or not shutil.which("file"):
        print("skipped: dpkg-dev or file is not installed")
        sys.exit(77)
    if cached(options.build, "CMAKE_INSTALL_PREFIX") != "/usr":
        print("skipped: cpack refuses a build whose prefix is not /usr")
        sys.exit(77)
    build = Build(options.build.resolve())
    with tempfile.TemporaryDirectory(prefix="qtpanfx-packages-") as name:
        folder = pathlib.Path(name)
        made = build.folder if options.made else folder / "made"
        if not options.made:
            run(*build.make("-B", made), cwd=build.folder)
            check_refusals(build, folder / "refused")
        packages = {field(path, "Package"): path for path in made.glob("*.deb")}
        expect(set(packages) == set(build.wanted()), f"made are {', '.join(sorted(packages))}")
        check_dependencies(packages, build)
        unpack(packages, folder / "root")
        tree = Tree(folder / "root/usr", build.libdir, build)
        check_headers(tree)
        check_libraries(tree, build)
        tree.build(EXAMPLES / "first-page", folder / "hello", f"-DQTPANFX={build.package}")
        tree.expect_lives(folder / "hello/hello", EXAMPLES / "first-page/root", "the packages")
        if build.qt == "6":
            tool = tree.prefix / "bin/qtpanfx-printer-emulator"
            used = run(tool, "--help", env=tree.environment())
            expect("Usage" in used, "the emulator tells its use")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Reads the Yocto recipe and the Buildroot package as far as that goes without Yocto and Buildroot.

    check_packaging.py PROJECT VERSION

Recipes: syntax of each line, needed variables, the licence's checksum, the CMake options.
Buildroot: the makefile through make with a stand-in for its package rules, for both Qt versions;
Config.in through Kconfiglib with the symbols that it uses (left out where that is not installed);
the checksum in the hash file.
"""

import hashlib
import pathlib
import re
import sys
import tempfile

from install_tools import expect, run

LINE = re.compile(
    r"""(?:\#.*|[ ]*|
        (?:require|inherit)[ ][\w./-]+|
        [A-Z][\w:${}-]*[ ](?:\?=|=|\+=)[ ]"(?:[^"\\]|\\.|\\\n)*")$""",
    re.VERBOSE,
)
OPTION = re.compile(r"-D(\w+)=")

STAND_IN = """
qstrip = $(strip $(subst ",,$(1)))
define cmake-package
$(foreach v,VERSION SITE SITE_METHOD LICENSE LICENSE_FILES DEPENDENCIES CONF_OPTS,$(info $(v)=$(QTPANFX_$(v))))
endef
BR2_PACKAGE_QTPANFX_SOURCE_DIR = "/src"
all: ;
include %s
"""
SYMBOLS = ("QT6BASE_WIDGETS", "QT5BASE_WIDGETS", "PUGIXML", "SQLITE")


def logical_lines(path):
    return re.sub(r"\\\n", "", path.read_text(encoding="utf-8")).splitlines()


def check_recipes(folder, project, version):
    for path in sorted(folder.iterdir()):
        for line in logical_lines(path):
            if not LINE.match(line):
                sys.exit(f"FAILED: {path.name}: {line}")
    expect(True, "each line of the recipes is an assignment, an inherit or a comment")
    text = (folder / "qtpanfx.inc").read_text(encoding="utf-8")
    for name in ("SUMMARY", "LICENSE", "LIC_FILES_CHKSUM", "DEPENDS", "EXTRA_OECMAKE"):
        expect(re.search(rf"^{name} ", text, re.MULTILINE), f"the recipe sets {name}")
    licence = (project / "LICENSE").read_bytes()
    expect(f"md5={hashlib.md5(licence).hexdigest()}" in text, "the recipe knows the licence")
    for name in ("qtpanfx", "qtpanfx-qt5"):
        expect((folder / f"{name}_{version}.bb").is_file(), f"{name} is of version {version}")
    return OPTION.findall("".join(path.read_text() for path in folder.iterdir()))


def package_variables(makefile, qt):
    with tempfile.NamedTemporaryFile("w", suffix=".mk") as stand_in:
        stand_in.write(STAND_IN % makefile)
        stand_in.flush()
        out = run("make", "-s", "-f", stand_in.name, f"BR2_PACKAGE_QT{qt}BASE_WIDGETS=y", "all")
    return dict(line.split("=", 1) for line in out.splitlines() if "=" in line)


def check_makefile(folder, project, version):
    options = []
    for qt in ("5", "6"):
        values = package_variables(folder / "qtpanfx.mk", qt)
        expect(values["VERSION"] == version, f"Buildroot's version is {version}")
        expect(values["SITE"] == "/src", "Buildroot takes the folder of the configuration")
        expect(f"qt{qt}base" in values["DEPENDENCIES"].split(), f"it depends on qt{qt}base")
        expect(f"-DQTPANFX_QT_MAJOR={qt}" in values["CONF_OPTS"], f"and builds with Qt {qt}")
        expect((project / values["LICENSE_FILES"]).is_file(), "its licence file is there")
        options += OPTION.findall(values["CONF_OPTS"])
    checksum = hashlib.sha256((project / "LICENSE").read_bytes()).hexdigest()
    hashes = (folder / "qtpanfx.hash").read_text(encoding="utf-8")
    expect(f"sha256  {checksum}  LICENSE" in hashes, "and its checksum is the one in the hash file")
    return options


def check_config(path):
    sys.path.append("/usr/lib/python3/dist-packages")  # the package's place, for any Python
    try:
        import kconfiglib
    except ImportError:
        print("left out: Config.in, there is no Kconfiglib")
        return
    stubs = "".join(f"config BR2_PACKAGE_{name}\n\tbool\n\tdefault y\n" for name in SYMBOLS[:2])
    stubs += "".join(f"config BR2_PACKAGE_{name}\n\tbool\n" for name in SYMBOLS[2:])
    for name in ("BR2_INSTALL_LIBSTDCPP", "BR2_TOOLCHAIN_GCC_AT_LEAST_7"):
        stubs += f"config {name}\n\tbool\n\tdefault y\n"
    with tempfile.TemporaryDirectory() as folder:
        top = pathlib.Path(folder) / "Config.in"
        top.write_text(f'mainmenu "stand-in"\n{stubs}source "{path}"\n', encoding="utf-8")
        config = kconfiglib.Kconfig(str(top), warn_to_stderr=False)
    expect(not config.warnings, f"Config.in reads without a warning: {config.warnings}")
    package = config.syms["BR2_PACKAGE_QTPANFX"]
    package.set_value("y")
    expect(package.str_value == "y", "the package can be chosen")
    for name in SYMBOLS[2:]:
        expect(config.syms[f"BR2_PACKAGE_{name}"].str_value == "y", f"and brings {name.lower()}")


def main():
    project, version = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    packaging = project / "packaging"
    options = check_recipes(packaging / "yocto/recipes-panel/qtpanfx", project, version)
    options += check_makefile(packaging / "buildroot", project, version)
    known = (project / "CMakeLists.txt").read_text(encoding="utf-8")
    for option in sorted(set(options)):
        expect(re.search(rf"^(?:option|set)\({option} ", known, re.MULTILINE), f"{option} exists")
    check_config(packaging / "buildroot/Config.in")


if __name__ == "__main__":
    main()

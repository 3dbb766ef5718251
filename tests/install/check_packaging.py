#!/usr/bin/env python3
"""Reads the Yocto recipe and the Buildroot package as far as that goes without Yocto and Buildroot.

    check_packaging.py PROJECT VERSION

Recipes: syntax of each line, needed variables, what is said where the folder of the sources is not
set, the licence's checksum, the CMake options.
Buildroot: the makefile through make with a stand-in for its package rules, for both Qt versions; the
checksum in the hash file.
"""

import hashlib
import pathlib
import re
import sys
import tempfile
import textwrap
import types

from install_tools import expect, run

LINE = re.compile(
    r"""(?:\#.*|[ ]*|
        (?:require|inherit)[ ][\w./-]+|
        [A-Z][\w:${}-]*[ ](?:\?=|=|\+=)[ ]"(?:[^"\\]|\\.|\\\n)*")$""",
    re.VERBOSE,
)
PYTHON = re.compile(r"^python \(\) \{\n(.*?)^\}$", re.MULTILINE | re.DOTALL)
SHUT = "-DQTPANFX_SYSROOT=OFF"
OPTION = re.compile(r"-D(QTPANFX_\w+)=")

STAND_IN = """
qstrip = $(strip $(subst ",,$(1)))
define cmake-package
$(foreach v,VERSION SITE SITE_METHOD LICENSE LICENSE_FILES DEPENDENCIES CONF_OPTS OVERRIDE_SRCDIR_RSYNC_EXCLUSIONS,$(info $(v)=$(QTPANFX_$(v))))
endef
BR2_PACKAGE_QTPANFX_SOURCE_DIR = "/src"
all: ;
include %s
"""


def logical_lines(path):
    text = PYTHON.sub("", path.read_text(encoding="utf-8"))
    return re.sub(r"\\\n", "", text).splitlines()


class SkipRecipe(Exception):
    """Stands for BitBake's exception: the recipe can't be built, and why."""


def skip_reason(recipe, variables):
    """What the recipe's anonymous Python says, with these variables, about why it can't be built."""
    bitbake = types.SimpleNamespace(parse=types.SimpleNamespace(SkipRecipe=SkipRecipe))
    data = types.SimpleNamespace(getVar=variables.get)
    try:
        for code in PYTHON.findall(recipe):
            exec(textwrap.dedent(code), {"bb": bitbake, "d": data})
    except SkipRecipe as reason:
        return str(reason)
    return ""


def check_recipes(folder, project, version):
    for path in sorted(folder.iterdir()):
        for line in logical_lines(path):
            if not LINE.match(line):
                sys.exit(f"FAILED: {path.name}: {line}")
    expect(True, "each line of the recipes is an assignment, an inherit or a comment")
    text = (folder / "qtpanfx.inc").read_text(encoding="utf-8")
    for name in ("SUMMARY", "LICENSE", "LIC_FILES_CHKSUM", "DEPENDS", "EXTRA_OECMAKE"):
        expect(re.search(rf"^{name} ", text, re.MULTILINE), f"the recipe sets {name}")
    expect(SHUT in text, "it shuts the door for development machines")
    reason = skip_reason(text, {"QTPANFX_SOURCE_DIR": ""})
    expect("QTPANFX_SOURCE_DIR is not set" in reason, f"without sources it says: {reason}")
    reason = skip_reason(text, {"QTPANFX_SOURCE_DIR": "/src"})
    expect(not reason, "and with them nothing")
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
        expect(SHUT in values["CONF_OPTS"], "and shuts the door for development machines")
        options += OPTION.findall(values["CONF_OPTS"])
        exclusions = values["OVERRIDE_SRCDIR_RSYNC_EXCLUSIONS"].split()
        expect("--exclude=/build" in exclusions, "a folder that was built in is copied without that")
    checksum = hashlib.sha256((project / "LICENSE").read_bytes()).hexdigest()
    hashes = (folder / "qtpanfx.hash").read_text(encoding="utf-8")
    expect(f"sha256  {checksum}  LICENSE" in hashes, "and its checksum is the one in the hash file")
    return options


def main():
    project, version = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    packaging = project / "packaging"
    options = check_recipes(packaging / "yocto/recipes-panel/qtpanfx", project, version)
    options += check_makefile(packaging / "buildroot", project, version)
    known = (project / "CMakeLists.txt").read_text(encoding="utf-8")
    for option in sorted(set(options)):
        expect(re.search(rf"^(?:option|set)\({option} ", known, re.MULTILINE), f"{option} exists")


if __name__ == "__main__":
    main()

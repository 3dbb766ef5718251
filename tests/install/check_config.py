#!/usr/bin/env python3
"""Reads Buildroot's Config.in through Kconfiglib, with the symbols that it uses.

    check_config.py PROJECT

Ends with status 77, which means skipped, where Kconfiglib is not installed.
"""

import pathlib
import sys
import tempfile

from install_tools import expect

sys.path.append("/usr/lib/python3/dist-packages")  # the package's place, for any Python
try:
    import kconfiglib
except ImportError:
    print("skipped: Kconfiglib is not installed")
    sys.exit(77)

GIVEN = ("BR2_PACKAGE_QT6BASE_WIDGETS", "BR2_PACKAGE_QT5BASE_WIDGETS", "BR2_INSTALL_LIBSTDCPP",
         "BR2_TOOLCHAIN_GCC_AT_LEAST_7")
BROUGHT = ("BR2_PACKAGE_PUGIXML", "BR2_PACKAGE_SQLITE")


def main():
    path = pathlib.Path(sys.argv[1]).resolve() / "packaging/buildroot/Config.in"
    stubs = "".join(f"config {name}\n\tbool\n\tdefault y\n" for name in GIVEN)
    stubs += "".join(f"config {name}\n\tbool\n" for name in BROUGHT)
    with tempfile.TemporaryDirectory() as folder:
        top = pathlib.Path(folder) / "Config.in"
        top.write_text(f'mainmenu "stand-in"\n{stubs}source "{path}"\n', encoding="utf-8")
        config = kconfiglib.Kconfig(str(top), warn_to_stderr=False)
    expect(not config.warnings, f"Config.in reads without a warning: {config.warnings}")
    package = config.syms["BR2_PACKAGE_QTPANFX"]
    package.set_value("y")
    expect(package.str_value == "y", "the package can be chosen")
    for name in BROUGHT:
        expect(config.syms[name].str_value == "y", f"and brings {name}")


if __name__ == "__main__":
    main()

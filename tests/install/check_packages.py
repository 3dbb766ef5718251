#!/usr/bin/env python3
"""Makes the Debian packages, unpacks them as dpkg would and builds a program against them.

Checks the names, that no two packages hold one file, what they depend on, and that the libraries
are stripped.
"""

import argparse
import pathlib
import shutil
import sys
import tempfile

from install_tools import EXAMPLES, Tree, expect, run

COMMON = {"libtamfx0", "libtamfx-dev", "libqtpanfx-headers", "qtpanfx-tools"}
LIBRARIES = {
    "QTPANFx": {"libqtpanfx0", "libqtpanfx-dev"},
    "QTPANFx-qt5": {"libqtpanfx-qt5-0", "libqtpanfx-qt5-dev"},
}


def field(package, name):
    return run("dpkg-deb", "-f", package, name).strip()


def files(package):
    lines = run("dpkg-deb", "-c", package).splitlines()
    return {line.split()[5] for line in lines if not line.startswith("d")}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("cmake", "cpack", "build", "generator", "compiler", "package", "libdir"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    if not shutil.which("dpkg-shlibdeps"):
        print("skipped: dpkg-dev is not installed")
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="qtpanfx-packages-") as name:
        folder = pathlib.Path(name)
        run(options.cpack, "-G", "DEB", "-B", folder / "made", cwd=options.build)
        packages = {field(path, "Package"): path for path in (folder / "made").glob("*.deb")}
        wanted = COMMON | LIBRARIES[options.package]
        expect(set(packages) == wanted, f"the packages are {', '.join(sorted(wanted))}")
        owners = {}
        for package, path in packages.items():
            for file in files(path):
                owner = owners.setdefault(file, package)
                if owner != package:
                    sys.exit(f"FAILED: {file} is in {owner} and in {package}")
            copyright_file = f"./usr/share/doc/{package}/copyright"
            expect(owners.get(copyright_file) == package, f"{package} tells its licence")
            run("dpkg-deb", "-x", path, folder / "root")
        library = next(entry for entry in LIBRARIES[options.package] if not entry.endswith("-dev"))
        depends = field(packages[library], "Depends")
        qt = "libqt5core5" if "qt5" in library else "libqt6core6"
        expect("libtamfx0 (=" in depends and qt in depends, f"{library} depends on {depends}")
        tree = Tree(folder / "root/usr", options.libdir, options)
        for path in tree.libraries.glob("lib*.so.0"):
            expect(".symtab" not in run("readelf", "-SW", path), f"{path.name} is stripped")
        tree.build(EXAMPLES / "first-page", folder / "hello", f"-DQTPANFX={options.package}")
        tree.expect_lives(folder / "hello/hello", EXAMPLES / "first-page/root", "the packages")
        tool = tree.prefix / "bin/qtpanfx-printer-emulator"
        expect("Usage" in run(tool, "--help", env=tree.environment()), "the emulator tells its use")


if __name__ == "__main__":
    main()

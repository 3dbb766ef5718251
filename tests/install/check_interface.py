#!/usr/bin/env python3
"""Compares what the libraries show to applications with what is written down in abi/.

Two records, made anew by --update after a change that is meant:

- abi/LIBRARY.symbols, to be read: every exported function and table, with the sizes of the tables
  of virtual operations;
- abi/LIBRARY.abi.xz, for abidiff of libabigail: also sizes and places of fields and the order of
  virtual operations. It counts for the compiler and the Qt version that it was made with, named
  beside it in LIBRARY.made-with, and is passed over with others.
"""

import argparse
import difflib
import lzma
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from install_tools import foreign_symbol, run

ABI = pathlib.Path(__file__).resolve().parent.parent.parent / "abi"
OPTIONS = ("--no-corpus-path", "--no-comp-dir-path", "--no-show-locs",
           "--no-parameter-names", "--no-elf-needed", "--type-id-style", "hash")


def symbols(library):
    """Exported names, demangled and in order; tables of virtual operations with their size."""
    rows = []
    for line in run("nm", "-D", "-S", "--defined-only", library).splitlines():
        words = line.split()
        name = words[-1].partition("@")[0]
        if foreign_symbol(name):
            continue
        is_table = name.startswith("_ZTV") and len(words) == 4
        size = f" [{int(words[1], 16)} bytes]" if is_table else ""
        rows.append((name, size))
    names = run("c++filt", input="\n".join(name for name, _ in rows)).splitlines()
    return sorted({name + size for name, (_, size) in zip(names, rows)})


def check_symbols(library, record):
    wanted = record.read_text(encoding="utf-8").splitlines() if record.is_file() else []
    changes = [
        line
        for line in difflib.unified_diff(wanted, symbols(library), lineterm="", n=0)
        if re.match(r"[-+](?![-+])", line)
    ]
    for line in changes:
        print(f"{record.name}: {line}")
    return not changes


def check_layout(library, options, record):
    """False when abidiff tells a change; true, saying why, where it can't be asked."""
    made_with = record.with_name(record.name.replace(".abi.xz", ".made-with"))
    if not record.is_file():
        print(f"{record.name}: there is no record")
        return False
    if not shutil.which("abidiff"):
        print(f"{record.name}: passed over, there is no abidiff")
        return True
    if made_with.read_text(encoding="utf-8").strip() != options.made_with:
        print(f"{record.name}: passed over, it was made with another compiler or Qt")
        return True
    with tempfile.NamedTemporaryFile(suffix=".abi") as unpacked:
        unpacked.write(lzma.decompress(record.read_bytes()))
        unpacked.flush()
        done = subprocess.run(
            ["abidiff", "--no-added-syms", "--no-architecture", unpacked.name, str(library)],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
        )
    if done.returncode:
        print(f"{record.name}: abidiff ended with {done.returncode}\n{done.stdout}")
    return done.returncode == 0


def update(library, options, name):
    listing = "\n".join(symbols(library)) + "\n"
    (ABI / f"{name}.symbols").write_text(listing, encoding="utf-8")
    with tempfile.NamedTemporaryFile(suffix=".abi") as made:
        run("abidw", *OPTIONS, "--out-file", made.name, library)
        packed = lzma.compress(pathlib.Path(made.name).read_bytes(), preset=9)
    (ABI / f"{name}.abi.xz").write_bytes(packed)
    (ABI / f"{name}.made-with").write_text(options.made_with + "\n", encoding="utf-8")
    print(f"{name}: written to {ABI}")


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--made-with", required=True, help="compiler, Qt and processor")
    parser.add_argument("--update", action="store_true", help="write the records anew")
    parser.add_argument("libraries", nargs="+", type=pathlib.Path)
    options = parser.parse_args()
    good = True
    for library in options.libraries:
        name = library.name.partition(".so")[0]
        if options.update:
            update(library, options, name)
            continue
        good = check_symbols(library, ABI / f"{name}.symbols") and good
        good = check_layout(library, options, ABI / f"{name}.abi.xz") and good
    if not good:
        sys.exit("The interface has changed. If that is meant, write the records anew with\n"
                 "    cmake --build BUILD --target interface_update\nand raise QTPANFX_SOVERSION when it "
                 "breaks applications that are built already.")
    print("ok: the interface is as written down")


if __name__ == "__main__":
    main()

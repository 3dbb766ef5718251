#!/usr/bin/env python3
"""Compares what the libraries show to applications with what is written down in abi/.

Two records of each library, made anew by --update after a change that is meant:

- abi/LIBRARY.symbols, to be read: every exported function and table, with the sizes of the tables
  of virtual operations. It counts for the processor that it was made for;
- abi/LIBRARY.abi.xz, for abidiff of libabigail: also sizes and places of fields and the order of
  virtual operations. It counts for the compiler, the Qt version and the processor.

LIBRARY.made-with beside them names these three. With others a record is passed over, and the test
ends with status 77, which means skipped, unless what was judged is at fault.
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


class PassedOver(Exception):
    """A record that can't be judged here, and why."""


def processor(made_with):
    return made_with.rpartition(", ")[2]


def check_symbols(library, options, record, made_with):
    """False when the names differ from those written down."""
    if made_with and processor(made_with) != processor(options.made_with):
        raise PassedOver("it was made for another processor")
    wanted = record.read_text(encoding="utf-8").splitlines() if record.is_file() else []
    changes = [
        line
        for line in difflib.unified_diff(wanted, symbols(library), lineterm="", n=0)
        if re.match(r"[-+](?![-+])", line)
    ]
    for line in changes:
        print(f"{record.name}: {line}")
    return not changes


def check_layout(library, options, record, made_with):
    """False when abidiff tells a change."""
    if not record.is_file():
        print(f"{record.name}: there is no record")
        return False
    if not shutil.which("abidiff"):
        raise PassedOver("there is no abidiff")
    if made_with != options.made_with:
        raise PassedOver(f"it was made with {made_with}, and this is {options.made_with}")
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


def judge(library, options, name):
    """The faulty records of a library, and those that were passed over, by their names."""
    faulty, passed_over = [], []
    made_with = ABI / f"{name}.made-with"
    made_with = made_with.read_text(encoding="utf-8").strip() if made_with.is_file() else ""
    for check, ending in ((check_symbols, "symbols"), (check_layout, "abi.xz")):
        record = ABI / f"{name}.{ending}"
        try:
            if not check(library, options, record, made_with):
                faulty.append(record.name)
        except PassedOver as reason:
            print(f"{record.name}: passed over, {reason}")
            passed_over.append(record.name)
    return faulty, passed_over


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
    faulty, passed_over = [], []
    for library in options.libraries:
        name = library.name.partition(".so")[0]
        if options.update:
            update(library, options, name)
            continue
        at_fault, unjudged = judge(library, options, name)
        faulty += at_fault
        passed_over += unjudged
    if options.update:
        return
    if faulty:
        sys.exit("The interface has changed. If that is meant, write the records anew with\n"
                 "    cmake --build BUILD --target interface_update\nand raise QTPANFX_SOVERSION when it "
                 "breaks applications that are built already.")
    if passed_over:
        sys.exit(77)
    print("ok: the interface is as written down")


if __name__ == "__main__":
    main()

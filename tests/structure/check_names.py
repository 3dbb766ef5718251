#!/usr/bin/env python3
"""Checks that files, classes and includes are named as everywhere in the project.

    check_names.py SRC

- every source X.cpp has its header X.h beside it, and every header has "#pragma once";
- a header that holds classes holds the one that it is named after, and a header named ZEL...
  always does; exceptions are listed;
- a component's class stands in PANFx::Components;
- an include of the project's own is written from src/ in double quotes, and the file exists.
Each violation is printed as file:line with the reason, and the result is 1.
"""

import pathlib
import re
import sys

# sources that share the header of another one: a second half of one class
SHARED_HEADER = {
    "print/ImagePrintJob.cpp": "print/ImagePrint.h",
    "resource/KrPadRules.cpp": "resource/KrPad.h",
}

# headers that hold small types under a name of their own
OTHER_NAME = {
    "components/ComponentTable.h",  # ComponentEntry, a row of the table
    "events/UpdateItems.h",  # what the two update events share
}
# a folder of free functions and small value types
OTHER_NAME_FOLDER = "components/support/"

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]')


CLASS = re.compile(
    r"^(?:class|struct)\s+(?:[A-Z_]+_EXPORT\s+)?(\w+)(?=[\s:{]|$)(?!\s*;)", re.MULTILINE
)


def check_header(path, text, faults):
    if "#pragma once" not in text:
        faults.append(f"{path}:1: no #pragma once")
    if path in OTHER_NAME or path.startswith(OTHER_NAME_FOLDER):
        return
    name = pathlib.PurePosixPath(path).stem
    classes = CLASS.findall(text)
    if name not in classes and (classes or name.startswith("ZEL")):
        faults.append(f"{path}:1: holds no class {name}")
    elif re.match(r"components/\w+/", path) and "namespace PANFx::Components {" not in text:
        faults.append(f"{path}:1: {name} does not stand in PANFx::Components")


def check_includes(path, text, files, names, faults):
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        quote, name = found.groups()
        if quote == '"' and name not in files:
            faults.append(f'{path}:{number}: "{name}" is no file, as written from src/')
        if quote == "<" and (name in files or name.rpartition("/")[2] in names):
            faults.append(f"{path}:{number}: <{name}> is the project's own: write it in quotes")


def check(src):
    """All violations in a source tree, as readable lines."""
    src = pathlib.Path(src)
    files = {
        path.relative_to(src).as_posix() for path in src.rglob("*") if path.suffix in (".h", ".cpp")
    }
    names = {path.rpartition("/")[2] for path in files if path.endswith(".h")}
    faults = []
    for path in sorted(files):
        text = (src / path).read_text(encoding="utf-8")
        check_includes(path, text, files, names, faults)
        if path.endswith(".h"):
            check_header(path, text, faults)
        elif SHARED_HEADER.get(path, path[:-4] + ".h") not in files:
            faults.append(f"{path}:1: has no header of its name")
    return faults, len(files)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    faults, files = check(sys.argv[1])
    for fault in faults:
        print(fault)
    if files == 0:
        sys.exit(f"no sources in {sys.argv[1]}")
    print(f"{files} files, {len(faults)} violations")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()

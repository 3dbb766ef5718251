#!/usr/bin/env python3
"""Checks that the sources keep to their floors.

    check_floors.py SRC

A file includes only files of its own folder on its own floor, or of lower floors; no files
include each other in a circle; the foundation library includes nothing of the rest and no Qt.
Each violation is printed as file:line with the reason, and the result is 1.
"""

import pathlib
import re
import sys

# The house, top floor first: floor, then the file or the folder (which ends in a slash) below
# src/. The longest entry that fits a file holds for it. Everything may stand on the foundation,
# the libraries' ground, so it lies below floor 1.
FLOORS = [
    (7, "components/ComponentTable.cpp"),
    (6, "windows/"),
    (5, "components/lists/"),
    (5, "components/containers/"),
    (5, "components/gauges/"),
    (5, "components/pads/"),
    (4, "components/text/"),
    (4, "components/editors/"),
    (4, "components/buttons/"),
    (4, "components/pictures/"),
    (3, "components/ZELComponent"),
    (3, "components/SubComponents"),
    (3, "components/DeleteLiving"),
    (3, "components/support/"),
    (2, "resource/"),
    (2, "events/"),
    (2, "print/"),
    (2, "components/ComponentFactory"),
    (2, "components/ComponentWalk"),
    (2, "components/ComponentDeque"),
    (2, "components/ComponentTable.h"),
    (1, "common/"),
    (0, "common/tamfx/"),
]
FOUNDATION = "common/tamfx/"

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
BLOCK_COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)


def place(path):
    """(floor, entry) of a file by its path below src/; None for a file without a floor."""
    fitting = [
        (floor, entry)
        for floor, entry in FLOORS
        if path.startswith(entry) and (entry.endswith(("/", ".cpp", ".h")) or fits(path, entry))
    ]
    return max(fitting, key=lambda found: len(found[1])) if fitting else None


def fits(path, entry):
    """An entry without an ending names a class: its header and its source."""
    return path in (entry + ".h", entry + ".cpp")


def includes(text):
    """(line, quote, name) of each include, comments aside."""
    blanked = BLOCK_COMMENT.sub(lambda found: "\n" * found.group().count("\n"), text)
    for found in INCLUDE.finditer(blanked):
        yield blanked.count("\n", 0, found.start(2)) + 1, found.group(1), found.group(2)


def folder(path):
    return path.rpartition("/")[0]


def judge(path, included):
    """Why a file may not include another one; None when it may."""
    if path.startswith(FOUNDATION) and not included.startswith(FOUNDATION):
        return "the foundation includes nothing of the rest"
    floor, _ = place(path)
    other_place = place(included)
    if other_place is None:
        return None  # told for the file itself
    other = other_place[0]
    if other < floor:
        return None
    if other > floor:
        return f"it lies on floor {other}, above floor {floor}"
    if folder(path) != folder(included):
        return f"another folder of the same floor {floor}"
    return None


def circles(graph):
    """Each circle of files once, as the list of its files from the alphabetically first on."""
    found = set()
    state = {}
    trail = []

    def visit(path):
        state[path] = "open"
        trail.append(path)
        for other in graph.get(path, ()):
            if state.get(other) == "open":
                circle = trail[trail.index(other):]
                first = circle.index(min(circle))
                found.add(tuple(circle[first:] + circle[:first]))
            elif other not in state:
                visit(other)
        trail.pop()
        state[path] = "done"

    for path in sorted(graph):
        if path not in state:
            visit(path)
    return sorted(found)


def check(src):
    """All violations in a source tree, as readable lines."""
    src = pathlib.Path(src)
    files = sorted(
        path.relative_to(src).as_posix() for path in src.rglob("*") if path.suffix in (".h", ".cpp")
    )
    faults = []
    graph = {}
    for path in files:
        if place(path) is None:
            faults.append(f"{path}:1: no floor is given to this file in FLOORS of check_floors.py")
            continue
        graph[path] = []
        for line, quote, name in includes((src / path).read_text(encoding="utf-8")):
            if name in files:
                graph[path].append(name)
                reason = judge(path, name)
                if reason:
                    faults.append(f"{path}:{line}: must not include {name}: {reason}")
            elif path.startswith(FOUNDATION) and quote == "<" and re.match(r"Qt?[A-Z]", name):
                faults.append(f"{path}:{line}: must not include <{name}>: no Qt in the foundation")
    for circle in circles(graph):
        faults.append(f"{circle[0]}:1: circle of files: " + " -> ".join(circle + circle[:1]))
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

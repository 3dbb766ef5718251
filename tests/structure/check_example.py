#!/usr/bin/env python3
"""Checks that the example instrument shows everything that a layout or a page can meet.

    check_example.py SRC [EXAMPLE]

- its layouts use each keyword of SRC/components/ComponentTable.cpp;
- its sources name each event number of SRC/events/EventNumbers.h and each event class of
  SRC/events/, comments aside; exceptions are listed with their reason.
The folder tour/ of the example doesn't count: it is a test, which nobody copies. EXAMPLE is
examples/instrument beside SRC unless it is given. Each thing that is not shown is printed with where
it comes from, and the result is 1.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

TABLE = "components/ComponentTable.cpp"
NUMBERS = "events/EventNumbers.h"

# event numbers and classes that no page of the example meets, and why
NOT_SHOWN = {}

KEYWORD = re.compile(r'\{\s*"(\w+)",\s*"ZEL\w+"')
NUMBER = re.compile(r"^constexpr\s+QEvent::Type\s+(EVENT_\w+)", re.MULTILINE)
CLASS = re.compile(r"^class\s+(?:QTPANFX_EXPORT\s+)?(ZEL\w*Event)\b[^;]*$", re.MULTILINE)
INCLUDE = re.compile(r"^\s*#\s*include[^\n]*|^\s*class\s+\w+;", re.MULTILINE)
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)


def used_groups(parent, keywords):
    """The keywords of the groups in an element and in the components of these groups."""
    used = set()
    for group in parent:
        if group.tag == "Components":
            used |= used_groups(group, keywords)
        elif group.tag in keywords and len(group) > 0:
            used.add(group.tag)
            for component in group:  # whatever its id
                used |= used_groups(component, keywords)
    return used


def used_keywords(example, keywords):
    used = set()
    for path in example.glob("rootfs/**/*.resource"):
        root = xml.etree.ElementTree.parse(path).getroot()
        if root.tag == "Layout":
            used |= used_groups(root, keywords)
    return used


def named_in_code(example):
    """Event numbers and classes in the example's code; an include or a declaration shows nothing."""
    named = set()
    for path in example.rglob("*"):
        if path.suffix in (".cpp", ".h") and "tour" not in path.relative_to(example).parts[:-1]:
            code = INCLUDE.sub("", COMMENT.sub("", path.read_text(encoding="utf-8")))
            named.update(re.findall(r"\b(?:EVENT_\w+|ZEL\w*Event)\b", code))
    return named


def event_classes(src):
    """Each event class with the header that it stands in."""
    return {
        name: f"events/{path.name}"
        for path in (src / "events").glob("*.h")
        for name in CLASS.findall(path.read_text(encoding="utf-8"))
    }


def check(src, example):
    """What the example doesn't show, as readable lines, and how much there is to show."""
    keywords = set(KEYWORD.findall((src / TABLE).read_text(encoding="utf-8")))
    numbers = set(NUMBER.findall((src / NUMBERS).read_text(encoding="utf-8")))
    classes = event_classes(src)
    counts = f"{len(keywords)} keywords, {len(numbers)} event numbers, {len(classes)} event classes"
    if not keywords or not numbers or not classes:
        sys.exit(f"{counts} in {src}")
    faults = [
        f"{TABLE}: no layout of {example.name} has a {keyword}"
        for keyword in sorted(keywords - used_keywords(example, keywords))
    ]
    named = named_in_code(example)
    for name, place in sorted([(number, NUMBERS) for number in numbers] + list(classes.items())):
        if name not in named and name not in NOT_SHOWN:
            faults.append(f"{place}: no source of {example.name} names {name}")
    for name in sorted(set(NOT_SHOWN) & named):
        faults.append(f"{name} is shown: it needs no exception")
    return faults, counts


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    src = pathlib.Path(sys.argv[1])
    beside = src.resolve().parent / "examples" / "instrument"
    faults, counts = check(src, pathlib.Path(sys.argv[2]) if sys.argv[2:] else beside)
    for fault in faults:
        print(fault)
    print(f"{counts}, {len(faults)} not shown")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()

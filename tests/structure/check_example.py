#!/usr/bin/env python3
"""Checks that the example instrument shows everything that a layout or a page can meet.

    check_example.py SRC [EXAMPLE]

- its layouts use each keyword of SRC/components/ComponentTable.cpp;
- its sources name each event number of SRC/events/EventNumbers.h, comments aside; exceptions are
  listed with their reason.
EXAMPLE is examples/instrument beside SRC unless it is given. Each thing that is not shown is printed
with where it comes from, and the result is 1.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

TABLE = "components/ComponentTable.cpp"
NUMBERS = "events/EventNumbers.h"

# event numbers that no page of the example meets, and why
NOT_SHOWN = {}

KEYWORD = re.compile(r'\{\s*"(\w+)",\s*"ZEL\w+"')
NUMBER = re.compile(r"^constexpr\s+QEvent::Type\s+(EVENT_\w+)", re.MULTILINE)
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


def named_numbers(example):
    named = set()
    for path in example.rglob("*"):
        if path.suffix in (".cpp", ".h"):
            code = COMMENT.sub("", path.read_text(encoding="utf-8"))
            named.update(re.findall(r"\bEVENT_\w+", code))
    return named


def check(src, example):
    """What the example doesn't show, as readable lines, and how much there is to show."""
    keywords = set(KEYWORD.findall((src / TABLE).read_text(encoding="utf-8")))
    numbers = set(NUMBER.findall((src / NUMBERS).read_text(encoding="utf-8")))
    if not keywords or not numbers:
        sys.exit(f"{len(keywords)} keywords, {len(numbers)} event numbers in {src}")
    faults = [
        f"{TABLE}: no layout of {example.name} has a {keyword}"
        for keyword in sorted(keywords - used_keywords(example, keywords))
    ]
    named = named_numbers(example)
    for number in sorted(numbers):
        if number not in named and number not in NOT_SHOWN:
            faults.append(f"{NUMBERS}: no source of {example.name} names {number}")
    for number in sorted(set(NOT_SHOWN) & named):
        faults.append(f"{number} is shown: it needs no exception")
    return faults, len(keywords), len(numbers)


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    src = pathlib.Path(sys.argv[1])
    beside = src.resolve().parent / "examples" / "instrument"
    faults, keywords, numbers = check(src, pathlib.Path(sys.argv[2]) if sys.argv[2:] else beside)
    for fault in faults:
        print(fault)
    print(f"{keywords} keywords, {numbers} event numbers, {len(faults)} not shown")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()

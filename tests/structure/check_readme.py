#!/usr/bin/env python3
"""Checks that the README shows the smallest application as it lies in examples/first-page.

    check_readme.py SRC

Each block of code that begins like a file of the example must be that file, to the last blank.
"""

import pathlib
import re
import sys

BLOCK = re.compile(r"^```(?:cpp|xml)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
FILES = ("main.cpp", "root/app/bin/resource/layout/hello.resource",
         "root/app/bin/resource/default.style")


def main():
    project = pathlib.Path(sys.argv[1]).resolve().parent
    blocks = BLOCK.findall((project / "README.md").read_text(encoding="utf-8"))
    faults = 0
    for name in FILES:
        text = (project / "examples/first-page" / name).read_text(encoding="utf-8")
        if text not in blocks:
            print(f"README.md: no block of code is examples/first-page/{name}")
            faults += 1
    lines = (project / "examples/first-page/main.cpp").read_text(encoding="utf-8").count("\n")
    if lines >= 60:
        print(f"examples/first-page/main.cpp: {lines} lines; it is to stay below 60")
        faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

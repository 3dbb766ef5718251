#!/usr/bin/env python3
"""Follows docs/tutorial.md as a reader would.

Files are the blocks of code behind a line that ends in "`NAME`:", the others are commands.
"""

import argparse
import pathlib
import re
import sys
import tempfile

from document import BLOCK, Reader
from install_tools import expect

NAME = re.compile(r"`([^`\n]+)`:\n\n$")


class Learner(Reader):
    def __init__(self, home, options):
        super().__init__(home, options)
        self.package = options.package
        self.project = home / "scale"

    def adapted(self, text):
        # the one word that differs with Qt 5
        return text.replace("cmake -S . -B build", f"cmake -S . -B build -DQTPANFX={self.package}")

    def follow(self, text):
        super().follow(text)
        if self.project.is_dir():
            self.folder = self.project

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("compiler", "package", "build", "source"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    text = (pathlib.Path(options.source) / "docs/tutorial.md").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory(prefix="qtpanfx-tutorial-") as name:
        home = pathlib.Path(name)
        project = home / "QTPANFx"
        (project / "build").mkdir(parents=True)
        (project / "build/demo").symlink_to(options.build)
        (project / "examples").symlink_to(pathlib.Path(options.source) / "examples")
        learner = Learner(home, options)
        blocks = 0
        for block in BLOCK.finditer(text):
            kind, window, content = block.groups()
            blocks += 1
            if window:
                learner.open_window(content)
            elif kind == "sh":
                learner.follow(content)
            else:
                named = NAME.search(text[: block.start()])
                if not named:
                    sys.exit(f"FAILED: a block of {kind} has no name:\n{content[:200]}")
                learner.write(named.group(1), content)
        expect(blocks > 10, f"{blocks} files and commands of the tutorial")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Follows docs/tutorial.md as a reader would, in a home folder of its own.

Files are the blocks of code behind a line that ends in "`NAME`:"; commands are the blocks "sh", run by
one shell after the other in the order of the text. A block "sh window" opens a window: it is run
without a display and has to stay until it is stopped.
"""

import argparse
import pathlib
import re
import sys
import tempfile

from install_tools import expect, expect_stays, run

BLOCK = re.compile(r"^```(\w+)( window)?\n(.*?)^```$", re.MULTILINE | re.DOTALL)
NAME = re.compile(r"`([^`\n]+)`:\n\n$")


class Reader:
    def __init__(self, home, options):
        self.home = home
        self.folder = home / "scale"
        self.package = options.package
        self.env = {
            "HOME": str(home),
            "PATH": f"{pathlib.Path(options.cmake).parent}:/usr/bin:/bin",
            "CXX": options.compiler,
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
        }

    def script(self, text):
        # the one word that differs with Qt 5
        text = text.replace("cmake -S . -B build", f"cmake -S . -B build -DQTPANFX={self.package}")
        folder = self.folder if self.folder.is_dir() else self.home
        return ["bash", "-euo", "pipefail", "-c", f"cd {folder}\n{text}"]

    def follow(self, text):
        print(run(*self.script(text), env=self.env, timeout=300), end="")

    def open_window(self, text):
        command = self.script(text.rstrip().replace("build/scale", "exec build/scale"))
        expect_stays(command, self.env, "the tutorial's panel")

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("cmake", "compiler", "package", "build", "source"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    text = (pathlib.Path(options.source) / "docs/tutorial.md").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory(prefix="qtpanfx-tutorial-") as name:
        home = pathlib.Path(name)
        project = home / "QTPANFx"
        (project / "build").mkdir(parents=True)
        (project / "build/demo").symlink_to(options.build)
        (project / "examples").symlink_to(pathlib.Path(options.source) / "examples")
        reader = Reader(home, options)
        blocks = 0
        for block in BLOCK.finditer(text):
            kind, window, content = block.groups()
            blocks += 1
            if window:
                reader.open_window(content)
            elif kind == "sh":
                reader.follow(content)
            else:
                named = NAME.search(text[: block.start()])
                if not named:
                    sys.exit(f"FAILED: a block of {kind} has no name:\n{content[:200]}")
                reader.write(named.group(1), content)
        expect(blocks > 10, f"{blocks} files and commands of the tutorial")


if __name__ == "__main__":
    main()

"""Follows the commands of a document as a reader would, in a home folder of its own.

Commands are the blocks of code "sh", run by one shell after the other in the order of the text; what
one exports counts for the next. A block "sh window" opens a window: it is run without a display and has
to stay until it is stopped.
"""

import pathlib
import re

from install_tools import cached, expect_stays, run

BLOCK = re.compile(r"^```(\w+)( window)?\n(.*?)^```$", re.MULTILINE | re.DOTALL)


class Reader:
    """A reader whose machine has what ./panel demo installs; make is not among that."""

    def __init__(self, home, options):
        self.home = home
        self.folder = home
        self.exports = []
        stubs = home / ".stubs"
        stubs.mkdir()
        for name in ("make", "gmake"):
            (stubs / name).write_text("#!/bin/sh\necho 'there is no make here' >&2\nexit 127\n")
            (stubs / name).chmod(0o755)
        programs = [cached(options.build, name) for name in ("CMAKE_COMMAND", "CMAKE_MAKE_PROGRAM")]
        places = [stubs, *(pathlib.Path(program).parent for program in programs)]
        self.env = {
            "HOME": str(home),
            "PATH": ":".join([*map(str, places), "/usr/bin", "/bin"]),
            "CXX": options.compiler,
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
        }

    def adapted(self, text):
        """The commands as they are run here."""
        return text

    def script(self, text):
        lines = [f"cd {self.folder}", *self.exports, text]
        return ["bash", "-euo", "pipefail", "-c", "\n".join(lines)]

    def follow(self, text):
        text = self.adapted(text)
        out = run(*self.script(text), env=self.env, timeout=300)
        print(out, end="")
        self.exports += [line for line in text.splitlines() if line.startswith("export ")]

    def open_window(self, text):
        # the program is the last word, and takes the shell's place
        command = re.sub(r"(\S+)$", r"exec \1", self.adapted(text.rstrip()))
        expect_stays(self.script(command), self.env, command.rpartition(" ")[2])

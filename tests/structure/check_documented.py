#!/usr/bin/env python3
"""Checks that the reference documents every operation.

    check_documented.py SRC

Each public or protected operation of a class and each free function that a header declares has
a comment of its own: "/** ... */" or "///" directly above it, or "///<" behind it on its last
line. Of a group between "/// @{" and "/// @}" the first one's comment holds for all. The
reference leaves a free function out unless its namespace has a comment too, in any header, or,
where it stands in none, the header has a comment with "@file".
No comment is asked of overrides, which have that of what they override, of destructors, of what
is deleted or defaulted, and of friends.
Each violation is printed as file:line with the name, and the result is 1.
"""

import pathlib
import re
import sys

# what a header is made of, as far as the braces and semicolons are concerned
TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.)*)
      | (?P<literal>(?:\bu8|\b[LuU])?(?:"(?:[^"\\\n]|\\.)*"|(?<![0-9a-fA-F])'(?:[^'\\\n]|\\.)*'))
      | (?P<sign>[{}();:])
      | (?P<code>\w+|\n|[^\S\n]+|.)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)
ACCESS = re.compile(r"(public|protected|private)$")
SCOPE = re.compile(r'\s*(?:inline\s+)?(namespace\b|class\b|struct\b|union\b|enum\b|extern\s*"")')
SCOPE_NAME = re.compile(r"(?:namespace|class|struct|union)\s+(?:[A-Z_]+_EXPORT\s+)?([\w:]+)")
NO_OPERATION = re.compile(r"(?:using|typedef|friend|static_assert)\b")
FUNCTION = re.compile(r"((?:\b\w+\s*::\s*)*(?:\boperator\b.*?|~?\b\w+))\s*$", re.DOTALL)
NEEDS_NONE = re.compile(r"\b(?:override|final)\b|=\s*(?:delete|default)\s*$")
TEMPLATE_PART = re.compile(r"<[^<>]*>")

BEGUN = "begun"  # of a group: no operation yet


def is_comment(text):
    """Whether a comment tells something of what stands below it."""
    if not text.startswith(("/**", "///")) or text.startswith(("/**<", "///<")):
        return False
    return bool(re.sub(r"@[{}]|[/*\s]", "", text))


def operation(code):
    """The name of the operation that a declaration is of; None for any other declaration."""
    code = code.strip()
    if not code or NO_OPERATION.match(code):
        return None
    plain = re.sub(r"operator\s*(?:\(\s*\)|[^\w\s(]+)", "operator", code)
    while TEMPLATE_PART.search(plain):
        plain = TEMPLATE_PART.sub(" ", plain)
    head, parenthesis, behind = re.sub(r"\[\[.*?\]\]", "", plain).strip().partition("(")
    if not parenthesis or "=" in head or behind.lstrip().startswith("*"):
        return None  # no parameters, a value, or a pointer to a function
    found = FUNCTION.search(head)
    if not found:
        return None
    name = re.sub(r"\s+", " ", found.group(1))
    if name.startswith("operator"):
        name = re.sub(r"\s+", " ", code[code.index("operator"):]).partition("(")[0].strip()
        name = name if name != "operator" else "operator()"
    return name


class Header:
    """One pass over a header, which collects the operations without a comment."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.faults = []
        self.operations = 0
        self.namespaces = set()  # those with a comment
        self.functions = []  # free ones: line, name, namespace
        self.scopes = []  # of each open one: its kind, its name, the access now in force
        self.group = None  # inside a group: whether its first operation has a comment, BEGUN before
        self.start_declaration()
        self.comment_end = None  # behind the last comment that tells something

    def start_declaration(self):
        self.code = ""
        self.begin = None
        self.documented = False

    def run(self):
        parentheses = 0
        skipped = 0  # braces of a body or a value that are open
        for token in TOKEN.finditer(self.text):
            kind, value = token.lastgroup, token.group()
            if kind == "comment":
                self.take_comment(token, skipped)
            elif kind == "directive":
                continue
            elif skipped:
                skipped += {"{": 1, "}": -1}.get(value, 0)
                if not skipped and operation(self.code.replace("friend ", "")):
                    self.end_declaration(token.end())
            elif parentheses or value == "(":
                parentheses += {"(": 1, ")": -1}.get(value, 0)
                self.take_code(token)
            elif value == "{":
                skipped = self.open_brace()
            elif value == "}":
                self.scopes.pop()
                self.start_declaration()
            elif value == ";":
                self.end_declaration(token.end())
            elif value == ":" and ACCESS.match(self.code.strip()):
                self.scopes[-1][2] = self.code.strip()
                self.start_declaration()
            else:
                self.take_code(token)

    def take_comment(self, token, skipped):
        value = token.group()
        if skipped:
            return
        if "@{" in value:
            self.group = BEGUN
        if is_comment(value) and self.begin is None:
            self.comment_end = token.end()
        if "@}" in value:
            self.group = None

    def take_code(self, token):
        if self.begin is None and not token.group().isspace():
            self.begin = token.start()
            between = None
            if self.comment_end is not None:
                between = self.text[self.comment_end:self.begin]
            self.documented = between is not None and not between.strip() and (
                between.count("\n") <= 1
            )
            self.comment_end = None
        self.code += token.group() if token.lastgroup != "literal" else '""'

    def open_brace(self):
        """Opens a scope, or begins to skip a body or a value. @return the braces to skip"""
        code = self.code
        while TEMPLATE_PART.search(code):
            code = TEMPLATE_PART.sub(" ", code)
        scope = SCOPE.match(re.sub(r"^\s*template\b", "", code))
        if not scope or scope.group(1) == "enum":
            return 1
        kind = scope.group(1)
        name = SCOPE_NAME.search(code)
        access = "private" if kind == "class" else "public"
        if kind == "namespace" and self.documented:
            self.namespaces.add("::".join([*self.names("namespace"), name.group(1)]))
        self.scopes.append([kind, name.group(1) if name else "", access])
        self.start_declaration()
        return 0

    def end_declaration(self, end):
        name = operation(self.code)
        if name and self.is_open():
            self.judge(name, end)
        self.start_declaration()

    def is_open(self):
        return all(access != "private" for _, _, access in self.scopes)

    def judge(self, name, end):
        if name.startswith("~") or NEEDS_NONE.search(self.code.rpartition(")")[2]):
            return
        self.operations += 1
        line = self.text.count("\n", 0, self.begin) + 1
        classes = self.names("class", "struct", "union")
        if not classes:
            self.functions.append((line, name, "::".join(self.names("namespace"))))
        documented = self.documented or bool(re.match(r"[ \t]*(?:///|/\*\*)<", self.text[end:]))
        if self.group == BEGUN:
            self.group = documented
        elif self.group:
            documented = True
        if not documented:
            self.faults.append(f"{self.path}:{line}: {'::'.join(classes + [name])} has no comment")

    def names(self, *kinds):
        return [name for kind, name, _ in self.scopes if kind in kinds]


def left_out(header, namespaces):
    """The free functions that the reference leaves out whatever their comments, as faults."""
    for line, name, namespace in header.functions:
        if namespace and namespace not in namespaces:
            yield f"{header.path}:{line}: {name} is left out: {namespace} has no comment"
        elif not namespace and "@file" not in header.text:
            yield f"{header.path}:{line}: {name} is left out: the header has no @file"


def check(src):
    """All violations in a source tree, as readable lines, and the number of operations."""
    src = pathlib.Path(src)
    headers = [
        Header(path.relative_to(src).as_posix(), path.read_text(encoding="utf-8"))
        for path in sorted(src.rglob("*.h"))
    ]
    for header in headers:
        header.run()
    namespaces = set().union(*(header.namespaces for header in headers))
    faults = []
    for header in headers:
        faults += header.faults
        faults += left_out(header, namespaces)
    return faults, sum(header.operations for header in headers)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    faults, operations = check(sys.argv[1])
    for fault in faults:
        print(fault)
    if operations == 0:
        sys.exit(f"no operations in {sys.argv[1]}")
    print(f"{operations} operations, {len(faults)} without a comment")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()

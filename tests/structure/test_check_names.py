#!/usr/bin/env python3
"""Tests check_names.py on small trees made for it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).with_name("check_names.py")
LABEL = "#pragma once\nnamespace PANFx::Components {\nclass QTPANFX_EXPORT ZELLabel\n{\n};\n}\n"


class Names(unittest.TestCase):
    def run_on(self, tree):
        with tempfile.TemporaryDirectory() as src:
            for name, text in tree.items():
                path = pathlib.Path(src, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            done = subprocess.run(
                [sys.executable, SCRIPT, src], capture_output=True, text=True, check=False
            )
        return done.returncode, done.stdout + done.stderr

    def assert_fine(self, tree):
        code, out = self.run_on(tree)
        self.assertEqual(code, 0, out)

    def assert_fault(self, tree, text):
        code, out = self.run_on(tree)
        self.assertEqual(code, 1, out)
        self.assertIn(text, out)

    def test_a_class_with_header_and_source_is_fine(self):
        self.assert_fine({
            "components/text/ZELLabel.h": LABEL,
            "components/text/ZELLabel.cpp": '#include "components/text/ZELLabel.h"\n',
        })

    def test_a_source_without_its_header_is_found(self):
        self.assert_fault({"events/Timer.cpp": ""}, "events/Timer.cpp:1: has no header")

    def test_a_header_without_pragma_once_is_found(self):
        self.assert_fault({"events/Timer.h": "class Timer\n{\n};\n"}, "no #pragma once")

    def test_a_header_of_another_class_is_found(self):
        self.assert_fault(
            {"events/Timer.h": "#pragma once\nclass Clock\n{\n};\n"}, "holds no class Timer"
        )
        self.assert_fault(
            {"events/ZELEvent.h": "#pragma once\nclass ZELEvent;\n"}, "holds no class ZELEvent"
        )

    def test_a_header_of_functions_only_is_fine(self):
        self.assert_fine({"common/Numbers.h": "#pragma once\nclass QString;\nint toInt();\n"})

    def test_a_component_outside_its_namespace_is_found(self):
        self.assert_fault(
            {"components/text/ZELLabel.h": LABEL.replace("::Components", "")},
            "does not stand in PANFx::Components",
        )

    def test_an_include_must_be_written_from_the_root(self):
        self.assert_fault(
            {
                "components/text/ZELLabel.h": LABEL,
                "components/text/ZELLabel.cpp": '\n#include "ZELLabel.h"\n',
            },
            'components/text/ZELLabel.cpp:2: "ZELLabel.h" is no file',
        )

    def test_an_own_header_in_angle_brackets_is_found(self):
        tree = {"components/text/ZELLabel.h": LABEL}
        for name in ("components/text/ZELLabel.h", "QTPANFx/components/text/ZELLabel.h"):
            tree["components/text/ZELLabel.cpp"] = f"#include <{name}>\n"
            self.assert_fault(tree, "write it in quotes")

    def test_an_empty_tree_is_no_success(self):
        code, out = self.run_on({})
        self.assertNotEqual(code, 0, out)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Tests check_floors.py on small trees made for it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).with_name("check_floors.py")


class Floors(unittest.TestCase):
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
        self.assertIn("0 violations", out)

    def assert_fault(self, tree, *texts):
        code, out = self.run_on(tree)
        self.assertEqual(code, 1, out)
        for text in texts:
            self.assertIn(text, out)

    def test_a_lower_floor_and_the_own_folder_may_be_included(self):
        self.assert_fine({
            "windows/ZELPage.cpp": '#include "windows/ZELPage.h"\n#include "resource/Font.h"\n',
            "windows/ZELPage.h": '#include "common/tamfx/Node.h"\n#include <QWidget>\n',
            "resource/Font.h": '#include "common/tamfx/Node.h"\n',
            "common/ZELWindow.h": '#include "common/tamfx/Node.h"\n',
            "common/tamfx/Node.h": "#include <string>\n",
        })

    def test_a_higher_floor_is_found_with_its_line(self):
        self.assert_fault(
            {
                "resource/Font.h": '\n\n#include "windows/ZELPage.h"\n',
                "windows/ZELPage.h": "",
            },
            "resource/Font.h:3: must not include windows/ZELPage.h: it lies on floor 6",
        )

    def test_another_folder_of_the_same_floor_is_found(self):
        self.assert_fault(
            {
                "components/lists/ZELList.h": '#include "components/gauges/ZELRange.h"\n',
                "components/gauges/ZELRange.h": "",
            },
            "components/lists/ZELList.h:1",
            "another folder of the same floor 5",
        )

    def test_files_of_one_folder_lie_on_floors_of_their_own(self):
        self.assert_fine({
            "components/ZELComponent.cpp": '#include "components/ComponentFactory.h"\n',
            "components/ComponentFactory.h": "",
            "components/ComponentFactory.cpp": '#include "components/ComponentTable.h"\n',
            "components/ComponentTable.h": "",
            "components/ComponentTable.cpp": '#include "components/lists/ZELList.h"\n'
                                             '#include "components/ZELComponent.h"\n',
            "components/ZELComponent.h": "",
            "components/lists/ZELList.h": '#include "components/ZELComponent.h"\n',
        })
        self.assert_fault(
            {
                "components/ComponentFactory.h": '#include "components/ZELComponent.h"\n',
                "components/ZELComponent.h": "",
            },
            "components/ComponentFactory.h:1: must not include components/ZELComponent.h",
        )

    def test_the_foundation_includes_nothing_of_the_rest(self):
        self.assert_fault(
            {
                "common/tamfx/Node.h": '#include "common/SysLogger.h"\n',
                "common/SysLogger.h": "",
            },
            "common/tamfx/Node.h:1",
            "the foundation includes nothing of the rest",
        )

    def test_the_foundation_includes_no_qt(self):
        self.assert_fault({"common/tamfx/Node.h": "#include <QString>\n"}, "no Qt")
        self.assert_fault({"common/tamfx/Node.h": "#include <QtCore/QString>\n"}, "no Qt")

    def test_a_circle_is_found(self):
        self.assert_fault(
            {
                "events/A.h": '#include "events/B.h"\n',
                "events/B.h": '#include "events/C.h"\n',
                "events/C.h": '#include "events/A.h"\n',
            },
            "circle of files: events/A.h -> events/B.h -> events/C.h -> events/A.h",
        )

    def test_a_file_without_a_floor_is_found(self):
        self.assert_fault({"attic/Box.h": ""}, "attic/Box.h:1: no floor is given")
        self.assert_fault({"components/ZELLabel.h": ""}, "components/ZELLabel.h:1: no floor")

    def test_angle_brackets_hide_nothing(self):
        self.assert_fault(
            {"resource/Font.h": "#include <windows/ZELPage.h>\n", "windows/ZELPage.h": ""},
            "resource/Font.h:1: must not include windows/ZELPage.h",
        )

    def test_comments_are_no_includes(self):
        self.assert_fine({
            "resource/Font.h": '/*\n#include "windows/ZELPage.h"\n*/\n// #include "windows/x.h"\n',
            "windows/ZELPage.h": "",
        })

    def test_a_line_behind_a_comment_keeps_its_number(self):
        self.assert_fault(
            {"resource/Font.h": '/*\n*/\n#include "windows/P.h"\n', "windows/P.h": ""},
            "resource/Font.h:3:",
        )

    def test_an_empty_tree_is_no_success(self):
        code, out = self.run_on({})
        self.assertNotEqual(code, 0, out)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Tests check_example.py on small trees made for it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).with_name("check_example.py")
TABLE = '    {"label", "ZELLabel", make<ZELLabel>},\n    {"list", "ZELList", make<ZELList>},\n'
NUMBERS = (
    "constexpr QEvent::Type EVENT_TIMER = QEvent::Type(1557);    ///< a tick\n"
    "constexpr QEvent::Type EVENT_TAB_DOWN = QEvent::Type(1561); ///< as EVENT_OTHER\n"
)
LAYOUT = "<Layout><Components><list><some><label><one/></label></some></list></Components></Layout>"
SOURCE = "if (type == EVENT_TIMER || type == EVENT_TAB_DOWN)\n    post(new ZELEvent(type));\n"
EVENT = "class ZELForward;\n\nclass QTPANFX_EXPORT ZELEvent : public QEvent\n{\n};\n"


class Example(unittest.TestCase):
    def run_on(self, layout=LAYOUT, source=SOURCE, table=TABLE, event=EVENT, tour=""):
        tree = {
            "src/components/ComponentTable.cpp": table,
            "src/events/EventNumbers.h": NUMBERS,
            "src/events/ZELEvent.h": event,
            "examples/instrument/rootfs/layout/home.resource": layout,
            "examples/instrument/rootfs/StringTable.Resource": "no layout",
            "examples/instrument/pages/HomePage.cpp": source,
            "examples/instrument/tour/Tour.cpp": tour,
        }
        with tempfile.TemporaryDirectory() as root:
            for name, text in tree.items():
                path = pathlib.Path(root, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            done = subprocess.run(
                [sys.executable, SCRIPT, pathlib.Path(root, "src")],
                capture_output=True, text=True, check=False,
            )
        return done.returncode, done.stdout + done.stderr

    def assert_fault(self, text, **changes):
        code, out = self.run_on(**changes)
        self.assertEqual(code, 1, out)
        self.assertIn(text, out)

    def test_an_example_that_shows_all_is_fine(self):
        code, out = self.run_on()
        self.assertEqual(code, 0, out)
        self.assertIn("2 keywords, 2 event numbers, 1 event classes, 0 not shown", out)

    def test_a_keyword_without_a_component_is_found(self):
        layout = LAYOUT.replace("list>", "label>")
        self.assert_fault("no layout of instrument has a list", layout=layout)

    def test_an_id_is_no_keyword(self):
        layout = "<Layout><Components><list><label/></list></Components></Layout>"
        self.assert_fault("no layout of instrument has a label", layout=layout)

    def test_an_empty_group_is_no_component(self):
        layout = "<Layout><Components><label><one/></label><list/></Components></Layout>"
        self.assert_fault("no layout of instrument has a list", layout=layout)

    def test_an_event_in_a_comment_only_is_found(self):
        source = "if (type == EVENT_TAB_DOWN) // not EVENT_TIMER\n/* nor\n EVENT_TIMER */"
        self.assert_fault("no source of instrument names EVENT_TIMER", source=source)

    def test_an_event_with_a_longer_name_is_another_one(self):
        source = "EVENT_TAB_DOWN EVENT_TIMER_LATE"
        self.assert_fault("no source of instrument names EVENT_TIMER", source=source)

    def test_a_class_that_is_not_named_is_found(self):
        source = SOURCE.replace("new ZELEvent(", "new ZELOtherEvent(")
        self.assert_fault("events/ZELEvent.h: no source of instrument names ZELEvent", source=source)

    def test_an_include_and_a_declaration_name_no_class(self):
        source = '#include "events/ZELEvent.h"\nclass ZELEvent;\nEVENT_TIMER EVENT_TAB_DOWN'
        self.assert_fault("no source of instrument names ZELEvent", source=source)

    def test_what_the_tour_alone_names_is_not_shown(self):
        source = SOURCE.replace("EVENT_TIMER", "type")
        self.assert_fault("names EVENT_TIMER", source=source, tour="EVENT_TIMER")
        source = SOURCE.replace("ZELEvent", "QEvent")
        self.assert_fault("names ZELEvent", source=source, tour="new ZELEvent(type);")

    def test_no_class_is_no_success(self):
        code, out = self.run_on(event="class ZELEvent;\n")
        self.assertNotEqual(code, 0, out)

    def test_an_empty_table_is_no_success(self):
        code, out = self.run_on(table="")
        self.assertNotEqual(code, 0, out)


if __name__ == "__main__":
    unittest.main()

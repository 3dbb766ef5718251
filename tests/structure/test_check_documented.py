#!/usr/bin/env python3
"""Tests check_documented.py on small trees made for it."""

import pathlib
import subprocess
import sys
import tempfile
import textwrap
import unittest

SCRIPT = pathlib.Path(__file__).with_name("check_documented.py")


class Documented(unittest.TestCase):
    def run_on(self, tree):
        with tempfile.TemporaryDirectory() as src:
            for name, text in tree.items():
                path = pathlib.Path(src, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(textwrap.dedent(text))
            done = subprocess.run(
                [sys.executable, SCRIPT, src], capture_output=True, text=True, check=False
            )
        return done.returncode, done.stdout + done.stderr

    def in_class(self, members):
        """A header with a class of these members, which begin in its line 3, and what it gives."""
        text = "class TEST_EXPORT Dial : public QWidget\n{\n" + textwrap.dedent(members).lstrip("\n")
        return self.run_on({"components/Dial.h": text + "};\n"})

    def assert_fine(self, found, operations):
        code, out = found
        self.assertEqual(code, 0, out)
        self.assertEqual(out, f"{operations} operations, 0 without a comment\n")

    def assert_faults(self, found, *faults):
        code, out = found
        self.assertEqual(code, 1, out)
        self.assertEqual(out.splitlines()[:-1], list(faults))

    def test_a_comment_above_or_behind_is_fine(self):
        self.assert_fine(
            self.in_class("""
                public:
                    /** Reads the element. */
                    Dial(QWidget* pParent,
                         Node* pLayout = Node({1, 2}));
                    /// Degrees.
                    int angle() const noexcept;
                    int step(); ///< degrees
                    bool empty() const { return m_steps.empty(); } /**< without a step */
                    /** Turns. */
                    template <typename Step>
                    void turn(const std::function<void(int)>& told)
                    {
                        for (;;) {
                        }
                    }
                """),
            5,
        )

    def test_an_operation_without_a_comment_is_found(self):
        self.assert_faults(
            self.in_class("""
                public:
                    Dial(QWidget* pParent, Node* pLayout);

                    virtual void turn(int final) = 0;
                protected:
                    static std::vector<int> steps() { return {1, 2}; }
                    bool operator()(int nDegrees) const;
                    operator std::string() const;
                """),
            "components/Dial.h:4: Dial::Dial has no comment",
            "components/Dial.h:6: Dial::turn has no comment",
            "components/Dial.h:8: Dial::steps has no comment",
            "components/Dial.h:9: Dial::operator() has no comment",
            "components/Dial.h:10: Dial::operator std::string has no comment",
        )

    def test_the_comment_of_the_one_above_does_not_count(self):
        self.assert_faults(
            self.in_class("""
                public:
                    /** Turns. */
                    void turn(int nDegrees);
                    void turn(double dDegrees);
                """),
            "components/Dial.h:6: Dial::turn has no comment",
        )

    def test_a_comment_for_readers_of_the_file_is_none(self):
        self.assert_faults(
            self.in_class("""
                public:
                    // degrees
                    int angle();
                    /* steps */
                    int step(); // from 0
                    /** */
                    int top();
                    int pace(); /** of one step */
                """),
            "components/Dial.h:5: Dial::angle has no comment",
            "components/Dial.h:7: Dial::step has no comment",
            "components/Dial.h:9: Dial::top has no comment",
            "components/Dial.h:10: Dial::pace has no comment",
        )

    def test_a_comment_stands_directly_above(self):
        self.assert_faults(
            self.in_class("""
                public:
                    /** Degrees. */

                    int angle();
                    /** Steps. */
                    int m_nSteps;
                    int step();
                    /** Top. */
                public:
                    int top();
                """),
            "components/Dial.h:6: Dial::angle has no comment",
            "components/Dial.h:9: Dial::step has no comment",
            "components/Dial.h:12: Dial::top has no comment",
        )

    def test_what_is_private_needs_none(self):
        self.assert_faults(
            self.in_class("""
                    void hidden();
                public:
                    /** Degrees. */
                    int angle();
                private:
                    class Part
                    {
                    public:
                        void inside();
                    };
                    void read();
                public:
                    struct Step
                    {
                        void told();
                    };
                """),
            "components/Dial.h:17: Dial::Step::told has no comment",
        )

    def test_overrides_and_what_the_language_makes_need_none(self):
        self.assert_fine(
            self.in_class("""
                public:
                    Dial(const Dial&) = delete;
                    Dial& operator=(const Dial&) = default;
                    virtual ~Dial();
                    void showWindow() override;
                    QWidget* getQWidget() final { return this; }
                    friend bool operator==(const Dial& left, const Dial& right) { return true; }
                    friend class Pad;
                    using QWidget::move;
                    using Steps = std::map<int, void (*)(int)>;
                    Logger m_logger{"QTPANFx", "void f();"};
                    int m_nTop = value(3);
                    void (*m_pTold)(int) = nullptr;
                    enum class Kind { First = first(1), Last };
                    /** Degrees. */
                    int angle();
                """),
            1,
        )

    def test_what_follows_a_friend_with_a_body_is_seen(self):
        self.assert_faults(
            self.in_class("""
                public:
                    friend bool operator==(const Dial& left, const Dial& right) { return true; }
                    int angle();
                """),
            "components/Dial.h:5: Dial::angle has no comment",
        )

    def test_a_group_shares_the_comment_of_its_first(self):
        group = """
            public:
                /// @{
                {}
                int first();
                int last();
                /// @}
                int behind();
            """
        self.assert_faults(
            self.in_class(group.replace("{}", "/** Ends. */")),
            "components/Dial.h:9: Dial::behind has no comment",
        )
        self.assert_faults(
            self.in_class(group.replace("{}", "")),
            "components/Dial.h:6: Dial::first has no comment",
            "components/Dial.h:7: Dial::last has no comment",
            "components/Dial.h:9: Dial::behind has no comment",
        )

    def test_a_free_function_needs_a_comment_too(self):
        self.assert_faults(
            self.run_on({
                "common/Numbers.h": """\
                    #define CALL(x) \\
                        x(1)
                    /** Numbers. */
                    namespace PANFx::Common {
                    TEST_EXPORT int toInt(const char* text);
                    constexpr int limit = 1'000; // a 'quote'
                    template <typename T>
                    inline T held(T value)
                    {
                        return value;
                    }
                    }
                    """
            }),
            "common/Numbers.h:5: toInt has no comment",
            "common/Numbers.h:7: held has no comment",
        )

    def test_the_namespace_of_a_free_function_needs_one_in_some_header(self):
        numbers = """\
            namespace PANFx::Common {
            /** A number. */
            int toInt(const char* text);
            }
            """
        log = "namespace PANFx {\n{}\nnamespace Common {\nclass Log;\n}\n}\n"
        self.assert_faults(
            self.run_on({"common/Numbers.h": numbers, "common/Log.h": log.replace("{}", "")}),
            "common/Numbers.h:3: toInt is left out: PANFx::Common has no comment",
        )
        self.assert_fine(
            self.run_on({
                "common/Numbers.h": numbers,
                "common/Log.h": log.replace("{}", "/** Logs. */"),
            }),
            1,
        )

    def test_the_header_of_a_global_function_needs_a_comment_of_its_own(self):
        name = "/** The name. */\nstd::string nameOf(int nID);\n"
        self.assert_faults(
            self.run_on({"events/Names.h": name}),
            "events/Names.h:2: nameOf is left out: the header has no @file",
        )
        self.assert_fine(self.run_on({"events/Names.h": "/** @file\n * Names. */\n" + name}), 1)

    def test_a_tree_without_operations_is_no_success(self):
        code, out = self.run_on({"common/Log.h": "class Log;\n"})
        self.assertNotEqual(code, 0, out)


if __name__ == "__main__":
    unittest.main()

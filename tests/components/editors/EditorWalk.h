#pragma once

#include "components/editors/EditorTest.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace PANFx::Testing {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool underSanitizer = true;
#elif defined(__has_feature)
constexpr bool underSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool underSanitizer = false;
#endif

/**
 * Walks all states that a value editor can come into, breadth first, and in each of them does
 * every operation once, with the editor and with the judge of its rules side by side.
 *
 * Rules is the judge, and its copies are the states; state() and text() tell them apart.
 * Editor is the open editor of a test: enter() puts it into a state, enterKey() types a character
 * and answers whether it counted, state() and text() as above.
 * A part of the states isn't entered so but reached from a start by the operations alone, which
 * shows that the state is the whole of what the editor remembers.
 */
template <class Rules, class Editor>
class EditorWalk
{
public:
    /** What the editor answers, where it answers anything. */
    using Answer = std::optional<bool>;

    /** One thing that can be done; the answers are compared when both give one. */
    struct Operation
    {
        std::string name;
        std::function<Answer(Rules&)> judge;
        std::function<Answer(Editor&)> edit;
    };

    /** An operation that answers nothing, or whose answer isn't to be seen. */
    template <class Judge, class Edit>
    static Operation silent(std::string name, Judge judge, Edit edit)
    {
        return {std::move(name),
                [judge](Rules& rules) {
                    judge(rules);
                    return Answer();
                },
                [edit](Editor& editor) {
                    edit(editor);
                    return Answer();
                }};
    }

    /** A key. The editor takes it in turns as the pad gives it and by enterKey(), which answers. */
    static Operation key(std::string name, char c)
    {
        return {std::move(name), [c](Rules& rules) { return Answer(rules.key(c)); },
                [c, answers = false](Editor& editor) mutable {
                    answers = !answers;
                    if (answers)
                        return Answer(editor.enterKey(c));
                    press(editor, c);
                    return Answer();
                }};
    }

    EditorWalk(Editor& editor, std::vector<Operation> operations)
        : m_editor(editor)
        , m_operations(std::move(operations))
    {
    }

    /** States to go on from; all when not given. The others are compared and left. */
    std::function<bool(const Rules&)> goesOn = [](const Rules&) { return true; };

    /** What the rules promise, asked for after each step: "" or what is wrong. */
    std::function<std::string(const Rules& before, const Rules& after)> promise =
        [](const Rules&, const Rules&) { return std::string(); };

    /** One state in so many is reached by its operations. */
    size_t replayedOneIn = 16;

    void from(const Rules& start)
    {
        if (m_known.insert(start.state()).second)
            m_states.push_back({start, 0, none});
    }

    void run()
    {
        for (size_t i = 0; i < m_states.size() && !gaveUp(); ++i) {
            for (size_t o = 0; o < m_operations.size() && !gaveUp(); ++o)
                step(i, o);
        }
    }

    size_t states() const { return m_states.size(); }
    size_t steps() const { return m_steps; }
    size_t replays() const { return m_replays; }

    /** The states gone on from, in the order of their finding. */
    std::vector<Rules> found() const
    {
        std::vector<Rules> all;
        for (const State& state : m_states)
            all.push_back(state.rules);
        return all;
    }

private:
    static constexpr size_t none = static_cast<size_t>(-1);

    struct State
    {
        Rules rules;
        size_t before;    // the state that it was found from
        size_t operation; // by this; none for a start
    };

    void step(size_t state, size_t operation)
    {
        const Rules before = m_states[state].rules;
        if (state % replayedOneIn == 0 && operation == state / replayedOneIn % m_operations.size())
            replay(state);
        else
            m_editor.enter(before);
        Rules after = before;
        const Operation& done = m_operations[operation];
        const Answer expected = done.judge(after);
        const Answer answered = done.edit(m_editor);
        const bool wrongAnswer = answered && expected && *answered != *expected;
        ++m_steps;
        const std::string known = after.state();
        if (wrongAnswer || m_editor.state() != known || m_editor.text() != after.text())
            fail(state, operation, after, wrongAnswer ? "The answer is wrong." : "");
        if (const std::string broken = promise(before, after); !broken.empty())
            fail(state, operation, after, broken);
        if (goesOn(after) && m_known.insert(known).second)
            m_states.push_back({after, state, operation});
    }

    void replay(size_t state)
    {
        std::vector<size_t> path;
        size_t at = state;
        for (; m_states[at].operation != none; at = m_states[at].before)
            path.push_back(m_states[at].operation);
        m_editor.enter(m_states[at].rules);
        for (auto operation = path.rbegin(); operation != path.rend(); ++operation)
            m_operations[*operation].edit(m_editor);
        ++m_replays;
        if (m_editor.state() != m_states[state].rules.state()) {
            ++m_faults;
            ADD_FAILURE() << pathTo(state) << " leads to " << m_editor.state() << ", not to "
                          << m_states[state].rules.state();
        }
    }

    void fail(size_t state, size_t operation, const Rules& expected, const std::string& why)
    {
        ++m_faults;
        ADD_FAILURE() << pathTo(state) << " | " << m_operations[operation].name << ": "
                      << m_editor.state() << " with the text \"" << m_editor.text()
                      << "\"; by the rules " << expected.state() << " with the text \""
                      << expected.text() << "\". " << why;
    }

    std::string pathTo(size_t state) const
    {
        if (m_states[state].operation == none)
            return "from " + m_states[state].rules.state() + ":";
        return pathTo(m_states[state].before) + " " + m_operations[m_states[state].operation].name;
    }

    bool gaveUp() const { return m_faults >= 10; }

    Editor& m_editor;
    std::vector<Operation> m_operations;
    std::vector<State> m_states;
    std::unordered_set<std::string> m_known;
    size_t m_steps = 0;
    size_t m_replays = 0;
    int m_faults = 0;
};

/** Counts of one or several walks, printed when they are done. */
class WalkCounts
{
public:
    explicit WalkCounts(std::string name)
        : m_name(std::move(name))
    {
    }
    WalkCounts(const WalkCounts&) = delete;
    WalkCounts& operator=(const WalkCounts&) = delete;

    ~WalkCounts()
    {
        std::printf("%s: %zu walks, %zu states, %zu steps, %zu states reached by operations\n",
                    m_name.c_str(), m_walks, m_states, m_steps, m_replays);
    }

    template <class Walk>
    void add(const Walk& walk)
    {
        ++m_walks;
        m_states += walk.states();
        m_steps += walk.steps();
        m_replays += walk.replays();
    }

private:
    std::string m_name;
    size_t m_walks = 0;
    size_t m_states = 0;
    size_t m_steps = 0;
    size_t m_replays = 0;
};

} // namespace PANFx::Testing

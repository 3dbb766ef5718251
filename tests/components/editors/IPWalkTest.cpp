#include "components/editors/ZELImageIPEdit.h"

#include "components/editors/EditorTest.h"
#include "components/editors/EditorWalk.h"
#include "components/editors/rules/IPRules.h"
#include "support/DecimalComma.h"

#include <cstring>
#include <set>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageIPEdit;

namespace {

class WalkedIP : public OpenedEdit<ZELImageIPEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    bool enterKey(char c) { return processText(c); }

    void enter(const IPRules& rules)
    {
        std::memset(m_szIP, 0, sizeof m_szIP);
        std::memcpy(m_szIP, rules.digits.data(), rules.digits.size());
        m_nCurOctet = rules.octet;
    }

    std::string state() const { return m_szIP + ("|" + std::to_string(m_nCurOctet)); }
};

using IPWalk = EditorWalk<IPRules, WalkedIP>;

std::vector<IPWalk::Operation> ipOperations(const std::string& keys)
{
    std::vector<IPWalk::Operation> all;
    for (const char c : keys)
        all.push_back(IPWalk::key("character " + std::to_string(static_cast<unsigned char>(c)), c));
    all.push_back(IPWalk::silent(
        "backspace", [](IPRules& rules) { rules.backspace(); },
        [](WalkedIP& edit) { edit.backspace(); }));
    all.push_back(IPWalk::silent(
        "clear", [](IPRules& rules) { rules.clear(); }, [](WalkedIP& edit) { edit.clear(); }));
    for (const std::string text : {"10.0.25.255", "1.2"}) {
        all.push_back({"setText " + text, [text](IPRules& rules) { return rules.setText(text); },
                       [text](WalkedIP& edit) { return edit.processText(text); }});
    }
    return all;
}

// All values in the octet at the end, chosen ones before it: one digit, two of which 25 waits
// and 26 is full, three, and the ends. What is below nothing, by keys that are no digits, is
// compared and not gone on from.
bool isWalked(const IPRules& rules)
{
    static const std::set<int> before = {0, 1, 25, 26, 192, 255};
    for (int i = 0; i < rules.stored(); ++i) {
        if (rules.value(i) < 0 || (i + 1 < rules.stored() && before.count(rules.value(i)) == 0))
            return false;
    }
    return true;
}

std::string brokenPromise(const IPRules& /*before*/, const IPRules& after)
{
    if (after.digits.size() % 3 != 0 || after.digits.size() > 12)
        return "no whole octets";
    if (after.octet > 3 || after.octet < 0 || after.octet > after.stored() ||
        after.octet + 1 < after.stored())
        return "no octet to type in";
    for (int i = 0; i < after.stored(); ++i) {
        if (after.value(i) > 255)
            return "an octet above 255";
    }
    return "";
}

class IPWalkTest : public EditorTest
{
protected:
    static IPWalk walk(WalkedIP* edit, const std::string& keys,
                       const std::function<bool(const IPRules&)>& goesOn)
    {
        edit->hideWindow();
        IPWalk walk(*edit, ipOperations(keys));
        walk.goesOn = goesOn;
        walk.promise = brokenPromise;
        walk.from(IPRules());
        walk.run();
        return walk;
    }

    // up to so many octets are gone on from
    static std::function<bool(const IPRules&)> upTo(int octets)
    {
        return
            [octets](const IPRules& rules) { return rules.stored() <= octets && isWalked(rules); };
    }
};

const std::string digitsAndOthers = "0123456789.,A";

// addresses of one to five parts, some of them empty or too large, with and without a "." behind
void forEachAddress(const std::function<void(const std::string&)>& act)
{
    std::vector<std::string> begun = {""};
    for (int parts = 1; parts <= 5; ++parts) {
        std::vector<std::string> longer;
        for (const std::string& start : begun) {
            for (const std::string part : {"", "0", "7", "007", "255", "256", "-5", "9x"})
                longer.push_back((parts == 1 ? "" : start + ".") + part);
        }
        for (const std::string& address : longer) {
            act(address);
            act(address + ".");
        }
        begun = longer;
    }
}

} // namespace

TEST_F(IPWalkTest, everyStepFromEveryStateFollowsTheRules)
{
    auto* const edit = make<WalkedIP>("ZELImageIPEdit");
    const IPWalk done = walk(edit, digitsAndOthers, upTo(underSanitizer ? 2 : 4));
    WalkCounts("address").add(done);
    for (const IPRules& state : done.found()) {
        edit->enter(state);
        ASSERT_EQ(edit->isValidIP(), state.isValid()) << state.state();
        if (!state.isValid())
            continue;
        const std::string address = edit->text();
        ASSERT_TRUE(edit->processText(address));
        ASSERT_EQ(edit->text(), address) << "an address that was read can be set again";
        ASSERT_EQ(edit->m_strText, "") << "the text of the base has no part";
    }
}

TEST_F(IPWalkTest, everyCharacterCountsByItsCode)
{
    std::string all;
    for (int code = 1; code < 256; ++code)
        all += static_cast<char>(code);
    auto* const edit = make<WalkedIP>("ZELImageIPEdit");
    WalkCounts("address, all characters").add(walk(edit, all, upTo(1)));
}

TEST_F(IPWalkTest, theLocaleOfTheProcessDoesNotMatter)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    auto* const edit = make<WalkedIP>("ZELImageIPEdit");
    WalkCounts("address under a decimal comma").add(walk(edit, digitsAndOthers, upTo(2)));
}

TEST_F(IPWalkTest, everyTextThatIsSetFollowsTheRules)
{
    auto* const edit = make<WalkedIP>("ZELImageIPEdit");
    edit->hideWindow();
    int passed = 0;
    int refused = 0;
    forEachAddress([&](const std::string& address) {
        IPRules rules;
        rules.setText("9.8.7.6");
        edit->enter(rules);
        const bool expected = rules.setText(address);
        ASSERT_EQ(edit->processText(address), expected) << address;
        ASSERT_EQ(edit->state(), rules.state()) << address;
        ASSERT_EQ(edit->text(), rules.text()) << address;
        ++(expected ? passed : refused);
    });
    EXPECT_GT(passed, 10000);
    EXPECT_GT(refused, 1000);
}

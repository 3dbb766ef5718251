#include "resource/QwertyPadFactory.h"

#include "resource/EnPad.h"
#include "resource/EspPad.h"
#include "resource/KrPad.h"
#include "resource/QwertyPadFactoryFixture.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>

// Composers, languages and clearing.

using namespace PANFx::Testing;
using namespace PANFx::Resource;

namespace {

template <class Exception>
class ThrowingPad : public LangPad
{
public:
    void clear() override { throw Exception("too long"); }
};

} // namespace

// ---- construction

TEST_F(QwertyPadFactoryTest, holdsItsFieldsInTheirOrder)
{
    const OpenFactory factory;
    const std::vector<const void*> fields{&factory.m_strLang, &factory.m_tblPads,
                                          &factory.m_nMaxLength, &factory.m_logger};
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

TEST_F(QwertyPadFactoryTest, isAnObjectDeletedThroughItsBase)
{
    EXPECT_TRUE((std::is_base_of_v<TAMFx::Data::Object, QwertyPadFactory>));
    EXPECT_TRUE(std::has_virtual_destructor_v<QwertyPadFactory>);
    std::unique_ptr<TAMFx::Data::Object>(new QwertyPadFactory).reset();
}

TEST_F(QwertyPadFactoryTest, startsWithoutALanguageAndWithoutRoom)
{
    OpenFactory factory;
    EXPECT_STREQ(factory.m_strLang.c_str(), "");
    EXPECT_EQ(factory.getMaxLength(), 0);
    EXPECT_EQ(factory.getTextLength(), 0);
    EXPECT_EQ(factory.m_logger.m_strIdentity, "QTPANFx QwertyPadFactory");
}

TEST_F(QwertyPadFactoryTest, hasAComposerForEachLanguage)
{
    const std::pair<const char*, const std::type_info&> rows[] = {
        {"NULL", typeid(LangPad)}, {"kr", typeid(KrPad)},   {"en", typeid(EnPad)},
        {"esp", typeid(EspPad)},   {"fra", typeid(EspPad)}, {"ger", typeid(EspPad)},
        {"ita", typeid(EspPad)},   {"por", typeid(EspPad)}, {"rus", typeid(EnPad)},
        {"chn", typeid(EnPad)}};
    ASSERT_EQ(m_factory.m_tblPads.getCount(), 10);
    int place = 0;
    for (const auto& [language, type] : rows) {
        const LangPad* pad = m_factory.padOf(language);
        ASSERT_TRUE(pad) << language;
        EXPECT_EQ(typeid(*pad), type) << language;
        EXPECT_EQ(m_factory.m_tblPads.getValue(language), m_factory.m_tblPads.getValue(place++));
    }
    EXPECT_FALSE(m_factory.padOf("pol"));
    EXPECT_FALSE(m_factory.padOf(""));
}

TEST_F(QwertyPadFactoryTest, keepsATextForEachLanguage)
{
    type(u"none");
    m_factory.m_strLang = "fra";
    type(u"fra");
    m_factory.m_strLang = "ger";
    type(u"ger");
    m_factory.m_strLang = "esp";
    EXPECT_EQ(text(), "");
    m_factory.m_strLang = "fra";
    EXPECT_EQ(text(), "fra");
    m_factory.m_strLang = "ger";
    EXPECT_EQ(text(), "ger");
    m_factory.m_strLang = "";
    EXPECT_EQ(text(), "none");
}

TEST_F(QwertyPadFactoryTest, freesItsComposers)
{
    {
        OpenFactory factory;
        factory.addPad("fra", new NotingPad(m_notes, "first "));
        factory.addPad("fra", new NotingPad(m_notes, "second "));
        EXPECT_EQ(m_notes, std::vector<std::string>{"first deleted"});
        EXPECT_EQ(factory.m_tblPads.getCount(), 10);
        factory.addPad(nullptr, new NotingPad(m_notes, "nameless "));
        EXPECT_EQ(factory.m_tblPads.getCount(), 10);
    }
    EXPECT_EQ(m_notes,
              (std::vector<std::string>{"first deleted", "nameless deleted", "second deleted"}));
}

// ---- language

TEST_F(QwertyPadFactoryTest, movesTheTextWithTheUser)
{
    m_factory.changeLang("en");
    type(u"abc");
    m_factory.changeLang("kr");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "kr");
    EXPECT_EQ(text(), "abc");
    EXPECT_EQ(type(u"ㅎㅏㄴ"), "abc한");
    m_factory.changeLang("fra");
    EXPECT_EQ(text(), "abc한");
    EXPECT_EQ(type(u"<"), "abc");
    m_factory.m_strLang = "kr";
    EXPECT_EQ(text(), "");
    m_factory.m_strLang = "en";
    EXPECT_EQ(text(), "");
}

TEST_F(QwertyPadFactoryTest, makesASyllablePlainTextOnTheWay)
{
    m_factory.changeLang("kr");
    type(u"ㅎㅏㄴ");
    m_factory.changeLang("en");
    m_factory.changeLang("kr");
    EXPECT_EQ(type(u"ㅏ"), "한ㅏ");
}

TEST_F(QwertyPadFactoryTest, movesATextThatIsTooLongUncut)
{
    m_factory.changeLang("en");
    type(u"abcd");
    m_factory.setMaxLength(2);
    m_factory.changeLang("fra");
    EXPECT_EQ(m_factory.getTextLength(), 4);
}

TEST_F(QwertyPadFactoryTest, takesTheTextOfTheFirstComposerAlong)
{
    type(u"abc");
    m_factory.changeLang("en");
    EXPECT_EQ(text(), "abc");
    m_factory.changeLang("NULL");
    EXPECT_EQ(text(), "abc");
}

TEST_F(QwertyPadFactoryTest, handsOverBeforeItClears)
{
    m_factory.addPad("en", new NotingPad(m_notes, "en "));
    m_factory.addPad("fra", new NotingPad(m_notes, "fra "));
    m_factory.m_strLang = "en";
    type(u"ab");
    m_factory.changeLang("fra");
    EXPECT_EQ(m_notes, (std::vector<std::string>{"fra set ab", "en clear"}));
    m_notes.clear();
    m_factory.changeLang("fra");
    EXPECT_EQ(m_notes, (std::vector<std::string>{"fra set ab", "fra clear"}));
}

TEST_F(QwertyPadFactoryTest, wipesTheTextWhenTheLanguageStays)
{
    for (const char* language : {"en", "kr", "NULL"}) {
        m_factory.changeLang(language);
        set("abc");
        m_factory.changeLang(language);
        EXPECT_EQ(text(), "") << language;
        EXPECT_STREQ(m_factory.m_strLang.c_str(), language);
    }
    type(u"abc");
    m_factory.changeLang(m_factory.m_strLang.c_str());
    EXPECT_EQ(text(), "");
}

TEST_F(QwertyPadFactoryTest, takesTheEmptyLanguageForNone)
{
    m_factory.changeLang("en");
    type(u"abc");
    m_factory.changeLang("");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "NULL");
    EXPECT_EQ(text(), "abc");
}

TEST_F(QwertyPadFactoryTest, wipesTheFirstComposerWhenItIsNamed)
{
    // it is the current one already, though the language is not named yet
    for (const char* language : {"", "NULL"}) {
        OpenFactory factory;
        factory.setMaxLength(3);
        factory.getCompleteText('a', -1);
        factory.changeLang(language);
        EXPECT_STREQ(factory.m_strLang.c_str(), "NULL");
        EXPECT_EQ(factory.getTextLength(), 0);
    }
}

TEST_F(QwertyPadFactoryTest, leavesTheTextBehindForAnUnknownLanguage)
{
    type(u"none");
    m_factory.m_strLang = "en";
    type(u"english");
    log().startHere();
    m_factory.changeLang("xx");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "xx");
    EXPECT_EQ(text(), "none");
    EXPECT_TRUE(log().lines().empty());
    m_factory.changeLang("en");
    EXPECT_EQ(text(), "none");
    m_factory.m_strLang = "";
    EXPECT_EQ(text(), "");
}

TEST_F(QwertyPadFactoryTest, worksOnWithAnUnknownLanguage)
{
    m_factory.changeLang("xx");
    EXPECT_EQ(type(u"ab<"), "a");
    set("set");
    EXPECT_EQ(m_factory.getTextLength(), 3);
    m_factory.changeLang("yy");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "yy");
    EXPECT_EQ(text(), "set");
    m_factory.changeLang("KR");
    EXPECT_EQ(text(), "set");
}

TEST_F(QwertyPadFactoryTest, changesNothingForANullLanguage)
{
    m_factory.changeLang("kr");
    type(u"ㅎㅏ");
    log().expectError("[changeLang] lang is NULL", 1, "QwertyPadFactory");
    m_factory.changeLang(nullptr);
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "kr");
    EXPECT_EQ(type(u"ㄴ"), "한");
}

// ---- clearing

TEST_F(QwertyPadFactoryTest, clearsTheTextOfTheCurrentLanguage)
{
    for (const char* language : {"NULL", "kr", "en", "chn"}) {
        m_factory.changeLang(language);
        type(u"aㅎㅏ");
        m_factory.clearText();
        EXPECT_EQ(m_factory.getTextLength(), 0) << language;
    }
    EXPECT_TRUE(log().texts("QwertyPadFactory").empty());
}

TEST_F(QwertyPadFactoryTest, clearsNothingWhileTheLanguageIsUnknownOrEmpty)
{
    type(u"abc");
    m_factory.clearText();
    EXPECT_EQ(text(), "abc");
    m_factory.changeLang("xx");
    m_factory.clearText();
    EXPECT_EQ(text(), "abc");
    m_factory.m_strLang = "NULL";
    m_factory.clearText();
    EXPECT_EQ(text(), "");
}

TEST_F(QwertyPadFactoryTest, logsATextThatIsTooLongToClear)
{
    m_factory.addPad("en", new ThrowingPad<std::length_error>);
    m_factory.m_strLang = "en";
    type(u"abc");
    log().startHere();
    m_factory.clearText();
    EXPECT_EQ(log().texts("QwertyPadFactory"),
              std::vector<std::string>{"[D] [clearText] Length error: too long"});
    EXPECT_EQ(log().lines().size(), 1U);
    EXPECT_EQ(text(), "abc");
}

TEST_F(QwertyPadFactoryTest, catchesNoOtherExceptionThere)
{
    m_factory.addPad("en", new ThrowingPad<std::out_of_range>);
    m_factory.m_strLang = "en";
    EXPECT_THROW(m_factory.clearText(), std::out_of_range);
}

// ---- without composers

TEST_F(QwertyPadFactoryTest, isEmptyWithoutComposers)
{
    m_factory.m_tblPads.ClearAll();
    log().startHere();
    EXPECT_EQ(m_factory.getCompleteText('a', -1), QString());
    EXPECT_EQ(m_factory.getCompleteText(), QString());
    EXPECT_EQ(m_factory.getTextLength(), 0);
    m_factory.clearText();
    m_factory.changeLang("en");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "");
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(QwertyPadFactoryTest, saysThatItCannotSetATextWithoutComposers)
{
    m_factory.m_tblPads.ClearAll();
    log().startHere();
    log().expectError("[QwertyPadFactory::setCompleteText] pPad is NULL\n", 1, "QwertyPadFactory");
    m_factory.setCompleteText(QStringLiteral("a"));
    EXPECT_EQ(log().lines().size(), 1U);
}

TEST_F(QwertyPadFactoryTest, losesALanguageWhoseComposerIsGone)
{
    m_factory.changeLang("en");
    type(u"abc");
    m_factory.m_tblPads.Remove("NULL");
    m_factory.changeLang("xx");
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "xx");
    EXPECT_EQ(text(), "");
    m_factory.changeLang("en"); // no way back: there is no composer to take a text from
    EXPECT_STREQ(m_factory.m_strLang.c_str(), "xx");
}

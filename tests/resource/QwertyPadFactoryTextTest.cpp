#include "resource/QwertyPadFactoryFixture.h"

#include <climits>

// The length limit, and text on its way in and out.

using namespace PANFx::Testing;

// ---- limit

TEST_F(QwertyPadFactoryTest, refusesEachKeyUntilItHasALimit)
{
    OpenFactory factory;
    EXPECT_EQ(factory.getCompleteText(0x41, -1), QString());
    EXPECT_EQ(factory.getTextLength(), 0);
    EXPECT_EQ(factory.getCompleteText(0x20, -1), QString());
    EXPECT_EQ(factory.getTextLength(), 0);
    EXPECT_EQ(factory.getCompleteText(8, -1), QString());
    factory.setCompleteText(QStringLiteral("text"));
    EXPECT_EQ(factory.getTextLength(), 0);
    EXPECT_TRUE(log().texts("QwertyPadFactory").empty());
}

TEST_F(QwertyPadFactoryTest, takesAnyLimitAndGivesItBack)
{
    for (const int length : {3, 0, -1, INT_MIN, INT_MAX}) {
        m_factory.setMaxLength(length);
        EXPECT_EQ(m_factory.getMaxLength(), length);
        EXPECT_EQ(m_factory.m_nMaxLength, length);
    }
}

TEST_F(QwertyPadFactoryTest, refusesTheKeyAfterTheLastThatFits)
{
    m_factory.setMaxLength(3);
    m_factory.changeLang("en");
    EXPECT_EQ(type(u"abc"), "abc");
    log().startHere();
    EXPECT_EQ(type(u"d"), "abc");
    EXPECT_EQ(type(u" "), "abc");
    EXPECT_TRUE(log().lines().empty());
    EXPECT_EQ(type(u"<"), "ab");
    EXPECT_EQ(type(u"x"), "abx");
}

TEST_F(QwertyPadFactoryTest, countsCharactersNotBytes)
{
    m_factory.setMaxLength(2);
    m_factory.changeLang("kr");
    EXPECT_EQ(type(u"ㅎㅏㄴ"), "한");
    EXPECT_EQ(m_factory.getTextLength(), 1);
    EXPECT_EQ(m_factory.getCompleteText().length(), 3);
    EXPECT_EQ(type(u"ㄱㅡㄹ"), "한글");
    EXPECT_EQ(m_factory.getTextLength(), 2);
    EXPECT_EQ(m_factory.getCompleteText().length(), 6);
    EXPECT_EQ(type(u"ㅏ"), "한글"); // would have made 한그라
}

TEST_F(QwertyPadFactoryTest, cutsATextThatIsTooLongWhenItIsRead)
{
    m_factory.changeLang("en");
    type(u"abcdef");
    m_factory.setMaxLength(4);
    EXPECT_EQ(m_factory.getTextLength(), 6);
    EXPECT_EQ(text(), "abcd");
    EXPECT_EQ(m_factory.getTextLength(), 4);
    m_factory.setMaxLength(6);
    EXPECT_EQ(text(), "abcd");
}

TEST_F(QwertyPadFactoryTest, undoesABackspaceThatLeavesTooMuch)
{
    m_factory.changeLang("en");
    type(u"abcdef");
    m_factory.setMaxLength(4);
    EXPECT_EQ(real(m_factory.getCompleteText(8, -1)), "abcdef");
    EXPECT_EQ(m_factory.getTextLength(), 6);
    m_factory.setMaxLength(5);
    EXPECT_EQ(real(m_factory.getCompleteText(8, -1)), "abcde");
}

TEST_F(QwertyPadFactoryTest, refusesAllAndCutsNothingWithANegativeLimit)
{
    for (const char* language : {"en", "kr"}) {
        OpenFactory factory;
        factory.changeLang(language);
        factory.setMaxLength(-1);
        factory.setCompleteText(QStringLiteral("abc"));
        EXPECT_EQ(factory.getTextLength(), 3);
        EXPECT_EQ(real(factory.getCompleteText()), "abc");
        for (const int code : {int('d'), 8, 0x20, 0x3131})
            EXPECT_EQ(real(factory.getCompleteText(code, 0)), "abc");
        EXPECT_EQ(factory.getTextLength(), 3);
        factory.clearText();
        EXPECT_EQ(real(factory.getCompleteText(8, 0)), "");
        EXPECT_EQ(real(factory.getCompleteText()), "");
    }
}

TEST_F(QwertyPadFactoryTest, cutsATextToNothingWithoutRoom)
{
    m_factory.changeLang("kr");
    type(u"abㄱ");
    m_factory.setMaxLength(0);
    EXPECT_EQ(m_factory.getTextLength(), 3);
    EXPECT_EQ(text(), "");
    EXPECT_EQ(m_factory.getTextLength(), 0);
}

TEST_F(QwertyPadFactoryTest, makesASyllableCommittedTextWhenItRefusesAKey)
{
    m_factory.setMaxLength(1);
    m_factory.changeLang("kr");
    EXPECT_EQ(type(u"ㅎㅏㄴ"), "한");
    EXPECT_EQ(type(u"ㄱ"), "한");
    EXPECT_EQ(type(u"<"), ""); // the whole syllable, not its final
}

TEST_F(QwertyPadFactoryTest, takesBackLettersWhileItHasRefusedNone)
{
    m_factory.setMaxLength(1);
    m_factory.changeLang("kr");
    EXPECT_EQ(type(u"ㅎㅏㄴ<"), "하");
    EXPECT_EQ(type(u"<"), "ㅎ");
    EXPECT_EQ(type(u"<"), "");
}

TEST_F(QwertyPadFactoryTest, setsTheOldTextOnlyWhenAKeyIsRefused)
{
    m_factory.setMaxLength(2);
    m_factory.addPad("en", new NotingPad(m_notes));
    m_factory.m_strLang = "en";
    type(u"ab");
    EXPECT_EQ(m_notes, std::vector<std::string>{});
    type(u"c");
    EXPECT_EQ(m_notes, std::vector<std::string>{"set ab"});
    text();
    EXPECT_EQ(m_notes.size(), 1U);
    m_factory.setMaxLength(1);
    text();
    EXPECT_EQ(m_notes, (std::vector<std::string>{"set ab", "set a"}));
    m_notes.clear();
    m_factory.setMaxLength(5);
    set("bcdefgh");
    EXPECT_EQ(m_notes, std::vector<std::string>{"set bcdef"});
}

// ---- the boundary

TEST_F(QwertyPadFactoryTest, givesTextAsOneCharacterForEachByte)
{
    m_factory.changeLang("kr");
    const QString given = m_factory.getCompleteText(0xAC00, -1);
    ASSERT_EQ(given.length(), 3);
    EXPECT_EQ(given.at(0).unicode(), 0xEA);
    EXPECT_EQ(given.at(1).unicode(), 0xB0);
    EXPECT_EQ(given.at(2).unicode(), 0x80);
    EXPECT_EQ(m_factory.getTextLength(), 1);
}

TEST_F(QwertyPadFactoryTest, takesBackWhatItGave)
{
    m_factory.changeLang("en");
    const std::string everything = "a\xC3\xA9\xE4\xB8\xAD\xED\x95\x9C\xF0\x9F\x98\x80 z";
    set(everything);
    EXPECT_EQ(m_factory.getTextLength(), 8); // the last but two is two characters of UTF-16
    const QString given = m_factory.getCompleteText();
    EXPECT_EQ(real(given), everything);
    m_factory.setCompleteText(given);
    EXPECT_EQ(m_factory.getCompleteText(), given);
}

TEST_F(QwertyPadFactoryTest, takesWhatHasNoBoundaryFormAsQuestionMarks)
{
    m_factory.setCompleteText(QString::fromUtf8("a\xED\x95\x9C"));
    EXPECT_EQ(text(), "a?");
}

TEST_F(QwertyPadFactoryTest, readsBytesThatAreNoUtf8AsReplacementCharacters)
{
    set("a\xED\x95"
        "b");
    EXPECT_EQ(text().front(), 'a');
    EXPECT_EQ(text().back(), 'b');
    EXPECT_NE(text().find("\xEF\xBF\xBD"), std::string::npos);
    set("\xFF");
    EXPECT_EQ(text(), "\xEF\xBF\xBD");
    set("\xE9");
    EXPECT_EQ(text(), "\xEF\xBF\xBD");
}

TEST_F(QwertyPadFactoryTest, endsATextAtAZero)
{
    m_factory.setCompleteText(QString(QChar(u'a')) + QChar(0) + QChar(u'b'));
    EXPECT_EQ(m_factory.getTextLength(), 1);
    EXPECT_EQ(text(), "a");
    m_factory.getCompleteText(0, -1);
    EXPECT_EQ(m_factory.getTextLength(), 2);
    EXPECT_EQ(real(m_factory.getCompleteText('b', -1)), "a");
    EXPECT_EQ(m_factory.getTextLength(), 3);
}

TEST_F(QwertyPadFactoryTest, takesAnEmptyText)
{
    set("text");
    set("");
    EXPECT_EQ(m_factory.getTextLength(), 0);
    set("text");
    m_factory.setCompleteText(QString());
    EXPECT_EQ(m_factory.getTextLength(), 0);
    EXPECT_EQ(text(), "");
}

TEST_F(QwertyPadFactoryTest, cutsATextThatIsSetAtCharacters)
{
    m_factory.setMaxLength(2);
    set("한글날");
    EXPECT_EQ(text(), "한글");
    EXPECT_EQ(m_factory.getTextLength(), 2);
}

TEST_F(QwertyPadFactoryTest, hasASyllableThatIsSetAsCommittedText)
{
    m_factory.changeLang("kr");
    set("한");
    EXPECT_EQ(type(u"ㅏ"), "한ㅏ");
    EXPECT_EQ(type(u"<<"), "");
}

TEST_F(QwertyPadFactoryTest, countsTheSyllableUnderComposition)
{
    m_factory.changeLang("kr");
    type(u"ㅎㅏ");
    EXPECT_EQ(m_factory.getTextLength(), 1);
    type(u"ㄸ");
    EXPECT_EQ(m_factory.getTextLength(), 2);
}

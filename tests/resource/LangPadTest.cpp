#include "resource/LangPad.h"

#include "support/VirtualSlot.h"

#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using PANFx::Resource::LangPad;
using PANFx::Testing::slot;
using PANFx::Testing::slotSize;

namespace {

// Its text lies open, and it notes which virtual operations a key calls.
class OpenPad : public LangPad
{
public:
    using LangPad::m_strText;

    ~OpenPad() override
    {
        if (m_pbDeleted)
            *m_pbDeleted = true;
    }

    void backspace() override { m_calls.emplace_back("backspace"); }
    void space() override { m_calls.emplace_back("space"); }

    std::vector<std::string> m_calls;
    bool* m_pbDeleted = nullptr;
};

std::string typed(LangPad& pad, const std::vector<int>& codes)
{
    QString text = pad.getCompleteText();
    for (const int code : codes)
        text = pad.getCompleteText(code, -1);
    EXPECT_EQ(text, pad.getCompleteText());
    return text.toStdString();
}

} // namespace

TEST(LangPad, hasItsOperationsInTheirFixedOrder)
{
    using Feed = QString (LangPad::*)(int, int);
    using Read = QString (LangPad::*)();
    const std::intptr_t table[] = {
        slot(&LangPad::clear),
        slot(static_cast<Feed>(&LangPad::getCompleteText)),
        slot(static_cast<Read>(&LangPad::getCompleteText)),
        slot(&LangPad::backspace),
        slot(&LangPad::space),
        slot(&LangPad::setCompleteText),
    };
    std::intptr_t place = 2; // a virtual destructor takes two places
    for (const std::intptr_t found : table)
        EXPECT_EQ(found / slotSize, place++);
}

TEST(LangPad, isDeletedThroughItsBase)
{
    bool bDeleted = false;
    auto open = std::make_unique<OpenPad>();
    open->m_pbDeleted = &bDeleted;
    std::unique_ptr<LangPad>(std::move(open)).reset();
    EXPECT_TRUE(bDeleted);
}

TEST(LangPad, holdsOneTextAndHasNoBase)
{
    EXPECT_TRUE(std::is_polymorphic_v<LangPad>);
    EXPECT_EQ(sizeof(LangPad), sizeof(void*) + sizeof(QString));
}

TEST(LangPad, startsWithoutAText)
{
    OpenPad pad;
    EXPECT_TRUE(pad.m_strText.isNull());
    EXPECT_TRUE(pad.getCompleteText().isNull());
}

TEST(LangPad, appendsCharactersAsTheyCome)
{
    LangPad pad;
    EXPECT_EQ(typed(pad, {'a', 'B', '7'}), "aB7");
    EXPECT_EQ(typed(pad, {0xE9, 0x416, 0x4E2D}), "aB7\xC3\xA9\xD0\x96\xE4\xB8\xAD");
}

TEST(LangPad, composesNoHangul)
{
    LangPad pad;
    EXPECT_EQ(pad.getCompleteText(0x314E, 18), QString(QChar(0x314E)));
    EXPECT_EQ(pad.getCompleteText(0x314F, 0).length(), 2);
}

TEST(LangPad, appendsTheLow16BitsOfACode)
{
    const struct
    {
        int code;
        ushort character;
    } rows[] = {{0x10041, 0x41}, {0x1F600, 0xF600}, {-1, 0xFFFF},   {INT_MAX, 0xFFFF}, {INT_MIN, 0},
                {0, 0},          {0x10008, 8},      {0x10020, 0x20}};
    for (const auto& row : rows) {
        LangPad pad;
        const QString text = pad.getCompleteText(row.code, -1);
        ASSERT_EQ(text.length(), 1) << row.code;
        EXPECT_EQ(text.at(0).unicode(), row.character) << row.code;
    }
}

TEST(LangPad, readsNoIndex)
{
    for (const int index : {-1, 0, 18, INT_MAX, INT_MIN}) {
        LangPad pad;
        EXPECT_EQ(pad.getCompleteText('a', index).toStdString(), "a");
        EXPECT_EQ(pad.getCompleteText(0x20, index).toStdString(), "a ");
        EXPECT_EQ(pad.getCompleteText(8, index).toStdString(), "a");
    }
}

TEST(LangPad, callsItsVirtualOperationsForBackspaceAndSpace)
{
    OpenPad pad;
    pad.setCompleteText(QStringLiteral("ab"));
    EXPECT_EQ(pad.getCompleteText(8, 3).toStdString(), "ab");
    EXPECT_EQ(pad.getCompleteText(0x20, 3).toStdString(), "ab");
    pad.getCompleteText('a', 3);
    EXPECT_EQ(pad.m_calls, (std::vector<std::string>{"backspace", "space"}));
}

TEST(LangPad, takesBackOneCharacter)
{
    LangPad pad;
    pad.setCompleteText(QString::fromUtf8("a\xED\x95\x9C\xC3\xA9"));
    pad.backspace();
    EXPECT_EQ(pad.getCompleteText().toStdString(), "a\xED\x95\x9C");
    pad.backspace();
    EXPECT_EQ(pad.getCompleteText().toStdString(), "a");
    pad.backspace();
    EXPECT_EQ(pad.getCompleteText().toStdString(), "");
    pad.backspace();
    EXPECT_EQ(pad.getCompleteText().toStdString(), "");
    EXPECT_EQ(typed(pad, {8, 'x'}), "x");
}

TEST(LangPad, keepsANullTextThroughBackspace)
{
    LangPad pad;
    pad.backspace();
    EXPECT_TRUE(pad.getCompleteText().isNull());
}

TEST(LangPad, appendsABlank)
{
    LangPad pad;
    pad.space();
    EXPECT_EQ(typed(pad, {'a', 0x20, 0x20, 'b'}), " a  b");
}

TEST(LangPad, replacesItsText)
{
    LangPad pad;
    typed(pad, {'a'});
    pad.setCompleteText(QStringLiteral("other"));
    EXPECT_EQ(typed(pad, {'!'}), "other!");
    pad.setCompleteText(QString());
    EXPECT_TRUE(pad.getCompleteText().isNull());
}

TEST(LangPad, clearsItsTextToNull)
{
    LangPad pad;
    pad.clear();
    EXPECT_TRUE(pad.getCompleteText().isNull());
    pad.setCompleteText(QStringLiteral("text"));
    pad.clear();
    EXPECT_TRUE(pad.getCompleteText().isNull());
    pad.setCompleteText(QStringLiteral(""));
    pad.clear();
    EXPECT_TRUE(pad.getCompleteText().isNull());
}

// How an address edit is built and what it looks like.

#include "components/editors/ZELImageIPEdit.h"

#include "components/editors/FieldTest.h"
#include "support/VirtualSlot.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageIPEdit;

namespace {

class Edit : public OpenField<ZELImageIPEdit>
{
public:
    using OpenField<ZELImageIPEdit>::OpenField;

    using ZELImageIPEdit::m_nCurOctet;
    using ZELImageIPEdit::m_szIP;

    static std::vector<std::intptr_t> slotsFromRelease()
    {
        return {slot(&Edit::mouseReleaseEvent),
                slot(static_cast<bool (Edit::*)(std::string)>(&Edit::processText)),
                slot(static_cast<bool (Edit::*)(char)>(&Edit::processText))};
    }
};

class ZELImageIPEditPaintTest : public FieldTest
{
protected:
    Edit* edit(const std::string& attributes = "style='normal'", const std::string& children = "")
    {
        return make<Edit>(field(attributes, children), "ZELImageIPEdit");
    }

    static ::testing::AssertionResult shows(Edit* edit, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(edit), expected);
    }

    static QImage text(const char* text, int align = toTheLeft)
    {
        return framedText(QString::fromUtf8(text), textArea, align);
    }
};

} // namespace

TEST_F(ZELImageIPEditPaintTest, showsWhatADerivedClassGivesAsItsText)
{
    class Named : public Edit
    {
    public:
        using Edit::Edit;
        std::string text() override { return "gateway"; }
    };
    EXPECT_TRUE(shows(make<Named>(field(), "ZELImageIPEdit"), text("gateway")));
}

TEST_F(ZELImageIPEditPaintTest, addsItsTwoOperationsBehindThoseOfAnEdit)
{
    const std::vector<std::intptr_t> found = Edit::slotsFromRelease();
    EXPECT_EQ(found[1], found[0] + slotSize);
    EXPECT_EQ(found[2], found[1] + slotSize);
}

TEST_F(ZELImageIPEditPaintTest, startsEmptyAtTheFirstOctet)
{
    auto* const field = edit();
    EXPECT_EQ(std::string(field->m_szIP, sizeof field->m_szIP), std::string(13, '\0'));
    EXPECT_EQ(field->m_nCurOctet, 0);
    EXPECT_EQ(field->text(), "");
    EXPECT_FALSE(field->isValidIP());
}

TEST_F(ZELImageIPEditPaintTest, readsTheLayoutOfAnEdit)
{
    auto* const field = edit("style='pressed' dimstyle='dimmed' align='right'",
                             "<padding x='20' y='3' width='90' height='9'/>");
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(field->m_paddingRect, QRect(20, 3, 90, 9));
    EXPECT_EQ(shownState(field), up);
    EXPECT_EQ(edit()->m_nAlign, toTheLeft);
}

TEST_F(ZELImageIPEditPaintTest, withoutALayoutSaysSoTwice)
{
    log().expectError("[setLayout] ok pLayout == NULL", 2, "ZELImageEdit");
    auto* const field = make<Edit>("", "ZELImageIPEdit");
    EXPECT_EQ(field->geometry(), QRect(0, 0, 100, 30));
}

TEST_F(ZELImageIPEditPaintTest, showsTheAddressAsItsText)
{
    auto* const field = edit();
    field->setText("192.168.0.1");
    EXPECT_TRUE(shows(field, text("192.168.0.1")));
    field->setText("1.2.3");
    EXPECT_TRUE(shows(field, text("1.2.3.")));
}

TEST_F(ZELImageIPEditPaintTest, itsRectangleIsFixed)
{
    auto* const field =
        edit("style='normal' align='right'", "<padding x='40' y='30' width='20' height='5'/>");
    field->setText("1.2.3.4");
    EXPECT_TRUE(shows(field, text("1.2.3.4", toTheRight)));
    field->setAlign(centred);
    EXPECT_TRUE(shows(field, text("1.2.3.4", centred)));
}

TEST_F(ZELImageIPEditPaintTest, thePlaceholderIsNotLighter)
{
    auto* const field =
        edit("style='normal' align='right'", "<padding x='40' y='30' width='20' height='5'/>");
    field->setPlaceholderText("n\xC3\xA9");
    EXPECT_TRUE(shows(field, text("n\xC3\xA9", toTheRight)));
    field->addText("1");
    EXPECT_TRUE(shows(field, text("1", toTheRight)));
}

TEST_F(ZELImageIPEditPaintTest, anEmptyFieldWithoutAPlaceholderShowsItsFrame)
{
    EXPECT_TRUE(shows(edit(), framed()));
}

TEST_F(ZELImageIPEditPaintTest, paintsNothingWithoutAFrameAndNoTextWithoutAStyle)
{
    auto* const bare = make<Edit>("<ok style='normal'><position width='200' height='44'/></ok>");
    bare->setText("1.2.3.4");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(bare)).isNull());
    auto* const plain = edit("");
    plain->setText("1.2.3.4");
    EXPECT_TRUE(shows(plain, framed()));
    EXPECT_TRUE(shows(plain, framed()));
    log().expectError("[paintEvent] ok has no font", 1, "ZELImageIPEdit");
}

TEST_F(ZELImageIPEditPaintTest, theDimStyleIsNotUsed)
{
    auto* const field = edit("style='normal' dimstyle='pressed'");
    field->setText("1.2.3.4");
    field->setDimMode(true);
    EXPECT_TRUE(
        shows(field, framedText(QStringLiteral("1.2.3.4"), textArea, toTheLeft, Qt::black, dim)));
}

TEST_F(ZELImageIPEditPaintTest, whatItsBaseCountsAndHidesHasNoPart)
{
    auto* const field = edit();
    field->setMaxLength(3);
    field->setEchoMode(1);
    field->setElidedText(1);
    field->setText("192.168.0.1");
    EXPECT_TRUE(shows(field, text("192.168.0.1")));
}

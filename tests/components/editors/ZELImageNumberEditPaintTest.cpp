// How a number edit is built, what it looks like, and what it does when the focus goes.

#include "components/editors/ZELImageNumberEdit.h"

#include "components/editors/FieldTest.h"
#include "events/EventNumbers.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageNumberEdit;

namespace {

class Edit : public OpenField<ZELImageNumberEdit>
{
public:
    using OpenField<ZELImageNumberEdit>::OpenField;

    using ZELImageNumberEdit::m_bRange;
    using ZELImageNumberEdit::m_dMax;
    using ZELImageNumberEdit::m_dMin;
    using ZELImageNumberEdit::m_nDecimalPlace;
    using ZELImageNumberEdit::m_strNumber;
};

class ZELImageNumberEditPaintTest : public FieldTest
{
protected:
    Edit* edit(const std::string& attributes = "style='normal'", const std::string& children = "")
    {
        return make<Edit>(field(attributes, children), "ZELImageNumberEdit");
    }

    static ::testing::AssertionResult shows(Edit* edit, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(edit), expected);
    }

    static QImage text(const char* text, const QColor& pen = Qt::black, State state = up)
    {
        return framedText(QString::fromUtf8(text), textArea, toTheLeft, pen, state);
    }
};

} // namespace

TEST_F(ZELImageNumberEditPaintTest, startsEmptyWithItsDefaults)
{
    auto* const field = edit();
    EXPECT_EQ(field->m_strNumber, "");
    EXPECT_EQ(field->m_nDecimalPlace, 0);
    EXPECT_EQ(field->m_dMax, 0.0);
    EXPECT_EQ(field->m_dMin, 0.0);
    EXPECT_FALSE(field->m_bRange);
    EXPECT_EQ(field->m_nMaxLength, 1024u);
}

TEST_F(ZELImageNumberEditPaintTest, showsWhatADerivedClassGivesAsItsText)
{
    class WithUnit : public Edit
    {
    public:
        using Edit::Edit;
        std::string text() override { return m_strNumber + " kg"; }
    };
    auto* const edited = make<WithUnit>(FieldTest::field(), "ZELImageNumberEdit");
    edited->setText("12");
    EXPECT_TRUE(shows(edited, text("12 kg")));
}

TEST_F(ZELImageNumberEditPaintTest, readsTheLayoutOfAnEdit)
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

TEST_F(ZELImageNumberEditPaintTest, withoutALayoutSaysSoTwice)
{
    log().expectError("[setLayout] ok pLayout == NULL", 2, "ZELImageEdit");
    auto* const field = make<Edit>("", "ZELImageNumberEdit");
    EXPECT_EQ(field->geometry(), QRect(0, 0, 100, 30));
}

// ---- painting

TEST_F(ZELImageNumberEditPaintTest, drawsTheNumberInItsAreaAndAlignment)
{
    auto* const field =
        edit("style='normal' align='right'", "<padding x='30' y='4' width='90' height='20'/>");
    field->setText("42");
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("42"), QRect(30, 4, 90, 20), toTheRight)));
}

TEST_F(ZELImageNumberEditPaintTest, neitherElisionNorEchoConcernsIt)
{
    auto* const field = edit();
    field->setEchoMode(1);
    field->setElidedText(1);
    field->setDecimalplace(40);
    field->setText("1");
    EXPECT_TRUE(shows(field, text(("1." + std::string(40, '0')).c_str())));
}

TEST_F(ZELImageNumberEditPaintTest, anEmptyFieldShowsItsPlaceholderLighter)
{
    auto* const field = edit();
    EXPECT_TRUE(shows(field, framed()));
    field->setPlaceholderText("n\xC3\xA9");
    EXPECT_TRUE(shows(field, text("n\xC3\xA9", lightened())));
    field->setText("0");
    EXPECT_TRUE(shows(field, text("0")));
}

TEST_F(ZELImageNumberEditPaintTest, usesTheDimStyleWhileDimmed)
{
    auto* const field = edit("style='normal' dimstyle='pressed'");
    field->setText("42");
    field->setDimMode(true);
    EXPECT_TRUE(shows(field, text("42", Qt::red, dim)));
    field->setDimMode(false);
    EXPECT_TRUE(shows(field, text("42")));
}

TEST_F(ZELImageNumberEditPaintTest, withoutADimStyleStaysInItsStyleWhileDimmed)
{
    auto* const field = edit();
    field->setText("42");
    field->setDimMode(true);
    EXPECT_TRUE(shows(field, text("42", Qt::black, dim)));
}

TEST_F(ZELImageNumberEditPaintTest, thePlaceholderIsAShadeOfTheStyleAlsoWhileDimmed)
{
    writeStyle("<style><Font><normal size='14' family='DejaVu Sans Mono' color='000000'/>"
               "<large size='18' family='DejaVu Sans Mono' color='ff0000'/></Font></style>");
    auto* const field = edit("style='normal' dimstyle='large'");
    field->setPlaceholderText("Hpx");
    field->setDimMode(true);
    EXPECT_TRUE(shows(
        field, framedText(QStringLiteral("Hpx"), textArea, toTheLeft, lightened(), dim, "large")));
}

TEST_F(ZELImageNumberEditPaintTest, paintsNothingWithoutAFrameAndNoTextWithoutAStyle)
{
    auto* const bare = make<Edit>("<ok style='normal'><position width='200' height='44'/></ok>");
    bare->setText("42");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(bare)).isNull());
    auto* const plain = edit("");
    plain->setText("42");
    EXPECT_TRUE(shows(plain, framed()));
    EXPECT_TRUE(shows(plain, framed()));
    log().expectError("[paintEvent] ok has no font", 1, "ZELImageNumberEdit");
}

TEST_F(ZELImageNumberEditPaintTest, aDimStyleAloneServesTheNumberButNotThePlaceholder)
{
    auto* const field = edit("dimstyle='pressed'");
    field->setText("42");
    field->setDimMode(true);
    EXPECT_TRUE(shows(field, text("42", Qt::red, dim)));
    field->clear();
    field->setPlaceholderText("placeholder");
    EXPECT_TRUE(shows(field, framed(dim)));
    EXPECT_TRUE(shows(field, framed(dim)));
    log().expectError("[paintEvent] ok has no font", 1, "ZELImageNumberEdit");
}

// ---- when the focus goes

TEST_F(ZELImageNumberEditPaintTest, losingTheFocusFormatsAndIsReported)
{
    auto* const field = edit();
    field->setDecimalplace(2);
    Touch::tapWindow(field);
    panel().take();
    field->addText("3.");
    EXPECT_EQ(paints(field, [field] { field->clearFocus(); }), 1);
    EXPECT_EQ(field->text(), "3.00");
    EXPECT_EQ(shownState(field), up);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_FOCUS_OUT});
    EXPECT_TRUE(shows(field, text("3.00")));
}

TEST_F(ZELImageNumberEditPaintTest, losingTheFocusLeavesAnEmptyFieldEmpty)
{
    auto* const field = edit();
    field->setRange(5, 10);
    field->forceFocus(QEvent::FocusOut);
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_FOCUS_OUT});
}

TEST_F(ZELImageNumberEditPaintTest, dimmingAFocusedFieldFormatsAndReportsNothing)
{
    auto* const field = edit();
    field->setRange(10, 100);
    Touch::tapWindow(field);
    field->addText("5");
    panel().take();
    field->setDimMode(true);
    EXPECT_EQ(field->text(), "10");
    EXPECT_EQ(shownState(field), dim);
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_TRUE(shows(field, text("10", Qt::black, dim)));
}

TEST_F(ZELImageNumberEditPaintTest, theOtherTouchesAreThoseOfAnEdit)
{
    auto* const field = edit();
    Touch::tapWindow(field);
    field->clearFocus();
    EXPECT_EQ(panel().takeTypes(),
              (Types{EVENT_FOCUS_IN, EVENT_MOUSE_DOWN, EVENT_MOUSE_UP, EVENT_FOCUS_OUT}));
}

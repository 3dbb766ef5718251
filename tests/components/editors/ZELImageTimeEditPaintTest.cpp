// How a time edit is built and what it looks like.

#include "components/editors/ZELImageTimeEdit.h"

#include "components/editors/FieldTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageTimeEdit;

namespace {

class Edit : public OpenField<ZELImageTimeEdit>
{
public:
    using OpenField<ZELImageTimeEdit>::OpenField;

    using ZELImageTimeEdit::m_nColumnWidth;
    using ZELImageTimeEdit::m_strAmPm;
    using ZELImageTimeEdit::m_strHour;
    using ZELImageTimeEdit::m_strMinute;
};

class ZELImageTimeEditPaintTest : public FieldTest
{
protected:
    static constexpr int width = 2 * 14; // of a column in the styles of the fixture

    Edit* edit(const std::string& attributes = "style='normal'", const std::string& children = "")
    {
        return make<Edit>(field(attributes, children), "ZELImageTimeEdit");
    }

    // two styles of 9 and 14 points
    void writeSmallAndNormal()
    {
        writeStyle("<style><Font><small size='9' family='DejaVu Sans Mono' color='000000'/>"
                   "<normal size='14' family='DejaVu Sans Mono' color='000000'/></Font></style>");
    }

    static QImage columns(const char* hour, const char* minute, const char* mark,
                          int align = centred, int w = width)
    {
        QImage image = framed();
        const auto column = [&image, align](const char* text, int left, int right) {
            drawText(image, QString::fromLatin1(text), QRect(QPoint(left, 0), QPoint(right, 43)),
                     align);
        };
        column(hour, 8, w + 7);
        column(":", w + 8, w + 17);
        column(minute, w + 18, 2 * w + 17);
        column(mark, 2 * w + 18, 3 * w + 17);
        return image;
    }

    static ::testing::AssertionResult shows(Edit* edit, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(edit), expected);
    }
};

} // namespace

// ---- construction

TEST_F(ZELImageTimeEditPaintTest, startsEmptyInTheMorning)
{
    auto* const field = edit();
    EXPECT_EQ(field->m_strHour, QString());
    EXPECT_EQ(field->m_strMinute, QString());
    EXPECT_EQ(field->m_strAmPm, QStringLiteral("AM"));
    EXPECT_TRUE(field->isAM());
}

TEST_F(ZELImageTimeEditPaintTest, itsColumnsAreTwiceThePointsOfItsStyle)
{
    writeSmallAndNormal();
    EXPECT_EQ(edit()->m_nColumnWidth, 28);
    auto* const field = edit("style='small'");
    EXPECT_EQ(field->m_nColumnWidth, 18);
    field->setFont(style("normal"));
    EXPECT_EQ(field->m_nColumnWidth, 18);
}

TEST_F(ZELImageTimeEditPaintTest, aSecondLayoutBringsStyleAndAlignmentButLeavesTheColumns)
{
    writeSmallAndNormal();
    auto* const field = edit("style='small'");
    field->setLayout(element("<ok style='normal' align='right'/>"));
    EXPECT_EQ(field->m_pFont, style("normal"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    EXPECT_EQ(field->m_nColumnWidth, 18);
}

TEST_F(ZELImageTimeEditPaintTest, isCentredWhateverTheLayoutSays)
{
    for (const char* const align : {"", "align='left'", "align='right'"})
        EXPECT_EQ(edit(std::string("style='normal' ") + align)->m_nAlign, centred);
}

TEST_F(ZELImageTimeEditPaintTest, readsTheLayoutOfAnEdit)
{
    auto* const field =
        edit("style='pressed' dimstyle='dimmed'", "<padding x='20' y='3' width='90' height='9'/>");
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(field->m_paddingRect, QRect(20, 3, 90, 9));
    EXPECT_EQ(shownState(field), up);
}

TEST_F(ZELImageTimeEditPaintTest, withoutALayoutSaysSoTwiceAndLivesOn)
{
    log().expectError("[setLayout] ok pLayout == NULL", 2, "ZELImageEdit");
    auto* const field = make<Edit>("", "ZELImageTimeEdit");
    EXPECT_EQ(field->m_nColumnWidth, 0);
    EXPECT_EQ(field->m_nAlign, centred);
    field->setText("13:05");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
}

TEST_F(ZELImageTimeEditPaintTest, withoutAStyleTellsItOnceAndDrawsNoText)
{
    log().expectError("[ZELImageTimeEdit] ok has no font", 1, "ZELImageTimeEdit");
    auto* const field = edit("");
    field->setText("13:05");
    EXPECT_TRUE(shows(field, framed()));
    EXPECT_TRUE(shows(field, framed()));
}

// ---- painting

TEST_F(ZELImageTimeEditPaintTest, drawsFourColumns)
{
    auto* const field = edit();
    field->setText("22:45");
    EXPECT_TRUE(shows(field, columns("10", "45", "PM")));
    field->changeAMPM();
    EXPECT_TRUE(shows(field, columns("10", "45", "AM")));
}

TEST_F(ZELImageTimeEditPaintTest, colonAndMarkAlwaysShow)
{
    auto* const field = edit();
    EXPECT_TRUE(shows(field, columns("", "", "AM")));
    field->addText("1");
    EXPECT_TRUE(shows(field, columns("1", "", "AM")));
}

TEST_F(ZELImageTimeEditPaintTest, theColumnsTakeNothingFromTheTextArea)
{
    auto* const field = edit("style='normal'", "<padding x='40' y='30' width='20' height='5'/>");
    field->setText("22:45");
    EXPECT_TRUE(shows(field, columns("10", "45", "PM")));
}

TEST_F(ZELImageTimeEditPaintTest, theColumnsUseTheAlignmentThatIsSetLater)
{
    auto* const field = edit();
    field->setText("22:45");
    field->setAlign(toTheRight);
    EXPECT_TRUE(shows(field, columns("10", "45", "PM", toTheRight)));
}

TEST_F(ZELImageTimeEditPaintTest, anEmptyTimeShowsItsPlaceholderLighter)
{
    auto* const field = edit("style='normal'", "<padding x='25' y='4' width='120' height='20'/>");
    field->setPlaceholderText("n\xC3\xA9");
    const QRect area(25, 4, 120, 20);
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("n\u00e9"), area, centred, lightened())));
    field->changeAMPM(); // the mark alone fills nothing
    field->setAlign(toTheLeft);
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("n\u00e9"), area, toTheLeft, lightened())));
}

TEST_F(ZELImageTimeEditPaintTest, eachPartTakesThePlaceholderAway)
{
    auto* const field = edit();
    field->setPlaceholderText("placeholder");
    field->m_strHour = QStringLiteral("0");
    EXPECT_TRUE(shows(field, columns("0", "", "AM")));
    field->m_strHour.clear();
    field->m_strMinute = QStringLiteral("4");
    EXPECT_TRUE(shows(field, columns("", "4", "AM")));
}

TEST_F(ZELImageTimeEditPaintTest, paintsNothingWithoutAFrame)
{
    auto* const field = make<Edit>("<ok style='normal'><position width='200' height='44'/></ok>");
    field->setText("22:45");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
}

TEST_F(ZELImageTimeEditPaintTest, theDimStyleIsNotUsed)
{
    auto* const field = edit("style='normal' dimstyle='pressed'");
    field->setText("22:45");
    field->setDimMode(true);
    EXPECT_EQ(Pixels::count(Pixels::grab(field), Qt::red), 0);
    EXPECT_GT(Pixels::count(Pixels::grab(field), Qt::black), 0);
}

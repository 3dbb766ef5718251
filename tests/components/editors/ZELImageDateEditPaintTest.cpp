// How a date edit is built and what it looks like.

#include "components/editors/ZELImageDateEdit.h"

#include "components/editors/FieldTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageDateEdit;

namespace {

class Edit : public OpenField<ZELImageDateEdit>
{
public:
    using OpenField<ZELImageDateEdit>::OpenField;

    using ZELImageDateEdit::m_nDateOrder;
    using ZELImageDateEdit::m_nDayWidth;
    using ZELImageDateEdit::m_nMonthWidth;
    using ZELImageDateEdit::m_nYearWidth;
    using ZELImageDateEdit::m_strDay;
    using ZELImageDateEdit::m_strFixedYear;
    using ZELImageDateEdit::m_strMonth;
    using ZELImageDateEdit::m_strYear;

    std::vector<int> widths() const { return {m_nYearWidth, m_nMonthWidth, m_nDayWidth}; }
};

// a text and the width of its column
using Column = std::pair<std::string, int>;

class ZELImageDateEditPaintTest : public FieldTest
{
protected:
    Edit* edit(const std::string& attributes = "style='normal'", const std::string& children = "")
    {
        return make<Edit>(field(attributes, children), "ZELImageDateEdit");
    }

    Edit* withWidths(const std::string& widths)
    {
        return edit("style='normal'", "<datewidth " + widths + "/>");
    }

    // columns one behind the other over the whole height of the field
    static QImage columns(const std::vector<Column>& texts, int left = 8, int align = centred)
    {
        QImage image = framed();
        for (const auto& [text, width] : texts) {
            drawText(image, QString::fromStdString(text), QRect(left, 0, width, 44), align);
            left += width;
        }
        return image;
    }

    static ::testing::AssertionResult shows(Edit* edit, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(edit), expected);
    }
};

} // namespace

// ---- construction and layout

TEST_F(ZELImageDateEditPaintTest, startsEmptyWithItsDefaults)
{
    auto* const field = edit();
    EXPECT_EQ(field->m_strType, "ZELImageDateEdit");
    EXPECT_EQ(field->m_strFixedYear, QString());
    EXPECT_EQ(field->m_strYear, QString());
    EXPECT_EQ(field->m_strMonth, QString());
    EXPECT_EQ(field->m_strDay, QString());
    EXPECT_EQ(field->m_nDateOrder, 0u);
    EXPECT_EQ(field->widths(), (std::vector<int>{60, 40, 40}));
}

TEST_F(ZELImageDateEditPaintTest, withoutALayoutBothClassesSaySo)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELImageEdit");
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELImageDateEdit");
    auto* const field = make<Edit>("", "ZELImageDateEdit");
    EXPECT_EQ(field->m_nAlign, centred);
    EXPECT_EQ(field->widths(), (std::vector<int>{60, 40, 40}));
    EXPECT_EQ(field->geometry(), QRect(0, 0, 100, 30));
}

TEST_F(ZELImageDateEditPaintTest, aNullLayoutLaterChangesNothingAndOnlyItsOwnClassSaysSo)
{
    auto* const field = edit("style='pressed' dimstyle='dimmed'",
                             "<padding x='20' y='3' width='90' height='9'/><datewidth year='70'/>");
    field->setAlign(toTheRight);
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELImageDateEdit");
    field->setLayout(nullptr);
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(field->m_paddingRect, QRect(20, 3, 90, 9));
    EXPECT_EQ(field->widths(), (std::vector<int>{70, 40, 40}));
    EXPECT_EQ(shownState(field), up);
}

TEST_F(ZELImageDateEditPaintTest, readsTheLayoutOfAnEdit)
{
    auto* const field =
        edit("style='pressed' dimstyle='dimmed'", "<padding x='20' y='3' width='90' height='9'/>");
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(field->m_paddingRect, QRect(20, 3, 90, 9));
    EXPECT_EQ(shownState(field), up);
    field->setDimMode(true);
    EXPECT_EQ(shownState(field), dim);
    EXPECT_EQ(edit()->m_paddingRect, textArea);
}

TEST_F(ZELImageDateEditPaintTest, isCentredWhateverTheLayoutSays)
{
    for (const char* const align : {"", "align='left'", "align='right'"})
        EXPECT_EQ(edit(std::string("style='normal' ") + align)->m_nAlign, centred);
}

TEST_F(ZELImageDateEditPaintTest, itsOwnLayoutReadsTheAlignmentAndNotTheDimStyle)
{
    auto* const field = edit("style='normal' dimstyle='dimmed'");
    field->setLayout(element("<ok style='pressed' dimstyle='normal' align='right'/>"));
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    field->setLayout(element("<ok/>"));
    EXPECT_EQ(field->m_pFont, nullptr);
    EXPECT_EQ(field->m_nAlign, centred);
    EXPECT_EQ(field->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELImageDateEditPaintTest, eachWidthOfTheColumnsStandsAlone)
{
    EXPECT_EQ(withWidths("")->widths(), (std::vector<int>{60, 40, 40}));
    EXPECT_EQ(withWidths("year='70'")->widths(), (std::vector<int>{70, 40, 40}));
    EXPECT_EQ(withWidths("month='31px'")->widths(), (std::vector<int>{60, 31, 40}));
    EXPECT_EQ(withWidths("day='0'")->widths(), (std::vector<int>{60, 40, 0}));
    EXPECT_EQ(withWidths("year='' month='x' day='-5'")->widths(), (std::vector<int>{0, 0, -5}));
}

// ---- painting

TEST_F(ZELImageDateEditPaintTest, drawsThePartsInColumnsInEachOrder)
{
    auto* const field = withWidths("year='50' month='34' day='42'");
    field->setText(2024, 12, 31);
    EXPECT_TRUE(
        shows(field, columns({{"12", 34}, {"/", 10}, {"31", 42}, {"/", 10}, {"2024", 50}})));
    field->setDateOrder(1);
    EXPECT_TRUE(
        shows(field, columns({{"31", 42}, {"/", 10}, {"12", 34}, {"/", 10}, {"2024", 50}})));
    field->setDateOrder(2);
    EXPECT_TRUE(
        shows(field, columns({{"2024", 50}, {"/", 10}, {"12", 34}, {"/", 10}, {"31", 42}})));
}

TEST_F(ZELImageDateEditPaintTest, theColumnsHaveTheirDefaultWidths)
{
    auto* const field = edit();
    field->setText(2024, 12, 31);
    EXPECT_TRUE(
        shows(field, columns({{"12", 40}, {"/", 10}, {"31", 40}, {"/", 10}, {"2024", 60}})));
}

TEST_F(ZELImageDateEditPaintTest, theSeparatorsAlwaysShow)
{
    auto* const field = edit();
    EXPECT_TRUE(shows(field, columns({{"", 40}, {"/", 10}, {"", 40}, {"/", 10}, {"", 60}})));
    field->addText("1");
    EXPECT_TRUE(shows(field, columns({{"1", 40}, {"/", 10}, {"", 40}, {"/", 10}, {"", 60}})));
}

TEST_F(ZELImageDateEditPaintTest, theColumnsTakeTheLeftOfTheTextAreaAndNothingElseOfIt)
{
    auto* const field = edit("style='normal'", "<padding x='25' y='30' width='20' height='5'/>");
    field->setText(2024, 12, 31);
    EXPECT_TRUE(
        shows(field, columns({{"12", 40}, {"/", 10}, {"31", 40}, {"/", 10}, {"2024", 60}}, 25)));
}

TEST_F(ZELImageDateEditPaintTest, theColumnsUseTheAlignmentThatIsSetLater)
{
    auto* const field = edit();
    field->setText(2024, 12, 31);
    field->setAlign(toTheRight);
    EXPECT_TRUE(shows(field, columns({{"12", 40}, {"/", 10}, {"31", 40}, {"/", 10}, {"2024", 60}},
                                     8, toTheRight)));
}

TEST_F(ZELImageDateEditPaintTest, anEmptyDateShowsItsPlaceholderLighterAndAtTheLeft)
{
    auto* const field = edit("style='normal'", "<padding x='25' y='4' width='120' height='20'/>");
    field->setPlaceholderText("n\xC3\xA9");
    field->setAlign(toTheRight);
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("n\u00e9"), QRect(25, 4, 120, 20), toTheLeft,
                                        lightened())));
}

TEST_F(ZELImageDateEditPaintTest, anyPartThatIsFilledTakesThePlaceholderAway)
{
    for (const auto& [year, month, day] : std::vector<std::tuple<unsigned, unsigned, unsigned>>{
             {2024, 0, 0}, {0, 5, 0}, {0, 0, 7}}) {
        auto* const field = edit();
        field->setPlaceholderText("placeholder");
        field->setText(year, month, day);
        EXPECT_TRUE(shows(field, columns({{month ? "05" : "", 40},
                                          {"/", 10},
                                          {day ? "07" : "", 40},
                                          {"/", 10},
                                          {year ? "2024" : "", 60}})));
    }
}

TEST_F(ZELImageDateEditPaintTest, aFixedYearTakesThePlaceholderAway)
{
    auto* const field = edit();
    field->setPlaceholderText("placeholder");
    field->setFixedYear(20);
    EXPECT_TRUE(shows(field, columns({{"", 40}, {"/", 10}, {"", 40}, {"/", 10}, {"20", 60}})));
}

TEST_F(ZELImageDateEditPaintTest, paintsNothingWithoutAFrameAndNoTextWithoutAStyle)
{
    auto* const bare = make<Edit>("<ok style='normal'><position width='200' height='44'/></ok>");
    bare->setText(2024, 12, 31);
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(bare)).isNull());
    auto* const plain = edit("");
    plain->setText(2024, 12, 31);
    EXPECT_TRUE(shows(plain, framed()));
    EXPECT_TRUE(shows(plain, framed()));
    log().expectError("[paintEvent] ok has no font", 1, "ZELImageDateEdit");
}

TEST_F(ZELImageDateEditPaintTest, theDimStyleIsNotUsed)
{
    auto* const field = edit("style='normal' dimstyle='pressed'");
    field->setText(2024, 12, 31);
    field->setDimMode(true);
    EXPECT_EQ(Pixels::count(Pixels::grab(field), Qt::red), 0);
    EXPECT_GT(Pixels::count(Pixels::grab(field), Qt::black), 0);
}

TEST_F(ZELImageDateEditPaintTest, orderAndFixedYearDoNotRepaint)
{
    auto* const field = edit();
    EXPECT_EQ(paints(field,
                     [field] {
                         field->setDateOrder(1);
                         field->setFixedYear(20);
                     }),
              0);
    EXPECT_EQ(paints(field, [field] { field->clear(); }), 1);
}

#include "components/text/ZELLabel.h"

#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QFont>
#include <QFontMetrics>

#include <functional>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELLabel;
using PANFx::Resource::Font;
using PANFx::Resource::ZELResourceMgr;

namespace {

// what an application's own label can see
class OpenLabel : public ZELLabel
{
public:
    using ZELLabel::ZELLabel;

    using ZELLabel::m_bElided;
    using ZELLabel::m_bShadow;
    using ZELLabel::m_nAlign;
    using ZELLabel::m_nFontStyle;
    using ZELLabel::m_pFont;
    using ZELLabel::m_pFont2;
    using ZELLabel::m_strTitle;
};

class ZELLabelTest : public PanelTest
{
protected:
    OpenLabel* open(const std::string& xml)
    {
        return new OpenLabel(&panel(), "ok", "ZELLabel", element(xml));
    }

    static Font* style(const std::string& name)
    {
        return ZELResourceMgr::getInstance()->getFont(name);
    }

    static int widthOf(const QString& text)
    {
        return QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(text);
    }

    // the alignment that a label takes from its position element
    int alignOf(const std::string& attributes)
    {
        return open("<ok><position " + attributes + "/></ok>")->m_nAlign;
    }
};

} // namespace

// ---- layout

TEST_F(ZELLabelTest, startsEmptyAndCentred)
{
    OpenLabel* const label = open("<ok/>");
    EXPECT_EQ(label->m_pFont, nullptr);
    EXPECT_EQ(label->m_pFont2, nullptr);
    EXPECT_EQ(label->m_nFontStyle, 0);
    EXPECT_EQ(label->m_strTitle, "");
    EXPECT_EQ(label->m_nAlign, 0x84);
    EXPECT_FALSE(label->m_bShadow);
    EXPECT_FALSE(label->m_bElided);
    EXPECT_EQ(label->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELLabelTest, readsTitleAndBothStyles)
{
    OpenLabel* const label = open("<ok title='Hello' style='normal' style2='pressed'/>");
    EXPECT_EQ(label->m_strTitle, "Hello");
    ASSERT_NE(style("normal"), nullptr);
    ASSERT_NE(style("pressed"), nullptr);
    EXPECT_EQ(label->m_pFont, style("normal"));
    EXPECT_EQ(label->m_pFont2, style("pressed"));
}

TEST_F(ZELLabelTest, takesTheTitleFromTheStringTable)
{
    writeStrings("<t><String key='greeting'><kr>other</kr><eng>Good day</eng></String></t>");
    EXPECT_EQ(open("<ok title='@greeting'/>")->m_strTitle, "Good day");
    EXPECT_EQ(open("<ok title='@nosuch'/>")->m_strTitle, "");
    EXPECT_EQ(open("<ok title='a@greeting'/>")->m_strTitle, "a@greeting");
    EXPECT_EQ(open("<ok title='one\\ntwo'/>")->m_strTitle, "one\ntwo");
    EXPECT_EQ(open("<ok title='\xea\xb0\x80 &amp; &lt;b&gt;'/>")->m_strTitle, "\xea\xb0\x80 & <b>");
}

TEST_F(ZELLabelTest, withoutATitleTheStylesAreNotRead)
{
    OpenLabel* const label = open("<ok style='normal' style2='pressed' shadow='true'/>");
    EXPECT_EQ(label->m_pFont, nullptr);
    EXPECT_EQ(label->m_pFont2, nullptr);
    EXPECT_TRUE(label->m_bShadow);
}

TEST_F(ZELLabelTest, anEmptyTitleIsATitle)
{
    OpenLabel* const label = open("<ok title='' style='normal' style2='pressed'/>");
    EXPECT_EQ(label->m_strTitle, "");
    EXPECT_EQ(label->m_pFont, style("normal"));
    EXPECT_EQ(label->m_pFont2, style("pressed"));
}

TEST_F(ZELLabelTest, aTitleWithoutAStyleTakesTheStyleAway)
{
    OpenLabel* const label = open("<ok title='a' style='normal' style2='pressed'/>");
    label->setLayout(element("<ok title='b'/>"));
    EXPECT_EQ(label->m_strTitle, "b");
    EXPECT_EQ(label->m_pFont, nullptr);
    EXPECT_EQ(label->m_pFont2, nullptr);
}

TEST_F(ZELLabelTest, aSecondLayoutWithoutATitleLeavesTitleAndStyles)
{
    OpenLabel* const label = open("<ok title='a' style='normal' shadow='true'/>");
    label->setLayout(element("<ok style='pressed' shadow='false'/>"));
    EXPECT_EQ(label->m_strTitle, "a");
    EXPECT_EQ(label->m_pFont, style("normal"));
    EXPECT_TRUE(label->m_bShadow);
}

TEST_F(ZELLabelTest, onlyTheExactWordTurnsTheShadowOn)
{
    EXPECT_TRUE(open("<ok shadow='true'/>")->m_bShadow);
    for (const char* word : {"True", "TRUE", "true ", " true", "1", "yes", "on", "false", ""})
        EXPECT_FALSE(open(std::string("<ok shadow='") + word + "'/>")->m_bShadow) << word;
}

TEST_F(ZELLabelTest, withAPositionTheDefaultAlignmentIsLeft)
{
    EXPECT_EQ(alignOf(""), 0x81);
    EXPECT_EQ(alignOf("x='1'"), 0x81);
}

TEST_F(ZELLabelTest, readsTheAlignmentOfThePosition)
{
    EXPECT_EQ(alignOf("align='left'"), 0x81);
    EXPECT_EQ(alignOf("align='left/'"), 0x81);
    EXPECT_EQ(alignOf("align='right'"), 0x82);
    EXPECT_EQ(alignOf("align='right/'"), 0x82);
    EXPECT_EQ(alignOf("align='center'"), 0x84);
    EXPECT_EQ(alignOf("align='center/'"), 0x84);
    for (const char* word :
         {"Center", "CENTER", "centre", "Right", "top", "center//", " center", ""})
        EXPECT_EQ(alignOf(std::string("align='") + word + "'"), 0x81) << word;
}

TEST_F(ZELLabelTest, anAlignmentOutsideThePositionIsNotRead)
{
    EXPECT_EQ(open("<ok align='right'/>")->m_nAlign, 0x84);
    EXPECT_EQ(open("<ok align='right'><position/></ok>")->m_nAlign, 0x81);
}

TEST_F(ZELLabelTest, aPlaceOutsideThePositionIsNotRead)
{
    EXPECT_EQ(open("<ok x='5' y='5' width='5' height='5'/>")->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(open("<ok><Position x='5'/></ok>")->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELLabelTest, theFirstOfTwoPositionsCounts)
{
    OpenLabel* const label = open("<ok><position x='1' width='2' height='3' align='right'/>"
                                  "<position x='9' width='9' height='9' align='center'/></ok>");
    EXPECT_EQ(label->geometry(), QRect(1, 0, 2, 3));
    EXPECT_EQ(label->m_nAlign, 0x82);
}

TEST_F(ZELLabelTest, aNullElementIsAnErrorAndSetsNothing)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELLabel");
    log().startHere();
    OpenLabel label(&panel(), "ok", "ZELLabel", nullptr);
    ASSERT_EQ(log().lines().size(), 1u);
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELLabel       ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_EQ(label.geometry(), QRect(0, 0, 100, 30)); // where Qt puts a child
    EXPECT_EQ(label.m_nAlign, 0x84);
    label.showWindow();
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(&label), label.rect()), 0);
}

TEST_F(ZELLabelTest, aNullElementLaterLeavesAllAsItWas)
{
    OpenLabel* const label =
        open("<ok title='a' style='normal' shadow='true'><position x='1' width='5' height='6' "
             "align='right'/></ok>");
    expectNullLayoutLines("ok");
    label->setLayout(nullptr);
    EXPECT_EQ(label->m_strTitle, "a");
    EXPECT_EQ(label->m_pFont, style("normal"));
    EXPECT_TRUE(label->m_bShadow);
    EXPECT_EQ(label->m_nAlign, 0x82);
    EXPECT_EQ(label->geometry(), QRect(1, 0, 5, 6));
}

TEST_F(ZELLabelTest, aGoodLayoutWritesNothing)
{
    writeStrings("<table/>");
    panel();
    ZELResourceMgr::getInstance();
    log().startHere();
    buildComponent<ZELLabel>("label", "<ok title='a' style='normal' style2='pressed' shadow='true'>"
                                      "<position x='1' y='2' width='30' height='20'/></ok>");
    EventLoop::deliver();
    EXPECT_TRUE(log().lines().empty());
}

// ---- setters

TEST_F(ZELLabelTest, settersSet)
{
    OpenLabel* const label = open("<ok/>");
    Font first;
    Font second;
    label->setFont(&first);
    label->setFont2(&second);
    label->setFontStyle(7);
    label->setAlign(0x22);
    label->setElidedText();
    label->setTitle(std::string("text"));
    EXPECT_EQ(label->m_pFont, &first);
    EXPECT_EQ(label->m_pFont2, &second);
    EXPECT_EQ(label->m_nFontStyle, 7);
    EXPECT_EQ(label->m_nAlign, 0x22);
    EXPECT_TRUE(label->m_bElided);
    EXPECT_EQ(label->m_strTitle, "text");
    label->setFont(nullptr);
    label->setFont2(nullptr);
    label->setElidedText();
    EXPECT_EQ(label->m_pFont, nullptr);
    EXPECT_EQ(label->m_pFont2, nullptr);
    EXPECT_TRUE(label->m_bElided);
}

TEST_F(ZELLabelTest, aNullTitleEmptiesIt)
{
    OpenLabel* const label = open("<ok title='a'/>");
    label->setTitle("b");
    EXPECT_EQ(label->m_strTitle, "b");
    label->setTitle(nullptr);
    EXPECT_EQ(label->m_strTitle, "");
    label->setTitle("@b\\n");
    EXPECT_EQ(label->m_strTitle, "@b\\n"); // taken as it is
}

TEST_F(ZELLabelTest, noSetterRepaintsAndUpdateShowsTheNewState)
{
    auto* const label = buildComponent<ZELLabel>(
        "label", "<ok title='a' style='normal'><position width='60' height='20'/></ok>");
    Font* const pressed = style("pressed");
    const std::vector<std::function<void()>> setters = {
        [&] { label->setTitle("H"); },    [&] { label->setTitle(std::string("HH")); },
        [&] { label->setFont(pressed); }, [&] { label->setFont2(pressed); },
        [&] { label->setFontStyle(1); },  [&] { label->setAlign(0x82); },
        [&] { label->setElidedText(); },  [&] { label->getTextWidth(); },
    };
    PaintCounter counter(label);
    for (size_t i = 0; i < setters.size(); ++i) {
        setters[i]();
        EventLoop::deliver();
        EXPECT_EQ(counter.count(), 0) << "setter " << i;
    }
    label->update();
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
    EXPECT_GT(Pixels::count(Pixels::grab(label), Qt::red), 0);
}

// ---- the width of the text

TEST_F(ZELLabelTest, measuresItsTitleInTheFirstStyle)
{
    OpenLabel* const label = open("<ok title='Hello, panel' style='normal'/>");
    EXPECT_EQ(label->getTextWidth(), widthOf(QStringLiteral("Hello, panel")));
    EXPECT_GT(label->getTextWidth(), 0);
    label->setTitle("");
    EXPECT_EQ(label->getTextWidth(), 0);
}

TEST_F(ZELLabelTest, measuresBytesAndNotLetters)
{
    const std::string hangul = "\xea\xb0\x80"; // one letter of three bytes
    OpenLabel* const label = open("<ok title='" + hangul + "' style='normal'/>");
    EXPECT_EQ(label->getTextWidth(), widthOf(QString::fromLatin1("\xea\xb0\x80")));
    EXPECT_NE(label->getTextWidth(), widthOf(QString::fromUtf8(hangul.c_str())));
}

TEST_F(ZELLabelTest, leavesItToQtWhereAMeasuredTextEnds)
{
    const std::string withVariantMark = "\xc4\x9c"
                                        "bc"; // its second byte is U+009C
    OpenLabel* const label = open("<ok title='x' style='normal'/>");
    label->setTitle(withVariantMark);
    EXPECT_EQ(label->getTextWidth(), widthOf(QString::fromLatin1(withVariantMark.c_str())));
}

TEST_F(ZELLabelTest, measuresTheFirstStyleWhateverStyleIsInForce)
{
    writeStyle("<style><Font><normal size='14' family='DejaVu Sans Mono' color='000000'/>"
               "<large size='28' family='DejaVu Sans Mono' color='000000'/></Font></style>");
    OpenLabel* const label = open("<ok title='Hello' style='normal' style2='large'/>");
    const int width = widthOf(QStringLiteral("Hello"));
    for (const int inForce : {0, 1, 2}) {
        label->setFontStyle(inForce);
        EXPECT_EQ(label->getTextWidth(), width) << inForce;
    }
    label->setFont(style("large"));
    EXPECT_NE(label->getTextWidth(), width);
}

TEST_F(ZELLabelTest, withoutAFirstStyleTheWidthIsNothingAndAnErrorNamesTheLabel)
{
    OpenLabel* const label = open("<ok title='Hello' style2='normal'/>");
    label->setFontStyle(1);
    log().expectError("[getTextWidth] ok has no font", 2, "ZELLabel");
    EXPECT_EQ(label->getTextWidth(), 0);
    EXPECT_EQ(label->getTextWidth(), 0);
}

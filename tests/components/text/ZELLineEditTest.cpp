#include "components/text/ZELLineEdit.h"

#include "components/text/LineEditTest.h"
#include "support/VirtualSlot.h"

#include <algorithm>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELLineEdit;

namespace {

// an application's class, which may name what is protected
class Own : public ZELLineEdit
{
public:
    static std::vector<std::intptr_t> slotsInOrder()
    {
        return {slot(&Own::focusOutEvent), slot(&Own::mousePressEvent),
                slot(&Own::mouseReleaseEvent), slot(&Own::paintEvent), slot(&Own::event)};
    }
};

class ZELLineEditTest : public LineEditTest
{
protected:
    // of an element with a place of 200 by 44 and this child
    QRect areaOf(const std::string& padding) { return line("style='normal'", padding)->m_rcText; }
};

} // namespace

// ---- what it is

TEST_F(ZELLineEditTest, isAComponentFirstAndALineEditSecond)
{
    auto* const made = buildComponent<ZELLineEdit>("lineedit", field());
    EXPECT_EQ(made->m_strType, "ZELLineEdit");
    EXPECT_EQ(made->m_strID, "ok");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(made)), static_cast<void*>(made));
    EXPECT_EQ(made->getQWidget(), static_cast<QWidget*>(static_cast<QLineEdit*>(made)));
    EXPECT_EQ(made->parentWidget(), &panel());
    EXPECT_STREQ(made->metaObject()->className(), "QLineEdit");
}

TEST_F(ZELLineEditTest, addsItsOperationsBehindThoseOfAComponent)
{
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t found : Own::slotsInOrder())
        EXPECT_EQ(found, place += slotSize);
}

TEST_F(ZELLineEditTest, holdsItsValuesInTheirOrder)
{
    const OpenLine* const made = line();
    const std::vector<const void*> fields{
        &made->m_bDimMode,   &made->m_nAlign,     &made->m_nEchoMode,  &made->m_strReserved,
        &made->m_pFont,      &made->m_pDimFont,   &made->m_rcText,     &made->m_pCurStart,
        &made->m_pCurMid,    &made->m_pCurEnd,    &made->m_pUpStart,   &made->m_pUpMid,
        &made->m_pUpEnd,     &made->m_pDownStart, &made->m_pDownMid,   &made->m_pDownEnd,
        &made->m_pDimStart,  &made->m_pDimMid,    &made->m_pDimEnd,    &made->m_logger,
        &made->m_nElideMode, &made->m_nElideType, &made->m_strBarcode, &made->m_bBarcodeMode,
        &made->m_bShowMode,  &made->m_bClearOnKey};
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

TEST_F(ZELLineEditTest, showsAndHidesItsWidget)
{
    OpenLine* const made = line();
    made->hideWindow();
    EXPECT_TRUE(made->isHidden());
    made->showWindow();
    EXPECT_TRUE(made->isVisible());
}

// ---- its layout

TEST_F(ZELLineEditTest, withoutALayoutSaysSoAndStartsWithItsDefaults)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELLineEdit");
    log().startHere();
    OpenLine made(&panel(), "ok", "ZELLineEdit", nullptr);
    ASSERT_EQ(log().lines().size(), 1u);
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELLineEdit    ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_FALSE(made.m_bDimMode);
    EXPECT_EQ(made.m_nAlign, toTheLeft);
    EXPECT_EQ(made.m_nEchoMode, 0);
    EXPECT_EQ(made.m_strReserved, "");
    EXPECT_EQ(made.m_pFont, nullptr);
    EXPECT_EQ(made.m_pDimFont, nullptr);
    EXPECT_EQ(made.m_rcText, QRect());
    for (const QPixmap* piece : {made.m_pCurStart, made.m_pCurMid, made.m_pCurEnd, made.m_pUpStart,
                                 made.m_pUpMid, made.m_pUpEnd, made.m_pDownStart, made.m_pDownMid,
                                 made.m_pDownEnd, made.m_pDimStart, made.m_pDimMid, made.m_pDimEnd})
        EXPECT_EQ(piece, nullptr);
    EXPECT_EQ(made.m_nElideMode, 3);
    EXPECT_EQ(made.m_nElideType, 3);
    EXPECT_TRUE(made.m_strBarcode.isNull());
    EXPECT_FALSE(made.m_bBarcodeMode);
    EXPECT_FALSE(made.m_bShowMode);
    EXPECT_TRUE(made.m_bClearOnKey);
    EXPECT_EQ(made.geometry(), QRect(0, 0, 100, 30)) << "never placed";
    made.setText(QStringLiteral("text"));
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(&made)).isNull());
}

TEST_F(ZELLineEditTest, aNullLayoutLaterChangesNothing)
{
    OpenLine* const made = line("style='normal' align='right'");
    expectNullLayoutLines("ok");
    made->setLayout(nullptr);
    EXPECT_EQ(made->geometry(), place);
    EXPECT_EQ(made->m_pFont, style("normal"));
    EXPECT_EQ(made->m_nAlign, toTheRight);
    EXPECT_EQ(made->m_rcText, textArea);
    EXPECT_EQ(shownState(made), up);
}

TEST_F(ZELLineEditTest, readsStylesAlignmentPicturesAndPlace)
{
    const OpenLine* const made = line("style='normal' dimstyle='dimmed' align='right'");
    ASSERT_NE(style("normal"), nullptr);
    EXPECT_EQ(made->m_pFont, style("normal"));
    EXPECT_EQ(made->m_pDimFont, style("dimmed"));
    EXPECT_EQ(made->m_nAlign, toTheRight);
    EXPECT_EQ(current(made), pieces(up));
    EXPECT_EQ((Pieces{made->m_pUpStart, made->m_pUpMid, made->m_pUpEnd}), pieces(up));
    EXPECT_EQ((Pieces{made->m_pDownStart, made->m_pDownMid, made->m_pDownEnd}), pieces(down));
    EXPECT_EQ((Pieces{made->m_pDimStart, made->m_pDimMid, made->m_pDimEnd}), pieces(dim));
    EXPECT_EQ(made->geometry(), place);
}

TEST_F(ZELLineEditTest, anEmptyElementGivesTheDefaultsWithoutAWord)
{
    panel();
    style("normal");
    TAMFx::Common::Xml::Node* const node = element("<ok/>");
    log().startHere();
    const OpenLine made(&panel(), "ok", "ZELLineEdit", node);
    EXPECT_TRUE(log().lines().empty());
    EXPECT_EQ(made.m_pFont, nullptr);
    EXPECT_EQ(made.m_pDimFont, nullptr);
    EXPECT_EQ(made.m_nAlign, toTheLeft);
    EXPECT_EQ(current(&made), Pieces(3, nullptr));
    EXPECT_EQ(made.geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(made.m_rcText, QRect(QPoint(8, 0), QPoint(1 - 9, 0)));
}

TEST_F(ZELLineEditTest, aWholeElementIsReadWithoutAWord)
{
    line(); // all pictures are loaded now
    TAMFx::Common::Xml::Node* const node = element(field());
    log().startHere();
    const OpenLine made(&panel(), "ok", "ZELLineEdit", node);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELLineEditTest, readsTheAlignmentByItsExactWords)
{
    const std::vector<std::pair<const char*, int>> cases{
        {"left", 0x81},    {"left/", 0x81},  {"right", 0x82},  {"right/", 0x82}, {"center", 0x84},
        {"center/", 0x84}, {"Center", 0x81}, {"centre", 0x81}, {"", 0x81}};
    for (const auto& [word, align] : cases)
        EXPECT_EQ(line(std::string("style='normal' align='") + word + "'")->m_nAlign, align)
            << word;
}

TEST_F(ZELLineEditTest, anUnknownStyleIsNone)
{
    const OpenLine made(&panel(), "ok", "ZELLineEdit",
                        element(field("style='nosuch' dimstyle='nosuch'")));
    EXPECT_EQ(made.m_pFont, nullptr);
    EXPECT_EQ(made.m_pDimFont, nullptr);
}

TEST_F(ZELLineEditTest, leavesOutASetOfPicturesWithOneMissing)
{
    for (const char* const absent : {"start", "mid", "end"}) {
        std::string frame = frameOf(up, "imageup");
        frame.replace(frame.find(std::string(" ") + absent), 1, " no");
        const OpenLine* const made =
            make<OpenLine>("<ok>" + frame + frameOf(down, "imagedown") + "</ok>");
        EXPECT_EQ(current(made), Pieces(3, nullptr)) << absent;
        EXPECT_EQ((Pieces{made->m_pUpStart, made->m_pUpMid, made->m_pUpEnd}), Pieces(3, nullptr));
        EXPECT_EQ(made->m_pDownMid, picture(piece(down, "mid")));
    }
}

TEST_F(ZELLineEditTest, picturesThatAreNotThereAreNone)
{
    const OpenLine* const made =
        make<OpenLine>("<ok><position x='3' y='4' width='50' height='20'/>"
                       "<imageup start='no1.png' mid='no2.png' end='no3.png'/>" +
                       frameOf(down, "imagedown") + "</ok>");
    EXPECT_EQ(current(made), Pieces(3, nullptr));
    EXPECT_EQ((Pieces{made->m_pUpStart, made->m_pUpMid, made->m_pUpEnd}), Pieces(3, nullptr));
    EXPECT_EQ(made->m_pDownEnd, picture(piece(down, "end"))) << "the rest is read all the same";
    EXPECT_EQ(made->geometry(), QRect(3, 4, 50, 20));
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELLineEditTest, theTextAreaLeavesEightPixelsAtTheSides)
{
    EXPECT_EQ(areaOf(""), QRect(QPoint(8, 0), QPoint(200 - 9, 44 - 1)));
    EXPECT_EQ(areaOf("<padding/>"), areaOf(""));
    EXPECT_EQ(areaOf("<padding x='20'/>"), QRect(20, 0, 184, 44));
    EXPECT_EQ(areaOf("<padding y='5'/>"), QRect(8, 5, 184, 44));
    EXPECT_EQ(areaOf("<padding width='50'/>"), QRect(8, 0, 50, 44));
    EXPECT_EQ(areaOf("<padding height='9'/>"), QRect(8, 0, 184, 9));
    EXPECT_EQ(areaOf("<padding x='1' y='2' width='30' height='4'/>"),
              QRect(QPoint(1, 2), QPoint(30, 5)));
}

// ---- setters

TEST_F(ZELLineEditTest, settersSetAndDoNotRepaint)
{
    OpenLine* const made = line();
    PANFx::Resource::Font* const pressed = style("pressed");
    const std::vector<std::function<void()>> setters{
        [&] { made->setFont(pressed); },     [&] { made->setAlign(0x22); },
        [&] { made->setEchoMode(7); },       [&] { made->setPadding(1, 2, 30, 4); },
        [&] { made->setElidedText(2); },     [&] { made->setShowMode(true); },
        [&] { made->setBarcodeMode(true); },
    };
    for (size_t i = 0; i < setters.size(); ++i)
        EXPECT_EQ(paints(made, setters[i]), 0) << i;
    EXPECT_EQ(made->m_pFont, pressed);
    EXPECT_EQ(made->m_nAlign, 0x22);
    EXPECT_EQ(made->m_nEchoMode, 7);
    EXPECT_EQ(made->m_rcText, QRect(QPoint(1, 2), QPoint(30, 5)));
    EXPECT_EQ(made->m_nElideMode, 2);
    EXPECT_TRUE(made->m_bBarcodeMode);
    EXPECT_EQ(made->echoMode(), QLineEdit::Normal) << "the text stays readable";
    made->setFont(nullptr);
    EXPECT_EQ(made->m_pFont, nullptr);
}

TEST_F(ZELLineEditTest, setElidedTextTakesFourModes)
{
    struct Case
    {
        int asked;
        int mode;
        int type;
    };
    OpenLine* const made = line();
    for (const Case one : {Case{0, 0, 0}, Case{1, 1, 1}, Case{2, 2, 2}, Case{3, 3, 3},
                           Case{4, 1, 4}, Case{5, 3, 3}, Case{-1, 3, 3}, Case{100, 3, 3}}) {
        made->setElidedText(0);
        made->setElidedText(one.asked);
        EXPECT_EQ(made->m_nElideMode, one.mode) << one.asked;
        EXPECT_EQ(made->m_nElideType, one.type) << one.asked;
    }
}

TEST_F(ZELLineEditTest, setUpImageShowsThePiecesOnlyWhenAsked)
{
    OpenLine* const made =
        make<OpenLine>("<ok style='normal'><position width='200' height='44'/></ok>");
    EXPECT_TRUE(made->setUpImage(piece(dim, "start"), piece(dim, "mid"), piece(dim, "end"), false));
    EXPECT_EQ(made->m_pUpMid, picture(piece(dim, "mid")));
    EXPECT_EQ(current(made), Pieces(3, nullptr));
    EXPECT_EQ(paints(made,
                     [&] {
                         EXPECT_TRUE(made->setUpImage(piece(up, "start"), piece(up, "mid"),
                                                      piece(up, "end"), true));
                     }),
              1);
    EXPECT_EQ(current(made), pieces(up));
}

TEST_F(ZELLineEditTest, theOtherSettersOfPicturesLeaveTheCurrentOnes)
{
    OpenLine* const made = line();
    EXPECT_TRUE(made->setDownImage(piece(up, "start"), piece(up, "mid"), piece(up, "end")));
    EXPECT_TRUE(made->setDimImage(piece(down, "start"), piece(down, "mid"), piece(down, "end")));
    EXPECT_EQ((Pieces{made->m_pDownStart, made->m_pDownMid, made->m_pDownEnd}), pieces(up));
    EXPECT_EQ((Pieces{made->m_pDimStart, made->m_pDimMid, made->m_pDimEnd}), pieces(down));
    EXPECT_EQ(current(made), pieces(up));
}

TEST_F(ZELLineEditTest, keepsWhatItFoundOfASetAndSaysThatItIsNotWhole)
{
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    OpenLine* const made = line();
    EXPECT_FALSE(made->setUpImage(piece(up, "start"), "none.png", piece(up, "end"), true));
    EXPECT_FALSE(made->setDownImage("none.png", piece(up, "mid"), piece(up, "end")));
    EXPECT_FALSE(made->setDimImage(piece(up, "start"), piece(up, "mid"), ""));
    EXPECT_EQ(current(made), (Pieces{pieces(up)[0], nullptr, pieces(up)[2]}));
    EXPECT_EQ(made->m_pUpMid, nullptr);
    EXPECT_EQ(made->m_pDownStart, nullptr);
    EXPECT_EQ(made->m_pDownMid, pieces(up)[1]);
    EXPECT_EQ(made->m_pDimStart, pieces(up)[0]);
    EXPECT_EQ(made->m_pDimEnd, nullptr);
}

TEST_F(ZELLineEditTest, setCurImageTellsWhetherAllAreThereAndRepaints)
{
    OpenLine* const made = line();
    const Pieces all = pieces(dim);
    EXPECT_EQ(paints(made, [&] { EXPECT_TRUE(made->setCurImage(all[0], all[1], all[2])); }), 1);
    EXPECT_EQ(current(made), all);
    EXPECT_EQ(paints(made, [&] { EXPECT_FALSE(made->setCurImage(nullptr, all[1], all[2])); }), 1);
    EXPECT_EQ(current(made), (Pieces{nullptr, all[1], all[2]}));
    EXPECT_FALSE(made->setCurImage(all[0], nullptr, all[2]));
    EXPECT_FALSE(made->setCurImage(all[0], all[1], nullptr));
    QPixmap nothing;
    EXPECT_FALSE(made->setCurImage(all[0], &nothing, all[2]));
    EXPECT_TRUE(made->setCurImage(all[0], all[1], all[2]));
}

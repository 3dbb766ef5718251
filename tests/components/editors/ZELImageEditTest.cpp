#include "components/editors/ZELImageEdit.h"

#include "components/editors/FieldTest.h"
#include "support/VirtualSlot.h"

#include <climits>
#include <tuple>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageEdit;

namespace {

using Edit = OpenField<ZELImageEdit>;

// an application's class, which may name what is protected
class Own : public ZELImageEdit
{
public:
    using SetLiteral = void (Own::*)(const char*);
    using SetString = void (Own::*)(std::string);

    static std::vector<std::intptr_t> slotsOfItsOwn()
    {
        return {slot(&Own::clear),
                slot(&Own::text),
                slot(static_cast<SetLiteral>(&Own::setText)),
                slot(static_cast<SetString>(&Own::setText)),
                slot(static_cast<SetLiteral>(&Own::addText)),
                slot(static_cast<SetString>(&Own::addText)),
                slot(&Own::backspace),
                slot(&Own::paintEvent),
                slot(&Own::focusInEvent),
                slot(&Own::focusOutEvent),
                slot(&Own::mousePressEvent),
                slot(&Own::mouseReleaseEvent)};
    }
};

class ZELImageEditTest : public FieldTest
{
protected:
    Edit* edit(const std::string& xml = field()) { return make<Edit>(xml); }

    static std::vector<QPixmap*> current(const Edit* edit)
    {
        return {edit->m_pCurStart, edit->m_pCurMid, edit->m_pCurEnd};
    }

    static std::vector<QPixmap*> ups(const Edit* edit)
    {
        return {edit->m_pUpStart, edit->m_pUpMid, edit->m_pUpEnd};
    }

    static std::vector<QPixmap*> downs(const Edit* edit)
    {
        return {edit->m_pDownStart, edit->m_pDownMid, edit->m_pDownEnd};
    }

    static std::vector<QPixmap*> dims(const Edit* edit)
    {
        return {edit->m_pDimStart, edit->m_pDimMid, edit->m_pDimEnd};
    }

    // an element with all frames, but one name of one frame is missing
    static std::string fieldWithout(State state, const std::string& absent)
    {
        std::string xml = ZELImageEditTest::field();
        const std::string named = " " + absent + "='" + piece(state, absent) + "'";
        return xml.erase(xml.find(named), named.size());
    }

    static std::vector<QPixmap*> pieces(State state)
    {
        return {picture(piece(state, "start")), picture(piece(state, "mid")),
                picture(piece(state, "end"))};
    }

    // of an element with a place of 200 by 44 and this child
    QRect paddingOf(const std::string& padding)
    {
        return edit(field("style='normal'", padding))->m_paddingRect;
    }
};

const std::string hangul = "\xED\x95\x9C"; // one letter of three bytes

} // namespace

// ---- what it is

TEST_F(ZELImageEditTest, isAComponentFirstAndAPlainWidgetSecond)
{
    auto* const field = edit();
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(field)), static_cast<void*>(field));
    EXPECT_EQ(field->getQWidget(), static_cast<QWidget*>(field));
    EXPECT_EQ(field->parent(), &panel());
    EXPECT_EQ(field->m_strID, "ok");
    EXPECT_EQ(field->m_strType, "ZELImageEdit");
    const QWidget plain(&panel(), Qt::WindowFlags());
    EXPECT_EQ(field->windowFlags() & Qt::WindowType_Mask,
              plain.windowFlags() & Qt::WindowType_Mask);
}

TEST_F(ZELImageEditTest, addsItsOperationsBehindThoseOfAComponent)
{
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t found : Own::slotsOfItsOwn())
        EXPECT_EQ(found, place += slotSize);
}

TEST_F(ZELImageEditTest, showsAndHidesItsWidget)
{
    auto* const field = edit();
    field->hideWindow();
    EXPECT_TRUE(field->isHidden());
    field->showWindow();
    EXPECT_TRUE(field->isVisible());
}

TEST_F(ZELImageEditTest, setsNoFocusPolicy)
{
    EXPECT_EQ(edit()->focusPolicy(), Qt::NoFocus);
}

TEST_F(ZELImageEditTest, startsWithItsDefaults)
{
    expectNullLayoutLines("ok");
    auto* const field = edit("");
    EXPECT_FALSE(field->m_bDimMode);
    EXPECT_EQ(field->m_nAlign, toTheLeft);
    EXPECT_EQ(field->m_nEchoMode, 0);
    EXPECT_EQ(field->m_nMaxLength, 1024u);
    EXPECT_EQ(field->m_strPlaceholder, "");
    EXPECT_EQ(field->m_pFont, nullptr);
    EXPECT_EQ(field->m_pDimFont, nullptr);
    EXPECT_EQ(field->m_strText, "");
    EXPECT_EQ(field->m_nElideMode, 3);
    EXPECT_EQ(field->m_nElideType, 3);
    for (const QPixmap* piece :
         {field->m_pCurStart, field->m_pCurMid, field->m_pCurEnd, field->m_pUpStart,
          field->m_pUpMid, field->m_pUpEnd, field->m_pDownStart, field->m_pDownMid,
          field->m_pDownEnd, field->m_pDimStart, field->m_pDimMid, field->m_pDimEnd})
        EXPECT_EQ(piece, nullptr);
    EXPECT_EQ(field->m_paddingRect.left(), 0);
    EXPECT_EQ(field->m_paddingRect.top(), 0);
    EXPECT_EQ(field->m_paddingRect.right(), -2);
    EXPECT_EQ(field->m_paddingRect.bottom(), -2);
}

// ---- its layout

TEST_F(ZELImageEditTest, withoutALayoutSaysSoAndStaysAsItWas)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELImageEdit");
    auto* const field = edit("");
    EXPECT_EQ(field->geometry(), QRect(0, 0, 100, 30));
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
}

TEST_F(ZELImageEditTest, aNullLayoutLaterChangesNothing)
{
    auto* const field = edit(ZELImageEditTest::field("style='normal' align='right'"));
    expectNullLayoutLines("ok");
    field->setLayout(nullptr);
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(field->m_pFont, style("normal"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    EXPECT_EQ(shownState(field), up);
}

TEST_F(ZELImageEditTest, readsStylesAlignmentPicturesAndPlace)
{
    auto* const field =
        edit(ZELImageEditTest::field("style='normal' dimstyle='dimmed' align='right'"));
    EXPECT_EQ(field->m_pFont, style("normal"));
    EXPECT_EQ(field->m_pDimFont, style("dimmed"));
    EXPECT_EQ(field->m_nAlign, toTheRight);
    EXPECT_EQ(field->geometry(), place);
    EXPECT_EQ(ups(field), pieces(up));
    EXPECT_EQ(downs(field), pieces(down));
    EXPECT_EQ(dims(field), pieces(dim));
    EXPECT_EQ(current(field), pieces(up));
}

TEST_F(ZELImageEditTest, aSecondLayoutWithoutStylesTakesThemAway)
{
    auto* const field =
        edit(ZELImageEditTest::field("style='normal' dimstyle='dimmed' align='right'"));
    field->setLayout(element(ZELImageEditTest::field("")));
    EXPECT_EQ(field->m_pFont, nullptr);
    EXPECT_EQ(field->m_pDimFont, nullptr);
    EXPECT_EQ(field->m_nAlign, toTheLeft);
}

TEST_F(ZELImageEditTest, anEmptyElementGivesTheDefaults)
{
    auto* const field = edit("<ok/>");
    EXPECT_EQ(field->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(field->m_pFont, nullptr);
    EXPECT_EQ(field->m_pDimFont, nullptr);
    EXPECT_EQ(field->m_nAlign, toTheLeft);
    EXPECT_EQ(current(field), std::vector<QPixmap*>(3, nullptr));
    EXPECT_EQ(field->m_paddingRect, QRect(QPoint(8, 0), QPoint(1 - 9, 0)));
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELImageEditTest, leavesOutASetOfPicturesWithOneMissing)
{
    const std::vector<QPixmap*> none(3, nullptr);
    for (const State state : {up, down, dim}) {
        for (const char* const absent : {"start", "mid", "end"}) {
            SCOPED_TRACE(piece(state, absent));
            auto* const field = edit(fieldWithout(state, absent));
            EXPECT_EQ(ups(field), state == up ? none : pieces(up));
            EXPECT_EQ(downs(field), state == down ? none : pieces(down));
            EXPECT_EQ(dims(field), state == dim ? none : pieces(dim));
        }
    }
}

TEST_F(ZELImageEditTest, withoutAWholeFrameItShowsNothing)
{
    auto* const field = edit(fieldWithout(up, "mid"));
    field->setText("text");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
}

TEST_F(ZELImageEditTest, paddingDefaultsToEightPixelsAtTheSides)
{
    EXPECT_EQ(paddingOf(""), QRect(QPoint(8, 0), QPoint(200 - 9, 44 - 1)));
    EXPECT_EQ(paddingOf("<padding/>"), paddingOf(""));
}

TEST_F(ZELImageEditTest, eachNumberOfThePaddingStandsAlone)
{
    EXPECT_EQ(paddingOf("<padding x='20'/>"), QRect(20, 0, 184, 44));
    EXPECT_EQ(paddingOf("<padding y='5'/>"), QRect(8, 5, 184, 44));
    EXPECT_EQ(paddingOf("<padding width='50'/>"), QRect(8, 0, 50, 44));
    EXPECT_EQ(paddingOf("<padding height='9'/>"), QRect(8, 0, 184, 9));
    EXPECT_EQ(paddingOf("<padding x='1' y='2' width='30' height='4'/>"),
              QRect(QPoint(1, 2), QPoint(30, 5)));
}

// ---- pictures

TEST_F(ZELImageEditTest, setUpImageShowsThePiecesOnlyWhenAsked)
{
    auto* const field = edit("<ok style='normal'><position width='200' height='44'/></ok>");
    const auto set = [field](State state, bool show) {
        return field->setUpImage(piece(state, "start"), piece(state, "mid"), piece(state, "end"),
                                 show);
    };
    EXPECT_EQ(paints(field, [&] { EXPECT_TRUE(set(dim, false)); }), 0);
    EXPECT_EQ(ups(field), pieces(dim));
    EXPECT_EQ(current(field), std::vector<QPixmap*>(3, nullptr));
    EXPECT_EQ(paints(field, [&] { EXPECT_TRUE(set(up, true)); }), 1);
    EXPECT_EQ(current(field), pieces(up));
}

TEST_F(ZELImageEditTest, theOtherSettersOfPicturesLeaveTheCurrentOnes)
{
    auto* const field = edit();
    EXPECT_TRUE(field->setDownImage(piece(up, "start"), piece(up, "mid"), piece(up, "end")));
    EXPECT_TRUE(field->setDimImage(piece(down, "start"), piece(down, "mid"), piece(down, "end")));
    EXPECT_EQ(field->m_pDownEnd, picture(piece(up, "end")));
    EXPECT_EQ(field->m_pDimStart, picture(piece(down, "start")));
    EXPECT_EQ(current(field), pieces(up));
}

TEST_F(ZELImageEditTest, keepsWhatItFoundOfASetAndSaysThatItIsNotWhole)
{
    auto* const field = edit();
    EXPECT_FALSE(field->setUpImage(piece(up, "start"), "none.png", piece(up, "end"), false));
    EXPECT_FALSE(field->setDownImage("none.png", piece(up, "mid"), piece(up, "end")));
    EXPECT_FALSE(field->setDimImage(piece(up, "start"), piece(up, "mid"), "none.png"));
    EXPECT_EQ(field->m_pUpStart, picture(piece(up, "start")));
    EXPECT_EQ(field->m_pUpMid, nullptr);
    EXPECT_EQ(field->m_pUpEnd, picture(piece(up, "end")));
    EXPECT_EQ(field->m_pDownStart, nullptr);
    EXPECT_EQ(field->m_pDownMid, picture(piece(up, "mid")));
    EXPECT_EQ(field->m_pDimMid, picture(piece(up, "mid")));
    EXPECT_EQ(field->m_pDimEnd, nullptr);
    log().expectError("[getImage] cannot load image -->none.png\n",
                      log().count("[E] [getImage] cannot load image -->none.png\n"));
}

TEST_F(ZELImageEditTest, setCurImageTellsWhetherAllAreThereAndRepaints)
{
    auto* const field = edit();
    const std::vector<QPixmap*> all = pieces(dim);
    EXPECT_EQ(paints(field, [&] { EXPECT_TRUE(field->setCurImage(all[0], all[1], all[2])); }), 1);
    EXPECT_EQ(current(field), all);
    EXPECT_EQ(paints(field, [&] { EXPECT_FALSE(field->setCurImage(nullptr, all[1], all[2])); }), 1);
    EXPECT_FALSE(field->setCurImage(all[0], nullptr, all[2]));
    EXPECT_FALSE(field->setCurImage(all[0], all[1], nullptr));
    QPixmap nothing;
    EXPECT_FALSE(field->setCurImage(all[0], &nothing, all[2]));
}

// ---- setters

TEST_F(ZELImageEditTest, settersSetAndDoNotRepaint)
{
    auto* const field = edit();
    EXPECT_EQ(paints(field,
                     [&] {
                         field->setEchoMode(1);
                         field->setMaxLength(7);
                         field->setFont(style("pressed"));
                         field->setAlign(centred);
                         field->setPadding(1, 2, 30, 4);
                         field->setPlaceholderText(std::string("p"));
                         field->setPlaceholderText("q");
                         field->setElidedText(4);
                     }),
              0);
    EXPECT_EQ(field->m_nEchoMode, 1);
    EXPECT_EQ(field->m_nMaxLength, 7u);
    EXPECT_EQ(field->m_pFont, style("pressed"));
    EXPECT_EQ(field->m_nAlign, centred);
    EXPECT_EQ(field->m_paddingRect, QRect(QPoint(1, 2), QPoint(30, 5)));
}

TEST_F(ZELImageEditTest, thePlaceholderIsACopyAndNullEmptiesIt)
{
    auto* const field = edit();
    EXPECT_EQ(field->placeholderText(), "");
    field->setPlaceholderText(std::string("name"));
    EXPECT_EQ(field->placeholderText(), "name");
    field->setPlaceholderText("number");
    EXPECT_EQ(field->placeholderText(), "number");
    field->setPlaceholderText(static_cast<const char*>(nullptr));
    EXPECT_EQ(field->placeholderText(), "");
}

TEST_F(ZELImageEditTest, elisionHasAModeAndAType)
{
    auto* const field = edit();
    for (const auto& [asked, mode, type] :
         std::vector<std::tuple<int, int, int>>{{0, 0, 0},
                                                {1, 1, 1},
                                                {2, 2, 2},
                                                {4, 1, 4},
                                                {3, 3, 3},
                                                {0, 0, 0},
                                                {5, 3, 3},
                                                {4, 1, 4},
                                                {-1, 3, 3},
                                                {2, 2, 2},
                                                {INT_MAX, 3, 3}}) {
        field->setElidedText(asked);
        EXPECT_EQ(field->m_nElideMode, mode) << asked;
        EXPECT_EQ(field->m_nElideType, type) << asked;
    }
}

// ---- the text

TEST_F(ZELImageEditTest, setTextTakesBothFormsAndRepaints)
{
    auto* const field = edit();
    EXPECT_EQ(paints(field, [&] { field->setText("abc"); }), 1);
    EXPECT_EQ(field->text(), "abc");
    EXPECT_EQ(paints(field, [&] { field->setText(std::string("de")); }), 1);
    EXPECT_EQ(field->text(), "de");
    EXPECT_EQ(paints(field, [&] { field->setText(static_cast<const char*>(nullptr)); }), 1);
    EXPECT_EQ(field->text(), "");
}

TEST_F(ZELImageEditTest, addTextAppendsBothFormsAndRepaints)
{
    auto* const field = edit();
    EXPECT_EQ(paints(field, [&] { field->addText("ab"); }), 1);
    EXPECT_EQ(paints(field, [&] { field->addText(std::string("c")); }), 1);
    EXPECT_EQ(field->text(), "abc");
    EXPECT_EQ(paints(field, [&] { field->addText(""); }), 1);
    EXPECT_EQ(field->text(), "abc");
}

TEST_F(ZELImageEditTest, addingNullDoesNothing)
{
    auto* const field = edit();
    field->setText("abc");
    field->setElidedText(4);
    field->setMaxLength(1);
    EXPECT_EQ(paints(field, [&] { field->addText(static_cast<const char*>(nullptr)); }), 0);
    EXPECT_EQ(field->text(), "abc");
    EXPECT_EQ(field->m_nElideMode, 1);
}

TEST_F(ZELImageEditTest, cutsWhatIsSetAndAddedToTheLongestInBytes)
{
    auto* const field = edit();
    field->setMaxLength(4);
    field->setText("abcdef");
    EXPECT_EQ(field->text(), "abcd");
    field->setText(std::string("uvwxyz"));
    EXPECT_EQ(field->text(), "uvwx");
    field->setText("ab");
    field->addText("cde");
    EXPECT_EQ(field->text(), "abcd");
    field->setText("ab");
    field->addText(std::string("cde"));
    EXPECT_EQ(field->text(), "abcd");
    field->setText(hangul + hangul);
    EXPECT_EQ(field->text(), hangul + "\xED");
    field->setMaxLength(0);
    field->setText("abc");
    EXPECT_EQ(field->text(), "");
}

TEST_F(ZELImageEditTest, takes1024BytesUnlessToldOtherwise)
{
    auto* const field = edit();
    field->setText(std::string(2000, 'x'));
    EXPECT_EQ(field->text(), std::string(1024, 'x'));
    field->addText("y");
    EXPECT_EQ(field->text(), std::string(1024, 'x'));
}

TEST_F(ZELImageEditTest, aLowerLimitLeavesTheTextUntilItIsSetOrAdded)
{
    auto* const field = edit();
    field->setText("abcdef");
    field->setMaxLength(2);
    EXPECT_EQ(field->text(), "abcdef");
    field->backspace();
    EXPECT_EQ(field->text(), "abcde");
    field->addText("x");
    EXPECT_EQ(field->text(), "ab");
}

TEST_F(ZELImageEditTest, backspaceTakesTheLastByte)
{
    auto* const field = edit();
    field->setText("a" + hangul);
    EXPECT_EQ(paints(field, [&] { field->backspace(); }), 1);
    EXPECT_EQ(field->text(), "a\xED\x95");
    field->backspace();
    field->backspace();
    field->backspace();
    EXPECT_EQ(field->text(), "");
}

TEST_F(ZELImageEditTest, backspaceOnAnEmptyTextDoesNothing)
{
    auto* const field = edit();
    field->setElidedText(4);
    EXPECT_EQ(paints(field, [&] { field->backspace(); }), 0);
    EXPECT_EQ(field->m_nElideMode, 1);
}

TEST_F(ZELImageEditTest, clearEmptiesTheTextAndLeavesTheElision)
{
    auto* const field = edit();
    field->setText("abc");
    field->setElidedText(4);
    EXPECT_EQ(paints(field, [&] { field->clear(); }), 1);
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(field->m_nElideMode, 1);
    EXPECT_EQ(paints(field, [&] { field->clear(); }), 1);
}

TEST_F(ZELImageEditTest, typingBringsTheEndOfATextThatFollowsTheFingerIntoSight)
{
    const std::vector<std::pair<const char*, std::function<void(Edit*)>>> acts = {
        {"setText(literal)", [](Edit* field) { field->setText("x"); }},
        {"setText(null)", [](Edit* field) { field->setText(static_cast<const char*>(nullptr)); }},
        {"setText(string)", [](Edit* field) { field->setText(std::string("x")); }},
        {"addText(literal)", [](Edit* field) { field->addText("x"); }},
        {"addText(string)", [](Edit* field) { field->addText(std::string("x")); }},
        {"backspace", [](Edit* field) { field->backspace(); }}};
    auto* const field = edit();
    for (const auto& [name, act] : acts) {
        field->setText("abc");
        field->setElidedText(4);
        act(field);
        EXPECT_EQ(field->m_nElideMode, 0) << name;
        EXPECT_EQ(field->m_nElideType, 4) << name;
        field->setText("abc");
        field->setElidedText(1);
        act(field);
        EXPECT_EQ(field->m_nElideMode, 1) << name;
    }
}

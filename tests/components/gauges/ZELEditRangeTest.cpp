#include "components/gauges/ZELEditRange.h"

#include "components/editors/FieldTest.h"
#include "components/gauges/RangeTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;
using Components::ZELImageEdit;

namespace {

class EditRange : public OpenRange<Components::ZELEditRange>
{
public:
    using OpenRange::OpenRange;

    using ZELEditRange::m_arrParam;
    using ZELEditRange::m_pEditor;

    // what the editor holds
    std::string text() const { return m_pEditor->text(); }
    template <class Door>
    auto ofEditor(Door door) const
    {
        return m_pEditor->*door;
    }
};

// the one way to the fields of a button
struct ButtonDoor : ZELImageButton
{
    static constexpr auto font = &ButtonDoor::m_pFont;
    static constexpr auto animation = &ButtonDoor::m_strAnimation;
    static constexpr auto x = &ButtonDoor::m_nOrgX;
    static constexpr auto y = &ButtonDoor::m_nOrgY;
};

// the one way to the fields of the editor
struct EditDoor : ZELImageEdit
{
    static constexpr auto dim = &EditDoor::m_bDimMode;
    static constexpr auto align = &EditDoor::m_nAlign;
    static constexpr auto font = &EditDoor::m_pFont;
    static constexpr auto padding = &EditDoor::m_paddingRect;
    static constexpr auto current = &EditDoor::m_pCurMid;
    static constexpr auto up = &EditDoor::m_pUpMid;
    static constexpr auto down = &EditDoor::m_pDownMid;
    static constexpr auto dimPiece = &EditDoor::m_pDimMid;
};

class ZELEditRangeTest : public RangeTest
{
protected:
    static std::string editor(const std::string& pieces = "start='start.png' mid='mid.png' "
                                                          "end='end.png'")
    {
        return "<editor x='40' y='0' width='100' height='40' " + pieces + "/>";
    }

    static std::string parts() { return pushButton("upbtn", 140) + pushButton("downbtn", 0); }

    static std::string place() { return at(10, 20, 180, 40); }

    // the pictures of the range's own element: the buttons read it, so none is asked for by ""
    static std::string image() { return "<image up='up.png' down='down.png'/>"; }

    EditRange* open(const std::string& children, const std::string& attributes = "style='normal'")
    {
        return make<EditRange>("<rng " + attributes + ">" + place() + image() + children + "</rng>",
                               "ZELEditRange");
    }

    // a whole one with these texts
    EditRange* withTexts(const std::string& texts)
    {
        expectEditorLine();
        return open("<param " + texts + "/>" + parts() + editor());
    }

    void expectEditorLine() { log().expectError("[setLayout] editor pLayout == NULL", 1); }
};

constexpr const char* three = "a='one' b='two' c='three'";

} // namespace

TEST_F(ZELEditRangeTest, stepsAsTheTableSays)
{
    expectSteps(withTexts(three), {{false, 1, -5, 0, "down"},
                                   {false, 1, 0, 0, "down"},
                                   {false, 0, 1, 1, ""},
                                   {false, 0, 2, 2, "up"},
                                   {false, 0, 3, 2, "up"},
                                   {false, 0, 99, 2, "up"},
                                   {true, 0, -1, 2, ""},
                                   {true, 0, -9, 2, ""},
                                   {true, 2, 0, 0, ""},
                                   {true, 0, 1, 1, ""},
                                   {true, 0, 2, 2, ""},
                                   {true, 2, 3, 0, ""},
                                   {true, 1, 99, 0, ""}});
}

TEST_F(ZELEditRangeTest, enablesAsTheTableSays)
{
    expectEnabling(withTexts(three), {{false, 0, false, 0, "up down"},
                                      {false, 2, false, 2, "up down"},
                                      {false, 0, true, 0, "down"},
                                      {false, 1, true, 1, ""},
                                      {false, 2, true, 2, ""}, // the last text, one off on purpose
                                      {false, 3, true, 3, "up"},
                                      {false, 9, true, 3, "up"},
                                      {true, 0, true, 0, ""},
                                      {true, 2, true, 2, ""},
                                      {true, 9, true, 9, ""}});
}

TEST_F(ZELEditRangeTest, enablesItsEditorAndItself)
{
    auto* const range = withTexts(three);
    for (const bool enable : {false, true}) {
        range->setEnable(enable);
        EXPECT_EQ(range->isEnabled(), enable);
        EXPECT_EQ(range->ofEditor(EditDoor::dim), !enable);
    }
}

TEST_F(ZELEditRangeTest, offAndOnAtTheLastTextLeavesBothButtonsActiveAndATouchClamps)
{
    auto* const range = withTexts(three);
    range->setStep(2);
    EXPECT_EQ(range->dims(), "up");
    range->setEnable(false);
    range->setEnable(true);
    EXPECT_EQ(range->dims(), "");
    Touch::tapWindow(range->m_pUpBtn);
    EXPECT_EQ(toldOne(range), "1558 ZELRangeEvent rng 2");
    EXPECT_EQ(range->dims(), "up");
}

TEST_F(ZELEditRangeTest, showsTheTextOfItsStep)
{
    auto* const range = withTexts(three);
    EXPECT_EQ(range->text(), "one");
    Touch::tapWindow(range->m_pUpBtn);
    EventLoop::deliver();
    EXPECT_EQ(range->text(), "two");
    range->setStep(7);
    EXPECT_EQ(range->text(), "three");
}

TEST_F(ZELEditRangeTest, theLastTextHasItsButtonUpDim)
{
    auto* const range = withTexts(three);
    range->setStep(2);
    EXPECT_EQ(range->dims(), "up");
    Touch::tapWindow(range->m_pDownBtn);
    EXPECT_EQ(toldOne(range), "1558 ZELRangeEvent rng 1");
}

TEST_F(ZELEditRangeTest, withOneTextTheButtonsChangePlacesAtEachTouch)
{
    auto* const range = withTexts("a='only'");
    EXPECT_EQ(range->dims(), "down");
    for (const char* dims : {"up", "down", "up"}) {
        Touch::tapWindow(range->dims() == "down" ? range->m_pUpBtn : range->m_pDownBtn);
        EXPECT_EQ(toldOne(range), "1558 ZELRangeEvent rng 0");
        EXPECT_EQ(range->dims(), dims);
        EXPECT_EQ(range->text(), "only");
    }
}

TEST_F(ZELEditRangeTest, looksAKeyUpAtEachStepAndGivesTheRawText)
{
    writeStrings("<t><String key='low'><kr>first</kr><en>low</en></String>"
                 "<String key='high'><kr>last</kr><en>high</en></String></t>");
    auto* const range = withTexts("a='@low' b='plain' c='@high'");
    EXPECT_EQ(range->text(), "low");
    EXPECT_EQ(range->getParam(0), "@low");
    EXPECT_EQ(range->getParam(2), "@high");
    range->setStep(2);
    EXPECT_EQ(range->text(), "high");
    range->setStep(1);
    EXPECT_EQ(range->text(), "plain");
    Resource::ZELResourceMgr::getInstance()->changeLocale("kr");
    EXPECT_EQ(range->text(), "plain");
    range->setStep(2);
    EXPECT_EQ(range->text(), "last") << "in the language of now";
    range->setStep(0);
    EXPECT_EQ(range->text(), "first");
}

TEST_F(ZELEditRangeTest, takesTheValuesOfAllAttributesInTheirOrder)
{
    log().startHere();
    auto* const range = withTexts("z='1' y='' x='3' param='4'");
    EXPECT_EQ(range->m_nMax, 4);
    EXPECT_EQ(range->getParam(0), "1");
    EXPECT_EQ(range->getParam(1), "");
    EXPECT_EQ(range->getParam(2), "3");
    EXPECT_EQ(range->getParam(3), "4");
    EXPECT_EQ(log().texts("ZELEditRange"), Texts{"[D] The number of parameters : 4"});
}

TEST_F(ZELEditRangeTest, aTextThatIsNotThereIsToldAndEmpty)
{
    auto* const range = withTexts(three);
    for (const int bad : {-1, 3, 1000}) {
        log().expectError("[getParam] rng has no text " + std::to_string(bad), 1, "ZELEditRange");
        EXPECT_EQ(range->getParam(bad), "") << bad;
    }
}

TEST_F(ZELEditRangeTest, withoutTextsNothingIsShownAndNothingBreaks)
{
    for (const std::string param : {"", "<param/>"}) {
        expectEditorLine();
        auto* const range = open(param + parts() + editor());
        EXPECT_EQ(range->m_nMax, 0);
        EXPECT_EQ(range->getParam(0), "");
        EXPECT_EQ(range->getParam(5), "") << "an empty list has no bad index";
        for (const int step : {1, -1, 0, 7})
            range->setStep(step);
        EXPECT_EQ(range->text(), "");
    }
}

TEST_F(ZELEditRangeTest, makesItsEditorLastAndDeletesItFirst)
{
    auto* const range = withTexts(three);
    const QObjectList& children = range->children();
    EXPECT_LT(children.indexOf(range->m_pUpBtn), children.indexOf(range->m_pDownBtn));
    EXPECT_LT(children.indexOf(range->m_pDownBtn), children.indexOf(range->m_pEditor));
    range->m_pEditor->raise(); // as one of Qt's children it would die last
    std::string deaths;
    for (const auto& [widget, name] : {std::pair<QWidget*, const char*>(range->m_pUpBtn, "up "),
                                       {range->m_pDownBtn, "down "},
                                       {range->m_pEditor, "editor "}})
        QObject::connect(widget, &QObject::destroyed, [&deaths, name = name] { deaths += name; });
    delete range;
    EXPECT_EQ(deaths, "editor up down ");
}

TEST_F(ZELEditRangeTest, deletesNoEditorTwice)
{
    auto* const range = withTexts(three);
    delete range->m_pEditor;
    range->setStep(1);
    range->setEnable(false);
    EXPECT_EQ(range->getStep(), 1) << "it goes on without";
    delete range;
}

TEST_F(ZELEditRangeTest, missingElements)
{
    struct Case
    {
        std::string children;
        bool up;
        bool down;
        bool editor;
        Texts errors;
    };
    const std::string param = std::string("<param ") + three + "/>";
    const std::string upButton = pushButton("upbtn", 140);
    const std::string downButton = pushButton("downbtn", 0);
    for (const Case& row :
         std::vector<Case>{{param + upButton + downButton + editor(), true, true, true, {}},
                           {param + downButton + editor(), false, false, false, {"UpBtn"}},
                           {param + upButton + editor(), true, false, true, {"DownBtn"}},
                           {param + upButton + downButton, true, true, false, {"DownBtn"}},
                           {param + upButton, true, false, false, {"DownBtn", "DownBtn"}},
                           {"", false, false, false, {"UpBtn"}}}) {
        SCOPED_TRACE(row.children);
        if (row.editor)
            expectEditorLine();
        for (const std::string& name : row.errors)
            log().expectError("[setLayout] " + name + " Node is NULL", 1, "ZELEditRange");
        auto* const range = open(row.children);
        EXPECT_EQ(range->m_pUpBtn != nullptr, row.up);
        EXPECT_EQ(range->m_pDownBtn != nullptr, row.down);
        EXPECT_EQ(range->m_pEditor != nullptr, row.editor);
        range->setStep(1);
        range->setEnable(false);
        range->setEnable(true);
        Pixels::grab(range);
        log().verify();
        delete range;
    }
}

TEST_F(ZELEditRangeTest, placesWhatTheElementsLeaveOut)
{
    expectEditorLine();
    log().expectError("[getImage] No FileName Error", 4, "ZELImageMgr");
    auto* const range = make<EditRange>("<rng style='normal'>" + image() +
                                        "<param a='x'/><upbtn/><downbtn/><editor/></rng>");
    for (QWidget* const widget :
         std::vector<QWidget*>{range, range->m_pUpBtn, range->m_pDownBtn, range->m_pEditor})
        EXPECT_EQ(widget->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELEditRangeTest, theButtonsReadTheElementOfTheRangeFirst)
{
    expectEditorLine();
    auto* const range = open(std::string("<param ") + three + "/>" + parts() + editor(),
                             "style='normal' longpress='true'");
    EXPECT_TRUE(EditRange::hasLongPress(range->m_pUpBtn));
    EXPECT_TRUE(EditRange::hasLongPress(range->m_pDownBtn));
    EXPECT_FALSE(EditRange::hasLongPress(withTexts(three)->m_pUpBtn));
}

TEST_F(ZELEditRangeTest, whatElseTheButtonsReadThereStaysWhereTheyAreMoved)
{
    expectEditorLine();
    auto* const range = open(std::string("<param ") + three + "/>" + parts() + editor(),
                             "style='normal' title='T' animation='elastic_push'");
    for (ZELImageButton* const button : {range->m_pUpBtn, range->m_pDownBtn}) {
        EXPECT_EQ(button->getTitle(), "T");
        EXPECT_EQ(button->*ButtonDoor::font, style("normal"));
        EXPECT_EQ(button->*ButtonDoor::animation, "elastic_push");
        EXPECT_EQ(QPoint(button->*ButtonDoor::x, button->*ButtonDoor::y), QPoint(10, 20))
            << "where it comes to rest is the place of the range";
    }
    EXPECT_EQ(range->m_pUpBtn->pos(), QPoint(140, 0));
}

TEST_F(ZELEditRangeTest, dressesItsEditor)
{
    auto* const range = withTexts(three);
    EXPECT_EQ(range->m_pEditor->m_strID, "editor");
    EXPECT_EQ(range->m_pEditor->m_strType, "ZELImageEdit");
    EXPECT_EQ(range->m_pEditor->geometry(), QRect(40, 0, 100, 40));
    EXPECT_EQ(range->ofEditor(EditDoor::align), centred);
    EXPECT_EQ(range->ofEditor(EditDoor::font), style("normal"));
    ZELImageEdit padded(&panel(), "e", "ZELImageEdit", element("<e/>"));
    padded.setPadding(0, 0, 100, 40);
    EXPECT_EQ(range->ofEditor(EditDoor::padding), padded.*EditDoor::padding) << "its whole size";
    for (const auto piece : {EditDoor::current, EditDoor::up, EditDoor::down, EditDoor::dimPiece})
        EXPECT_EQ(range->ofEditor(piece), picture("mid.png")) << "one picture in all states";
}

TEST_F(ZELEditRangeTest, aFrameWithAPieceMissingIsLeftOut)
{
    for (const std::string pieces :
         {"", "start='start.png' mid='mid.png'", "mid='mid.png' end='end.png'"}) {
        expectEditorLine();
        auto* const range = open(std::string("<param ") + three + "/>" + parts() + editor(pieces));
        for (const auto piece :
             {EditDoor::current, EditDoor::up, EditDoor::down, EditDoor::dimPiece})
            EXPECT_EQ(range->ofEditor(piece), nullptr) << pieces;
    }
}

TEST_F(ZELEditRangeTest, withoutAStyleThereIsNoTextAndOneLine)
{
    expectEditorLine();
    auto* const range = open(std::string("<param ") + three + "/>" + parts() + editor(), "");
    EXPECT_EQ(range->ofEditor(EditDoor::font), nullptr);
    const QImage image = Pixels::grab(range->m_pEditor);
    EXPECT_GT(Pixels::count(image, Qt::darkGreen), 0);
    Pixels::grab(range->m_pEditor);
    EXPECT_EQ(Pixels::count(image, Qt::black), 0);
    EXPECT_EQ(log().countLevel('E'), 2) << "the editor's element, and the missing style once";
    log().reset();
}

TEST_F(ZELEditRangeTest, paintsNothingItself)
{
    auto* const range = withTexts(three);
    range->m_pUpBtn->hide();
    range->m_pDownBtn->hide();
    range->m_pEditor->hide();
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(range)), QRect());
}

TEST_F(ZELEditRangeTest, aTouchOfTheEditorEndsThere)
{
    auto* const range = withTexts(three);
    Touch::tapWindow(range->m_pEditor);
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(range->m_nStep, 0);
}

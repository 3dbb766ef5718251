// How a pad is built, which keys it shows and what it looks like.

#include "components/pads/ZELNumPad.h"

#include "components/pads/NumPadTest.h"
#include "resource/ZELResourceMgr.h"
#include "support/VirtualSlot.h"

#include <QPainter>
#include <QPixmap>

#include <csignal>
#include <cstdio>
#include <map>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELNumPad;

namespace {

using Ids = std::vector<std::string>;

class Own : public ZELNumPad
{
public:
    static std::vector<std::intptr_t> slotsOfItsOwn()
    {
        return {slot(&Own::paintEvent), slot(&Own::event)};
    }
};

class ZELNumPadTest : public NumPadTest
{
protected:
    // which of the keys that come and go are on view
    static Ids shown(OpenPad* pad)
    {
        Ids found;
        for (const char* const id : {"num0", "num00", "dot", "comma", "ampm", "empty", "close"}) {
            if (pad->key(id) && pad->key(id)->isVisible())
                found.emplace_back(id);
        }
        return found;
    }

    static std::vector<int> base(const OpenPad* pad)
    {
        return {pad->m_nBaseX, pad->m_nBaseY, pad->m_nBaseWidth, pad->m_nBaseHeight};
    }

    // a popup without keys in its inside, so that the background is all there is to see
    OpenPad* popup(const std::string& background)
    {
        auto* const made = make(pad({"num0", "num00", "close"}, background));
        made->setPopupMode(true);
        for (const char* const id : {"num0", "num00", "close"})
            made->key(id)->hideWindow();
        return made;
    }

    // where a picture of one colour covers the popup
    static QRect covered(OpenPad* pad) { return Pixels::inkBox(Pixels::grab(pad)); }
};

// what is left of the program when it ends itself
void tellErrors(int)
{
    for (const std::string& text : LogCapture::instance().texts("ZELNumPad"))
        std::fprintf(stderr, "%s\n", text.c_str());
}

} // namespace

// ---- what it is

TEST_F(ZELNumPadTest, isAComponentFirstAndAPlainWidgetSecond)
{
    auto* const made = make();
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(made)), static_cast<void*>(made));
    EXPECT_EQ(made->getQWidget(), static_cast<QWidget*>(made));
    EXPECT_EQ(made->parent(), &panel());
    EXPECT_EQ(made->m_strID, "pad");
    EXPECT_EQ(made->m_strType, "ZELNumPad");
    made->hideWindow();
    EXPECT_TRUE(made->isHidden());
    made->showWindow();
    EXPECT_TRUE(made->isVisible());
}

TEST_F(ZELNumPadTest, addsItsOperationsBehindThoseOfAComponent)
{
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t found : Own::slotsOfItsOwn())
        EXPECT_EQ(found, place += slotSize);
}

TEST_F(ZELNumPadTest, theKeywordMakesIt)
{
    auto* const made = buildComponent<ZELNumPad>("numpad", pad());
    EXPECT_EQ(made->m_strType, "ZELNumPad");
    EXPECT_EQ(made->getComponentCount(), 17);
}

// ---- construction

TEST_F(ZELNumPadTest, startsEmbeddedWithTheDoubleZeroAndWithoutAnEdit)
{
    auto* const made = make();
    EXPECT_EQ(made->m_nType, 0);
    EXPECT_FALSE(made->m_bPopupMode);
    EXPECT_EQ(made->m_fOpacity, 1.0F);
    EXPECT_EQ(made->getEdit(), nullptr);
    EXPECT_EQ(shown(made), Ids{"num00"});
}

TEST_F(ZELNumPadTest, findsItsKeysByTheirIds)
{
    auto* const made = make();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(made->m_pNumBtn[i], made->key("num" + std::to_string(i))) << i;
    const std::map<std::string, PANFx::Components::ZELImageButton*> others = {
        {"num00", made->m_pNum00Btn}, {"backspace", made->m_pBackspaceBtn},
        {"dot", made->m_pDotBtn},     {"comma", made->m_pCommaBtn},
        {"ampm", made->m_pAmpmBtn},   {"empty", made->m_pEmptyBtn},
        {"close", made->m_pCloseBtn}};
    for (const auto& [id, key] : others) {
        EXPECT_NE(key, nullptr) << id;
        EXPECT_EQ(key, made->key(id)) << id;
    }
}

TEST_F(ZELNumPadTest, theKeysThatDoNotComeAndGoAppearWithThePad)
{
    auto* const made = make();
    for (const char* const id : {"num1", "num5", "num9", "backspace"})
        EXPECT_TRUE(made->key(id)->isVisible()) << id;
}

TEST_F(ZELNumPadTest, theOwnKeyTypesItsTitle)
{
    EXPECT_EQ(make()->m_strUserDefine, "own");
    EXPECT_EQ(make(pad(keysWithout("empty")))->m_strUserDefine, "");
}

TEST_F(ZELNumPadTest, readsItsLayoutThenMakesItsComponentsThenFindsTheKeys)
{
    expectNoPictureName();
    log().expectError("[createSubComponent] Fail to create a component (nonsense, it)", 1,
                      "ZELWindow");
    log().startHere();
    for (const char* const id : {"num0", "num00", "close"})
        expectNoKey(id);
    make("<pad><nonsense><it/></nonsense></pad>");
    log().expectInOrder({"[E] [getImage] No FileName Error", "[D] m_pBasePixmap is NULL",
                         "[E] [createSubComponent] Fail to create a component (nonsense, it)",
                         "[E] [ZELNumPad] pad has no key num0",
                         "[E] [ZELNumPad] pad has no key num00",
                         "[E] [ZELNumPad] pad has no key close"});
}

TEST_F(ZELNumPadTest, withoutALayoutSaysSoAndGoesOn)
{
    log().expectError("[setLayout] pad pLayout == NULL", 1, "ZELNumPad");
    log().expectError("[createSubComponent] ZELNumPad, Node * pLayout == NULL", 1, "ZELWindow");
    auto* const made = make("");
    EXPECT_EQ(made->geometry(), QRect(0, 0, 100, 30));
    EXPECT_EQ(base(made), (std::vector<int>{0, 0, -1, -1}));
    for (const int type : {0, 1, 2, 3, 4, 7})
        made->setType(type);
    made->setPopupMode(true);
    made->setUserDefineButtonTitle(std::string("x"));
    EXPECT_TRUE(send(made, EVENT_MOUSE_UP, nullptr, ""));
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(made)).isNull());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELNumPadTest, aNullLayoutLaterLeavesThePlace)
{
    auto* const made = make();
    expectNullLayoutLines("pad");
    made->setLayout(nullptr);
    EXPECT_EQ(made->geometry(), QRect(300, 200, 240, 160));
    EXPECT_NE(made->m_pBasePixmap, nullptr);
}

TEST_F(ZELNumPadTest, tellsAKeyThatMustBeThere)
{
    for (const char* const id : {"num0", "num00", "close"}) {
        expectNoKey(id);
        auto* const made = make(pad(keysWithout(id)));
        for (const int type : {0, 1, 2, 3, 4, 7})
            made->setType(type);
        made->setPopupMode(true);
        made->setPopupMode(false);
    }
}

TEST_F(ZELNumPadTest, saysNothingOfTheOtherKeys)
{
    auto* const made = make(pad({"num0", "num00", "close"}));
    for (const int type : {0, 1, 2, 3, 4, 7})
        made->setType(type);
    made->setUserDefineButtonTitle(std::string("x"));
    EXPECT_EQ(made->m_strUserDefine, "x");
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELNumPadTest, aKeyThatIsNoButtonIsToldAndLeftOut)
{
    const std::string labels = "<label>"
                               "<num0 title='0' style='normal'/><empty title='e' style='normal'/>"
                               "</label>";
    log().expectError("[ZELNumPad] pad: the key num0 is no button", 1, "ZELNumPad");
    log().expectError("[ZELNumPad] pad: the key empty is no button", 1, "ZELNumPad");
    auto* const made = make(padWith("<backimage file='base.png'/><Components>" + labels +
                                    buttons({"num00", "close", "num1"}) + "</Components>"));
    EXPECT_EQ(made->m_pNumBtn[0], nullptr);
    EXPECT_EQ(made->m_pEmptyBtn, nullptr);
    EXPECT_EQ(made->m_strUserDefine, "");
    made->setType(4);
    made->setUserDefineButtonTitle(std::string("x"));
    Touch::tapWindow(made->getSubComponent("num0")->getQWidget());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

// ---- place and background

TEST_F(ZELNumPadTest, takesItsPlaceFromThePosition)
{
    EXPECT_EQ(make()->geometry(), QRect(300, 200, 240, 160));
    const std::string rest = "<backimage file='base.png'/>" + components(allKeys()) + "</pad>";
    EXPECT_EQ(make("<pad>" + rest)->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(make("<pad><position/>" + rest)->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(make("<pad><position x='5' width='7'/>" + rest)->geometry(), QRect(5, 0, 7, 1));
}

TEST_F(ZELNumPadTest, readsTheBackground)
{
    auto* const made =
        make(pad(allKeys(), "<backimage file='base.png' x='3' y='4' width='120' height='90'/>"));
    EXPECT_EQ(made->m_pBasePixmap,
              PANFx::Resource::ZELResourceMgr::getInstance()->getImage("base.png"));
    EXPECT_EQ(base(made), (std::vector<int>{3, 4, 120, 90}));
    EXPECT_EQ(log().count("[D] m_pBasePixmap is NULL"), 0);
}

TEST_F(ZELNumPadTest, theBackgroundIsSizedBeforeThePadTakesItsPlace)
{
    // a widget that was never placed is 100 by 30
    EXPECT_EQ(base(make(pad(allKeys(), "<backimage file='base.png'/>"))),
              (std::vector<int>{0, 0, 100, 30}));
    EXPECT_EQ(base(make(pad(allKeys(), "<backimage file='base.png' x='3' y='4'/>"))),
              (std::vector<int>{3, 4, 97, 26}));
    EXPECT_EQ(base(make(pad(allKeys(), "<backimage file='base.png' y='4' width='8'/>"))),
              (std::vector<int>{0, 4, 8, 26}));
}

TEST_F(ZELNumPadTest, aSecondLayoutIsSizedByThePlaceOfTheFirst)
{
    auto* const made = make();
    made->setLayout(element(pad(allKeys(), "<backimage file='base.png' x='10'/>")));
    EXPECT_EQ(base(made), (std::vector<int>{10, 0, 230, 160}));
    made->setLayout(element(pad(allKeys(), "<backimage file='base.png' width='5'/>")));
    EXPECT_EQ(base(made), (std::vector<int>{10, 0, 5, 160}));
}

TEST_F(ZELNumPadTest, withoutItsPictureReadsNothingOfTheBackground)
{
    const char* const missing = "[getImage] cannot load image -->";
    auto* const made =
        make(pad(allKeys(), "<backimage file='none.png' x='3' y='4' width='5' height='6'/>"));
    EXPECT_EQ(made->m_pBasePixmap, nullptr);
    EXPECT_EQ(base(made), (std::vector<int>{0, 0, -1, -1}));
    EXPECT_EQ(log().count("[D] m_pBasePixmap is NULL", "ZELNumPad"), 1);
    for (const std::string& text : log().texts("ZELImageMgr")) {
        if (text.find(missing) != std::string::npos)
            log().expectError(text.substr(4), 1, "ZELImageMgr");
    }
    made->setPopupMode(true);
    made->setType(7);
    EXPECT_EQ(Pixels::count(Pixels::grab(made), Qt::blue), 0);
}

TEST_F(ZELNumPadTest, aBackgroundWithoutAFileIsOneWithoutAName)
{
    expectNoPictureName(2);
    EXPECT_EQ(base(make(pad(allKeys(), "<backimage x='3' y='4' width='5' height='6'/>"))),
              (std::vector<int>{0, 0, -1, -1}));
    EXPECT_EQ(base(make(pad(allKeys(), ""))), (std::vector<int>{0, 0, -1, -1}));
    EXPECT_EQ(log().count("[D] m_pBasePixmap is NULL", "ZELNumPad"), 2);
}

// ---- the set of keys

TEST_F(ZELNumPadTest, eachTypeShowsItsKeys)
{
    auto* const made = make();
    for (const auto& [type, keys] : std::vector<std::pair<int, Ids>>{{1, {"num0", "dot"}},
                                                                     {2, {"num0", "comma"}},
                                                                     {3, {"num0", "ampm"}},
                                                                     {4, {"num0", "empty"}},
                                                                     {0, {"num00"}},
                                                                     {4, {"num0", "empty"}}}) {
        made->setType(type);
        EXPECT_EQ(shown(made), keys) << type;
        EXPECT_EQ(made->m_nType, type);
    }
}

TEST_F(ZELNumPadTest, anUnknownTypeHidesTheSpecialKeysAndLeavesTheZeros)
{
    auto* const made = make();
    for (const int type : {7, 5, -1}) {
        made->setType(0);
        made->setType(type);
        EXPECT_EQ(shown(made), Ids{"num00"}) << type;
        made->setType(3);
        made->setType(type);
        EXPECT_EQ(shown(made), Ids{"num0"}) << type;
        EXPECT_EQ(made->m_nType, type);
    }
}

TEST_F(ZELNumPadTest, theTypeLeavesTheOtherKeysAlone)
{
    auto* const made = make();
    made->setPopupMode(true);
    for (const int type : {0, 1, 2, 3, 4, 7}) {
        made->setType(type);
        for (const char* const id : {"num1", "num9", "backspace", "close"})
            EXPECT_TRUE(made->key(id)->isVisible()) << type << id;
    }
}

// ---- the form

TEST_F(ZELNumPadTest, thePopupShowsTheCloseKeyAndRepaints)
{
    auto* const made = make();
    PaintCounter counter(made);
    counter.reset();
    made->setPopupMode(true);
    EventLoop::deliver();
    EXPECT_GT(counter.count(), 0);
    EXPECT_TRUE(made->m_bPopupMode);
    EXPECT_EQ(shown(made), (Ids{"num00", "close"}));
    counter.reset();
    made->setPopupMode(true);
    EventLoop::deliver();
    EXPECT_EQ(counter.area(), 240 * 160);
    made->setPopupMode(false);
    EXPECT_EQ(shown(made), Ids{"num00"});
}

TEST_F(ZELNumPadTest, onlyThePopupHasTheBackground)
{
    auto* const made = popup("<backimage file='base.png' x='30' y='20' width='100' height='50'/>");
    EXPECT_EQ(covered(made), QRect(30, 20, 100, 50));
    made->setPopupMode(false);
    EXPECT_TRUE(covered(made).isNull());
}

TEST_F(ZELNumPadTest, aBackgroundBelowOnePixelIsAsLargeAsThePad)
{
    EXPECT_EQ(covered(popup("<backimage file='base.png' width='0' height='50'/>")),
              QRect(0, 0, 240, 50));
    EXPECT_EQ(covered(popup("<backimage file='base.png' width='90' height='-3'/>")),
              QRect(0, 0, 90, 160));
    EXPECT_EQ(covered(popup("<backimage file='base.png' width='1' height='1'/>")),
              QRect(0, 0, 1, 1));
    // what lies outside is cut off
    EXPECT_EQ(covered(popup("<backimage file='base.png' x='200' y='150' width='0' height='0'/>")),
              QRect(200, 150, 40, 10));
}

TEST_F(ZELNumPadTest, aChangeOfLanguageTakesTheBackgroundAwayUntilItIsLookedUpAnew)
{
    writePicture("base.png", 50, 20, Qt::green, "kr");
    auto* const made = popup("<backimage file='base.png' x='30' y='20' width='100' height='50'/>");
    auto* const resources = PANFx::Resource::ZELResourceMgr::getInstance();
    resources->changeLocale("kr");
    ASSERT_TRUE(made->m_pBasePixmap->isNull());
    EXPECT_TRUE(covered(made).isNull());
    resources->getImage("base.png");
    EXPECT_EQ(Pixels::count(Pixels::grab(made), Qt::green), 100 * 50);
}

TEST_F(ZELNumPadTest, theBackgroundIsScaledWholeAndSmoothly)
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::black);
    halves.setPixelColor(1, 0, Qt::white);
    writePicture("halves.png", halves);
    auto* const made =
        popup("<backimage file='halves.png' x='30' y='20' width='100' height='50'/>");
    QImage expected = Pixels::canvas(QSize(240, 160));
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(30, 20, 100, 50), *made->m_pBasePixmap);
    painter.end();
    EXPECT_TRUE(Pixels::same(Pixels::grab(made), expected));
    EXPECT_LT(Pixels::count(expected, Qt::black) + Pixels::count(expected, Qt::white), 100 * 50);
}

TEST_F(ZELNumPadTest, disablingChangesNoDrawing)
{
    auto* const made = popup("<backimage file='base.png' x='30' y='20' width='100' height='50'/>");
    made->key("num00")->showWindow();
    const QImage before = Pixels::grab(made);
    made->setEnable(false);
    EXPECT_EQ(made->m_fOpacity, 0.6F);
    EXPECT_FALSE(made->isEnabled());
    EXPECT_TRUE(Pixels::same(Pixels::grab(made), before));
    made->setEnable(true);
    EXPECT_EQ(made->m_fOpacity, 1.0F);
    EXPECT_TRUE(made->isEnabled());
}

// ---- the user-defined key

TEST_F(ZELNumPadTest, theTitleOfTheOwnKeyIsWhatItTypes)
{
    auto* const made = make();
    made->setUserDefineButtonTitle(std::string("kg"));
    EXPECT_EQ(made->m_strUserDefine, "kg");
    EXPECT_EQ(made->m_pEmptyBtn->getTitle(), "kg");
    made->setUserDefineButtonTitle(nullptr);
    EXPECT_EQ(made->m_strUserDefine, "");
    EXPECT_EQ(made->m_pEmptyBtn->getTitle(), "");
}

TEST_F(ZELNumPadTest, aNewTitleDoesNotRepaint)
{
    auto* const made = make();
    made->setType(4);
    PaintCounter counter(made);
    PaintCounter keyCounter(made->m_pEmptyBtn);
    counter.reset();
    keyCounter.reset();
    made->setUserDefineButtonTitle(std::string("kg"));
    made->setUserDefineButtonTitle(nullptr);
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(keyCounter.count(), 0);
}

TEST_F(ZELNumPadTest, withoutTheOwnKeyItsTitleIsEmptiedAllTheSame)
{
    auto* const made = make(pad(keysWithout("empty")));
    made->setUserDefineButtonTitle(std::string("kg"));
    EXPECT_EQ(made->m_strUserDefine, "kg");
    made->setUserDefineButtonTitle(nullptr);
    EXPECT_EQ(made->m_strUserDefine, "");
}

// ---- a key that the application deletes

TEST_F(ZELNumPadTest, aKeyThatIsGoneDoesNoHarm)
{
    for (const char* const id : {"num0", "num00", "dot", "comma", "ampm", "empty", "close"}) {
        auto* const made = make();
        delete made->key(id);
        ASSERT_EQ(made->key(id), nullptr) << id;
        made->setPopupMode(true);
        made->setUserDefineButtonTitle(std::string("kg"));
        EXPECT_EQ(made->m_strUserDefine, "kg") << id;
        for (const auto& [type, keys] : std::vector<std::pair<int, Ids>>{{1, {"num0", "dot"}},
                                                                         {2, {"num0", "comma"}},
                                                                         {3, {"num0", "ampm"}},
                                                                         {4, {"num0", "empty"}},
                                                                         {0, {"num00"}}}) {
            Ids left = keys;
            left.emplace_back("close");
            left.erase(std::remove(left.begin(), left.end(), id), left.end());
            made->setType(type);
            EXPECT_EQ(shown(made), left) << type << " without " << id;
        }
        made->setPopupMode(false);
        made->setUserDefineButtonTitle(nullptr);
        delete made;
    }
}

TEST_F(ZELNumPadTest, aLiteralAsTheTitleEndsTheProgram)
{
    auto* const made = make();
    EXPECT_EXIT(
        {
            std::signal(SIGABRT, tellErrors);
            made->setUserDefineButtonTitle("kg");
        },
        ::testing::KilledBySignal(SIGABRT),
        "\\[E\\] \\[setUserDefineButtonTitle\\] pad: a title is passed as a std::string");
}

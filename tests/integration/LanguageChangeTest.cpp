#include "components/ZELComponent.h"
#include "integration/ApplicationPage.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QPointer>

#include <algorithm>

using namespace PANFx;
using namespace PANFx::Testing;
using Resource::ZELResourceMgr;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

// An instrument with two languages: red and English, blue and Korean. Its settings page changes
// the language from its own handler, as applications do.
class LanguageChangeTest : public PanelTest
{
protected:
    LanguageChangeTest()
    {
        writePicture("bg.png", 800, 480, Qt::red);
        writePicture("bg.png", 800, 480, Qt::blue, "kr");
        writePicture("common.png", 20, 20, Qt::green);
        writeStyle("<style><Font><normal size='20' family='DejaVu Sans Mono' color='ffff00'/>"
                   "</Font></style>",
                   "kr");
        writeStrings("<table><String key='home'><kr>\xEC\xA7\x91</kr><eng>Home</eng></String>"
                     "</table>");
        for (const char* locale : {"", "kr"}) {
            writeLayout("home", layout("home", locale), locale);
            writeLayout("settings", layout("settings", locale), locale);
            writeLayout("hidden", layout("hidden", locale), locale);
        }
        for (const char* id : {"home", "settings", "hidden"})
            addPage(id);
    }

    static std::string layout(const std::string& id, const std::string& locale)
    {
        return "<layout><Base><background>bg.png</background></Base><Components>"
               "<label><title title='@home' style='normal'>"
               "<position x='0' y='0' width='200' height='40'/></title></label>"
               "<imagebox><only_" +
               (locale.empty() ? "eng" : locale) +
               " file='common.png' x='400' y='300' width='20' height='20'/></imagebox>"
               "<label><" +
               id + "_touch><position x='600' y='400' width='100' height='50'/></" + id +
               "_touch></label></Components></layout>";
    }

    void addPage(const std::string& id)
    {
        frame().addPage(id, [this](const std::string& asked) {
            expectBackgroundLines();
            return new ApplicationPage(asked, &frame(), [this](ZELEvent& event) {
                if (onTouch && event.m_strID.find("_touch") != std::string::npos)
                    onTouch();
            });
        });
    }

    ZELChildWindow* show(const std::string& id)
    {
        ZELChildWindow* const page = frame().moveTo(id, true, true);
        EventLoop::deliver();
        return page;
    }

    /** Touches the page on screen where it acts. */
    void touch()
    {
        Touch::tapWindow(&frame(), QPoint(650, 425));
        EventLoop::deliver();
    }

    int onScreen(const QColor& colour) { return Pixels::count(frame().grab().toImage(), colour); }

    static bool has(const ZELChildWindow* page, const std::string& id)
    {
        return std::any_of(page->m_dqSubComponents.begin(), page->m_dqSubComponents.end(),
                           [&](const Components::ZELComponent* c) { return c->m_strID == id; });
    }

    std::function<void()> onTouch;
};

TEST_F(LanguageChangeTest, rebuildsThePagesFromTheNewLanguage)
{
    ZELChildWindow* const english = show("home");
    EXPECT_TRUE(has(english, "only_eng"));
    EXPECT_GT(onScreen(Qt::red), 800 * 480 - 10000);
    show("settings");
    const QPointer<QObject> englishHome = english;
    onTouch = [this] { frame().changeLocale("kr", "settings"); };
    touch();

    EXPECT_TRUE(englishHome.isNull());
    ZELChildWindow* const korean = frame().getCurrentWindow();
    EXPECT_EQ(korean->m_strID, "home") << "the previous page of the history";
    EXPECT_EQ(frame().history(), Strings{"home"});
    EXPECT_TRUE(has(korean, "only_kr"));
    EXPECT_FALSE(has(korean, "only_eng"));
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000) << "its own picture";
    EXPECT_EQ(onScreen(Qt::green), 400) << "and the common one";
    EXPECT_EQ(onScreen(Qt::red), 0);
    EXPECT_EQ(ZELResourceMgr::getInstance()->getLocaleString("@home"), "\xEC\xA7\x91");
    const QImage title = frame().grab(QRect(0, 0, 200, 40)).toImage();
    EXPECT_GT(Pixels::count(title, Qt::yellow), 0) << "the language's style";
    EXPECT_EQ(Pixels::count(title, Qt::black), 0);
}

TEST_F(LanguageChangeTest, tellsItsStepsInTheirOrder)
{
    show("home");
    show("settings");
    log().startHere();
    frame().changeLocale("kr", "settings");
    log().expectInOrder(
        {"[D] [changeLocale] start", "[D] [changeLocale] m_strLocale:kr",
         "[D] [changeLocale] strPath = /app/bin/resource/StringTable.Resource",
         "[D] [removeAllChildWnd] start", "[D] [removeAllChildWnd] before delete home Window",
         "[D] [removeAllChildWnd] finished window deletion", "[I] [moveBackEx] home <== settings",
         "[D] [loadLayout] path: /app/bin/resource/kr/layout/home.resource",
         "[D] [removeAllChildWnd] end", "[D] [changeLocale] end"});
    const Strings own = log().texts("ZELMainFrame");
    EXPECT_EQ(own.front(), "[D] [changeLocale] start");
    EXPECT_EQ(own.back(), "[D] [changeLocale] end");
    EXPECT_EQ(log().texts().front(), own.front());
    EXPECT_EQ(log().texts().back(), own.back());
}

TEST_F(LanguageChangeTest, theNewLanguageIsKnownBeforeAPageGoes)
{
    show("home");
    show("settings");
    std::string locale;
    class Witness : public QObject
    {
    public:
        Witness(QObject* parent, std::string& locale)
            : QObject(parent)
            , m_locale(locale)
        {
        }
        ~Witness() override { m_locale = ZELResourceMgr::getInstance()->m_strLocale; }

    private:
        std::string& m_locale;
    };
    new Witness(frame().findChild("home"), locale);
    frame().changeLocale("kr", "settings");
    EXPECT_EQ(locale, "kr");
}

TEST_F(LanguageChangeTest, theConfigurationAndTheDirectoryStay)
{
    show("home");
    show("settings");
    const std::string before = readFile("/data/config/config_zelapp.cfg");
    frame().changeLocale("kr", "settings");
    EXPECT_EQ(readFile("/data/config/config_zelapp.cfg"), before)
        << "making the language last is the application's task";
    EXPECT_EQ(ZELResourceMgr::getInstance()->getBasePath(), resources);
    EXPECT_EQ(ZELResourceMgr::getInstance()->m_strLocale, "kr");
}

TEST_F(LanguageChangeTest, thePageThatAskedSurvivesItsOwnHandler)
{
    show("home");
    const QPointer<QWidget> settings = show("settings");
    bool alive = false;
    onTouch = [&] {
        frame().changeLocale("kr", "settings");
        alive = !settings.isNull() && !settings->isVisible() && !settings->isEnabled();
        settings->deleteLater();
    };
    touch();
    EXPECT_TRUE(alive);
    EventLoop::deliverAndDelete();
    EXPECT_TRUE(settings.isNull());
    EXPECT_NE(show("settings"), nullptr);
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
}

TEST_F(LanguageChangeTest, aPageThatWasSparedIsNotRetranslated)
{
    show("home");
    ZELChildWindow* const settings = show("settings");
    frame().changeLocale("kr", "settings");
    EXPECT_TRUE(has(settings, "only_eng"));
    EXPECT_FALSE(has(settings, "only_kr"));
    EXPECT_NE(show("settings"), settings);
}

TEST_F(LanguageChangeTest, wayBackAndForthBetweenTheLanguages)
{
    show("home");
    for (int i = 0; i < 5; ++i) {
        show("settings");
        ZELChildWindow* const spared = frame().getCurrentWindow();
        frame().changeLocale(i % 2 ? "" : "kr", "settings");
        spared->deleteLater();
        EventLoop::deliverAndDelete();
        EXPECT_GT(onScreen(i % 2 ? Qt::red : Qt::blue), 800 * 480 - 10000) << i;
        EXPECT_EQ(frame().history(), Strings{"home"}) << i;
        EXPECT_EQ(frame().children().count(frame().getCurrentWindow()), 1);
    }
}

TEST_F(LanguageChangeTest, theSameLanguageAgainRebuildsTheSame)
{
    ZELChildWindow* const home = show("home");
    const QPointer<QObject> before = home;
    show("settings");
    frame().changeLocale("", "settings");
    EXPECT_TRUE(before.isNull());
    EXPECT_TRUE(has(frame().getCurrentWindow(), "only_eng"));
    EXPECT_GT(onScreen(Qt::red), 800 * 480 - 10000);
}

// ---- pages that outlive the change hold pictures of the old language

TEST_F(LanguageChangeTest, theHiddenMainPageShowsNothingOrTheNewPictures)
{
    frame().setHiddenMainWindowID("hidden");
    frame().m_bMoveToHiddenMain = true;
    ZELChildWindow* const hidden = show("hidden");
    show("settings");
    frame().changeLocale("kr", "settings");
    EXPECT_EQ(frame().getCurrentWindow(), hidden);
    EXPECT_EQ(onScreen(Qt::red), 0) << "the old pixels are gone";
    EXPECT_EQ(onScreen(Qt::blue), 0) << "nobody asked for the new ones yet";
    EXPECT_EQ(onScreen(Qt::green), 0);

    show("home"); // asks for the same names
    EXPECT_EQ(frame().moveBack(true), hidden);
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
    EXPECT_EQ(onScreen(Qt::green), 400);
    EXPECT_EQ(onScreen(Qt::red), 0);
}

TEST_F(LanguageChangeTest, onTheFirstPageThereIsNoWayBackAndItStays)
{
    ZELChildWindow* const home = show("home");
    log().expectError("[moveBackEx] nIndex (1) < 2", 1, "ZELMainFrame");
    onTouch = [this] { frame().changeLocale("kr", "home"); };
    touch();
    EXPECT_EQ(frame().getCurrentWindow(), home);
    EXPECT_TRUE(home->isVisible());
    EXPECT_EQ(onScreen(Qt::red), 0);
    EXPECT_EQ(onScreen(Qt::yellow), 0) << "texts keep the style they have";

    onTouch = nullptr;
    EXPECT_NE(show("home"), home);
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
    EXPECT_FALSE(home->isVisible());
    EXPECT_EQ(frame().history(), (Strings{"home", "home"}));
}

TEST_F(LanguageChangeTest, thePageOnScreenMayBeDeletedLater)
{
    const QPointer<QWidget> home = show("home");
    log().expectError("[moveBackEx] nIndex (1) < 2", 1, "ZELMainFrame");
    onTouch = [&] {
        frame().changeLocale("kr", "home");
        home->deleteLater();
    };
    touch();
    EventLoop::deliverAndDelete();
    EXPECT_TRUE(home.isNull());
    EXPECT_EQ(onScreen(Qt::black), 800 * 480);
    EXPECT_EQ(frame().getCurrentWindow(), nullptr);
    onTouch = nullptr;
    EXPECT_NE(show("home"), nullptr);
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
}

TEST_F(LanguageChangeTest, withoutAnyPageOnlyTheResourcesChange)
{
    log().expectError("[moveBackEx] nIndex (0) < 2", 1, "ZELMainFrame");
    frame().changeLocale("kr", "home");
    show("home");
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
}

TEST_F(LanguageChangeTest, aLanguageWithoutLayoutsGivesBlackPages)
{
    show("home");
    show("settings");
    // the page writes no line about its background, because it never gets that far
    frame().addPage("home", [this](const std::string& asked) {
        return new ApplicationPage(asked, &frame(), [](ZELEvent&) {});
    });
    const std::string path = "/app/bin/resource/por/layout/home.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path, 1, "ZELLayout");
    log().expectError("[ZELChildWindow] Layout load failed: " + path, 1, "ZELChildWindow");
    frame().changeLocale("por", "settings");
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "home");
    EXPECT_EQ(onScreen(Qt::black), 800 * 480);
}

TEST_F(LanguageChangeTest, anyOtherCurrentPageThanTheNamedOneDies)
{
    show("home");
    const QPointer<QWidget> settings = show("settings");
    log().expectError("[removeAllChildWnd] deletes the current window settings", 1, "ZELMainFrame");
    frame().changeLocale("kr", "home");
    EXPECT_TRUE(settings.isNull());
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "home");
    EXPECT_GT(onScreen(Qt::blue), 800 * 480 - 10000);
}

} // namespace

#include "windows/ZELPopupWindow.h"

#include "common/tamfx/Exception.h"
#include "common/tamfx/Node.h"
#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "components/support/InOnePlace.h"
#include "support/FrameForTest.h"
#include "support/LibraryFaults.h"
#include "support/Pixels.h"
#include "support/VirtualSlot.h"
#include "windows/PopupTest.h"

#include <QPointer>
#include <QScreen>

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageButton;
using Windows::ZELPopupWindow;

namespace {

class ZELPopupWindowTest : public PopupTest
{
};

} // namespace

TEST_F(ZELPopupWindowTest, isAWindowOfTheLibraryFirstAndADialogSecond)
{
    const auto shown = dialog();
    EXPECT_EQ(static_cast<void*>(static_cast<Windows::ZELWindow*>(shown.get())),
              static_cast<void*>(shown.get()));
    EXPECT_NE(static_cast<void*>(static_cast<QDialog*>(shown.get())),
              static_cast<void*>(shown.get()));
    EXPECT_EQ(shown->m_strID, "ask");
    EXPECT_EQ(shown->m_logger.m_strIdentity, "QTPANFx ZELPopupWindow ");
}

TEST_F(ZELPopupWindowTest, startsWithItsDefaults)
{
    const auto shown = dialog();
    EXPECT_EQ(shown->m_nPopupResult, -1);
    EXPECT_TRUE(shown->m_bSoundPlay);
    EXPECT_FALSE(shown->m_bLoopMode);
    EXPECT_FALSE(shown->m_eventLoop->isRunning());
    EXPECT_EQ(shown->m_eventLoop->parent(), nullptr);
    EXPECT_EQ(shown->getPopupTag(), "");
    EXPECT_TRUE(shown->m_dqSubComponents.empty());
}

TEST_F(ZELPopupWindowTest, fillsThePanelWithoutAFrame)
{
    const auto shown = dialog("", &panel());
    EXPECT_EQ(shown->parent(), &panel());
    EXPECT_TRUE(shown->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(shown->isWindow());
    EXPECT_EQ(shown->geometry(), QRect(0, 0, 800, 480));
    EXPECT_TRUE(shown->testAttribute(Qt::WA_NoSystemBackground));
    EXPECT_EQ(shown->palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(shown->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_FALSE(shown->isVisible());
    EXPECT_FALSE(shown->isModal());
}

TEST_F(ZELPopupWindowTest, paintsNoBackgroundOfItsOwn)
{
    const auto shown = dialog();
    shown->show();
    EventLoop::deliver();
    EXPECT_EQ(shown->geometry(), QRect(0, 0, 800, 480)) << "it is not moved when shown";
    EXPECT_EQ(shown->grab().toImage().pixelColor(400, 240).alpha(), 0);
}

TEST_F(ZELPopupWindowTest, buildsItsComponentsAndShowsThemWithIt)
{
    writePicture("up.png", 20, 20, Qt::green);
    const auto shown = dialog(button("yes"));
    ZELComponent* const yes = shown->getSubComponent("yes");
    ASSERT_NE(yes, nullptr);
    EXPECT_EQ(yes->m_strType, "ZELImageButton");
    EXPECT_EQ(yes->getQWidget()->parentWidget(), shown.get());
    EXPECT_FALSE(yes->getQWidget()->isVisible());
    // a dialog that is shown takes children along that nobody has shown
    EXPECT_TRUE(yes->getQWidget()->testAttribute(Qt::WA_WState_ExplicitShowHide));
    shown->show();
    EXPECT_TRUE(yes->getQWidget()->isVisible());
}

TEST_F(ZELPopupWindowTest, showsItsBackgroundBehindItsComponents)
{
    writePicture("bg.png", 800, 480, Qt::blue);
    writePicture("up.png", 20, 20, Qt::green);
    writeLayout("ask", "<layout><Base><background>bg.png</background></Base><Components>" +
                           button("yes") + "</Components></layout>");
    expectBackgroundLines();
    Dialog shown("ask", nullptr);
    ASSERT_EQ(shown.m_dqSubComponents.size(), 2u);
    EXPECT_EQ(shown.m_dqSubComponents.front()->m_strID, "background");
    shown.show();
    const QImage seen = Pixels::grab(&shown);
    EXPECT_EQ(Pixels::count(seen, Qt::green), 80 * 40);
    EXPECT_EQ(Pixels::count(seen, Qt::blue), 800 * 480 - 80 * 40);
}

TEST_F(ZELPopupWindowTest, aBackgroundThatIsNotThereIsTold)
{
    writeLayout("ask",
                "<layout><Base><background>no.png</background></Base><Components/></layout>");
    log().expectError("[createBackgroundSubComponent] cannot load image: no.png", 1,
                      "ZELPopupWindow");
    const Dialog shown("ask", nullptr);
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
}

TEST_F(ZELPopupWindowTest, takesItsLayoutFromTheLanguage)
{
    writeConfig("kr", resources);
    writeStyle("<style><Font/></style>", "kr");
    writeLayout("ask", "<layout><Components><button><kr/></button></Components></layout>", "kr");
    expectNoBackgroundLines(3); // and a button without two pictures
    Dialog shown("ask", nullptr);
    EXPECT_NE(shown.getSubComponent("kr"), nullptr);
}

TEST_F(ZELPopupWindowTest, aMissingLayoutGivesAnEmptyDialogThatStillRuns)
{
    const std::string path = resources + "/layout/nosuch.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path, 1, "ZELLayout");
    log().expectError("[ZELPopupWindow] Layout load failed: " + path, 1, "ZELPopupWindow");
    Dialog shown("nosuch", nullptr);
    EXPECT_EQ(log().countLevel('E'), 2) << "and no line of a part that is missing then";
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
    inTheLoop([&] { shown.accept(); });
    EXPECT_EQ(shown.exec(), -1);
}

TEST_F(ZELPopupWindowTest, tellsWhatItCannotBuild)
{
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)", 1,
                      "ZELPopupWindow");
    const auto shown = dialog("<nosuch><x/></nosuch>");
    EXPECT_TRUE(shown->m_dqSubComponents.empty());
}

TEST_F(ZELPopupWindowTest, buildsWhatComesBehindAFailure)
{
    writePicture("up.png", 20, 20, Qt::green);
    for (const char* const id : {"x", "z"})
        log().expectError("[createSubComponent] Fail to create a component (nosuch, " +
                              std::string(id) + ")",
                          1, "ZELPopupWindow");
    const auto shown = dialog("<nosuch><x/><z/></nosuch>" + button("yes") + button("no"));
    ASSERT_EQ(shown->m_dqSubComponents.size(), 2u);
    EXPECT_EQ(shown->m_dqSubComponents[0]->m_strID, "yes");
    EXPECT_EQ(shown->m_dqSubComponents[1]->m_strID, "no");
}

TEST_F(ZELPopupWindowTest, whatLiesWhereADeletedComponentWasIsNotTouched)
{
    const auto shown = dialog();
    const auto make = [&](QWidget* parent) {
        return new InOnePlace<ZELImageButton>(
            parent, "yes", "ZELImageButton",
            element("<yes><image up='up.png' down='up.png'/></yes>"));
    };
    writePicture("up.png", 20, 20, Qt::green);
    shown->m_dqSubComponents.push_back(make(shown.get()));
    EXPECT_NE(shown->getSubComponent("yes"), nullptr);
    delete shown->getSubComponent("yes");
    log().expectError("[getSubComponent] Fail to get component (yes)", 2, "ZELPopupWindow");
    EXPECT_EQ(shown->getSubComponent("yes"), nullptr);
    const std::unique_ptr<ZELImageButton> other(make(&panel()));
    ASSERT_EQ(shown->m_dqSubComponents[0], other.get());
    shown->showSubComponent();
    EXPECT_TRUE(other->isHidden());
    EXPECT_EQ(shown->getSubComponent("yes"), nullptr);
}

TEST_F(ZELPopupWindowTest, findsAndShowsAComponentThatWasMovedOrMadeAWindow)
{
    const auto shown = dialog(button("yes") + button("no"));
    auto* const yes = shown->getSubComponent("yes")->getQWidget();
    auto* const no = shown->getSubComponent("no")->getQWidget();
    yes->setParent(&panel());
    no->setWindowFlags(Qt::Tool);
    EXPECT_EQ(shown->getSubComponent("yes")->getQWidget(), yes);
    EXPECT_EQ(shown->getSubComponent("no")->getQWidget(), no);
    shown->showSubComponent();
    EXPECT_FALSE(yes->isHidden());
    EXPECT_FALSE(no->isHidden());
}

TEST_F(ZELPopupWindowTest, tellsThatTheSectionIsMissing)
{
    writeLayout("ask", "<layout/>");
    expectNoBackgroundLines();
    log().expectError("[createSubComponent] There is not <Components> tag in the ask.resource file",
                      1, "ZELPopupWindow");
    const Dialog shown("ask", nullptr);
}

TEST_F(ZELPopupWindowTest, tellsWhichComponentIsMissing)
{
    const auto shown = dialog();
    log().expectError("[getSubComponent] Fail to get component (no)", 1, "ZELPopupWindow");
    EXPECT_EQ(shown->getSubComponent("no"), nullptr);
}

TEST_F(ZELPopupWindowTest, faultsOfTheFoundationPassToTheCaller)
{
    writeLayout("ask", "<layout><Components/></layout>");
    static TAMFx::Common::Exception fault("broken");
    LibraryFaults faults;
    faults.onLoad = [](const std::string& path) {
        if (path.find("ask.resource") != std::string::npos)
            throw &fault;
    };
    EXPECT_THROW(Dialog("ask", nullptr), TAMFx::Common::Exception*);
    faults.onLoad = nullptr;
    faults.onCreate = [](const std::string&, const std::string&) { throw std::out_of_range("x"); };
    writeLayout("ask", "<layout><Components><button><b/></button></Components></layout>");
    expectNoBackgroundLines();
    EXPECT_THROW(Dialog("ask", nullptr), std::out_of_range);
}

TEST_F(ZELPopupWindowTest, aBrokenLayoutIsToldAndGivesAnEmptyDialog)
{
    writeLayout("ask", "<layout><Components>");
    log().expectError(
        "[loadLayout] XmlException: ask.resource: line 1, column 20: Start-end tags mismatch", 1,
        "ZELLayout");
    log().expectError("[ZELPopupWindow] Layout load failed: " + resources + "/layout/ask.resource",
                      1, "ZELPopupWindow");
    const Dialog shown("ask", nullptr);
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
    EXPECT_EQ(log().countLevel('E'), 2) << "and no line of a part that is missing then";
}

TEST_F(ZELPopupWindowTest, keepsATagForTheApplication)
{
    const auto shown = dialog();
    shown->setPopupTag("which");
    EXPECT_EQ(shown->getPopupTag(), "which");
    EXPECT_EQ(shown->m_strPopupTag, "which");
}

TEST_F(ZELPopupWindowTest, hasItsOperationsBehindThoseOfAWindow)
{
    std::intptr_t place = slot(&Windows::ZELWindow::showSubComponent);
    EXPECT_EQ(slot(&ZELPopupWindow::activating), place += slotSize);
    EXPECT_EQ(slot(&ZELPopupWindow::accept), place += slotSize);
    EXPECT_EQ(slot(&ZELPopupWindow::reject), place += slotSize);
}

TEST_F(ZELPopupWindowTest, aDialogWithoutALayoutIsBlackOnTheScreen)
{
    const std::string path = resources + "/layout/nosuch.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path);
    log().expectError("[ZELPopupWindow] Layout load failed: " + path);
    for (int i = 0; i < 8; ++i) { // leaves memory behind that is full of white
        QWidget former;
        former.setPalette(Qt::white);
        former.resize(800, 480);
        former.show();
        EventLoop::deliver();
    }
    Dialog shown("nosuch", nullptr);
    shown.show();
    EventLoop::deliver();
    const QImage seen = shown.screen()->grabWindow(shown.winId()).toImage();
    ASSERT_EQ(seen.size(), QSize(800, 480));
    EXPECT_EQ(Pixels::count(seen, Qt::black), 800 * 480);
}

TEST_F(ZELPopupWindowTest, keepsItsLayoutForLife)
{
    const auto shown = dialog("<button/>");
    removeFile(resources + "layout/ask.resource");
    TAMFx::Common::Xml::Node* const components = shown->m_layout.getFirstNodebyName("Components");
    ASSERT_NE(components, nullptr);
    EXPECT_STREQ(components->getChildNode(0)->getName(), "button");
}

TEST_F(ZELPopupWindowTest, findsTheFirstOfEqualIds)
{
    writePicture("up.png", 20, 20, Qt::green);
    const auto shown = dialog(button("a") + button("yes") + button("yes"));
    ASSERT_EQ(shown->m_dqSubComponents.size(), 3u);
    EXPECT_EQ(shown->getSubComponent("yes"), shown->m_dqSubComponents[1]);
}

TEST_F(ZELPopupWindowTest, isNoneOfTheFramesPages)
{
    for (const char* page : {"main", "next"}) {
        writeLayout(page, "<layout><Components/></layout>");
        frame().addPage(page);
    }
    expectNoBackgroundLines(3); // one page is made anew
    frame().moveTo("main");
    const auto shown = dialog("", &frame());
    const QPointer<QWidget> alive(shown->window());
    frame().moveTo("next");
    EXPECT_EQ(frame().m_dqChildWindows.size(), 2u);
    EXPECT_EQ(frame().findChild("ask"), nullptr);
    frame().removeAllChildWnd("next");
    EventLoop::deliverAndDelete();
    EXPECT_FALSE(alive.isNull());
    EXPECT_EQ(shown->parent(), &frame());
}

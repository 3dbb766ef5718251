#include "windows/ZELChildWindow.h"

#include "components/ZELComponent.h"
#include "components/pictures/ZELImageBox.h"
#include "components/text/ZELLabel.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/JournalPage.h"
#include "support/Pixels.h"
#include "support/Touch.h"
#include "support/VirtualSlot.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPalette>
#include <QPointer>

#include <syslog.h>
#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

// an application's page that looks at what its bases hold
class FieldsPage : public ZELChildWindow
{
public:
    using ZELChildWindow::m_layout;
    using ZELChildWindow::ZELChildWindow;

    std::string identity() const { return m_logger.m_strIdentity; }
    std::string rootIdentity() const { return ZELWindow::m_logger.m_strIdentity; }
};

class ZELChildWindowTest : public PagesTest
{
protected:
    /** A page of the panel from this layout; the frame is left out. */
    std::unique_ptr<FieldsPage> page(const std::string& layout, const std::string& id = "page")
    {
        writeLayout(id, layout);
        return std::make_unique<FieldsPage>(id, nullptr, "");
    }

    /** A page without a background, with this in its Components section. */
    std::unique_ptr<FieldsPage> pageOf(const std::string& components)
    {
        expectNoBackgroundLines();
        return page("<layout><Components>" + components + "</Components></layout>");
    }

    static Strings ids(const ZELChildWindow& page)
    {
        Strings found;
        for (const ZELComponent* component : page.m_dqSubComponents)
            found.push_back(component->m_strID);
        return found;
    }
};

// ---- the shell

TEST_F(ZELChildWindowTest, hasItsVirtualOperationsInTheirFixedOrder)
{
    const std::intptr_t first = slot(&ZELChildWindow::activating);
    EXPECT_EQ(first, slot(&Windows::ZELWindow::showSubComponent) + slotSize);
    EXPECT_EQ(slot(&ZELChildWindow::activated), first + slotSize);
    EXPECT_EQ(slot(&ZELChildWindow::powerOffKeyReleased), first + 2 * slotSize);
    EXPECT_EQ(slot(&ZELChildWindow::CoverClose), first + 3 * slotSize);
    EXPECT_EQ(slot(&ZELChildWindow::CoverOpen), first + 4 * slotSize);
    EXPECT_EQ(slot(&ZELChildWindow::setSampleData), first + 5 * slotSize);
}

TEST_F(ZELChildWindowTest, isAWindowOfTheLibraryFirstAndAWidgetSecond)
{
    EXPECT_TRUE(std::is_abstract_v<Windows::ZELWindow>);
    const auto shown = pageOf("");
    EXPECT_EQ(static_cast<const void*>(static_cast<const Windows::ZELWindow*>(shown.get())),
              static_cast<const void*>(shown.get()));
    EXPECT_NE(static_cast<const void*>(static_cast<const QWidget*>(shown.get())),
              static_cast<const void*>(shown.get()));
}

TEST_F(ZELChildWindowTest, fillsThePanelBlackHiddenAndWithoutFlags)
{
    writeLayout("home", "<layout><Components/></layout>");
    expectNoBackgroundLines();
    const FieldsPage home("home", &frame(), "");
    EXPECT_EQ(home.parent(), &frame());
    EXPECT_EQ(home.windowFlags(), QWidget(&frame()).windowFlags()) << "none but Qt's own";
    EXPECT_EQ(home.geometry(), QRect(0, 0, 800, 480));
    EXPECT_EQ(home.palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(home.palette().color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(home.palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_FALSE(home.isVisible());
    EXPECT_TRUE(home.isEnabled());
    EXPECT_FALSE(home.autoFillBackground());
}

TEST_F(ZELChildWindowTest, keepsItsId)
{
    writeLayout("a b.c", "<layout><Components/></layout>");
    expectNoBackgroundLines();
    EXPECT_EQ(FieldsPage("a b.c", nullptr, "").m_strID, "a b.c");
}

TEST_F(ZELChildWindowTest, speaksUnderItsOwnNameAndItsRootUnderItsOwn)
{
    const auto built = pageOf("");
    EXPECT_EQ(built->identity(), "QTPANFx ZELChildWindow ");
    EXPECT_EQ(built->rootIdentity(), "QTPANFx ZELWindow      ");
}

TEST_F(ZELChildWindowTest, saysFirstOfAllWhatItIsMadeFrom)
{
    writeLayout("shared", "<layout><Components/></layout>");
    writeLayout("own", "<layout><Components/></layout>");
    expectNoBackgroundLines(2);
    log().startHere();
    {
        const FieldsPage page("first", nullptr, "shared");
        EXPECT_EQ(page.m_strResourceID, "shared");
    }
    const FieldsPage page("own", nullptr, "");
    EXPECT_EQ(page.m_strResourceID, "own") << "the id, where no resource is named";
    EXPECT_EQ(log().lines().front().text,
              "[I] [ZELChildWindow] start strID: (first), strResourceID: (shared)");
    EXPECT_EQ(log().lines().front().identity, "QTPANFx ZELChildWindow ");
    EXPECT_EQ(log().lines().front().priority, LOG_DEBUG);
    EXPECT_EQ(log().count("[I] [ZELChildWindow] start strID: (own), strResourceID: ()"), 1);
}

TEST_F(ZELChildWindowTest, theHooksDoNothingByThemselves)
{
    const auto built = pageOf("<label><l/></label>");
    log().startHere();
    built->activating();
    built->activated();
    built->powerOffKeyReleased();
    built->CoverClose();
    built->CoverOpen();
    built->setSampleData();
    EXPECT_EQ(log().texts(), Strings());
    EXPECT_EQ(ids(*built), Strings{"l"});
    EXPECT_FALSE(built->isVisible());
}

TEST_F(ZELChildWindowTest, handlesNoEventOfItsOwn)
{
    const auto built = pageOf("");
    built->show();
    EventLoop::deliver();
    log().startHere();
    Touch::tap(built.get());
    QEvent click(QEvent::Type(1552));
    EXPECT_TRUE(QCoreApplication::sendEvent(built.get(), &click));
    EXPECT_EQ(log().texts(), Strings());
}

// ---- where the layout lies

TEST_F(ZELChildWindowTest, theDefaultLanguageHasItsLayoutsBelowADoubledSlash)
{
    log().startHere();
    pageOf("");
    EXPECT_EQ(log().texts("ZELLayout"),
              Strings{"[D] [loadLayout] path: /app/bin/resource//layout/page.resource"});
}

TEST_F(ZELChildWindowTest, eachLanguageHasLayoutsOfItsOwn)
{
    writeConfig("kr", resources);
    writeLayout("page", "<layout><Components><label><l/></label></Components></layout>", "kr");
    expectNoBackgroundLines();
    const FieldsPage korean("page", nullptr, "");
    EXPECT_EQ(ids(korean), Strings{"l"});
    EXPECT_EQ(log().texts("ZELLayout"),
              Strings{"[D] [loadLayout] path: /app/bin/resource/kr/layout/page.resource"});
}

TEST_F(ZELChildWindowTest, thereIsNoFallBackToAnotherLanguage)
{
    writeConfig("kr", resources);
    writeLayout("page", "<layout><Components/></layout>");
    const std::string path = "/app/bin/resource/kr/layout/page.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path, 1, "ZELLayout");
    log().expectError("[ZELChildWindow] Layout load failed: " + path, 1, "ZELChildWindow");
    EXPECT_EQ(ids(FieldsPage("page", nullptr, "")), Strings());
}

TEST_F(ZELChildWindowTest, theResourceDirectoryComesFromTheConfiguration)
{
    writeConfig("", "/data/pages/");
    writeFile("/data/pages/default.style", "<style/>");
    writeFile("/data/pages/StringTable.Resource", "<table/>");
    writeFile("/data/pages/layout/page.resource",
              "<layout><Components><label><l/></label></Components></layout>");
    expectNoBackgroundLines();
    EXPECT_EQ(ids(FieldsPage("page", nullptr, "")), Strings{"l"});
    EXPECT_EQ(log().count("[D] [loadLayout] path: /data/pages//layout/page.resource"), 1);
}

TEST_F(ZELChildWindowTest, theNamedResourceIsLoadedAndNotTheOneOfTheId)
{
    writeLayout("id", "<layout><Components><label><wrong/></label></Components></layout>");
    writeLayout("resource", "<layout><Components><label><right/></label></Components></layout>");
    expectNoBackgroundLines(2);
    EXPECT_EQ(ids(FieldsPage("id", nullptr, "resource")), Strings{"right"});
    EXPECT_EQ(ids(FieldsPage("id", nullptr, "")), Strings{"wrong"});
}

TEST_F(ZELChildWindowTest, twoPagesShareALayoutAndNothingElse)
{
    writeLayout("shared", "<layout><Components><label><l/></label></Components></layout>");
    expectNoBackgroundLines(2);
    const FieldsPage first("first", nullptr, "shared");
    const FieldsPage second("second", nullptr, "shared");
    EXPECT_EQ(first.m_strResourceID, second.m_strResourceID);
    EXPECT_NE(first.m_dqSubComponents.front(), second.m_dqSubComponents.front());
}

// ---- the background

TEST_F(ZELChildWindowTest, theBackgroundIsTheFirstComponentAndLiesBelowTheOthers)
{
    writePicture("bg.png", 60, 40, Qt::blue);
    writePicture("dot.png", 10, 10, Qt::red);
    expectBackgroundLines();
    const auto built = page("<layout><Base><background>bg.png</background></Base><Components>"
                            "<imagebox><dot file='dot.png' x='20' y='10' width='10' height='10'/>"
                            "</imagebox></Components></layout>");
    EXPECT_EQ(ids(*built), (Strings{"background", "dot"}));
    auto* const box = dynamic_cast<Components::ZELImageBox*>(built->m_dqSubComponents.front());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->m_strType, "ZELImageBox");
    EXPECT_EQ(box->parentWidget(), built.get());
    EXPECT_EQ(box->geometry(), QRect(0, 0, 60, 40)) << "the size of its picture";
    EXPECT_FALSE(box->isHidden());

    built->show();
    const QImage image = built->grab().toImage();
    EXPECT_EQ(Pixels::count(image, Qt::blue, QRect(0, 0, 60, 40)), 60 * 40 - 100);
    EXPECT_EQ(Pixels::count(image, Qt::red, QRect(20, 10, 10, 10)), 100);
    EXPECT_EQ(Pixels::count(image, Qt::black), 800 * 480 - 60 * 40) << "black everywhere else";
}

TEST_F(ZELChildWindowTest, aPageIsBlackOnTheFrameToo)
{
    frame().addPage("page");
    pageOf("");
    expectNoBackgroundLines();
    frame().moveTo("page");
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::black), 800 * 480);
}

TEST_F(ZELChildWindowTest, theBackgroundBoxIsFoundByItsId)
{
    writePicture("bg.png", 800, 480, Qt::blue);
    expectBackgroundLines();
    const auto built =
        page("<layout><Base><background>bg.png</background></Base><Components/></layout>");
    EXPECT_EQ(built->getSubComponent("background"), built->m_dqSubComponents.front());
    EXPECT_EQ(log().count("[E] [setLayout] background pLayout == NULL", "ZELImageBox"), 1);
}

TEST_F(ZELChildWindowTest, withoutABaseThereIsNoBackgroundAndOneLine)
{
    log().startHere();
    const auto built = pageOf("");
    EXPECT_TRUE(built->m_dqSubComponents.empty());
    EXPECT_EQ(log().countLevel('E'), 1) << "of the image manager, announced";
    EXPECT_EQ(log().count("[D] [getBackgroundImageName] no background data"), 0);
}

TEST_F(ZELChildWindowTest, aBaseWithoutABackgroundSaysSo)
{
    expectNoBackgroundLines();
    EXPECT_TRUE(ids(*page("<layout><Base/><Components/></layout>")).empty());
    EXPECT_EQ(log().count("[D] [getBackgroundImageName] no background data", "ZELLayout"), 1);
}

TEST_F(ZELChildWindowTest, anEmptyBackgroundCostsTheSameLine)
{
    expectNoBackgroundLines();
    EXPECT_TRUE(ids(*page("<layout><Base><background/></Base><Components/></layout>")).empty());
    EXPECT_EQ(log().count("[D] [getBackgroundImageName] no background data"), 0);
}

TEST_F(ZELChildWindowTest, theBackgroundIsNamedByTheWholeText)
{
    writePicture("bg.png", 60, 40, Qt::blue);
    log().expectError("[createBackgroundSubComponent] cannot load image:  bg.png", 1,
                      "ZELChildWindow");
    EXPECT_TRUE(
        ids(*page("<layout><Base><background> bg.png</background></Base><Components/></layout>"))
            .empty());
}

TEST_F(ZELChildWindowTest, anApplicationMayAddBackgroundsOfItsOwn)
{
    writePicture("bg.png", 60, 40, Qt::blue);
    const auto built = pageOf("<label><l/></label>");
    expectBackgroundLines();
    built->createBackgroundSubComponent("bg.png");
    EXPECT_EQ(ids(*built), (Strings{"l", "background"}));
    expectNoBackgroundLines();
    built->createBackgroundSubComponent("");
    EXPECT_EQ(ids(*built), (Strings{"l", "background"}));
}

// ---- the walk

TEST_F(ZELChildWindowTest, buildsInTheOrderOfTheFileGroupByGroup)
{
    const auto built = pageOf("<label><a/><b/></label><imagebox><c file='' /></imagebox>"
                              "<label><d/></label>");
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    EXPECT_EQ(ids(*built), (Strings{"a", "b", "c", "d"}));
    EXPECT_NE(dynamic_cast<Components::ZELLabel*>(built->m_dqSubComponents[0]), nullptr);
    EXPECT_NE(dynamic_cast<Components::ZELImageBox*>(built->m_dqSubComponents[2]), nullptr);
    EXPECT_EQ(built->m_dqSubComponents[3]->m_strType, "ZELLabel");

    QList<QObject*> widgets;
    for (ZELComponent* component : built->m_dqSubComponents)
        widgets.append(component->getQWidget());
    EXPECT_EQ(built->children(), widgets) << "later ones lie above earlier ones";
}

TEST_F(ZELChildWindowTest, theComponentsAreVisibleAndThePageIsNot)
{
    const auto built = pageOf("<label><a><position width='10' height='10'/></a><b/></label>");
    for (ZELComponent* component : built->m_dqSubComponents) {
        EXPECT_FALSE(component->getQWidget()->isHidden());
        // by a call, not only because Qt shows what nobody hid
        EXPECT_TRUE(component->getQWidget()->testAttribute(Qt::WA_WState_ExplicitShowHide));
    }
    EXPECT_FALSE(built->isVisible());
    built->show();
    EXPECT_TRUE(built->m_dqSubComponents.front()->getQWidget()->isVisible());
}

TEST_F(ZELChildWindowTest, anEmptyGroupCreatesNothingAndLogsNothing)
{
    log().startHere();
    const auto built = pageOf("<label/><button></button><nosuchkeyword/>");
    EXPECT_TRUE(built->m_dqSubComponents.empty());
    EXPECT_EQ(log().texts("ZELChildWindow"),
              Strings{"[I] [ZELChildWindow] start strID: (page), strResourceID: ()"});
}

TEST_F(ZELChildWindowTest, theNameOfTheRootIsReadByNothing)
{
    expectNoBackgroundLines();
    EXPECT_EQ(ids(*page("<x><Components><label><l/></label></Components></x>")), Strings{"l"});
}

TEST_F(ZELChildWindowTest, onlyTheFirstComponentsSectionCounts)
{
    expectNoBackgroundLines();
    EXPECT_EQ(ids(*page("<layout><Components><label><a/></label></Components>"
                        "<Components><label><b/></label></Components></layout>")),
              Strings{"a"});
}

TEST_F(ZELChildWindowTest, buildsMoreComponentsFromAnyElement)
{
    const auto built = pageOf("<label><a/></label>");
    built->createSubComponent(element("<more><label><b/></label><imagebox><c/></imagebox></more>"));
    log().expectError("[setLayout]  no File", 1, "ZELImageBox");
    EXPECT_EQ(ids(*built), (Strings{"a", "b", "c"}));
    EXPECT_EQ(built->m_dqSubComponents[1]->getQWidget()->parentWidget(), built.get());
}

TEST_F(ZELChildWindowTest, componentsAddedToAPageOnScreenWaitToBeShown)
{
    const auto built = pageOf("<label><a/></label>");
    built->show();
    built->createSubComponent(element("<more><label><b/></label></more>"));
    EXPECT_TRUE(built->m_dqSubComponents.back()->getQWidget()->isHidden());
    built->showSubComponent();
    EXPECT_TRUE(built->m_dqSubComponents.back()->getQWidget()->isVisible());
}

TEST_F(ZELChildWindowTest, showSubComponentShowsEachInOrder)
{
    const auto built = pageOf("<label><a/><b/></label>");
    built->show();
    QList<QObject*> shown;
    class Watch : public QObject
    {
    public:
        explicit Watch(QList<QObject*>& shown)
            : m_shown(shown)
        {
        }
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Show)
                m_shown.append(watched);
            return false;
        }

    private:
        QList<QObject*>& m_shown;
    } watch(shown);
    QList<QObject*> widgets;
    for (ZELComponent* component : built->m_dqSubComponents) {
        component->hideWindow();
        component->getQWidget()->installEventFilter(&watch);
        widgets.append(component->getQWidget());
    }
    built->showSubComponent();
    EXPECT_EQ(shown, widgets);
}

TEST_F(ZELChildWindowTest, overridesOfADerivedPageAreNotReachedByTheConstructor)
{
    addPages({"a"});
    ZELChildWindow* const built = frame().getZELChildWindow("a");
    EXPECT_EQ(steps(), Strings{"create a"});
    built->createSubComponent(element("<more><label><b/></label></more>"));
    built->showSubComponent();
    EXPECT_EQ(steps(), (Strings{"createSubComponent a", "showSubComponent a"}));
}

TEST_F(ZELChildWindowTest, findsAndShowsAComponentThatWasMovedOrMadeAWindow)
{
    const auto built = pageOf("<label><a/><b/></label>");
    QWidget* const lifted = built->getSubComponent("a")->getQWidget();
    QWidget* const window = built->getSubComponent("b")->getQWidget();
    lifted->setParent(&panel());
    window->setWindowFlags(Qt::Tool);
    EXPECT_EQ(built->getSubComponent("a")->getQWidget(), lifted);
    EXPECT_EQ(built->getSubComponent("b")->getQWidget(), window);
    built->showSubComponent();
    EXPECT_FALSE(lifted->isHidden());
    EXPECT_FALSE(window->isHidden());
}

TEST_F(ZELChildWindowTest, theLayoutStaysForTheLifeOfThePage)
{
    const auto built = pageOf("<label><a/></label>");
    removeFile(resources + "/layout/page.resource");
    TAMFx::Common::Xml::Node* const section = built->m_layout.getFirstNodebyName("Components");
    ASSERT_NE(section, nullptr);
    built->createSubComponent(section);
    EXPECT_EQ(ids(*built), (Strings{"a", "a"}));
}

// ---- looking up

TEST_F(ZELChildWindowTest, findsTheFirstComponentOfAnId)
{
    const auto built = pageOf("<label><twin/><other/></label><imagebox><twin/></imagebox>");
    log().expectError("[setLayout]  no File", 1, "ZELImageBox");
    EXPECT_EQ(built->getSubComponent("twin"), built->m_dqSubComponents[0]);
    EXPECT_EQ(built->getSubComponent("other"), built->m_dqSubComponents[1]);
    EXPECT_EQ(built->m_dqSubComponents.size(), 3u);
}

TEST_F(ZELChildWindowTest, saysWhichComponentIsNotThere)
{
    const auto built = pageOf("<label><a/></label>");
    log().expectError("[getSubComponent] There is not a SubComponent of the name A", 1,
                      "ZELChildWindow");
    EXPECT_EQ(built->getSubComponent("A"), nullptr) << "ids are compared exactly";
    log().expectError("[getSubComponent] There is not a SubComponent of the name ", 1,
                      "ZELChildWindow");
    EXPECT_EQ(built->getSubComponent(""), nullptr);
    log().expectError("[getSubComponent] There is not a SubComponent of the name background", 1,
                      "ZELChildWindow");
    EXPECT_EQ(built->getSubComponent("background"), nullptr);
}

TEST_F(ZELChildWindowTest, looksAtTheTopLevelOnly)
{
    const auto built = pageOf("<label><outer><label><inner/></label></outer></label>");
    EXPECT_EQ(ids(*built), Strings{"outer"}) << "a label builds nothing inside itself";
    log().expectError("[getSubComponent] There is not a SubComponent of the name inner", 1,
                      "ZELChildWindow");
    EXPECT_EQ(built->getSubComponent("inner"), nullptr);
}

// ---- the end

TEST_F(ZELChildWindowTest, theComponentsDieWithThePage)
{
    writePicture("bg.png", 60, 40, Qt::blue);
    expectBackgroundLines();
    auto built = page("<layout><Base><background>bg.png</background></Base><Components>"
                      "<label><l/></label></Components></layout>");
    QPixmap* const picture = Resource::ZELResourceMgr::getInstance()->getImage("bg.png");
    std::vector<QPointer<QWidget>> widgets;
    for (ZELComponent* component : built->m_dqSubComponents)
        widgets.emplace_back(component->getQWidget());
    ASSERT_EQ(widgets.size(), 2u);
    built.reset();
    for (const QPointer<QWidget>& widget : widgets)
        EXPECT_TRUE(widget.isNull());
    EXPECT_EQ(picture->size(), QSize(60, 40)) << "pictures belong to their manager";
}

TEST_F(ZELChildWindowTest, diesThroughAnyOfItsBases)
{
    writeLayout("page", "<layout><Components><label><l/></label></Components></layout>");
    expectNoBackgroundLines(2);
    auto* const first = new FieldsPage("page", nullptr, "");
    const QPointer<QWidget> label = first->m_dqSubComponents.front()->getQWidget();
    delete static_cast<Windows::ZELWindow*>(first);
    EXPECT_TRUE(label.isNull());

    auto* const second = new FieldsPage("page", nullptr, "");
    const QPointer<QWidget> another = second->m_dqSubComponents.front()->getQWidget();
    delete static_cast<QObject*>(second);
    EXPECT_TRUE(another.isNull());
}

} // namespace

#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"
#include "windows/ZELChildWindow.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimerEvent>

#include <algorithm>
#include <random>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageButton;
using Components::ZELRadioButton;
using Components::ZELRadioGroup;
using Windows::ZELChildWindow;

namespace {

constexpr int actions = 10000;

// what the protected side of a button tells: a derived class may name it, and so reads it
class Inside : public ZELImageButton
{
public:
    static bool pressed(const ZELImageButton& button) { return button.*&Inside::m_bPressed; }
    static bool dimmed(const ZELImageButton& button) { return button.*&Inside::m_bDimMode; }
    static bool showsDown(const ZELImageButton& button)
    {
        return button.*&Inside::m_pCurImage == button.*&Inside::m_pDownImage;
    }
    static QObject* timer(const ZELImageButton& button) { return button.*&Inside::m_pTimer; }
};

// Counts the releases that buttons of a page take and the clicks that reach the page.
class Traffic : public QObject
{
public:
    void watch(ZELChildWindow& page)
    {
        page.installEventFilter(this);
        for (QWidget* widget : page.findChildren<QWidget*>())
            widget->installEventFilter(this);
    }

    int releases = 0;
    int clicks = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == EVENT_MOUSE_UP)
            clicks += dynamic_cast<ZELChildWindow*>(watched) ? 1 : 0;
        else if (event->type() == QEvent::MouseButtonRelease) {
            auto* const button = dynamic_cast<ZELImageButton*>(watched);
            releases += button && button->isEnabled() ? 1 : 0;
        }
        return false;
    }
};

// Pages full of buttons of all kinds in two languages, and a hand that knows no rest.
class TouchStormTest : public PanelTest
{
protected:
    TouchStormTest()
    {
        for (const char* locale : {"", "kr"}) {
            writePicture("up.png", 60, 30, Qt::green, locale);
            writePicture("down.png", 60, 30, Qt::blue, locale);
            writePicture("dim.png", 60, 30, Qt::yellow, locale);
            for (const char* id : {"p0", "p1", "p2", "p3"})
                writeLayout(id, pageLayout(), locale);
        }
        writeStyle("<style><Font>"
                   "<normal size='14' family='DejaVu Sans Mono' color='000000'/></Font></style>",
                   "kr");
        for (const char* id : {"p0", "p1", "p2", "p3"})
            addPage(id);
    }

    void addPage(const std::string& id)
    {
        frame().addPage(id, [this](const std::string& asked) {
            expectNoBackgroundLines();
            auto* const page = new ZELChildWindow(asked, &frame(), "");
            m_traffic.watch(*page);
            return page;
        });
    }

    static std::string element(const std::string& id, int x, int y, const std::string& attributes)
    {
        return "<" + id + " " + attributes +
               "><image up='up.png' down='down.png' dim='dim.png'/><position x='" +
               std::to_string(x) + "' y='" + std::to_string(y) + "' width='90' height='50'/></" +
               id + ">";
    }

    static std::string pageLayout()
    {
        const std::string push = "title='OK' style='normal' animation='elastic_push' ";
        std::string components;
        int y = 0;
        for (const char* keyword : {"button", "checkbutton", "iconcheckbutton", "radiobutton"}) {
            const std::string id = keyword;
            components += "<" + id + ">" + element(id + "1", 0, y, "") +
                          element(id + "2", 100, y, "longpress='true'") +
                          element(id + "3", 200, y, push + "longpress='true'") + "</" + id + ">";
            y += 60;
        }
        components += "<radiogroup><group><position x='0' y='300' width='400' height='60'/>"
                      "<radiobutton>" +
                      element("a", 0, 0, "") + element("b", 100, 0, "longpress='true'") +
                      element("c", 200, 0, push) + "</radiobutton></group></radiogroup>";
        return "<layout><Components>" + components + "</Components></layout>";
    }

    static void collect(const std::deque<ZELComponent*>& components,
                        std::vector<ZELImageButton*>& found)
    {
        for (ZELComponent* component : components) {
            if (auto* const button = dynamic_cast<ZELImageButton*>(component))
                found.push_back(button);
            collect(component->m_dqSubComponents, found);
        }
    }

    std::vector<ZELImageButton*> buttons()
    {
        std::vector<ZELImageButton*> found;
        collect(page()->m_dqSubComponents, found);
        return found;
    }

    ZELChildWindow* page() { return frame().m_pCurrentWindow; }

    int any(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    ZELImageButton* anyButton()
    {
        const std::vector<ZELImageButton*> all = buttons();
        return all[static_cast<size_t>(any(static_cast<int>(all.size())))];
    }

    void press(ZELImageButton* button)
    {
        lift(); // there is one finger
        Touch::pressWindow(&frame(), Touch::middleInWindow(button));
        m_down = true;
    }

    // the finger leaves the panel, over whatever is there
    void lift()
    {
        if (m_down)
            Touch::releaseWindow(&frame(), QPoint(any(800), any(480)));
        m_down = false;
    }

    static void queueTick(ZELImageButton* button)
    {
        QTimerEvent round(1);
        QCoreApplication::sendEvent(Inside::timer(*button), &round);
    }

    void hold()
    {
        ZELImageButton* const button = anyButton();
        press(button);
        for (int ticks = any(7); ticks > 0; --ticks) {
            queueTick(button);
            if (any(2) == 0)
                EventLoop::deliver();
        }
    }

    void hideHeld()
    {
        ZELImageButton* const button = anyButton();
        press(button);
        const bool held = Inside::pressed(*button);
        button->hide();
        EXPECT_FALSE(Inside::pressed(*button)) << button->m_strID;
        m_droppedByHiding += held ? 1 : 0;
        if (any(2) == 0)
            lift();
        button->show();
    }

    void dim(bool held)
    {
        ZELImageButton* const button = anyButton();
        if (held)
            press(button);
        const bool on = any(2) == 0;
        if (on && Inside::pressed(*button))
            m_dimmedWhileHeld.push_back({button, button}); // its release goes past it
        button->setDimMode(on);
    }

    // those that died or were touched again since are like the others
    void forgetTheReleased()
    {
        m_dimmedWhileHeld.erase(std::remove_if(m_dimmedWhileHeld.begin(), m_dimmedWhileHeld.end(),
                                               [](const Dimmed& dimmed) {
                                                   return !dimmed.widget ||
                                                          !Inside::pressed(*dimmed.button);
                                               }),
                                m_dimmedWhileHeld.end());
    }

    void expectNoneHeld(int action)
    {
        lift();
        EventLoop::deliverAndDelete();
        EXPECT_EQ(m_traffic.clicks, m_traffic.releases) << action << " one click for each";
        expectOneCheckedAtMost(action);
        forgetTheReleased();
        for (const ZELImageButton* button : buttons()) {
            const auto isIt = [&](const Dimmed& dimmed) { return dimmed.button == button; };
            if (std::any_of(m_dimmedWhileHeld.begin(), m_dimmedWhileHeld.end(), isIt))
                continue;
            EXPECT_FALSE(Inside::pressed(*button)) << action << " " << button->m_strID;
            EXPECT_FALSE(Inside::showsDown(*button)) << action << " " << button->m_strID;
            EXPECT_TRUE(button->isVisible()) << action << " " << button->m_strID;
            ++m_lookedAt;
        }
    }

    void expectOneCheckedAtMost(int action)
    {
        auto* const group = dynamic_cast<ZELRadioGroup*>(page()->getSubComponent("group"));
        ASSERT_NE(group, nullptr);
        std::string checked;
        for (const char* id : {"a", "b", "c"}) {
            if (static_cast<ZELRadioButton*>(group->getSubComponent(id))->m_bChecked)
                checked += id;
        }
        EXPECT_LE(checked.size(), 1u) << action << " " << checked;
        m_checkedGroups += checked.empty() ? 0 : 1;
    }

    void move() { frame().moveTo("p" + std::to_string(any(4)), true, any(2) == 0); }

    // every page but the one on screen goes, the one that was just left among them, with what is
    // on its way to it; an application deletes the page that the frame forgets
    void changeLanguage()
    {
        ZELImageButton* const held = anyButton();
        press(held);
        queueTick(held);
        if (any(2) == 0)
            move();
        m_korean = !m_korean;
        ++m_languages;
        const QPointer<ZELChildWindow> named(page());
        frame().changeLocale(m_korean ? "kr" : "", page()->m_strID);
        ASSERT_NE(page(), nullptr);
        if (named && named != page())
            named->deleteLater();
    }

    // a page of its own that dies with a press, ticks and a click on the way
    void deletePage()
    {
        expectNoBackgroundLines();
        auto own = std::make_unique<ZELChildWindow>("p0", nullptr, "");
        std::vector<ZELImageButton*> all;
        collect(own->m_dqSubComponents, all);
        ZELImageButton* const button = all[static_cast<size_t>(any(static_cast<int>(all.size())))];
        Touch::press(button);
        queueTick(button);
        if (any(2) == 0)
            Touch::release(button);
        own.reset();
    }

    void act()
    {
        const int choice = any(100);
        if (choice < 35)
            press(anyButton());
        else if (choice < 60)
            lift();
        else if (choice < 75)
            hold();
        else if (choice < 82)
            hideHeld();
        else if (choice < 88)
            dim(true);
        else if (choice < 94)
            dim(false);
        else if (choice < 98)
            move();
        else if (choice < 99)
            deletePage();
        else
            changeLanguage();
        if (any(3) == 0)
            EventLoop::deliverAndDelete();
    }

    std::mt19937 m_random{20190703};
    bool m_down = false;
    bool m_korean = false;
    int m_presses = 0;
    int m_lookedAt = 0;
    int m_languages = 0;
    int m_droppedByHiding = 0;
    int m_checkedGroups = 0;

    struct Dimmed
    {
        QPointer<QWidget> widget; ///< whether the button is still there
        ZELImageButton* button;
    };
    std::vector<Dimmed> m_dimmedWhileHeld;
    Traffic m_traffic;
};

} // namespace

TEST_F(TouchStormTest, tenThousandTouchesLeaveNoButtonPressed)
{
    frame().moveTo("p0", true, true);
    frame().moveTo("p1", true, true);
    EventLoop::deliver();
    ASSERT_EQ(buttons().size(), 15u);
    for (int i = 0; i < actions; ++i) {
        act();
        ASSERT_NE(page(), nullptr) << i;
        ASSERT_EQ(buttons().size(), 15u) << i;
        m_presses += m_down ? 1 : 0;
        if (i % 100 == 99)
            expectNoneHeld(i);
    }
    expectNoneHeld(actions);
    EXPECT_GT(m_presses, actions / 10) << "the storm did touch";
    EXPECT_GT(m_lookedAt, 1000) << "and most buttons were fit to be looked at";
    EXPECT_GT(m_languages, 20);
    EXPECT_GT(m_traffic.clicks, 1000);
    EXPECT_GT(m_droppedByHiding, 100);
    EXPECT_GT(m_checkedGroups, 20);
    EXPECT_LT(m_dimmedWhileHeld.size(), 60u) << "no more than there are buttons";
}

TEST_F(TouchStormTest, aTouchRepaintsTheButtonAndNothingBesideIt)
{
    frame().moveTo("p0", true, true);
    EventLoop::deliver();
    auto* const group = dynamic_cast<ZELRadioGroup*>(page()->getSubComponent("group"));
    ASSERT_NE(group, nullptr);
    PaintCounter onPage(page());
    for (ZELImageButton* button : buttons()) {
        if (button->m_strID.find('3') != std::string::npos || button->m_strID == "c")
            continue;            // these move while held
        group->setSelectClear(); // or its release unchecks and repaints another one
        PaintCounter onButton(button);
        onPage.reset();
        onButton.reset();
        Touch::pressWindow(&frame(), Touch::middleInWindow(button));
        EventLoop::deliver();
        EXPECT_EQ(onButton.area(), 90 * 50) << button->m_strID;
        EXPECT_EQ(onButton.count(), 1) << button->m_strID;
        const QRect place(button->mapTo(page(), QPoint(0, 0)), button->size());
        EXPECT_TRUE(QRegion(onPage.region()).subtracted(place).isEmpty()) << button->m_strID;
        onPage.reset();
        onButton.reset();
        Touch::releaseWindow(&frame(), Touch::middleInWindow(button));
        EventLoop::deliver();
        EXPECT_TRUE(QRegion(onPage.region()).subtracted(place).isEmpty()) << button->m_strID;
        EXPECT_EQ(onButton.area(), 90 * 50) << button->m_strID;
        EXPECT_EQ(onButton.count(), 1) << button->m_strID;
    }
}

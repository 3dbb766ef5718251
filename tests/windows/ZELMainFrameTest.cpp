#include "windows/ZELMainFrame.h"

#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "support/EventLoop.h"
#include "support/JournalPage.h"
#include "support/Pixels.h"
#include "support/SystemFaults.h"
#include "support/VirtualSlot.h"

#include <QCoreApplication>
#include <QDate>
#include <QPalette>
#include <QTime>

#include <cerrno>
#include <regex>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <syslog.h>
#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

// an application's frame that looks at the fields which its own pages never see
class FieldsFrame : public FrameForTest
{
public:
    using ZELMainFrame::m_listReserved1;
    using ZELMainFrame::m_listReserved2;
    using ZELMainFrame::m_nReserved;
    using ZELMainFrame::m_strHiddenMainWindowID;
    using ZELMainFrame::m_strMainWindowID;
    using ZELMainFrame::m_strReserved;
};

class ZELMainFrameTest : public PagesTest
{
};

TEST_F(ZELMainFrameTest, isNothingToBuildByItself)
{
    EXPECT_TRUE(std::is_abstract_v<Windows::ZELMainFrame>);
    EXPECT_TRUE((std::is_base_of_v<QMainWindow, Windows::ZELMainFrame>));
}

TEST_F(ZELMainFrameTest, isAFramelessWindowThatFillsThePanel)
{
    const FieldsFrame frame;
    EXPECT_EQ(frame.parent(), nullptr);
    EXPECT_EQ(int(frame.windowFlags()), 0x3800 | 1); // Qt adds that it is a window
    EXPECT_EQ(frame.geometry(), QRect(0, 0, 800, 480));
    EXPECT_EQ(frame.minimumSize(), QSize(800, 480));
    EXPECT_EQ(frame.maximumSize(), QSize(800, 480));
    EXPECT_FALSE(frame.isVisible());
}

TEST_F(ZELMainFrameTest, hasOneVirtualOperationBehindThoseOfQt)
{
    class AnyWindow : public QMainWindow
    {
    public:
        virtual void next() {}
    };
    class AnyFrame : public Windows::ZELMainFrame
    {
    public:
        virtual void next() {}
    };
    const std::intptr_t first = slot(&AnyWindow::next);
    EXPECT_EQ(slot(&Windows::ZELMainFrame::createChildWindow), first);
    EXPECT_EQ(slot(&AnyFrame::next), first + slotSize);
}

TEST_F(ZELMainFrameTest, keepsItsSizeAndPlaceWhenItIsShown)
{
    frame().resize(100, 100);
    EventLoop::deliver();
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(frame().geometry(), QRect(0, 0, 800, 480));
}

TEST_F(ZELMainFrameTest, isBlack)
{
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        EXPECT_EQ(frame().palette().color(role), QColor(Qt::black)) << role;
    EXPECT_EQ(frame().palette().color(QPalette::WindowText), QColor(Qt::white));

    const QImage image = frame().grab().toImage();
    EXPECT_EQ(image.size(), QSize(800, 480));
    EXPECT_EQ(Pixels::count(image, Qt::black), 800 * 480);
}

TEST_F(ZELMainFrameTest, startsWithEmptyFields)
{
    FieldsFrame frame;
    EXPECT_EQ(frame.m_listWindowHistory.Count(), 0);
    EXPECT_EQ(frame.m_listReserved1.Count(), 0);
    EXPECT_EQ(frame.m_listReserved2.Count(), 0);
    EXPECT_EQ(frame.m_strReserved, "");
    EXPECT_EQ(frame.m_strMainWindowID, "");
    EXPECT_EQ(frame.m_strHiddenMainWindowID, "");
    EXPECT_EQ(frame.m_nReserved, 0);
    EXPECT_EQ(frame.m_pCurrentWindow, nullptr);
    EXPECT_TRUE(frame.m_dqChildWindows.empty());
    EXPECT_FALSE(frame.m_bMoveToHiddenMain);
    EXPECT_EQ(frame.getCurrentWindow(), nullptr);
    EXPECT_FALSE(lockHeld(frame));
}

TEST_F(ZELMainFrameTest, theIdsAreAssignedAsTheyCome)
{
    FieldsFrame frame;
    frame.setMainWindowID("home");
    frame.setHiddenMainWindowID("cellar");
    EXPECT_EQ(frame.m_strMainWindowID, "home");
    EXPECT_EQ(frame.m_strHiddenMainWindowID, "cellar");

    frame.setMainWindowID("");
    frame.setHiddenMainWindowID("");
    EXPECT_EQ(frame.m_strMainWindowID, "");
    EXPECT_EQ(frame.m_strHiddenMainWindowID, "");
    EXPECT_TRUE(frame.asked().empty()) << "naming a page makes none";
}

TEST_F(ZELMainFrameTest, opensTheLogWithABanner)
{
    log().startHere();
    const FieldsFrame frame;
    const std::vector<LogLine> lines = log().lines();
    ASSERT_EQ(lines.size(), 4u);
    const std::string rule(64, '=');
    EXPECT_EQ(lines[0].text, "[I] " + rule);
    EXPECT_EQ(lines[1].text,
              "[I] " + std::string(26, ' ') + "QTPANFx START" + std::string(33, ' '));
    EXPECT_EQ(lines[3].text, "[I] " + rule);
    for (const LogLine& line : lines) {
        EXPECT_EQ(line.identity, "QTPANFx ZELMainFrame   ");
        EXPECT_EQ(line.priority, LOG_DEBUG);
        EXPECT_EQ(line.option, LOG_CONS | LOG_NDELAY);
        EXPECT_EQ(line.facility, LOG_USER);
        EXPECT_TRUE(line.open);
    }
}

TEST_F(ZELMainFrameTest, theBannerTellsWhenTheLibraryWasBuilt)
{
    log().startHere();
    const FieldsFrame frame;
    const std::string line = log().texts("ZELMainFrame").at(2);
    const std::regex form(
        R"(\[I\]     Build: ([A-Z][a-z]{2}) ([ 123]\d) (\d{4}) (\d\d:\d\d:\d\d))");
    std::smatch part;
    ASSERT_TRUE(std::regex_match(line, part, form)) << line;

    const std::string months = "JanFebMarAprMayJunJulAugSepOctNovDec";
    const size_t month = months.find(part[1].str());
    ASSERT_EQ(month % 3, 0u) << line;
    const QDate date(std::stoi(part[3]), int(month / 3) + 1, std::stoi(part[2]));
    EXPECT_TRUE(date.isValid()) << line;
    EXPECT_GE(date.year(), 2019) << line;
    EXPECT_LE(date, QDate::currentDate().addDays(1)) << line;
    EXPECT_TRUE(
        QTime::fromString(QString::fromStdString(part[4]), QStringLiteral("hh:mm:ss")).isValid())
        << line;
}

TEST_F(ZELMainFrameTest, itsTimerWaitsForTheApplication)
{
    frame().recorder().listenAt(&frame());
    Components::Timer* const timer = frame().m_pTimer;
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->m_pOwner, &frame());
    EXPECT_EQ(timer->parent(), &frame());
    EXPECT_FALSE(timer->isActive());

    timer->start(1);
    EXPECT_TRUE(EventLoop::waitFor([this] { return !frame().recorder().events().empty(); }));
    timer->stop();
    const RecordedEvent tick = frame().recorder().take().front();
    EXPECT_EQ(tick.type, EVENT_TIMER);
    EXPECT_EQ(tick.sender, timer);
    EXPECT_EQ(tick.id, "");
}

TEST_F(ZELMainFrameTest, leavesEventsToQt)
{
    // Qt's main window takes what is posted to it, a window that swallowed events would not shrink
    QEvent ours(EVENT_WINDOW_ACTIVATE);
    EXPECT_TRUE(QCoreApplication::sendEvent(&frame(), &ours));
    QEvent unknown(QEvent::Type(900));
    EXPECT_FALSE(QCoreApplication::sendEvent(&frame(), &unknown));
    frame().close();
    EXPECT_FALSE(frame().isVisible());
}

TEST_F(ZELMainFrameTest, theWidgetsOwnMoveStaysWithinReach)
{
    frame().move(3, 4);
    EXPECT_EQ(frame().pos(), QPoint(3, 4));
    frame().move(QPoint(0, 0));
    EXPECT_EQ(frame().pos(), QPoint(0, 0));
}

TEST_F(ZELMainFrameTest, hasOneSemaphoreForAsLongAsItLives)
{
    // an id of 0 is never removed, so let somebody else have it
    const TAMFx::Util::System::CCriticalSection first;
    int id = -1;
    SystemFaults calls;
    {
        FieldsFrame frame;
        addPages(frame, {"a", "b"});
        frame.moveTo("a");
        frame.moveTo("b");
        id = frame.m_csNavigation.m_nSemID;
        ASSERT_GT(id, 0);
        EXPECT_EQ(semctl(id, 0, GETVAL), 0);
    }
    EXPECT_EQ(calls.count(SystemCall::Semget), 1) << "pages have none";
    EXPECT_EQ(semctl(id, 0, GETVAL), -1);
    EXPECT_TRUE(errno == EINVAL || errno == EIDRM) << errno;
}

TEST_F(ZELMainFrameTest, runsUnprotectedWhereTheSystemGivesNoSemaphore)
{
    SystemFaults system;
    system.fail(SystemCall::Semget, ENOSPC);
    FieldsFrame frame;
    addPages(frame, {"a", "b"});
    EXPECT_NE(frame.moveTo("a"), nullptr);
    EXPECT_NE(frame.moveTo("b"), nullptr);
    EXPECT_NE(frame.moveBack(), nullptr);
    EXPECT_EQ(frame.getCurrentWindow()->m_strID, "a");
}

TEST_F(ZELMainFrameTest, theTimerGoesFirstThenTheSemaphoreAndThePagesLast)
{
    const TAMFx::Util::System::CCriticalSection first;
    auto frame = std::make_unique<FieldsFrame>();
    addPages(*frame, {"a", "b"});
    frame->moveTo("a");
    frame->moveTo("b");
    const int id = frame->m_csNavigation.m_nSemID;
    std::string order;
    QObject::connect(frame->m_pTimer, &QObject::destroyed, [&] {
        order += semctl(id, 0, GETVAL) == 0 ? "timer, " : "timer after semaphore, ";
    });
    steps();
    at("delete a",
       [&] { order += semctl(id, 0, GETVAL) == -1 ? "page" : "page before semaphore"; });
    frame.reset();
    EXPECT_EQ(order, "timer, page");
    EXPECT_EQ(steps(), (std::vector<std::string>{"delete a", "delete b"}));
}

TEST_F(ZELMainFrameTest, aPageMadeWithoutTheFrameAsParentStaysBehind)
{
    std::unique_ptr<JournalPage> page;
    {
        FieldsFrame frame;
        frame.addPage("stray", [&](const std::string& id) {
            expectNoBackgroundLines();
            page = std::make_unique<JournalPage>(id, nullptr, "empty", sharedJournal());
            return page.get();
        });
        const Windows::ZELChildWindow* const shown = frame.moveTo("stray");
        EXPECT_EQ(shown, page.get());
        EXPECT_EQ(shown, frame.findChild("stray"));
    }
    EXPECT_EQ(page->m_strID, "stray");
    EXPECT_EQ(page->parent(), nullptr);
    steps();
    page.reset();
    EXPECT_EQ(steps().back(), "delete stray");
}

} // namespace

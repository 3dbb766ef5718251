#include "integration/ApplicationPage.h"
#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"

#include <QFont>
#include <QPixmap>

#include <set>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <unistd.h>

using namespace PANFx;
using namespace PANFx::Testing;
using Resource::ZELResourceMgr;
using Windows::ZELChildWindow;

namespace {

constexpr int many = 200;

// Pages come and go for months: nothing may pile up.
class PageLifeTest : public PanelTest
{
protected:
    void SetUp() override
    {
        for (const char* locale : {"", "kr"}) {
            writePicture("bg.png", 800, 480, Qt::blue, locale);
            writePicture("up.png", 100, 50, Qt::green, locale);
            for (const char* id : {"home", "settings"}) {
                writeLayout(id,
                            "<layout><Base><background>bg.png</background></Base><Components>"
                            "<label><l title='text' style='normal'/></label>"
                            "<button><b title='text' style='normal' animation='elastic_push' "
                            "longpress='true'><image up='up.png' down='up.png' dim='up.png'/></b>"
                            "</button><imagebox><i file='up.png' width='9' height='9'/></imagebox>"
                            "</Components></layout>",
                            locale);
            }
        }
        for (const char* id : {"home", "settings"}) {
            frame().addPage(id, [this](const std::string& asked) {
                expectBackgroundLines();
                return new ApplicationPage(asked, &frame(), [](ZELEvent&) {});
            });
        }
        frame().moveTo("home");
        frame().moveTo("settings");
        EventLoop::deliver();
    }

    /** All objects below the frame: pages, components, timers, animations. */
    int objects() { return int(frame().QObject::findChildren<QObject*>().size()); }

    /** Semaphores that this process was the last to touch, as "ipcs" would find them. */
    static int semaphores()
    {
        union {
            int val;
            semid_ds* buffer;
            seminfo* information;
        } argument{};
        seminfo information{};
        argument.information = &information;
        const int last = semctl(0, 0, SEM_INFO, argument);
        int found = 0;
        for (int i = 0; i <= last; ++i) {
            semid_ds data{};
            argument.buffer = &data;
            const int id = semctl(i, 0, SEM_STAT, argument);
            if (id >= 0 && semctl(id, 0, GETPID) == getpid())
                ++found;
        }
        return found;
    }

    /** The page on screen dies as a spared page does, and the one before it is made anew. */
    void changeLanguage(const std::string& locale)
    {
        ZELChildWindow* const page = frame().getCurrentWindow();
        frame().changeLocale(locale, page->m_strID);
        page->deleteLater();
        EventLoop::deliverAndDelete();
        frame().moveTo("settings");
        EventLoop::deliver();
    }
};

TEST_F(PageLifeTest, buildingAndDeletingPagesLeavesNoObjectBehind)
{
    const int before = objects();
    ASSERT_GT(before, 8) << "two pages with their components";
    const int semaphoresBefore = semaphores();
    for (int i = 0; i < many; ++i) {
        ZELChildWindow* const page = frame().getCurrentWindow();
        frame().removeAllChildWnd("settings");
        delete page;
        frame().moveTo("settings");
        ASSERT_EQ(objects(), before) << i;
    }
    EventLoop::deliverAndDelete();
    EXPECT_EQ(objects(), before);
    EXPECT_EQ(semaphores(), semaphoresBefore);
    EXPECT_EQ(frame().m_dqChildWindows.size(), 2u);
    EXPECT_EQ(frame().history().size(), 2u);
}

TEST_F(PageLifeTest, goingToAndFroLeavesNoObjectBehind)
{
    const int before = objects();
    for (int i = 0; i < many; ++i) {
        frame().moveTo("home");
        frame().moveBack();
        EventLoop::deliver();
    }
    EXPECT_EQ(objects(), before);
    EXPECT_EQ(frame().asked().size(), 2u) << "each page was made once";
    EXPECT_EQ(frame().history().size(), 2u);
}

TEST_F(PageLifeTest, changesOfLanguageLeaveNoObjectBehind)
{
    const int before = objects();
    const int semaphoresBefore = semaphores();
    EXPECT_GE(semaphoresBefore, 1) << "the frame's";
    for (int i = 0; i < many; ++i) {
        changeLanguage(i % 2 ? "" : "kr");
        ASSERT_EQ(objects(), before) << i;
    }
    EXPECT_EQ(semaphores(), semaphoresBefore);
}

TEST_F(PageLifeTest, aSparedPageThatNobodyDeletesStays)
{
    const int before = objects();
    const int onePage = before / 2;
    for (int i = 1; i <= 5; ++i) {
        frame().removeAllChildWnd("settings");
        frame().moveTo("settings");
        EventLoop::deliver();
        EXPECT_GE(objects(), before + i * (onePage - 1)) << i;
        EXPECT_EQ(frame().m_dqChildWindows.size(), 2u);
    }
}

TEST_F(PageLifeTest, thePicturesOfAllLanguagesShareOneObjectPerName)
{
    std::set<QPixmap*> backgrounds;
    std::set<QPixmap*> others;
    for (int i = 0; i < many; ++i) {
        changeLanguage(i % 2 ? "" : "kr");
        backgrounds.insert(ZELResourceMgr::getInstance()->getImage("bg.png"));
        others.insert(ZELResourceMgr::getInstance()->getImage("up.png"));
    }
    EXPECT_EQ(backgrounds.size(), 1u);
    EXPECT_EQ(others.size(), 1u);
    EXPECT_NE(*backgrounds.begin(), *others.begin());
    EXPECT_FALSE((*backgrounds.begin())->isNull());
}

TEST_F(PageLifeTest, theStylesOfEarlierLanguagesStayAlive)
{
    writeStyle("<style><Font><normal size='33' family='DejaVu Sans Mono'/></Font></style>", "kr");
    Resource::Font* const first = ZELResourceMgr::getInstance()->getFont("normal");
    std::set<Resource::Font*> styles = {first};
    for (int i = 0; i < 10; ++i) {
        changeLanguage(i % 2 ? "" : "kr");
        styles.insert(ZELResourceMgr::getInstance()->getFont("normal"));
    }
    EXPECT_EQ(styles.size(), 11u) << "a page of an earlier language may still paint with its own";
    EXPECT_EQ(first->m_pFont->pointSize(), 14);
}

TEST_F(PageLifeTest, framesGiveTheirSemaphoresBack)
{
    const int before = semaphores();
    for (int i = 0; i < many; ++i) {
        const FrameForTest another;
        ASSERT_EQ(semaphores(), before + 1) << i;
    }
    EXPECT_EQ(semaphores(), before);
}

} // namespace

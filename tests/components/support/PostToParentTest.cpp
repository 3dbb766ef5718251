// PostToParent is not exported: it is tested through the components that report touches.

#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "events/EventNumbers.h"
#include "resource/SoundBase.h"
#include "resource/SoundFactory.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Touch.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <map>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;

namespace {

// counts the events of each number that a widget gets, at the moment when it gets them
class Watch : public QObject
{
public:
    explicit Watch(QWidget* widget) { widget->installEventFilter(this); }

    int count(int type) const
    {
        const auto found = m_counts.find(type);
        return found == m_counts.end() ? 0 : found->second;
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        ++m_counts[event->type()];
        return false;
    }

private:
    std::map<int, int> m_counts;
};

// a back end that counts whatever it is asked to play
class CountedSound : public PANFx::Resource::SoundBase
{
public:
    void playSound(std::string /*sound*/, int /*first*/, int /*second*/) override { ++count; }
    void playSystemSound(std::string /*sound*/) override { ++count; }
    void playTouchSound() override { ++count; }
    void playAlertSound() override { ++count; }
    void playPopupSound() override { ++count; }
    void playCompleteSound() override { ++count; }
    void playVoiceSound(std::string /*sound*/) override { ++count; }
    void playWarningSound() override { ++count; }

    int count = 0;
};

// the components that report a touch as a click
class PostToParentTest : public PanelTest, public ::testing::WithParamInterface<const char*>
{
protected:
    void SetUp() override
    {
        writePicture("a.png", 8, 8, Qt::red);
        m_component = buildComponent<ZELComponent>(GetParam(), xml);
        ASSERT_NE(m_component, nullptr);
        EventLoop::deliver();
    }

    QWidget* widget() { return m_component->getQWidget(); }

    void expectOneClick()
    {
        const RecordedEvent event = panel().takeOne();
        EXPECT_EQ(event.type, 1552);
        EXPECT_EQ(event.classType, "ZELEvent");
        EXPECT_EQ(event.sender, widget());
        EXPECT_EQ(event.id, "ok");
        EXPECT_EQ(event.receiver, &panel());
    }

    // one element that every class here understands
    static constexpr const char* xml = "<ok title='x' style='normal' file='a.png' x='20' y='30' "
                                       "width='50' height='40'>"
                                       "<image up='a.png' down='a.png' dim='a.png'/>"
                                       "<position x='20' y='30' width='50' height='40'/></ok>";

    ZELComponent* m_component = nullptr;
};

// those of them that do nothing else with it
class SilentPostToParentTest : public PostToParentTest
{
};

// and those that can be dimmed
class ButtonPostToParentTest : public PostToParentTest
{
};

} // namespace

TEST_P(PostToParentTest, aPressPostsNothingAndTheReleaseTheClick)
{
    Touch::pressWindow(widget(), Touch::middleInWindow(widget()));
    EXPECT_TRUE(panel().take().empty());
    Touch::releaseWindow(widget(), Touch::middleInWindow(widget()));
    expectOneClick();
}

TEST_P(PostToParentTest, neitherPressNorReleaseReachesTheParent)
{
    const Watch watch(&panel());
    Touch::tapWindow(widget());
    EventLoop::deliver();
    EXPECT_EQ(watch.count(QEvent::MouseButtonPress), 0);
    EXPECT_EQ(watch.count(QEvent::MouseButtonRelease), 0);
    EXPECT_EQ(watch.count(EVENT_MOUSE_UP), 1);
}

TEST_P(PostToParentTest, theClickIsQueuedAndNotSent)
{
    const Watch watch(&panel());
    Touch::tap(widget());
    EXPECT_EQ(watch.count(EVENT_MOUSE_UP), 0);
    EventLoop::deliver();
    EXPECT_EQ(watch.count(EVENT_MOUSE_UP), 1);
}

TEST_P(PostToParentTest, aFingerThatMovedOffStillClicks)
{
    Touch::pressWindow(widget(), Touch::middleInWindow(widget()));
    Touch::dragWindow(widget(), QPoint(400, 300));
    Touch::releaseWindow(widget(), QPoint(400, 300));
    expectOneClick();
}

TEST_P(PostToParentTest, aReleaseAloneClicks)
{
    Touch::release(widget());
    expectOneClick();
}

TEST_P(SilentPostToParentTest, aTouchMakesNoSound)
{
    auto* const sound = new CountedSound;
    auto* const sounds = PANFx::Resource::SoundFactory::getInstance();
    sounds->registerSound(sound); // and owned by it from now on
    sounds->playTouchSound();
    ASSERT_EQ(sound->count, 1);
    Touch::tapWindow(widget());
    expectOneClick();
    EXPECT_EQ(sound->count, 1);
}

TEST_P(PostToParentTest, theSecondTapOfAQuickPairClicksToo)
{
    const Watch watch(&panel());
    Touch::tap(widget());
    Touch::doubleClick(widget());
    Touch::release(widget());
    EXPECT_EQ(panel().takeTypes(), (std::vector<int>{1552, 1552}));
    EXPECT_EQ(watch.count(QEvent::MouseButtonDblClick), 0);
    EXPECT_EQ(watch.count(QEvent::MouseButtonPress), 0);
}

TEST_P(PostToParentTest, aTouchOnADisabledComponentFallsToTheParent)
{
    const Watch watch(&panel());
    widget()->setEnabled(false);
    Touch::tapWindow(widget());
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(watch.count(QEvent::MouseButtonPress), 1);
    EXPECT_EQ(watch.count(QEvent::MouseButtonRelease), 1);
}

TEST_P(PostToParentTest, disabledWhileHeldTheReleaseFallsToTheParent)
{
    const Watch watch(&panel());
    Touch::pressWindow(widget(), Touch::middleInWindow(widget()));
    widget()->setEnabled(false);
    Touch::releaseWindow(widget(), Touch::middleInWindow(widget()));
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(watch.count(QEvent::MouseButtonPress), 0);
    EXPECT_EQ(watch.count(QEvent::MouseButtonRelease), 1);
}

TEST_P(PostToParentTest, hiddenWhileHeldNobodyGetsTheRelease)
{
    const Watch watch(&panel());
    Touch::pressWindow(widget(), Touch::middleInWindow(widget()));
    const QPoint middle = Touch::middleInWindow(widget());
    m_component->hideWindow();
    Touch::releaseWindow(&panel(), middle);
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(watch.count(QEvent::MouseButtonRelease), 0);
}

TEST_P(PostToParentTest, withoutAParentAnErrorNamesTheOperationAndTheId)
{
    widget()->setParent(nullptr);
    const std::unique_ptr<ZELComponent> alone(m_component);
    log().expectError("[mouseReleaseEvent] ok has no parent");
    Touch::release(widget());
    EXPECT_TRUE(panel().take().empty());
}

TEST_P(PostToParentTest, aParentThatDiesBeforeTheDeliveryGetsNothing)
{
    auto* const parent = new QWidget(&panel());
    widget()->setParent(parent);
    Touch::release(widget());
    delete parent;
    EventLoop::deliver();
    EXPECT_TRUE(panel().take().empty());
}

TEST_P(PostToParentTest, aPageMayDeleteTheComponentThatWasTouched)
{
    Touch::release(widget());
    const QPointer<QWidget> gone = widget();
    delete widget();
    EXPECT_TRUE(gone.isNull());
    EXPECT_EQ(panel().takeTypes(), std::vector<int>{1552});
}

TEST_P(PostToParentTest, theClickReachesThePageThatTheComponentLiesOn)
{
    auto* const component = buildOnPage<ZELComponent>(GetParam(), xml);
    ASSERT_NE(component, nullptr);
    QWidget* const onPage = component->getQWidget();
    EventRecorder pageEvents;
    pageEvents.listenAt(onPage->parentWidget());
    Touch::tapWindow(onPage);
    const std::vector<RecordedEvent> events = pageEvents.take(EVENT_MOUSE_UP);
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].sender, onPage);
    EXPECT_EQ(events[0].id, "ok");
}

TEST_P(ButtonPostToParentTest, dimmedAndEnabledAgainItSwallowsTouches)
{
    const Watch watch(&panel());
    static_cast<ZELImageButton*>(m_component)->setDimMode(true);
    widget()->setEnabled(true); // as an application may do: dim mode itself disables
    Touch::tapWindow(widget());
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(watch.count(QEvent::MouseButtonPress), 0);
    EXPECT_EQ(watch.count(QEvent::MouseButtonRelease), 0);
}

namespace {

const auto silent = ::testing::Values("label", "imagebox", "pieimagebox", "chartimagebox");
const auto buttons =
    ::testing::Values("button", "checkbutton", "iconcheckbutton", "radiobutton", "keybutton");

std::string keyword(const ::testing::TestParamInfo<const char*>& info)
{
    return info.param;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Components, PostToParentTest, silent, keyword);
INSTANTIATE_TEST_SUITE_P(Buttons, PostToParentTest, buttons, keyword);
INSTANTIATE_TEST_SUITE_P(Components, SilentPostToParentTest, silent, keyword);
INSTANTIATE_TEST_SUITE_P(Buttons, ButtonPostToParentTest, buttons, keyword);

#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <QEasingCurve>

#include <cstdlib>
#include <dlfcn.h>
#include <limits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

std::vector<double> amplitudes; // all that were set

} // namespace

// Stands in front of Qt's own: a curve that goes back beyond its end forgets the amplitude when
// it is copied, and what the animation gives away is a copy.
void QEasingCurve::setAmplitude(qreal amplitude)
{
    amplitudes.push_back(amplitude);
    using Function = void (*)(QEasingCurve*, qreal);
    void* const next = dlsym(RTLD_NEXT, "_ZN12QEasingCurve12setAmplitudeEd");
    if (!next)
        std::abort();
    reinterpret_cast<Function>(next)(this, amplitude);
}

namespace {

class ZELImageButtonAnimationTest : public ButtonTest
{
};

} // namespace

TEST_F(ZELImageButtonAnimationTest, aPressPushesAndAReleaseBringsBack)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    EXPECT_EQ(button->m_animation.targetObject(), button);
    EXPECT_EQ(button->m_animation.propertyName(), QByteArray("geometry"));
    EXPECT_EQ(button->m_animation.duration(), 150);
    EXPECT_EQ(button->m_animation.startValue().toRect(), place);
    EXPECT_EQ(button->m_animation.endValue().toRect(), place.translated(3, 3));
    EXPECT_EQ(button->m_animation.easingCurve().type(), QEasingCurve::OutBack);
    EXPECT_EQ(int(button->m_animation.easingCurve().type()), 34);
    EXPECT_DOUBLE_EQ(button->m_animation.easingCurve().overshoot(), QEasingCurve().overshoot());
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);

    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->geometry(), place.translated(3, 3));
    Touch::release(button);
    EXPECT_EQ(button->m_animation.duration(), 150);
    EXPECT_EQ(button->m_animation.startValue().toRect(), place.translated(3, 3));
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
    EXPECT_EQ(button->m_animation.easingCurve().type(), QEasingCurve::OutBack);
    EXPECT_TRUE(EventLoop::waitFor([&] { return button->geometry() == place; }));
    EXPECT_EQ(button->m_animation.targetObject(), button) << "it is kept";
}

TEST_F(ZELImageButtonAnimationTest, aReleaseInMidFlightStartsWhereTheButtonIs)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    button->m_animation.stop();
    button->move(12, 22);
    Touch::release(button);
    EXPECT_EQ(button->m_animation.startValue().toRect(), QRect(12, 22, 80, 40));
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
}

TEST_F(ZELImageButtonAnimationTest, aTouchInMidFlightStartsTheWholeTimeAnew)
{
    auto* const button = make<Button>(pushed());
    const auto inMidFlight = [&](const auto& touch) {
        button->m_animation.setCurrentTime(75);
        touch(button);
        EXPECT_EQ(button->m_animation.currentTime(), 0);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    };
    Touch::press(button);
    inMidFlight([](QWidget* held) { Touch::release(held); });
    inMidFlight([](QWidget* released) { Touch::press(released); });
}

TEST_F(ZELImageButtonAnimationTest, pressAndReleaseDifferInTheirAmplitudes)
{
    auto* const button = make<Button>(pushed());
    amplitudes.clear();
    Touch::press(button);
    EXPECT_EQ(amplitudes, std::vector<double>{0.8});
    Touch::release(button);
    EXPECT_EQ(amplitudes, (std::vector<double>{0.8, 0.5}));
}

TEST_F(ZELImageButtonAnimationTest, aPressStartsWhereTheButtonIs)
{
    auto* const button = make<Button>(pushed());
    button->move(50, 60);
    Touch::press(button);
    EXPECT_EQ(button->m_animation.startValue().toRect(), QRect(50, 60, 80, 40));
    EXPECT_EQ(button->m_animation.endValue().toRect(), place.translated(3, 3));
}

TEST_F(ZELImageButtonAnimationTest, aRestPositionBeyondAllScreensIsHeldAtWhatAWidgetTakes)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    auto* const button = make<Button>(pushed());
    const auto expectEnds = [&] {
        Touch::press(button);
        EXPECT_EQ(button->m_animation.endValue().toRect().topLeft(),
                  QPoint(QWIDGETSIZE_MAX + 3, -QWIDGETSIZE_MAX + 3));
        Touch::release(button);
        EXPECT_EQ(button->m_animation.endValue().toRect().topLeft(),
                  QPoint(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX));
        button->m_animation.setCurrentTime(75); // on its way, too
    };
    button->setOrgPos(most, least);
    expectEnds();
    button->setLayout(element("<ok><image up='up.png' down='down.png'/><position x='" +
                              std::to_string(most) + "' y='" + std::to_string(least) + "' width='" +
                              std::to_string(most) + "' height='" + std::to_string(most) +
                              "'/></ok>"));
    expectEnds();
}

TEST_F(ZELImageButtonAnimationTest, otherAnimationsAndTitlelessButtonsStandStill)
{
    for (const std::string& attributes :
         {styled + "animation='push'", styled, std::string("animation='elastic_push'")}) {
        auto* const button = make<Button>(ok(attributes));
        Touch::press(button);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped) << attributes;
        Touch::release(button);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped) << attributes;
        EXPECT_EQ(button->geometry(), place);
    }
}

TEST_F(ZELImageButtonAnimationTest, aReleaseThatNoPressWentBeforeMovesNothing)
{
    auto* const button = make<Button>(pushed());
    button->move(50, 60);
    Touch::release(button);
    EXPECT_EQ(button->m_animation.propertyName(), QByteArray());
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->pos(), QPoint(50, 60));
}

TEST_F(ZELImageButtonAnimationTest, aNarrowPictureRunsTheAnimationAndStaysWhereItIs)
{
    auto* const button = make<Button>(pushed());
    writePicture("narrow.png", 19, 5, Qt::green);
    button->setImages("down.png", "narrow.png", "");
    Touch::press(button);
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
}

TEST_F(ZELImageButtonAnimationTest, theRestPositionCanBeSetAndMovesNothing)
{
    auto* const button = make<Button>(pushed());
    button->setOrgPos(100, 200);
    EventLoop::deliver();
    EXPECT_EQ(button->geometry(), place);
    Touch::press(button);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(103, 203, 80, 40));
    Touch::release(button);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(100, 200, 80, 40));
}

TEST_F(ZELImageButtonAnimationTest, hiddenWhileHeldItGoesBackToItsRest)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->geometry(), place.translated(3, 3));
    button->hideWindow();
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
    EXPECT_TRUE(EventLoop::waitFor([&] { return button->geometry() == place; }));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonAnimationTest, hidingAndBlockingBringItBackAlsoWithoutAPress)
{
    for (const QEvent::Type type : {QEvent::Hide, QEvent::WindowBlocked}) {
        auto* const button = make<Button>(pushed());
        Touch::tap(button);
        button->m_animation.setCurrentTime(150);
        ASSERT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped);
        button->move(50, 60);
        QEvent event(type);
        QCoreApplication::sendEvent(button, &event);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running) << type;
        EXPECT_EQ(button->m_animation.startValue().toRect(), QRect(50, 60, 80, 40));
        button->m_animation.setCurrentTime(150);
        EXPECT_EQ(button->geometry(), place) << type;
    }
}

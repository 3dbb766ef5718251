#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <QEasingCurve>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

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

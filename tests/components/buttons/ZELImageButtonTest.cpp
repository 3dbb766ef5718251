#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"
#include "support/VirtualSlot.h"

#include <QPointer>

#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::Timer;
using Components::ZELComponent;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

// whether an operation is a plain widget's own, overridden by nobody
template <class Class, class... Arguments>
constexpr bool isTheWidgetsOwn(void (Class::*)(Arguments...))
{
    return std::is_same_v<Class, QWidget>;
}

// an application's class, which may name what is protected
class Own : public ZELImageButton
{
public:
    explicit Own(QWidget* parent)
        : ZELImageButton(parent, "own", "Own")
    {
    }
    using ZELImageButton::m_pTimer;

    static std::vector<std::intptr_t> slotsOfItsOwn()
    {
        return {slot(&Own::mousePressEvent), slot(&Own::mouseReleaseEvent), slot(&Own::paintEvent),
                slot(&Own::event)};
    }
    static std::vector<bool> widgetsOwn()
    {
        return {isTheWidgetsOwn(&Own::mouseMoveEvent), isTheWidgetsOwn(&Own::mouseDoubleClickEvent),
                isTheWidgetsOwn(&Own::enterEvent),     isTheWidgetsOwn(&Own::leaveEvent),
                isTheWidgetsOwn(&Own::keyPressEvent),  isTheWidgetsOwn(&Own::focusInEvent),
                isTheWidgetsOwn(&Own::focusOutEvent)};
    }
};

class ZELImageButtonTest : public ButtonTest
{
};

} // namespace

// ---- what it is

TEST_F(ZELImageButtonTest, isAComponentFirstAndAPlainWidgetSecond)
{
    auto* const button = buildComponent<ZELImageButton>("button", ok());
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(button)), static_cast<void*>(button));
    EXPECT_NE(static_cast<void*>(static_cast<QWidget*>(button)), static_cast<void*>(button));
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_STREQ(button->metaObject()->className(), "QWidget");
    EXPECT_EQ(button->m_strType, "ZELImageButton");
    EXPECT_EQ(button->m_strID, "ok");
    EXPECT_EQ(button->parentWidget(), &panel());
}

TEST_F(ZELImageButtonTest, startsIdleAndEmpty)
{
    expectNullLayoutLines("ok");
    auto* const button = make<Button>("");
    EXPECT_EQ(log().count("[E] [setLayout] ok pLayout == NULL", "ZELImageButton"), 1);
    EXPECT_EQ(button->m_logger.m_strIdentity, "QTPANFx ZELImageButton ");
    for (const std::string& text :
         {button->m_strDownImage, button->m_strUpImage, button->m_strDimImage, button->m_strTitle,
          button->m_strAnimation})
        EXPECT_EQ(text, "");
    EXPECT_EQ(button->m_pDownImage, nullptr);
    EXPECT_EQ(button->m_pUpImage, nullptr);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(button->m_pFont, nullptr);
    EXPECT_EQ(button->m_pDimFont, nullptr);
    EXPECT_EQ(button->m_pPressFont, nullptr);
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_FALSE(button->m_bDimMode);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_TRUE(button->m_bSoundMode);
    EXPECT_EQ(button->m_animation.targetObject(), button);
    EXPECT_EQ(button->m_animation.parent(), nullptr);
    EXPECT_EQ(button->m_nPressOffset, 0);
    EXPECT_EQ(button->m_nOrgX, 0);
    EXPECT_EQ(button->m_nOrgY, 0);
    EXPECT_EQ(button->m_imageRect, QRect());
    EXPECT_EQ(button->m_textRect, QRect());
    ASSERT_NE(button->m_pTimer, nullptr);
    EXPECT_EQ(button->m_pTimer->m_pOwner, button);
    EXPECT_EQ(button->m_pTimer->parent(), button);
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_FALSE(button->m_bLongPressed);
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_FALSE(button->m_bLongPress);
    EXPECT_FALSE(button->m_bElided);
    EXPECT_EQ(button->geometry(), QRect(0, 0, 100, 30)) << "never placed";
}

TEST_F(ZELImageButtonTest, aButtonWithoutPicturesStillClicks)
{
    expectNullLayoutLines("ok");
    auto* const button = make<Button>("");
    Touch::tap(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
}

TEST_F(ZELImageButtonTest, showsAndHides)
{
    auto* const button = make<Button>(ok());
    button->hideWindow();
    EXPECT_TRUE(button->isHidden());
    button->showWindow();
    EXPECT_TRUE(button->isVisible());
}

TEST_F(ZELImageButtonTest, addsFourOperationsBehindThoseOfAComponent)
{
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t found : Own::slotsOfItsOwn())
        EXPECT_EQ(found, place += slotSize);
}

TEST_F(ZELImageButtonTest, leavesMovesKeysAndFocusToTheWidget)
{
    EXPECT_EQ(Own::widgetsOwn(), std::vector<bool>(7, true));
}

// ---- its end

TEST_F(ZELImageButtonTest, takesItsTimerAndItsQueuedTicksWithIt)
{
    auto* const button = make<Button>(pushed("longpress='true'"));
    button->forcePress();
    queueTick(button);
    const QPointer<Timer> timer = button->m_pTimer;
    delete button;
    EXPECT_TRUE(timer.isNull());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, goesWithItsParentWhileItIsHeld)
{
    auto* const parent = new QWidget(&panel());
    auto* const button =
        new Button(parent, "ok", "ZELImageButton", element(pushed("longpress='true'")));
    const QPointer<QWidget> alive(button);
    parent->show();
    button->forcePress();
    delete parent;
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, withoutAParentAClickIsTold)
{
    Button button(nullptr, "ok", "ZELImageButton", element(ok()));
    button.forcePress();
    log().expectError("[mouseReleaseEvent] ok has no parent", 1, "ZELImageButton");
    button.forceRelease();
    EventLoop::deliver();
}

// ---- as a base class

TEST_F(ZELImageButtonTest, aDerivedClassCanReadItsLayoutByItself)
{
    const Own own(&panel());
    EXPECT_EQ(own.m_strID, "own");
    EXPECT_EQ(own.m_strType, "Own");
    EXPECT_NE(own.m_pTimer, nullptr);
    EXPECT_EQ(log().countLevel('E'), 0) << "and no line is written for the layout it has none of";
}

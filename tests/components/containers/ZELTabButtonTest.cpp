#include "components/containers/ZELTabButton.h"

#include "components/containers/TabTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELRadioButton;
using Components::ZELTabButton;

namespace {

class TabButton : public Opened<ZELTabButton>
{
public:
    using Opened::Opened;
    using ZELTabButton::m_logger;

    static std::intptr_t slotOfPress() { return slot(&TabButton::mousePressEvent); }
    using ZELTabButton::mousePressEvent;
};

class ZELTabButtonTest : public TabTest
{
};

} // namespace

TEST_F(ZELTabButtonTest, isAnUncheckedRadioButtonWithItsOwnName)
{
    auto* const built = buildComponent<ZELTabButton>("tabbutton", ok());
    EXPECT_EQ(built->m_strType, "ZELTabButton");
    EXPECT_FALSE(built->m_bChecked);
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_NE(dynamic_cast<ZELRadioButton*>(built), nullptr);
    EXPECT_EQ(built->geometry(), place);
    EXPECT_EQ(make<TabButton>(ok())->m_logger.m_strIdentity, "QTPANFx ZELTabButton   ");
    EXPECT_EQ(TabButton::slotOfPress(), slot(&Components::ZELComponent::getQWidget) + slotSize);
}

TEST_F(ZELTabButtonTest, aPressChecksSoundsAndReportsAtOnce)
{
    auto* const button = make<TabButton>(ok());
    PaintCounter paints(button);
    Touch::press(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage) << "no pressed look";
    EXPECT_EQ(touches(), 1);
    EXPECT_EQ(toldOne(button), "1561 ZELEvent ok");
    EXPECT_EQ(paints.count(), 1);
    Touch::release(button);
    EXPECT_EQ(toldOne(button), "1552 ZELEvent ok");
    EXPECT_TRUE(button->m_bChecked);
}

TEST_F(ZELTabButtonTest, aPressOfACheckedButtonReportsAgain)
{
    auto* const button = make<TabButton>(ok());
    Touch::tap(button);
    panel().take();
    Touch::tap(button);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_TAB_DOWN, EVENT_MOUSE_UP}));
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(touches(), 2);
}

TEST_F(ZELTabButtonTest, soundsWhateverTheSoundModeSays)
{
    auto* const button = make<TabButton>(ok());
    button->setSoundMode(false);
    Touch::press(button);
    EXPECT_EQ(touches(), 1);
}

TEST_F(ZELTabButtonTest, aDimButtonThatIsReachedIsCheckedAndNoMore)
{
    auto* const button = make<TabButton>(ok());
    button->setDimMode(true);
    Touch::tapWindow(button);
    EXPECT_FALSE(button->m_bChecked) << "it is passed over";
    button->forcePress();
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(touches(), 0);
}

TEST_F(ZELTabButtonTest, aHeldButtonStartsNoLongPress)
{
    auto* const button = make<TabButton>(ok("longpress='true'"));
    Touch::press(button);
    EXPECT_FALSE(button->m_pTimer->isActive());
}

TEST_F(ZELTabButtonTest, showsItsDownPictureWhileItIsChecked)
{
    auto* const button = make<TabButton>(ok());
    EXPECT_EQ(Pixels::count(Pixels::grab(button), Qt::green), 80 * 40);
    button->setCheck(1);
    EXPECT_EQ(Pixels::count(Pixels::grab(button), Qt::blue), 80 * 40);
    button->setCheck(0);
    EXPECT_EQ(Pixels::count(Pixels::grab(button), Qt::green), 80 * 40);
}

TEST_F(ZELTabButtonTest, setCheckRepaintsAtOnceWhereTheStateIsAnother)
{
    struct Case
    {
        int number;
        bool checked;
        int paints;
    };
    auto* const button = make<TabButton>(ok());
    PaintCounter paints(button);
    for (const Case& row : {Case{0, false, 0}, Case{1, true, 1}, Case{1, true, 0}, Case{2, true, 1},
                            Case{0, false, 1}}) {
        paints.reset();
        const int before = paints.count();
        button->setCheck(row.number);
        EXPECT_EQ(button->m_bChecked, row.checked) << row.number;
        EXPECT_EQ(paints.count() - before, row.paints) << row.number;
    }
}

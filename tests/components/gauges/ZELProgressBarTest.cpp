#include "components/gauges/ZELProgressBar.h"

#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/VirtualSlot.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELProgressBar;

namespace {

// the least that an application's own gauge has to do
class Gauge : public ZELProgressBar
{
public:
    using ZELProgressBar::ZELProgressBar;

    void showWindow() override { setVisible(true); }
    void hideWindow() override { setVisible(false); }
    void setLayout(TAMFx::Common::Xml::Node*) override {}
    QWidget* getQWidget() override { return this; }

    using ZELProgressBar::m_logger;

    static std::intptr_t slotOfPercent() { return slot(&Gauge::SetPercent); }
    static std::intptr_t slotOfPaint() { return slot(&Gauge::paintEvent); }

protected:
    void paintEvent(QPaintEvent*) override {}
};

class ZELProgressBarTest : public PanelTest
{
protected:
    Gauge* gauge()
    {
        auto* const made = new Gauge(&panel(), "g", "Gauge", nullptr);
        made->setGeometry(0, 0, 50, 20);
        made->show();
        EventLoop::deliver();
        return made;
    }
};

} // namespace

TEST_F(ZELProgressBarTest, isAProgressBarFromNoneTo100AtNone)
{
    auto* const made = gauge();
    EXPECT_EQ(made->minimum(), 0);
    EXPECT_EQ(made->maximum(), 100);
    EXPECT_EQ(made->value(), 0);
    EXPECT_EQ(made->m_strID, "g");
    EXPECT_EQ(made->m_strType, "Gauge");
    EXPECT_EQ(made->parentWidget(), &panel());
    EXPECT_EQ(Gauge::slotOfPercent(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Gauge::slotOfPaint(), Gauge::slotOfPercent() + slotSize);
}

TEST_F(ZELProgressBarTest, takesAPercentAndLeavesOthersAlone)
{
    auto* const made = gauge();
    for (const auto& [percent, value] :
         {std::pair(40, 40), {101, 40}, {-1, 40}, {0, 0}, {100, 100}, {2147483647, 100}, {1, 1}}) {
        made->SetPercent(percent);
        EXPECT_EQ(made->value(), value) << percent;
    }
}

TEST_F(ZELProgressBarTest, repaintsOnAChangeOnly)
{
    auto* const made = gauge();
    PaintCounter paints(made);
    made->SetPercent(7);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 1);
    for (const int percent : {7, 101, -5}) {
        made->SetPercent(percent);
        EventLoop::deliver();
        EXPECT_EQ(paints.count(), 1) << percent;
    }
}

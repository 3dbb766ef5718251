#include "Acts.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/containers/ZELBubbleDialog.h"
#include "components/containers/ZELTab.h"
#include "components/gauges/ZELProgressBar.h"
#include "components/gauges/ZELRange.h"
#include "components/lists/ZELListScroll.h"
#include "components/lists/ZELTextBoard.h"
#include "components/pictures/ZELChartImageBox.h"
#include "components/pictures/ZELPieImageBox.h"
#include "components/text/ZELLabel.h"
#include "components/text/ZELLineEdit.h"
#include "components/text/ZELTextEdit.h"

#include <algorithm>
#include <array>

namespace gallery {

using namespace PANFx::Components;

namespace {

using Act = std::function<void(ZELComponent&)>;

// ---- texts

void secondStyle(ZELComponent& component)
{
    as<ZELLabel>(component).setFontStyle(1);
}

void barcode(ZELComponent& component)
{
    as<ZELLineEdit>(component).setText(QStringLiteral("4006381333931"));
}

// its press alone shows it: a line edit has nothing of its own for the focus that comes
void focusLine(ZELComponent& component)
{
    barcode(component);
    press(component);
}

void dimLine(ZELComponent& component)
{
    barcode(component);
    dim<ZELLineEdit>(component);
}

void notes(ZELComponent& component)
{
    as<ZELTextEdit>(component).setPlainText(
        QStringLiteral("Taken from the well at the gate.\nCloudy at first, then clear."));
}

void manual(ZELComponent& component)
{
    as<ZELTextBoard>(component).setText(
        "1. Rinse the sensor with clean water and let it drip off.\n"
        "2. Put it into the sample, so that the mark is under water and no bubble clings to it.\n"
        "3. Touch Start, and wait until the ring is closed.\n"
        "4. The reading is stored with the time and the name of the sample.\n"
        "5. Rinse the sensor again before the next sample.");
}

void manualPage2(ZELComponent& component)
{
    manual(component);
    tap(part<ZELImageButton>(component, "downbtn"));
}

// ---- pictures

void rotate(ZELComponent& component)
{
    as<ZELImageBox>(component).setRotate(90);
}

Act hide(int degrees)
{
    return [degrees](ZELComponent& component) { as<ZELPieImageBox>(component).SetAngle(degrees); };
}

void drawLine(ZELComponent& component)
{
    constexpr std::array<int, 10> heights = {120, 112, 118, 96, 84, 90, 70, 62, 66, 48};
    auto& chart = as<ZELChartImageBox>(component);
    for (std::size_t i = 0; i < heights.size(); ++i) {
        chart.m_nPointX[i] = 20 + 38 * static_cast<int>(i);
        chart.m_nPointY[i] = heights[i];
    }
    chart.setTotalPoint(static_cast<int>(heights.size()));
}

// ---- containers

void secondPage(ZELComponent& component)
{
    as<ZELTab>(component).setPage(1);
}

void checkSound(ZELComponent& component)
{
    tap(part<ZELCheckButton>(component, "sound"));
}

void writeLabels(ZELComponent& component)
{
    auto& bubble = as<ZELBubbleDialog>(component);
    bubble.addLable("Touch the ring to begin.", "strong", 24, 48, 352, 32);
    bubble.addLable("A second touch stops the measurement.", "note", 24, 84, 352, 32);
}

// ---- gauges

Act step(int value)
{
    return [value](ZELComponent& component) { as<ZELRange>(component).setStep(value); };
}

Act disabledAt(int value)
{
    return [value](ZELComponent& component) {
        as<ZELRange>(component).setStep(value);
        as<ZELRange>(component).setEnable(false);
    };
}

Act percent(int value)
{
    return [value](ZELComponent& component) { as<ZELProgressBar>(component).SetPercent(value); };
}

std::vector<Scene> percentScenes()
{
    return {{"0 percent", percent(0)}, {"35 percent", percent(35)}, {"100 percent", percent(100)}};
}

} // namespace

Room roomOfTexts()
{
    return {
        "Text",
        {
            {"label", {{"first style", atRest}, {"second style", secondStyle}}},
            {"lineedit",
             {{"empty", atRest},
              {"with a value", barcode},
              {"focused", focusLine},
              {"dim", dimLine}}},
            {"textedit", {{"with a text", notes}}},
            {"textboard", {{"first page", manual}, {"second page", manualPage2}}},
        },
    };
}

Room roomOfPictures()
{
    return {
        "Pictures",
        {
            {"imagebox", {{"at rest", atRest}, {"rotated by 90", rotate}}},
            {"pieimagebox",
             {{"0 degrees hidden", hide(0)},
              {"90 degrees hidden", hide(90)},
              {"250 degrees hidden", hide(250)}}},
            {"chartimagebox", {{"without points", atRest}, {"10 points", drawLine}}},
        },
    };
}

Room roomOfContainers()
{
    return {
        "Containers",
        {
            {"tab", {{"first page", atRest}, {"second page", secondPage}}},
            {"tabpage", {{"at rest", atRest}, {"button in it checked", checkSound}}},
            {"bubble", {{"empty", atRest}, {"with labels", writeLabels}}},
        },
    };
}

Room roomOfGauges()
{
    return {
        "Gauges",
        {
            {"range",
             {{"lowest", step(0)},
              {"4 of 9", step(4)},
              {"highest", step(9)},
              {"dim", disabledAt(4)}}},
            {"editrange",
             {{"first text", step(0)},
              {"text between", step(1)},
              {"last text", step(3)},
              {"dim", disabledAt(1)}}},
            {"imageprogress", percentScenes()},
            {"roundprogress", percentScenes()},
        },
    };
}

} // namespace gallery

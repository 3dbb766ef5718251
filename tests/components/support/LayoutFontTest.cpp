// LayoutFont is not exported: it is tested through the components that use it.

#include "components/text/ZELLabel.h"
#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELLabel;

namespace {

// the style that an attribute names, seen through a label's text
class LayoutFontTest : public PanelTest
{
protected:
    // pixels of a colour in a label whose element holds this
    int pixels(const std::string& attributes, const QColor& colour)
    {
        auto* const label = buildComponent<ZELLabel>(
            "label", "<l title='HHH' " + attributes + "><position width='60' height='20'/></l>");
        return label ? Pixels::count(Pixels::grab(label), colour) : -1;
    }

    int ink(const std::string& attributes)
    {
        return 60 * 20 - pixels(attributes, Pixels::untouched);
    }
};

} // namespace

TEST_F(LayoutFontTest, aNamedStylePaints)
{
    EXPECT_GT(pixels("style='normal'", Qt::black), 0);
    EXPECT_EQ(pixels("style='normal'", Qt::red), 0);
    EXPECT_GT(pixels("style='pressed'", Qt::red), 0);
}

TEST_F(LayoutFontTest, anUnknownStyleIsNoStyleAndNobodySaysSo)
{
    panel();
    log().startHere();
    EXPECT_EQ(ink("style='nosuch'"), 0);
    EXPECT_EQ(ink("style='Normal'"), 0);
    EXPECT_EQ(ink("style=''"), 0);
    EXPECT_EQ(ink(""), 0);
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(LayoutFontTest, withoutAStyleFileNothingIsPainted)
{
    removeFile(resources + "default.style");
    log().expectError("[changeLocale] Cannot load style file: /app/bin/resource/default.style");
    EXPECT_EQ(ink("style='normal'"), 0);
}

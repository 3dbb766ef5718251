// the judge of the tour's texts, as it stands
#include "../examples/instrument/tour/PaintedTexts.cpp"
#include "components/buttons/ZELImageButton.h"
#include "components/text/ZELLabel.h"
#include "support/PanelTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELLabel;

namespace {

class PaintedTextsTest : public PanelTest
{
protected:
    ZELLabel* label(const std::string& title, int width, const std::string& align = "left")
    {
        return buildComponent<ZELLabel>("label",
                                        "<name title=\"" + title +
                                            "\" style=\"normal\"><position x=\"100\" y=\"50\" "
                                            "width=\"" +
                                            std::to_string(width) + "\" height=\"30\" align=\"" +
                                            align + "\"/></name>");
    }

    ZELImageButton* button(const std::string& title, int textWidth)
    {
        log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr"); // it has no pictures
        return buildComponent<ZELImageButton>(
            "button", "<go title=\"" + title +
                          "\" style=\"normal\"><position x=\"300\" y=\"50\" "
                          "width=\"300\" height=\"40\"/><textPos x=\"10\" y=\"0\" width=\"" +
                          std::to_string(textWidth) + "\" height=\"40\" align=\"left\"/></go>");
    }

    PaintedTexts texts() { return paintedTexts(panel()); }
};

TEST_F(PaintedTextsTest, aTextWithinItsLabelIsNotCut)
{
    label("Sensor fault", 400);
    EXPECT_EQ(texts().strAll.toStdString(), "Sensor fault");
    EXPECT_EQ(texts().strCut.toStdString(), "");
}

TEST_F(PaintedTextsTest, aTextThatIsWiderThanItsLabelIsCut)
{
    for (const char* align : {"left", "right", "center"}) {
        ZELLabel* const narrow = label("Sensor fault", 20, align);
        EXPECT_EQ(texts().strCut.toStdString(), "Sensor fault") << align;
        delete narrow;
    }
}

TEST_F(PaintedTextsTest, aTitleIsJudgedByThePlaceOfTheTextNotOfTheButton)
{
    button("Sensor fault", 20);
    EXPECT_EQ(texts().strCut.toStdString(), "Sensor fault");
}

TEST_F(PaintedTextsTest, aTitleThatFitsIsNotCut)
{
    button("Save", 200);
    EXPECT_EQ(texts().strAll.toStdString(), "Save");
    EXPECT_EQ(texts().strCut.toStdString(), "");
}

TEST_F(PaintedTextsTest, aTextThatIsWrittenLaterCounts)
{
    ZELLabel* const narrow = label("on", 60);
    EXPECT_EQ(texts().strCut.toStdString(), "");
    narrow->setTitle("Fehler des Messfühlers");
    EXPECT_EQ(texts().strCut.toStdString(), "Fehler des Messfühlers");
}

TEST_F(PaintedTextsTest, whatIsHiddenIsNotRead)
{
    label("Sensor fault", 20)->hideWindow();
    EXPECT_EQ(texts().strAll.toStdString(), "");
    EXPECT_EQ(texts().strCut.toStdString(), "");
}

} // namespace

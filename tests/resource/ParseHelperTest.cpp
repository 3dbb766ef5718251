#include "resource/ParseHelper.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "support/PanelTest.h"

#include <climits>

using namespace PANFx::Testing;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

class ParseHelperTest : public PanelTest
{
protected:
    struct Position
    {
        int x = 1;
        int y = 2;
        int width = 3;
        int height = 4;
        bool read = false;

        bool operator==(const Position& other) const
        {
            return x == other.x && y == other.y && width == other.width && height == other.height &&
                   read == other.read;
        }
    };

    // what the element makes of a position that stood at 1, 2, 3, 4
    Position position(const std::string& xml)
    {
        Position position;
        position.read = ParseHelper::getPosition(xml.empty() ? nullptr : element(xml), position.x,
                                                 position.y, position.width, position.height);
        return position;
    }

    struct Names
    {
        std::string first = "1";
        std::string second = "2";
        std::string third = "3";
        bool read = false;

        bool operator==(const Names& other) const
        {
            return first == other.first && second == other.second && third == other.third &&
                   read == other.read;
        }
        friend std::ostream& operator<<(std::ostream& out, const Names& names)
        {
            return out << names.first << "|" << names.second << "|" << names.third << "|"
                       << names.read;
        }
    };

    using Operation = bool (*)(Node*, std::string&, std::string&, std::string&);

    // what the element makes of three names that stood at "1", "2", "3"
    Names names(Operation operation, const std::string& xml)
    {
        Names names;
        names.read =
            operation(xml.empty() ? nullptr : element(xml), names.first, names.second, names.third);
        return names;
    }

    static int align(const char* value)
    {
        Attribute attribute("align", value);
        return ParseHelper::getAlign(&attribute, 77);
    }
};

} // namespace

TEST_F(ParseHelperTest, readsTheFourNumbersOfAPosition)
{
    EXPECT_EQ(position("<position x='10' y='20' width='300' height='40'/>"),
              (Position{10, 20, 300, 40, true}));
    EXPECT_EQ(position("<position height='40' width='300' y='20' x='10'/>"),
              (Position{10, 20, 300, 40, true}));
}

TEST_F(ParseHelperTest, leavesNumbersThatAreAbsent)
{
    EXPECT_EQ(position("<position width='300'/>"), (Position{1, 2, 300, 4, true}));
    EXPECT_EQ(position("<position x='10'/>"), (Position{10, 2, 3, 4, true}));
    EXPECT_EQ(position("<position y='10'/>"), (Position{1, 10, 3, 4, true}));
    EXPECT_EQ(position("<position height='10'/>"), (Position{1, 2, 3, 10, true}));
    EXPECT_EQ(position("<position/>"), (Position{1, 2, 3, 4, true}));
}

TEST_F(ParseHelperTest, readsAnyElementThatIsThere)
{
    EXPECT_EQ(position("<anything title='x' x='10'/>"), (Position{10, 2, 3, 4, true}));
    EXPECT_EQ(position(""), (Position{1, 2, 3, 4, false}));
}

TEST_F(ParseHelperTest, comparesAttributeNamesExactly)
{
    EXPECT_EQ(position("<position X='10' Width='20' w='5'/>"), (Position{1, 2, 3, 4, true}));
}

TEST_F(ParseHelperTest, validatesNoNumber)
{
    EXPECT_EQ(position("<position x='-10' y=' 7' width='20px' height='tall'/>"),
              (Position{-10, 7, 20, 0, true}));
    EXPECT_EQ(position("<position x='' y='0x10' width='99999999999' height='-99999999999'/>"),
              (Position{0, 0, INT_MAX, INT_MIN, true}));
}

TEST_F(ParseHelperTest, knowsThreeAlignments)
{
    EXPECT_EQ(align("center"), 0x84);
    EXPECT_EQ(align("right"), 0x82);
    EXPECT_EQ(align("left"), 0x81);
}

TEST_F(ParseHelperTest, takesAnAlignmentWithASlashBehindIt)
{
    EXPECT_EQ(align("center/"), 0x84);
    EXPECT_EQ(align("right/"), 0x82);
    EXPECT_EQ(align("left/"), 0x81);
}

TEST_F(ParseHelperTest, takesTheDefaultForAnyOtherAlignment)
{
    for (const char* value : {"", "Center", "LEFT", "Right", "center//", " left", "left ", "top",
                              "centre", "lef", "/", "0x84"})
        EXPECT_EQ(align(value), 77) << value;
    EXPECT_EQ(ParseHelper::getAlign(nullptr, 77), 77);
    EXPECT_EQ(ParseHelper::getAlign(nullptr, -1), -1);
}

TEST_F(ParseHelperTest, readsAnAlignmentFromALayout)
{
    Node* const node = element("<text align='right/'/>");
    EXPECT_EQ(ParseHelper::getAlign(node->getAttributeByName("align"), 0x81), 0x82);
    EXPECT_EQ(ParseHelper::getAlign(node->getAttributeByName("Align"), 0x81), 0x81);
}

TEST_F(ParseHelperTest, givesThePressedPictureBeforeTheNormalOne)
{
    EXPECT_EQ(names(ParseHelper::getButtonImage, "<image up='u.png' down='d.png' dim='x.png'/>"),
              (Names{"d.png", "u.png", "x.png", true}));
}

TEST_F(ParseHelperTest, readsEachButtonPictureForItself)
{
    EXPECT_EQ(names(ParseHelper::getButtonImage, "<image up='u.png'/>"),
              (Names{"", "u.png", "", true}));
    EXPECT_EQ(names(ParseHelper::getButtonImage, "<image down='d.png'/>"),
              (Names{"d.png", "", "", true}));
    EXPECT_EQ(names(ParseHelper::getButtonImage, "<image dim='x.png'/>"),
              (Names{"", "", "x.png", true}));
    EXPECT_EQ(names(ParseHelper::getButtonImage, "<image Up='u.png' file='f.png'/>"),
              (Names{"", "", "", true}));
}

TEST_F(ParseHelperTest, emptiesTheButtonPicturesWithoutAnElement)
{
    EXPECT_EQ(names(ParseHelper::getButtonImage, ""), (Names{"", "", "", false}));
}

TEST_F(ParseHelperTest, readsThreePiecesOfAnEditor)
{
    EXPECT_EQ(
        names(ParseHelper::getEditorImage, "<imageup end='e.png' mid='m.png' start='s.png'/>"),
        (Names{"s.png", "m.png", "e.png", true}));
    EXPECT_EQ(names(ParseHelper::getEditorImage, "<imageup start='' mid='' end=''/>"),
              (Names{"", "", "", true}));
}

TEST_F(ParseHelperTest, readsThePiecesOfAnEditorAllOrNone)
{
    for (const char* xml :
         {"<i start='s' mid='m'/>", "<i start='s' end='e'/>", "<i mid='m' end='e'/>",
          "<i start='s'/>", "<i/>", "<i start='s' mid='m' End='e'/>", ""})
        EXPECT_EQ(names(ParseHelper::getEditorImage, xml), (Names{"", "", "", false})) << xml;
}

#include "components/pads/ZELKeyButton.h"

#include "common/tamfx/Node.h"
#include "components/pads/KeyButtonTest.h"
#include "support/VirtualSlot.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELKeyButton;

namespace {

// an application's class, which may name what is protected
class Own : public ZELKeyButton
{
public:
    static std::vector<std::intptr_t> slotsInOrder()
    {
        return {slot(&Own::mousePressEvent), slot(&Own::mouseReleaseEvent), slot(&Own::paintEvent),
                slot(&Own::event)};
    }
};

class ZELKeyButtonTest : public KeyButtonTest
{
};

} // namespace

// ---- what it is

TEST_F(ZELKeyButtonTest, isAnImageButton)
{
    auto* const made = buildComponent<ZELKeyButton>("keybutton", ok());
    EXPECT_EQ(made->m_strType, "ZELKeyButton");
    EXPECT_EQ(made->m_strID, "ok");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(made)), static_cast<void*>(made));
    EXPECT_EQ(made->getQWidget(), static_cast<QWidget*>(made));
    EXPECT_EQ(made->parentWidget(), &panel());
    EXPECT_NE(dynamic_cast<ZELImageButton*>(made), nullptr);
    made->hideWindow();
    EXPECT_TRUE(made->isHidden());
}

TEST_F(ZELKeyButtonTest, addsNoOperationToThoseOfAnImageButton)
{
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t found : Own::slotsInOrder())
        EXPECT_EQ(found, place += slotSize);
}

TEST_F(ZELKeyButtonTest, holdsItsValuesInTheirOrder)
{
    const Key* const made = key();
    const std::vector<const void*> fields{
        &made->m_nCode,       &made->m_nCode2,       &made->m_strLang2Title,
        &made->m_nLang2Code,  &made->m_nLang2Index,  &made->m_strLang2Title2,
        &made->m_nLang2Code2, &made->m_nLang2Index2, &made->m_logger};
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

// ---- its layout

TEST_F(ZELKeyButtonTest, withoutALayoutSaysSoOnceAndStaysEmpty)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELKeyButton");
    log().startHere();
    Key made(&panel(), "ok", "ZELKeyButton", nullptr);
    ASSERT_EQ(log().lines().size(), 1u) << "and none as an image button";
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELKeyButton   ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_EQ(made.numbers(), none);
    EXPECT_EQ(made.getTitle(), "");
    EXPECT_EQ(made.m_strLang2Title, "");
    EXPECT_EQ(made.m_strLang2Title2, "");
    EXPECT_EQ(made.m_pUpImage, nullptr);
    EXPECT_EQ(made.m_pFont, nullptr);
    EXPECT_EQ(made.m_nAlign, centred);
    EXPECT_FALSE(made.m_bLongPress);
    EXPECT_TRUE(made.m_bSoundMode);
    EXPECT_EQ(made.geometry(), QRect(0, 0, 100, 30)) << "never placed";
}

TEST_F(ZELKeyButtonTest, readsAllOfItsElement)
{
    const Key* const made = key(full + "animation='elastic_push' longpress='true'");
    EXPECT_EQ(made->numbers(), (std::vector<int>{0x61, 0x41, 0x3141, 6, 0x3142, 7}));
    EXPECT_EQ(made->m_strTitle, "a");
    EXPECT_EQ(made->m_strLang2Title, "x");
    EXPECT_EQ(made->m_strLang2Title2, "y");
    ASSERT_NE(style("normal"), nullptr);
    EXPECT_EQ(made->m_pFont, style("normal"));
    EXPECT_EQ(made->m_pPressFont, style("pressed"));
    EXPECT_EQ(made->m_strAnimation, "elastic_push");
    EXPECT_TRUE(made->m_bLongPress);
    EXPECT_EQ(made->m_strUpImage, "up.png");
    EXPECT_EQ(made->m_strDownImage, "down.png");
    EXPECT_EQ(made->m_strDimImage, "dim.png");
    EXPECT_EQ(made->m_pUpImage, picture("up.png"));
    EXPECT_EQ(made->m_pDownImage, picture("down.png"));
    EXPECT_EQ(made->m_pCurImage, picture("up.png"));
    EXPECT_EQ(made->geometry(), place);
}

TEST_F(ZELKeyButtonTest, anEmptyElementGivesTheDefaults)
{
    log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr"); // the one up, the one down
    const Key* const made = make<Key>("<ok/>");
    EXPECT_EQ(made->numbers(), none);
    EXPECT_EQ(made->m_strTitle, "");
    EXPECT_EQ(made->m_pFont, nullptr);
    EXPECT_EQ(made->m_pPressFont, nullptr);
    EXPECT_EQ(made->m_strAnimation, "");
    EXPECT_FALSE(made->m_bLongPress);
    EXPECT_EQ(made->m_pCurImage, nullptr);
    EXPECT_EQ(made->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELKeyButtonTest, eachNumberOfThePositionStandsAlone)
{
    const auto placeOf = [this](const std::string& attributes) {
        log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr");
        return make<Key>("<ok><position " + attributes + "/></ok>")->geometry();
    };
    EXPECT_EQ(placeOf(""), QRect(0, 0, 1, 1));
    EXPECT_EQ(placeOf("x='5'"), QRect(5, 0, 1, 1));
    EXPECT_EQ(placeOf("y='6'"), QRect(0, 6, 1, 1));
    EXPECT_EQ(placeOf("width='7'"), QRect(0, 0, 7, 1));
    EXPECT_EQ(placeOf("height='8'"), QRect(0, 0, 1, 8));
    log().verify();
}

TEST_F(ZELKeyButtonTest, withoutATitleOnlyTheChildrenAreRead)
{
    log().startHere();
    const Key* const made = key("code='61' code2='41' style='normal' pressstyle='pressed' "
                                "animation='elastic_push' longpress='true'");
    EXPECT_EQ(made->numbers(), (std::vector<int>{-1, -1, 0x3141, 6, 0x3142, 7}));
    EXPECT_EQ(made->m_strTitle, "");
    EXPECT_EQ(made->m_pFont, nullptr);
    EXPECT_EQ(made->m_pPressFont, nullptr);
    EXPECT_EQ(made->m_strAnimation, "");
    EXPECT_FALSE(made->m_bLongPress);
    EXPECT_EQ(made->m_strLang2Title, "x");
    EXPECT_EQ(made->m_pUpImage, picture("up.png"));
    EXPECT_EQ(made->geometry(), place);
    EXPECT_EQ(log().texts("ZELKeyButton"), std::vector<std::string>{});
}

TEST_F(ZELKeyButtonTest, anEmptyTitleIsATitle)
{
    const Key* const made = key("title='' code='20' longpress='true'", "");
    EXPECT_EQ(made->m_nCode, 0x20);
    EXPECT_TRUE(made->m_bLongPress);
    EXPECT_EQ(made->m_strTitle, "");
}

TEST_F(ZELKeyButtonTest, withoutASecondLanguageItsValuesAreMissing)
{
    const Key* const made = key(full, "");
    EXPECT_EQ(made->numbers(), (std::vector<int>{0x61, 0x41, -1, -1, -1, -1}));
    EXPECT_EQ(made->m_strLang2Title, "");
    EXPECT_EQ(made->m_strLang2Title2, "");
}

TEST_F(ZELKeyButtonTest, eachValueOfTheSecondLanguageStandsAlone)
{
    const std::vector<std::pair<std::string, std::vector<int>>> cases{
        {"code='31'", {-1, -1, 0x31, -1, -1, -1}},
        {"index='31'", {-1, -1, -1, 31, -1, -1}},
        {"code2='31'", {-1, -1, -1, -1, 0x31, -1}},
        {"index2='31'", {-1, -1, -1, -1, -1, 31}},
    };
    for (const auto& [lang2, numbers] : cases)
        EXPECT_EQ(keyWith("", lang2)->numbers(), numbers) << lang2;
    EXPECT_EQ(keyWith("", "title='" + hangul + "'")->m_strLang2Title, hangul);
    EXPECT_EQ(keyWith("", "title2='" + hangul + "'")->m_strLang2Title2, hangul);
}

TEST_F(ZELKeyButtonTest, takesTitlesAsTheyStand)
{
    writeStrings("<t><String key='greeting'><kr>other</kr><eng>Good day</eng></String></t>");
    const Key* const made =
        key("title='@greeting'", "<lang2 title='@greeting' title2='one\\ntwo'/>");
    EXPECT_EQ(made->m_strTitle, "@greeting");
    EXPECT_EQ(made->m_strLang2Title, "@greeting");
    EXPECT_EQ(made->m_strLang2Title2, "one\\ntwo");
    EXPECT_EQ(key("title='a\\nb'")->m_strTitle, "a\\nb");
}

TEST_F(ZELKeyButtonTest, readsNeitherDimStyleNorPlacesOfTextAndPicture)
{
    const Key* const made =
        key(full + "dimstyle='dimmed'", "<textPos x='1' y='2' width='3' height='4' align='left'/>"
                                        "<imagePos x='1' y='2' width='3' height='4'/>");
    EXPECT_EQ(made->m_pDimFont, nullptr);
    EXPECT_EQ(made->m_textRect, QRect());
    EXPECT_EQ(made->m_imageRect, QRect());
    EXPECT_EQ(made->m_nAlign, centred);
}

TEST_F(ZELKeyButtonTest, anUnknownStyleIsNone)
{
    const Key* const made = key("title='a' style='nosuch' pressstyle='nosuch'");
    EXPECT_EQ(made->m_pFont, nullptr);
    EXPECT_EQ(made->m_pPressFont, nullptr);
}

TEST_F(ZELKeyButtonTest, onlyTheExactWordTurnsLongPressOff)
{
    for (const char* const word : {"true", "FALSE", "False", "false ", " false", "0", "no", ""})
        EXPECT_TRUE(key(full + "longpress='" + word + "'")->m_bLongPress) << word;
    EXPECT_FALSE(key(full + "longpress='false'")->m_bLongPress);
    EXPECT_FALSE(key(full)->m_bLongPress);
}

TEST_F(ZELKeyButtonTest, tellsTheLogWhereTheLongPressStands)
{
    for (const char* const attribute : {"longpress='true'", "longpress='false'", ""}) {
        TAMFx::Common::Xml::Node* const node = element(ok(full + attribute, fullLang2));
        char line[64];
        std::snprintf(line, sizeof line, "[D] [setLayout] longpress pointer(%p)",
                      static_cast<const void*>(node->getAttributeByName("longpress")));
        log().startHere();
        const Key made(&panel(), "ok", "ZELKeyButton", node);
        EXPECT_EQ(log().texts("ZELKeyButton"), std::vector<std::string>{line});
        EXPECT_EQ(log().texts("ZELImageButton"), std::vector<std::string>{});
    }
    EXPECT_EQ(log().count("[D] [setLayout] longpress pointer((nil))"), 1);
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELKeyButtonTest, looksForItsPicturesWhenItsAttributesAreRead)
{
    log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr"); // down and up
    const Key* const made = make<Key>("<ok title='a'><image dim='dim.png'/></ok>");
    log().expectInOrder({"[D] [setLayout] longpress pointer((nil))",
                         "[E] [getImage] No FileName Error", "[E] [getImage] No FileName Error"});
    EXPECT_EQ(made->m_strDimImage, "dim.png");
}

TEST_F(ZELKeyButtonTest, picturesThatAreNotThereAreNone)
{
    const Key* const made = make<Key>("<ok title='a'><position width='80' height='40'/>"
                                      "<image up='noup.png' down='nodown.png'/></ok>");
    EXPECT_EQ(made->m_pUpImage, nullptr);
    EXPECT_EQ(made->m_pDownImage, nullptr);
    EXPECT_EQ(made->m_pCurImage, nullptr);
    EXPECT_EQ(made->m_strUpImage, "noup.png");
    EXPECT_EQ(made->geometry(), QRect(0, 0, 80, 40));
}

TEST_F(ZELKeyButtonTest, aNullLayoutLaterTakesPicturesAndNumbers)
{
    Key* const made = key();
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELKeyButton");
    made->setLayout(nullptr);
    EXPECT_EQ(made->numbers(), none);
    EXPECT_EQ(made->m_pUpImage, nullptr);
    EXPECT_EQ(made->m_pDownImage, nullptr);
    EXPECT_EQ(made->m_pCurImage, nullptr);
    EXPECT_EQ(made->m_strUpImage + made->m_strDownImage + made->m_strDimImage, "");
    EXPECT_EQ(made->m_strTitle, "a");
    EXPECT_EQ(made->m_strLang2Title, "x");
    EXPECT_EQ(made->m_pFont, style("normal"));
    EXPECT_EQ(made->geometry(), place);
}

TEST_F(ZELKeyButtonTest, aSecondLayoutStartsWithNoNumbers)
{
    Key* const made = key();
    made->setLayout(element("<ok title='b' code2='42'><image up='down.png' down='up.png'/>"
                            "<lang2 index2='9'/></ok>"));
    EXPECT_EQ(made->numbers(), (std::vector<int>{-1, 0x42, -1, -1, -1, 9}));
    EXPECT_EQ(made->m_strTitle, "b");
    EXPECT_EQ(made->m_pFont, nullptr);
    EXPECT_EQ(made->m_pCurImage, picture("down.png"));
    EXPECT_EQ(made->m_strDimImage, "");
    EXPECT_EQ(made->geometry(), QRect(0, 0, 1, 1));
    log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr");
    made->setLayout(element("<ok code='61'/>"));
    EXPECT_EQ(made->m_strTitle, "");
    EXPECT_EQ(made->m_pCurImage, nullptr);
}

// ---- numbers

TEST_F(ZELKeyButtonTest, codesAreHexadecimal)
{
    const std::vector<std::pair<const char*, int>> cases{
        {"61", 0x61},     {"AC00", 0xAC00}, {"ac00", 0xAC00},      {"0020", 0x20},
        {"8", 8},         {"10", 16},       {" \t41", 0x41},       {"0x41", 0x41},
        {"41zz", 0x41},   {"4 1", 4},       {"1F600", 0x1F600},    {"-1", -1},
        {"-2", -2},       {"+41", 0x41},    {"7FFFFFFF", INT_MAX}, {"80000000", INT_MIN},
        {"FFFFFFFF", -1}, {"0", 0},         {"100000041", -1},     {"FFFFFFFFFFFFFFFFFFFF", -1}};
    Key* const made = key();
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(made->stringToInt16(text), value) << text;
        EXPECT_EQ(made->stringToQChar(text), static_cast<unsigned short>(value)) << text;
    }
}

TEST_F(ZELKeyButtonTest, indexesAreDecimal)
{
    const std::vector<std::pair<const char*, int>> cases{{"0", 0},
                                                         {"10", 10},
                                                         {"010", 10},
                                                         {" 7", 7},
                                                         {"-5", -5},
                                                         {"+6", 6},
                                                         {"1f", 1},
                                                         {"0x10", 0},
                                                         {"7 8", 7},
                                                         {"3.9", 3},
                                                         {"2147483647", INT_MAX},
                                                         {"99999999999", INT_MAX},
                                                         {"-99999999999", INT_MIN}};
    Key* const made = key();
    for (const auto& [text, value] : cases)
        EXPECT_EQ(made->stringToInt10(text), value) << text;
}

TEST_F(ZELKeyButtonTest, aTextWithoutANumberIsNone)
{
    Key* const made = key();
    for (const char* const text : {"", " ", "zz", "-", "#41", "\xEF\xBC\x91"}) {
        EXPECT_EQ(made->stringToInt10(text), -1) << text;
        EXPECT_EQ(made->stringToInt16(text), -1) << text;
        EXPECT_EQ(made->stringToQChar(text), 0xFFFF) << text;
    }
    EXPECT_EQ(made->stringToInt10("f"), -1);
    EXPECT_EQ(made->stringToInt16("f"), 15);
}

TEST_F(ZELKeyButtonTest, valuesThatAreNoNumbersAreMissing)
{
    const Key* const made = keyWith("code='?' code2=''", "code='x' code2='y' index='a' index2='b'");
    EXPECT_EQ(made->numbers(), none);
}

TEST_F(ZELKeyButtonTest, readsCodesInBaseSixteenAndIndexesInBaseTen)
{
    const Key* const made =
        keyWith("code='10' code2='11'", "code='12' code2='13' index='14' index2='15'");
    EXPECT_EQ(made->numbers(), (std::vector<int>{0x10, 0x11, 0x12, 14, 0x13, 15}));
}

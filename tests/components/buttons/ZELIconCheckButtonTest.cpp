#include "components/buttons/ZELIconCheckButton.h"

#include "components/buttons/ButtonTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELCheckButton;
using Components::ZELIconCheckButton;

namespace {

class IconCheck : public Opened<ZELIconCheckButton>
{
public:
    using Opened::Opened;
    using ZELIconCheckButton::m_bIconVisible;
    using ZELIconCheckButton::m_logger;
    using ZELIconCheckButton::m_nIconAlign;
    using ZELIconCheckButton::m_nIconScale;
    using ZELIconCheckButton::m_nSecondAlign;
    using ZELIconCheckButton::m_pIcon;
    using ZELIconCheckButton::m_secondTextRect;
    using ZELIconCheckButton::m_strSecondText;
};

class ZELIconCheckButtonTest : public ButtonTest
{
protected:
    ZELIconCheckButtonTest()
    {
        writePicture("wide.png", 40, 20, Qt::magenta);
        writePicture("square.png", 20, 20, Qt::magenta);
    }

    /** A row of 200 by 50 that is green, and blue while checked. */
    IconCheck* row(const std::string& children, const std::string& attributes = "")
    {
        return make<IconCheck>("<ok " + attributes +
                               "><image up='up.png' down='down.png' dim='dim.png'/>"
                               "<position x='10' y='20' width='200' height='50'/>" +
                               children + "</ok>");
    }

    /** Where the icon is to be seen on a row of 200 by 50. */
    QRect iconOf(const std::string& icon)
    {
        return Pixels::inkBox(Pixels::grab(row(icon)), Qt::green);
    }
};

} // namespace

TEST_F(ZELIconCheckButtonTest, isACheckButtonWithAVisibleIconOfFullSize)
{
    auto* const button = buildComponent<ZELIconCheckButton>("iconcheckbutton", ok());
    EXPECT_EQ(static_cast<void*>(static_cast<ZELCheckButton*>(button)), static_cast<void*>(button));
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_EQ(button->m_strType, "ZELIconCheckButton");
    auto* const plain = row("");
    EXPECT_EQ(plain->m_logger.m_strIdentity, "QTPANFx ZELIconCheckButton");
    EXPECT_EQ(plain->m_pIcon, nullptr);
    EXPECT_EQ(plain->m_nIconScale, 100);
    EXPECT_EQ(plain->m_nIconAlign, 0);
    EXPECT_TRUE(plain->m_bIconVisible);
    EXPECT_EQ(plain->m_strSecondText, "");
    EXPECT_EQ(plain->m_secondTextRect, QRect());
    EXPECT_EQ(plain->m_nSecondAlign, 0);
    EXPECT_EQ(plain->geometry(), QRect(10, 20, 200, 50));
    EXPECT_EQ(plain->m_nOrgX, 10);
    EXPECT_EQ(plain->m_nOrgY, 20);
}

TEST_F(ZELIconCheckButtonTest, aNullLayoutIsToldByBothClasses)
{
    expectNullLayoutLines("ok", 2);
    auto* const button = make<IconCheck>("");
    EXPECT_EQ(log().texts("ZELImageButton"),
              std::vector<std::string>{"[E] [setLayout] ok pLayout == NULL"});
    EXPECT_EQ(log().texts("ZELIconCheckButton"),
              std::vector<std::string>{"[E] [setLayout] ok pLayout == NULL"});
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
}

TEST_F(ZELIconCheckButtonTest, aNullLayoutTakesThePicturesAwayAndNothingElse)
{
    auto* const button = row("<icon image='square.png' scale='50'/><textR title='right'/>");
    expectNullLayoutLines("ok");
    button->setLayout(nullptr);
    EXPECT_EQ(button->m_pIcon, nullptr);
    EXPECT_EQ(button->m_pUpImage, nullptr);
    EXPECT_EQ(button->m_pDownImage, nullptr);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(button->m_strUpImage + button->m_strDownImage + button->m_strDimImage, "");
    EXPECT_EQ(button->m_nIconScale, 50);
    EXPECT_EQ(button->m_strSecondText, "right");
    EXPECT_EQ(button->geometry(), QRect(10, 20, 200, 50));
}

TEST_F(ZELIconCheckButtonTest, aLayoutWithoutPicturesLeavesNone)
{
    auto* const button = row("<icon image='square.png'/>");
    button->setLayout(element("<ok><position width='30' height='20'/></ok>"));
    EXPECT_EQ(button->m_pIcon, nullptr);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(button->m_strUpImage, "");
    EXPECT_EQ(button->geometry(), QRect(0, 0, 30, 20));
    EXPECT_EQ(button->m_nOrgX, 10) << "the base's own";
}

TEST_F(ZELIconCheckButtonTest, readsStylesAndAnimationWithOrWithoutATitle)
{
    auto* const bare = row("", "style='normal' pressstyle='pressed' dimstyle='dimmed' "
                               "animation='elastic_push'");
    EXPECT_EQ(bare->m_pFont, style("normal"));
    EXPECT_EQ(bare->m_pPressFont, style("pressed"));
    EXPECT_EQ(bare->m_pDimFont, nullptr) << "this one with a title only";
    EXPECT_EQ(bare->m_strAnimation, "elastic_push");
    bare->setLayout(element("<ok/>"));
    EXPECT_EQ(bare->m_pFont, style("normal")) << "what is not there stays";
    EXPECT_EQ(bare->m_pPressFont, style("pressed"));
    EXPECT_EQ(bare->m_strAnimation, "elastic_push");
}

TEST_F(ZELIconCheckButtonTest, readsItsTextsAsTheyStand)
{
    writeStrings("<table><String key='k'><kr>n</kr><en>looked up</en></String></table>");
    auto* const button = row("<textL title='@k' x='1' y='2' width='3' height='4'/>"
                             "<textR title='@k' x='5' y='6' width='7' height='8'/>",
                             "title='@k'");
    EXPECT_EQ(button->getTitle(), "@k");
    EXPECT_EQ(button->m_textRect, QRect(1, 2, 3, 4));
    EXPECT_EQ(button->m_nAlign, toTheLeft);
    EXPECT_EQ(button->m_strSecondText, "@k");
    EXPECT_EQ(button->m_secondTextRect, QRect(5, 6, 7, 8));
    EXPECT_EQ(button->m_nSecondAlign, toTheRight);
    EXPECT_EQ(row("", "title='@k'")->getTitle(), "looked up") << "as the base left it";
}

TEST_F(ZELIconCheckButtonTest, textsHaveTheirOwnDefaults)
{
    auto* const button = row("<textL title='l' align='center'/><textR title='r' align='left'/>");
    EXPECT_EQ(button->m_textRect, QRect(0, 0, 1, 1));
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_EQ(button->m_secondTextRect, QRect(0, 0, 1, 1));
    EXPECT_EQ(button->m_nSecondAlign, toTheLeft);
}

TEST_F(ZELIconCheckButtonTest, aTextWithoutATitleIsIgnoredWithItsPosition)
{
    auto* const button = row("<textL x='1' width='30' align='right'/>"
                             "<textR x='1' y='2' width='30' height='4' align='left'/>",
                             "title='base'");
    EXPECT_EQ(button->getTitle(), "base");
    EXPECT_EQ(button->m_textRect, QRect());
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_EQ(button->m_strSecondText, "");
    EXPECT_EQ(button->m_secondTextRect, QRect());
    EXPECT_EQ(button->m_nSecondAlign, 0);
}

TEST_F(ZELIconCheckButtonTest, readsItsIcon)
{
    auto* const button = row("<icon image='square.png' scale='30' align='right'/>");
    EXPECT_EQ(button->m_pIcon, picture("square.png"));
    EXPECT_EQ(button->m_nIconScale, 30);
    EXPECT_EQ(button->m_nIconAlign, toTheRight);
    EXPECT_EQ(row("<icon image='square.png'/>")->m_nIconAlign, toTheLeft);
    EXPECT_EQ(row("<icon image='nosuch.png'/>")->m_pIcon, nullptr);
    EXPECT_EQ(row("<icon scale='30'/>")->m_pIcon, nullptr);
}

// ---- painting

TEST_F(ZELIconCheckButtonTest, thePictureFillsTheRowWhateverItsRectangle)
{
    auto* const button = row("<imagePos x='4' y='5' width='20' height='10'/>");
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::green)));
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::blue)));
}

TEST_F(ZELIconCheckButtonTest, tapsGoThroughThePicturesOfACheckButton)
{
    auto* const button = row("");
    Touch::press(button);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::blue)));
    Touch::release(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeOne().id, "ok");
    Touch::tap(button);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::green)));
}

TEST_F(ZELIconCheckButtonTest, checkedWithoutADownPictureItTellsSoOnce)
{
    auto* const button = row("");
    button->setImages("nosuch.png", "up.png", "");
    button->m_bChecked = true;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
    log().expectError("[paintEvent] ok is checked and has no down image", 1, "ZELIconCheckButton");
}

TEST_F(ZELIconCheckButtonTest, drawsBothTextsInOneStyle)
{
    const std::string texts = "<textL title='LL' x='5' y='0' width='60' height='50'/>"
                              "<textR title='RR' x='100' y='0' width='90' height='50'/>";
    auto* const button = row(texts, "style='normal' pressstyle='pressed'");
    for (const bool checked : {false, true}) {
        button->m_bChecked = checked;
        const std::string name = checked ? "pressed" : "normal";
        const QColor colour = checked ? Qt::red : Qt::black;
        QImage expected = filled(QSize(200, 50), checked ? Qt::blue : Qt::green);
        drawText(expected, QStringLiteral("LL"), QRect(5, 0, 60, 50), toTheLeft, name, colour);
        drawText(expected, QStringLiteral("RR"), QRect(100, 0, 90, 50), toTheRight, name, colour);
        EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected)) << name;
    }
    auto* const one = row(texts, "style='normal'");
    one->m_bChecked = true;
    EXPECT_EQ(coloursIn(Pixels::grab(one)), "normal") << "where there is no press style";
    EXPECT_EQ(coloursIn(Pixels::grab(row(texts, "pressstyle='pressed'"))), "");
    EXPECT_EQ(coloursIn(Pixels::grab(row(texts))), "");
}

TEST_F(ZELIconCheckButtonTest, neitherDimModeNorAPressChangesTheStyle)
{
    auto* const button = row("<textL title='HHHH' width='100' height='50'/>", styled);
    button->m_bPressed = true;
    EXPECT_EQ(coloursIn(Pixels::grab(button)), "normal");
    button->setDimMode(true);
    EXPECT_EQ(coloursIn(Pixels::grab(button)), "normal");
}

TEST_F(ZELIconCheckButtonTest, withoutRectanglesTextsTakeTheWholeRow)
{
    auto* const button = row("", "title='HH' style='normal'");
    button->setSecondText("RR");
    QImage expected = filled(QSize(200, 50), Qt::green);
    drawText(expected, QStringLiteral("HH"), QRect(0, 0, 200, 50), centred, "normal", Qt::black);
    drawText(expected, QStringLiteral("RR"), QRect(0, 0, 200, 50), 0, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
}

TEST_F(ZELIconCheckButtonTest, placesItsIcon)
{
    const struct
    {
        const char* icon;
        QRect place;
    } rows[] = {
        {"<icon image='square.png'/>", {3, 16, 20, 20}},
        {"<icon image='square.png' align='left'/>", {3, 16, 20, 20}},
        {"<icon image='square.png' align='center'/>", {88, 16, 20, 20}},
        {"<icon image='square.png' align='right'/>", {177, 16, 20, 20}},
        // width and height are crossed, also where the scale is 100
        {"<icon image='wide.png'/>", {3, 16, 20, 40}},
        {"<icon image='wide.png' scale='50'/>", {3, 21, 10, 20}},
        {"<icon image='wide.png' scale='50' align='center'/>", {88, 21, 10, 20}},
        // the right edge ignores the scale
        {"<icon image='wide.png' scale='50' align='right'/>", {157, 21, 10, 20}},
        // fractions are cut
        {"<icon image='square.png' scale='33' align='center'/>", {94, 22, 6, 6}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(iconOf(row.icon), row.place & QRect(0, 0, 200, 50)) << row.icon;
    EXPECT_EQ(iconOf("<icon image='square.png' scale='0'/>"), QRect());
}

TEST_F(ZELIconCheckButtonTest, theScaleIsTakenInSinglePrecision)
{
    writePicture("hundred.png", 100, 100, Qt::magenta);
    // 0.29 times 100 is a hair under 29 in double precision
    EXPECT_EQ(iconOf("<icon image='hundred.png' scale='29'/>"), QRect(3, 11, 29, 29));
}

TEST_F(ZELIconCheckButtonTest, anIconLargerThanTheRowIsShiftedAfterTheFractionIsCut)
{
    writePicture("high.png", 51, 51, Qt::magenta); // half a pixel above the row
    EXPECT_EQ(iconOf("<icon image='high.png'/>"), QRect(3, 1, 51, 49));
    writePicture("broad.png", 199, 199, Qt::magenta); // half a pixel from its left edge
    EXPECT_EQ(iconOf("<icon image='broad.png' align='center'/>"), QRect(0, 0, 197, 50));
    writePicture("larger.png", 301, 301, Qt::magenta);
    EXPECT_EQ(iconOf("<icon image='larger.png' align='center'/>"), QRect(0, 0, 200, 50));
}

TEST_F(ZELIconCheckButtonTest, scalesItsPicturesSmoothlyAndTheIconOverAPictureOnly)
{
    writeHalves("halves.png");
    const QRect iconPlace(3, 1, 50, 100); // as wide as the picture is high, fifty times
    auto* const button = row("<icon image='halves.png' scale='5000'/>");
    const auto shades = [&] {
        const QImage seen = Pixels::grab(button);
        return greys(seen, iconPlace & button->rect());
    };
    EXPECT_GT(shades(), 0);
    button->setImages("", "nosuch.png", "");
    button->m_pCurImage = nullptr;
    EXPECT_EQ(shades(), 0) << "nothing has asked for smoothness";
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");

    auto* const plain = row("");
    plain->setImages("halves.png", "halves.png", "");
    for (const bool checked : {false, true}) {
        plain->m_bChecked = checked;
        EXPECT_GT(greys(Pixels::grab(plain), plain->rect()), 0) << checked;
    }
}

TEST_F(ZELIconCheckButtonTest, isPushedAlsoWithoutATitle)
{
    auto* const button = row("", "animation='elastic_push'");
    Touch::press(button);
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(13, 23, 200, 50));
    Touch::release(button);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(10, 20, 200, 50));
}

TEST_F(ZELIconCheckButtonTest, theIconFadesWhenChecked)
{
    auto* const button = row("<icon image='square.png'/>");
    EXPECT_EQ(Pixels::at(Pixels::grab(button), 10, 25), QColor(Qt::magenta));
    button->m_bChecked = true;
    const QColor faded = Pixels::at(Pixels::grab(button), 10, 25);
    EXPECT_NEAR(faded.red(), 0.3 * 255, 2) << "a third of the icon over the blue picture";
    EXPECT_EQ(faded.green(), 0);
    EXPECT_EQ(faded.blue(), 255);
}

TEST_F(ZELIconCheckButtonTest, theIconLiesOverTheTextAndFadesAlone)
{
    const QRect textRect(0, 0, 100, 50);
    auto* const button = row("<icon image='square.png'/>"
                             "<textL title='HHHH' x='0' y='0' width='100' height='50'/>"
                             "<textR title='RR' x='3' y='16' width='20' height='20' align='left'/>",
                             "style='normal' pressstyle='pressed'");
    for (const bool checked : {false, true}) {
        button->m_bChecked = checked;
        const std::string name = checked ? "pressed" : "normal";
        const QColor ink = checked ? Qt::red : Qt::black;
        QImage expected = filled(QSize(200, 50), checked ? Qt::blue : Qt::green);
        drawText(expected, QStringLiteral("HHHH"), textRect, toTheLeft, name, ink);
        drawText(expected, QStringLiteral("RR"), QRect(3, 16, 20, 20), toTheLeft, name, ink);
        ASSERT_GT(Pixels::count(expected, ink, QRect(3, 16, 20, 20)), 0) << "it overlaps";
        QPainter painter(&expected);
        painter.setOpacity(checked ? 0.3 : 1.0);
        painter.drawPixmap(QRect(3, 16, 20, 20), *picture("square.png"), QRect());
        painter.end();
        EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected)) << name;
    }
}

TEST_F(ZELIconCheckButtonTest, uncheckedInDimModeItShowsTheDimPicture)
{
    auto* const button = row("");
    button->setDimMode(true);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::yellow)));
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::blue)));
}

TEST_F(ZELIconCheckButtonTest, theLongPressOfItsLayoutTicks)
{
    auto* const button = row("", "longpress='true'");
    Touch::press(button);
    tick(button);
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_LONG_PRESS, EVENT_MOUSE_UP}));
    EXPECT_TRUE(button->m_bChecked);
}

TEST_F(ZELIconCheckButtonTest, aNewTitleIsTheLeftText)
{
    auto* const button =
        row("<textL title='LL' x='5' y='0' width='60' height='50'/>", "style='normal'");
    button->setTitle("\xC3\x84H");
    QImage expected = filled(QSize(200, 50), Qt::green);
    drawText(expected, QString(QChar(0xC4)) + QLatin1Char('H'), QRect(5, 0, 60, 50), toTheLeft,
             "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
}

TEST_F(ZELIconCheckButtonTest, theIconCanBeHiddenAndChanged)
{
    auto* const button = row("<icon image='square.png'/>");
    button->setIconVisible(false);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::green)));
    button->setIconVisible(true);
    button->setIconImage("wide.png");
    EXPECT_EQ(button->m_pIcon, picture("wide.png"));
    button->setIconImage("nosuch.png");
    EXPECT_EQ(button->m_pIcon, nullptr);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(QSize(200, 50), Qt::green)));
}

TEST_F(ZELIconCheckButtonTest, anAbsurdScaleDoesNoHarm)
{
    const auto centred = [this](const std::string& scale) {
        return iconOf("<icon image='square.png' align='center' scale='" + scale + "'/>");
    };
    // Qt draws a picture in its own size where the wanted one is negative
    EXPECT_EQ(centred("-50"), QRect(103, 31, 20, 19));
    EXPECT_EQ(centred("2147483647"), QRect()) << "far off to the left";
    EXPECT_EQ(centred("-2147483648"), QRect()) << "far off to the right";
    EXPECT_EQ(centred("100000"), QRect(0, 0, 200, 50));
}

TEST_F(ZELIconCheckButtonTest, settersRepaintNothing)
{
    auto* const button = row("<icon image='square.png'/>");
    const PaintCounter paints(button);
    button->setIconVisible(false);
    button->setSecondText("right");
    button->setIconImage("wide.png");
    button->setTitle("left");
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(button->m_strSecondText, "right");
    EXPECT_EQ(button->getTitle(), "left");
}

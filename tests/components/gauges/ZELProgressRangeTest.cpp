#include "components/gauges/ZELProgressRange.h"

#include "components/gauges/RangeTest.h"

#include <climits>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

class LevelRange : public OpenRange<Components::ZELProgressRange>
{
public:
    using OpenRange::OpenRange;

    using ZELProgressRange::m_chType;
    using ZELProgressRange::m_nBGHeight;
    using ZELProgressRange::m_nBGWidth;
    using ZELProgressRange::m_nBGX;
    using ZELProgressRange::m_nBGY;
    using ZELProgressRange::m_nOffset;
    using ZELProgressRange::m_nThumbHeight;
    using ZELProgressRange::m_nThumbWidth;
    using ZELProgressRange::m_nThumbX;
    using ZELProgressRange::m_nThumbY;
    using ZELProgressRange::m_pBGPixmap;
    using ZELProgressRange::m_pThumbPixmap;

    QRect background() const { return {m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight}; }
    QRect thumb() const { return {m_nThumbX, m_nThumbY, m_nThumbWidth, m_nThumbHeight}; }
};

class ZELProgressRangeTest : public RangeTest
{
protected:
    static constexpr const char* backElement =
        "<bgimg file='back.png' x='60' y='0' width='80' height='100'/>";
    static constexpr const char* thumbElement =
        "<thumbimg file='thumb.png' x='65' y='80' width='10' height='8'/>";

    static std::string buttons() { return pushButton("upbtn", 150) + pushButton("downbtn", 0); }

    void expectButtonLines(int up = 1, int down = 1)
    {
        log().expectError("[setLayout] upbtn pLayout == NULL", up, "ZELImageButton");
        log().expectError("[setLayout] downbtn pLayout == NULL", down, "ZELImageButton");
    }

    LevelRange* open(const std::string& attributes, const std::string& children)
    {
        return make<LevelRange>("<rng " + attributes + ">" + at(10, 20, 200, 100) + children +
                                    "</rng>",
                                "ZELProgressRange");
    }

    // a whole one
    LevelRange* level(const std::string& attributes = "")
    {
        expectButtonLines();
        return open(attributes, backElement + std::string(thumbElement) + buttons());
    }

    // what it is to look like, without its buttons
    static QImage withThumbs(const std::vector<QRect>& thumbs)
    {
        QImage image = Pixels::canvas(QSize(200, 100));
        QPainter painter(&image);
        painter.fillRect(60, 0, 80, 100, Qt::cyan);
        for (const QRect& thumb : thumbs)
            painter.fillRect(thumb, Qt::magenta);
        return image;
    }

    static QImage grabWithoutButtons(LevelRange* range)
    {
        range->m_pUpBtn->hide();
        range->m_pDownBtn->hide();
        return Pixels::grab(range);
    }
};

} // namespace

TEST_F(ZELProgressRangeTest, stepsAsTheTableSays)
{
    expectSteps(level("max='3'"), {{false, 1, -2, 0, "down"},
                                   {false, 1, 0, 0, "down"},
                                   {false, 0, 1, 1, ""},
                                   {false, 0, 2, 2, ""},
                                   {false, 0, 3, 3, "up"},
                                   {false, 0, 4, 3, "up"},
                                   {false, 0, 99, 3, "up"},
                                   // wrapping leaves the buttons as they are
                                   {true, 0, -1, 3, "down"},
                                   {true, 1, -1, 3, ""},
                                   {true, 3, 4, 0, "up"},
                                   {true, 1, 99, 0, ""},
                                   {true, 1, 3, 3, ""},
                                   {true, 0, 0, 0, "down"},
                                   {true, 0, 2, 2, "down"}});
}

TEST_F(ZELProgressRangeTest, enablesAsTheTableSays)
{
    expectEnabling(level("max='3'"), {{false, 0, false, 0, "up down"},
                                      {false, 3, false, 3, "up down"},
                                      {false, 0, true, 0, "down"},
                                      {false, -4, true, 0, "down"},
                                      {false, 1, true, 1, ""},
                                      {false, 2, true, 2, ""},
                                      {false, 3, true, 3, "up"},
                                      {false, 9, true, 3, "up"},
                                      {true, 0, true, 0, ""},
                                      {true, 3, true, 3, ""}});
}

TEST_F(ZELProgressRangeTest, enablingConcernsTheButtonsAlone)
{
    auto* const range = level();
    PaintCounter paints(range);
    range->setStep(2);
    range->m_pUpBtn->hide(); // where a button is painted anew, so is what lies beneath it
    range->m_pDownBtn->hide();
    paints.reset();
    for (const bool enable : {false, true}) {
        range->setEnable(enable);
        EXPECT_TRUE(range->isEnabled());
        EventLoop::deliver();
        EXPECT_EQ(paints.count(), 0) << enable;
    }
    EXPECT_EQ(range->m_nStep, 2);
}

TEST_F(ZELProgressRangeTest, hasFiveStepsAboveTheFirstUnlessTold)
{
    auto* const range = level();
    EXPECT_EQ(range->m_nMax, 5);
    range->setStep(7);
    EXPECT_EQ(range->m_nStep, 5);
    range->setStep(-2);
    EXPECT_EQ(range->m_nStep, 0);
}

TEST_F(ZELProgressRangeTest, readsItsAttributes)
{
    struct Case
    {
        std::string attributes;
        char type;
        int offset;
        int max;
    };
    for (const Case& row :
         {Case{"", 'V', 0, 5}, Case{"type='H' offset='3' max='9'", 'H', 3, 9},
          Case{"type='Vertical'", 'V', 0, 5}, Case{"type='v'", 'v', 0, 5},
          Case{"type=''", '\0', 0, 5}, Case{"offset='-4' max='-1'", 'V', -4, -1},
          Case{"offset='7px' max='010'", 'V', 7, 10}, Case{"offset='' max='x'", 'V', 0, 0}}) {
        SCOPED_TRACE(row.attributes);
        auto* const range = level(row.attributes);
        EXPECT_EQ(range->m_chType, row.type);
        EXPECT_EQ(range->m_nOffset, row.offset);
        EXPECT_EQ(range->m_nMax, row.max);
        delete range;
    }
}

TEST_F(ZELProgressRangeTest, readsItsPictures)
{
    struct Case
    {
        std::string back;
        std::string thumb;
        QRect backPlace;
        QRect thumbPlace;
        bool hasBack;
        bool hasThumb;
        Texts lines;
    };
    const QRect none(0, 0, 1, 1);
    for (const Case& row : std::vector<Case>{{"<bgimg file='back.png' x='1' height='4'/>",
                                              "<thumbimg file='thumb.png' y='2' width='3'/>",
                                              {1, 0, 1, 4},
                                              {0, 2, 3, 1},
                                              true,
                                              true,
                                              {}},
                                             {"<bgimg x='5'/>",
                                              "<thumbimg x='6'/>",
                                              {5, 0, 1, 1},
                                              {6, 0, 1, 1},
                                              false,
                                              false,
                                              {"[D] [setLayout]  Attribute \"file\" is NULL"}},
                                             {"<bgimg file='no.png'/>",
                                              "<thumbimg file='no.png'/>",
                                              none,
                                              none,
                                              false,
                                              false,
                                              {"[D] [setLayout]  no BackgroundImage File",
                                               "[D] [setLayout]  no Thumb Image File"}}}) {
        SCOPED_TRACE(row.back);
        expectButtonLines();
        log().startHere();
        auto* const range = open("", row.back + row.thumb + buttons());
        EXPECT_EQ(range->background(), row.backPlace);
        EXPECT_EQ(range->thumb(), row.thumbPlace);
        EXPECT_EQ(range->m_pBGPixmap != nullptr, row.hasBack);
        EXPECT_EQ(range->m_pThumbPixmap != nullptr, row.hasThumb);
        EXPECT_EQ(log().texts("ZELProgressRange"), row.lines);
        range->setStep(5);
        Pixels::grab(range);
        delete range;
    }
}

TEST_F(ZELProgressRangeTest, missingElementsEndTheLayoutAndAreToldAtDebug)
{
    struct Case
    {
        std::string children;
        int up;
        int down;
        std::string line;
    };
    const std::string back = backElement;
    const std::string thumb = thumbElement;
    for (const Case& row :
         {Case{thumb + buttons(), 0, 0, "Background"}, Case{back + buttons(), 0, 0, "Thumb"},
          Case{back + thumb + pushButton("downbtn", 0), 0, 0, "UpBtn"},
          Case{back + thumb + pushButton("upbtn", 150), 1, 0, "DownBtn"},
          Case{"", 0, 0, "Background"}}) {
        SCOPED_TRACE(row.children);
        expectButtonLines(row.up, row.down);
        log().startHere();
        auto* const range = open("", row.children);
        EXPECT_EQ(log().texts("ZELProgressRange"),
                  Texts{"[D] [setLayout] " + row.line + " Node is NULL"});
        EXPECT_EQ(range->m_pUpBtn != nullptr, row.up == 1);
        EXPECT_EQ(range->m_pDownBtn, nullptr);
        EXPECT_EQ(range->geometry(), QRect(10, 20, 200, 100));
        range->setStep(3);
        range->setEnable(false);
        range->setEnable(true);
        EXPECT_EQ(range->m_nStep, 3);
        Pixels::grab(range);
        delete range;
    }
}

TEST_F(ZELProgressRangeTest, theButtonsReadNothingOfTheRange)
{
    auto* const range = level("longpress='true'");
    EXPECT_FALSE(LevelRange::hasLongPress(range->m_pUpBtn));
    EXPECT_EQ(LevelRange::upImage(range->m_pUpBtn), "up.png");
}

TEST_F(ZELProgressRangeTest, aColumnGrowsUpwardFromTheBottomOfItsFirstThumb)
{
    auto* const range = level("offset='3'");
    range->setStep(3);
    EXPECT_TRUE(Pixels::same(grabWithoutButtons(range),
                             withThumbs({{65, 72, 10, 8}, {65, 61, 10, 8}, {65, 50, 10, 8}})));
}

TEST_F(ZELProgressRangeTest, aRowGrowsToTheRight)
{
    for (const std::string type : {"H", "h", "v", ""}) {
        auto* const range = level("type='" + type + "' offset='3'");
        range->setStep(3);
        EXPECT_TRUE(Pixels::same(grabWithoutButtons(range),
                                 withThumbs({{65, 80, 10, 8}, {78, 80, 10, 8}, {91, 80, 10, 8}})))
            << type;
        delete range;
    }
}

TEST_F(ZELProgressRangeTest, stepNoneShowsTheBackgroundAlone)
{
    auto* const range = level();
    EXPECT_TRUE(Pixels::same(grabWithoutButtons(range), withThumbs({})));
    range->setStep(1);
    EXPECT_TRUE(Pixels::same(grabWithoutButtons(range), withThumbs({{65, 72, 10, 8}})));
}

TEST_F(ZELProgressRangeTest, scalesThumbsSmoothly)
{
    writeHalves("thumb.png");
    auto* const range = level();
    range->setStep(1);
    EXPECT_GT(greys(grabWithoutButtons(range), QRect(65, 72, 10, 8)), 0);
}

TEST_F(ZELProgressRangeTest, aStepOfManyThumbsIsPaintedAsFarAsItShows)
{
    auto* const range = level("max='2147483647' offset='2147483647'");
    range->setStep(INT_MAX);
    EXPECT_EQ(range->m_nStep, INT_MAX);
    EXPECT_TRUE(Pixels::same(grabWithoutButtons(range), withThumbs({{65, 72, 10, 8}})));
}

#include "components/gauges/ZELImageProgressBar.h"

#include "components/buttons/ButtonTest.h"
#include "support/VirtualSlot.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageProgressBar;

namespace {

class Bar : public ZELImageProgressBar
{
public:
    using ZELImageProgressBar::ZELImageProgressBar;

    using ZELImageProgressBar::m_logger;
    using ZELImageProgressBar::m_nOffsetX;
    using ZELImageProgressBar::m_nOffsetY;
    using ZELImageProgressBar::m_pBGPixmap;
    using ZELImageProgressBar::m_pEndPixmap;
    using ZELImageProgressBar::m_pFont;
    using ZELImageProgressBar::m_pMidPixmap;
    using ZELImageProgressBar::m_pStartPixmap;

    // "bsme": which of the four there are
    std::string pictures() const
    {
        std::string found;
        for (const auto& [letter, pixmap] : {std::pair('b', m_pBGPixmap),
                                             {'s', m_pStartPixmap},
                                             {'m', m_pMidPixmap},
                                             {'e', m_pEndPixmap}}) {
            if (pixmap)
                found += letter;
        }
        return found;
    }
};

class ZELImageProgressBarTest : public ButtonTest
{
protected:
    using Texts = std::vector<std::string>;

    static constexpr int heightOfMid = 12;
    static constexpr int heightOfCaps = 16;

    ZELImageProgressBarTest()
    {
        writePicture("back.png", 200, 40, Qt::cyan);
        writePicture("start.png", 6, heightOfCaps, Qt::red);
        writePicture("mid.png", 2, heightOfMid, Qt::green);
        writePicture("end.png", 6, heightOfCaps, Qt::blue);
    }

    static std::string images()
    {
        return "<image bg='back.png' start='start.png' mid='mid.png' "
               "end='end.png'/>";
    }

    Bar* bar(const std::string& children, const std::string& attributes = "")
    {
        return make<Bar>("<bar " + attributes +
                             "><position x='10' y='20' width='200' height='40'/>" + children +
                             "</bar>",
                         "ZELImageProgress");
    }

    Bar* whole(const std::string& attributes = "")
    {
        return bar(images() + "<offset x='4' y='3'/>", attributes);
    }

    static QImage expected(const QRect& mid, int start, int end)
    {
        QImage image = Pixels::canvas(QSize(200, 40), Qt::cyan);
        QPainter painter(&image);
        if (!mid.isEmpty())
            painter.fillRect(mid, Qt::green);
        if (start >= 0)
            painter.fillRect(start, 3, 6, heightOfCaps, Qt::red);
        if (end >= 0)
            painter.fillRect(end, 3, 6, heightOfCaps, Qt::blue);
        return image;
    }
};

} // namespace

TEST_F(ZELImageProgressBarTest, isAProgressBarWithItsOwnName)
{
    auto* const built =
        buildComponent<ZELImageProgressBar>("imageprogress", "<b>" + images() + "</b>");
    EXPECT_EQ(built->m_strType, "ZELImageProgress");
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_EQ(whole()->m_logger.m_strIdentity, "QTPANFx ZELImageProgressBar");
    EXPECT_EQ(whole()->value(), 0);
    EXPECT_EQ(slot(&Bar::SetPercent), slot(&ZELComponent::getQWidget) + slotSize);
    built->hideWindow();
    EXPECT_TRUE(built->isHidden());
    built->showWindow();
    EXPECT_FALSE(built->isHidden());
}

TEST_F(ZELImageProgressBarTest, withoutAnElementTellsItAndKeepsItsDefaults)
{
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELImageProgressBar");
    auto* const made = make<Bar>("");
    EXPECT_EQ(made->pictures(), "");
    EXPECT_EQ(made->m_nOffsetX, 0);
    EXPECT_EQ(made->m_nOffsetY, 0);
    EXPECT_EQ(made->m_pFont, nullptr);
}

TEST_F(ZELImageProgressBarTest, readsItsPlaceItsStyleAndItsPictures)
{
    log().startHere();
    auto* const made = whole("style='pressed'");
    EXPECT_EQ(made->geometry(), QRect(10, 20, 200, 40));
    EXPECT_EQ(made->m_pFont, style("pressed"));
    EXPECT_EQ(whole()->m_pFont, nullptr);
    EXPECT_EQ(made->pictures(), "bsme");
    EXPECT_EQ(made->m_pBGPixmap, picture("back.png"));
    EXPECT_EQ(made->m_pStartPixmap, picture("start.png"));
    EXPECT_EQ(made->m_pMidPixmap, picture("mid.png"));
    EXPECT_EQ(made->m_pEndPixmap, picture("end.png"));
    EXPECT_TRUE(log().texts("ZELImageProgressBar").empty());
}

TEST_F(ZELImageProgressBarTest, readsItsInsets)
{
    const std::string noX = "[D] [setLayout] offset[x] is null and set m_nOffsetX = 0";
    const std::string noY = "[D] [setLayout] offset[y] is null and set m_nOffsetY = 0";
    struct Case
    {
        std::string offset;
        int x;
        int y;
        Texts lines;
    };
    for (const Case& row : std::vector<Case>{{"", 0, 0, {}},
                                             {"<offset x='4' y='3'/>", 4, 3, {}},
                                             {"<offset y='3'/>", 1, 3, {noX}},
                                             {"<offset x='4'/>", 4, 1, {noY}},
                                             {"<offset/>", 1, 1, {noX, noY}},
                                             {"<offset x='-2' y='08'/>", -2, 8, {}},
                                             {"<offset x='' y='a'/>", 0, 0, {}}}) {
        SCOPED_TRACE(row.offset);
        log().startHere();
        auto* const made = bar(images() + row.offset);
        EXPECT_EQ(made->m_nOffsetX, row.x);
        EXPECT_EQ(made->m_nOffsetY, row.y);
        EXPECT_EQ(log().texts("ZELImageProgressBar"), row.lines);
    }
}

TEST_F(ZELImageProgressBarTest, anIncompleteSetOfPicturesEndsTheLayout)
{
    for (const std::string attributes :
         {"", "bg='back.png'", "start='start.png' mid='mid.png' end='end.png'",
          "bg='back.png' mid='mid.png' end='end.png'",
          "bg='back.png' start='start.png' end='end.png'",
          "bg='back.png' start='start.png' mid='mid.png'"}) {
        SCOPED_TRACE(attributes);
        log().startHere();
        auto* const made = bar("<image " + attributes + "/><offset/>", "style='normal'");
        EXPECT_EQ(log().count("[D] [setLayout] Image - bg, start, mid, end parameter error!!\n"),
                  1);
        EXPECT_EQ(made->pictures(), "");
        EXPECT_EQ(made->m_nOffsetX, 0) << "not read any more";
        EXPECT_NE(made->geometry(), QRect(10, 20, 200, 40));
        EXPECT_EQ(made->m_pFont, style("normal")) << "read before";
        log().startHere();
        EXPECT_EQ(Pixels::inkBox(Pixels::grab(made)), QRect());
        EXPECT_EQ(log().texts("ZELImageProgressBar"),
                  Texts{"[D] [paintEvent] m_pBGPixmap is NULL!!"});
    }
}

TEST_F(ZELImageProgressBarTest, withoutPicturesAtAllTakesItsPlace)
{
    log().expectError("[getImage] No FileName Error", 4, "ZELImageMgr");
    auto* const made = bar("");
    EXPECT_EQ(made->geometry(), QRect(10, 20, 200, 40));
    EXPECT_EQ(made->pictures(), "");
    log().startHere();
    for (int i = 0; i < 3; ++i)
        Pixels::grab(made);
    EXPECT_EQ(log().count("[D] [paintEvent] m_pBGPixmap is NULL!!"), 3) << "at each paint";
}

TEST_F(ZELImageProgressBarTest, withoutAPlaceIsOnePixel)
{
    EXPECT_EQ(make<Bar>("<bar>" + images() + "</bar>")->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELImageProgressBarTest, paintsItsFill)
{
    struct Case
    {
        int percent;
        QRect mid;
        int start;
        int end;
    };
    auto* const made = whole();
    for (const Case& row : std::vector<Case>{{0, {}, -1, -1},
                                             {1, {}, 4, 10}, // fill 1: both caps all the same
                                             {5, {}, 4, 10}, // fill 9
                                             {6, {}, 4, 10}, // fill 11, one short of the caps
                                             {7, {10, 3, 1, heightOfMid}, 4, 11},
                                             {50, {10, 3, 84, heightOfMid}, 4, 94},
                                             {99, {10, 3, 178, heightOfMid}, 4, 188},
                                             {100, {10, 3, 180, heightOfMid}, 4, 190}}) {
        SCOPED_TRACE(row.percent);
        made->SetPercent(row.percent);
        EXPECT_TRUE(Pixels::same(Pixels::grab(made), expected(row.mid, row.start, row.end)));
    }
    made->SetPercent(101);
    EXPECT_EQ(made->value(), 100);
}

TEST_F(ZELImageProgressBarTest, theBackgroundKeepsItsSize)
{
    writePicture("back.png", 30, 10, Qt::cyan);
    const QImage image = Pixels::grab(whole());
    EXPECT_EQ(Pixels::inkBox(image), QRect(0, 0, 30, 10));
}

TEST_F(ZELImageProgressBarTest, stretchesItsMiddleSmoothly)
{
    writeHalves("mid.png");
    auto* const made = whole();
    made->SetPercent(50);
    EXPECT_GT(greys(Pixels::grab(made), QRect(10, 3, 84, 1)), 0);
}

TEST_F(ZELImageProgressBarTest, printsTheNumberInItsStyle)
{
    auto* const made = whole("style='normal'");
    for (const auto& [percent, text] : {std::pair(0, "0%"), {50, "50%"}, {100, "100%"}}) {
        made->SetPercent(percent);
        QImage image = percent == 0    ? expected({}, -1, -1)
                       : percent == 50 ? expected({10, 3, 84, heightOfMid}, 4, 94)
                                       : expected({10, 3, 180, heightOfMid}, 4, 190);
        drawText(image, QString::fromLatin1(text), QRect(0, 0, 200, 40), centred, "normal",
                 Qt::black);
        EXPECT_TRUE(Pixels::same(Pixels::grab(made), image)) << text;
    }
}

TEST_F(ZELImageProgressBarTest, setImageTellsWhetherAllExist)
{
    struct Case
    {
        std::array<std::string, 4> names;
        bool result;
        std::string pictures;
    };
    auto* const made = whole();
    for (const Case& row : {Case{{"up.png", "up.png", "up.png", "up.png"}, true, "bsme"},
                            Case{{"no.png", "up.png", "up.png", "up.png"}, false, "sme"},
                            Case{{"up.png", "no.png", "up.png", "up.png"}, false, "bme"},
                            Case{{"up.png", "up.png", "no.png", "up.png"}, false, "bse"},
                            Case{{"up.png", "up.png", "up.png", "no.png"}, false, "bsm"},
                            Case{{"back.png", "start.png", "mid.png", "end.png"}, true, "bsme"}}) {
        EXPECT_EQ(made->setImage(row.names[0], row.names[1], row.names[2], row.names[3]),
                  row.result);
        EXPECT_EQ(made->pictures(), row.pictures);
    }
    EXPECT_EQ(made->m_pEndPixmap, picture("end.png"));
}

TEST_F(ZELImageProgressBarTest, theNextPaintUsesANewPicture)
{
    auto* const made = whole();
    made->setImage("dim.png", "start.png", "mid.png", "end.png");
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(made)), QRect(0, 0, 60, 30));
    EXPECT_EQ(Pixels::at(Pixels::grab(made), 0, 0), QColor(Qt::yellow));
}

TEST_F(ZELImageProgressBarTest, aFillWithoutItsPicturesIsToldOnceAndTheRestIsPainted)
{
    log().expectError("[getImage] No FileName Error", 3, "ZELImageMgr");
    auto* const made = bar("<image bg='back.png' start='' mid='' end=''/>", "style='normal'");
    log().expectError("[paintEvent] bar has no pictures for the fill", 1, "ZELImageProgressBar");
    made->SetPercent(50);
    QImage image = expected({}, -1, -1);
    drawText(image, QStringLiteral("50%"), QRect(0, 0, 200, 40), centred, "normal", Qt::black);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(Pixels::same(Pixels::grab(made), image));
}

TEST_F(ZELImageProgressBarTest, withoutTheMiddleTheCapsAreDrawnAllTheSame)
{
    auto* const made = whole();
    const auto painted = [made](int percent, const char* middle) {
        made->setImage("back.png", "start.png", middle, "end.png");
        made->SetPercent(percent);
        return Pixels::grab(made);
    };
    EXPECT_TRUE(Pixels::same(painted(0, "no.png"), painted(0, "mid.png")));
    EXPECT_TRUE(Pixels::same(painted(1, "no.png"), painted(1, "mid.png"))) << "the caps alone";
    EXPECT_FALSE(Pixels::same(painted(1, "no.png"), painted(0, "no.png")));
    log().expectError("[paintEvent] bar has no pictures for the fill", 1, "ZELImageProgressBar");
    const QImage half = painted(50, "no.png");
    const QImage whole = painted(50, "mid.png");
    int differing = 0;
    const int row = made->m_nOffsetY + 1;
    for (int x = 0; x < half.width(); ++x)
        differing += half.pixel(x, row) != whole.pixel(x, row);
    const auto fill = static_cast<int>((made->width() - 2LL * made->m_nOffsetX) / 2);
    EXPECT_EQ(differing, fill - made->m_pStartPixmap->width() - made->m_pEndPixmap->width());
}

TEST_F(ZELImageProgressBarTest, oneCapThatIsMissingLeavesNoFill)
{
    for (const std::string missing : {"start.png", "end.png"}) {
        auto* const made = whole();
        made->SetPercent(50);
        const auto unless = [&missing](const char* name) { return name == missing ? "no" : name; };
        made->setImage("back.png", unless("start.png"), "mid.png", unless("end.png"));
        log().expectError("[paintEvent] bar has no pictures for the fill", 1,
                          "ZELImageProgressBar");
        EXPECT_TRUE(Pixels::same(Pixels::grab(made), expected({}, -1, -1))) << missing;
        delete made;
    }
}

TEST_F(ZELImageProgressBarTest, insetsWiderThanTheBarLeaveNoFill)
{
    auto* const made = bar(images() + "<offset x='150' y='3'/>");
    made->SetPercent(100);
    EXPECT_TRUE(Pixels::same(Pixels::grab(made), expected({}, -1, -1)));
}

TEST_F(ZELImageProgressBarTest, takesNoTouch)
{
    Touch::tapWindow(whole());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

#include "components/gauges/ZELRoundProgressBar.h"

#include "components/buttons/ButtonTest.h"
#include "components/pictures/ZELPieImageBox.h"
#include "support/VirtualSlot.h"

#include <QPointer>

#include <climits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageBox;
using Components::ZELPieImageBox;
using Components::ZELRoundProgressBar;

namespace {

class Ring : public ZELRoundProgressBar
{
public:
    using ZELRoundProgressBar::ZELRoundProgressBar;

    using ZELRoundProgressBar::m_logger;
    using ZELRoundProgressBar::m_pBGBox;
    using ZELRoundProgressBar::m_pRoundBox;

    static constexpr auto backgroundBox = &Ring::m_pBGBox;

    // in sixteenths of a degree, as the ring keeps it
    int angle() const { return m_pRoundBox->*PieDoor::angle; }

    static std::intptr_t slotOfPaint() { return slot(&Ring::paintEvent); }

private:
    // the one way to the field of the ring
    struct PieDoor : ZELPieImageBox
    {
        static constexpr auto angle = &PieDoor::m_nAngle;
    };
};

class ZELRoundProgressBarTest : public ButtonTest
{
protected:
    using Texts = std::vector<std::string>;

    ZELRoundProgressBarTest()
    {
        writePicture("back.png", 60, 60, Qt::cyan);
        writePicture("ring.png", 60, 60, Qt::red);
    }

    void expectBoxLines(int back = 1, int round = 1)
    {
        log().expectError("[setLayout] image pLayout == NULL", back, "ZELImageBox");
        log().expectError("[setLayout] round pLayout == NULL", round, "ZELImageBox");
    }

    // a ring without a picture says so at each paint; whether there was such a line
    bool ringIsBare()
    {
        const int lines = log().count("[E] m_pBGPixmap is NULL", "ZELPieImageBox");
        log().expectError("m_pBGPixmap is NULL", lines, "ZELPieImageBox");
        return lines > 0;
    }

    Ring* open(const std::string& children)
    {
        return make<Ring>("<rnd><position x='10' y='20' width='100' height='80'/>" + children +
                              "</rnd>",
                          "ZELRoundProgress");
    }

    Ring* whole()
    {
        expectBoxLines();
        return open("<image file='back.png' x='5' y='6' width='60' height='60'/>"
                    "<round file='ring.png'/>");
    }
};

} // namespace

TEST_F(ZELRoundProgressBarTest, isAProgressBarWithItsOwnName)
{
    expectBoxLines();
    auto* const built =
        buildComponent<ZELRoundProgressBar>("roundprogress", "<r><image file='back.png'/>"
                                                             "<round file='ring.png'/></r>");
    EXPECT_EQ(built->m_strType, "ZELRoundProgress");
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_EQ(whole()->m_logger.m_strIdentity, "QTPANFx ZELRoundProgressBar");
    EXPECT_EQ(slot(&Ring::SetPercent), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Ring::slotOfPaint(), slot(&Ring::SetPercent) + slotSize);
    built->hideWindow();
    EXPECT_TRUE(built->isHidden());
    built->showWindow();
    EXPECT_FALSE(built->isHidden());
}

TEST_F(ZELRoundProgressBarTest, laysItsRingOverTheBackgroundWhateverTheRingSays)
{
    expectBoxLines();
    auto* const made = open("<image file='back.png' x='5' y='6' width='60' height='50'/>"
                            "<round file='ring.png' x='1' y='2' width='3' height='4'/>");
    EXPECT_EQ(made->geometry(), QRect(10, 20, 100, 80));
    EXPECT_EQ(made->m_pBGBox->geometry(), QRect(5, 6, 60, 50));
    EXPECT_EQ(made->m_pRoundBox->geometry(), QRect(5, 6, 60, 50));
    EXPECT_EQ(made->m_pBGBox->m_strID, "image");
    EXPECT_EQ(made->m_pBGBox->m_strType, "ZELImageBox");
    EXPECT_EQ(made->m_pRoundBox->m_strID, "round");
    EXPECT_EQ(made->m_pRoundBox->m_strType, "ZELPieImageBox");
    EXPECT_TRUE(made->m_pBGBox->isVisible());
    EXPECT_TRUE(made->m_pRoundBox->isVisible());
}

TEST_F(ZELRoundProgressBarTest, placesWhatItsElementsLeaveOut)
{
    expectBoxLines();
    auto* const made = make<Ring>("<rnd><image file='back.png'/><round file='ring.png'/></rnd>");
    EXPECT_EQ(made->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(made->m_pBGBox->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(made->m_pRoundBox->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELRoundProgressBarTest, placesItsBoxesAlsoWhereAPictureIsMissing)
{
    const std::string place = "x='5' y='6' width='60' height='50'/>";
    for (const std::string& children :
         {"<image " + place + "<round file='ring.png'/>", "<image file='back.png' " + place,
          "<image file='no.png' " + place + "<round file='no.png'/>"}) {
        SCOPED_TRACE(children);
        expectBoxLines();
        const bool missing = children.find("no.png") != std::string::npos;
        log().expectError("[setImage] m_pBGPixmap == NULL", missing ? 2 : 0, "ZELImageBox");
        log().startHere();
        const auto* const made = open(children);
        EXPECT_EQ(made->m_pBGBox->geometry(), QRect(5, 6, 60, 50));
        EXPECT_EQ(made->m_pRoundBox->geometry(), QRect(5, 6, 60, 50));
        delete made;
        EXPECT_EQ(ringIsBare(), children.find("ring.png") == std::string::npos);
        log().verify();
    }
}

TEST_F(ZELRoundProgressBarTest, buildsTheComponentsOfItsElementAndThenItsBoxes)
{
    expectBoxLines();
    auto* const made = open("<label><more title='t' style='normal'/></label>"
                            "<image file='back.png'/><round file='ring.png'/>");
    ASSERT_EQ(made->getComponentCount(), 1);
    QWidget* const more = made->getSubComponent("more")->getQWidget();
    EXPECT_TRUE(more->isVisible());
    const QObjectList& children = made->children();
    EXPECT_EQ(children.indexOf(more), 0);
    EXPECT_EQ(children.indexOf(made->m_pBGBox), 1);
    EXPECT_EQ(children.indexOf(made->m_pRoundBox), 2);
}

TEST_F(ZELRoundProgressBarTest, isBuiltInItsOrder)
{
    log().startHere();
    whole();
    log().expectInOrder({"[E] [setLayout] image pLayout == NULL",
                         "[E] [setLayout] round pLayout == NULL",
                         "[D] [SetPercent] Percent : 0 Angle : 360"});
    EXPECT_EQ(log().texts("ZELRoundProgressBar"),
              Texts{"[D] [SetPercent] Percent : 0 Angle : 360"});
}

TEST_F(ZELRoundProgressBarTest, whatItsElementsLack)
{
    const std::string atNone = "[D] [SetPercent] Percent : 0 Angle : 360";
    const std::string noNode = "[D] [setLayout] Background Node is NULL";
    const std::string noFile = "[D] [setLayout]  Attribute \"file\" is NULL";
    struct Case
    {
        std::string children;
        int ring;
        Texts lines;
    };
    for (const Case& row :
         std::vector<Case>{{"<image file='back.png'/>", 1, {noNode, atNone}},
                           {"<image/><round file='ring.png'/>", 1, {noFile, atNone}},
                           {"<image file='back.png'/><round/>", 1, {noFile, atNone}},
                           {"<image/><round/>", 1, {noFile, noFile, atNone}},
                           {"<image/>", 1, {noFile, noNode, atNone}},
                           {"<round file='ring.png'/>", 0, {noNode, atNone}},
                           {"", 0, {noNode, atNone}}}) {
        SCOPED_TRACE(row.children);
        expectBoxLines(1, row.ring);
        log().startHere();
        auto* const made = open(row.children);
        EXPECT_EQ(log().texts("ZELRoundProgressBar"), row.lines);
        EXPECT_EQ(made->m_pRoundBox != nullptr, row.ring == 1);
        EXPECT_EQ(made->geometry(), QRect(10, 20, 100, 80));
        made->SetPercent(40);
        EXPECT_EQ(made->value(), 40);
        Pixels::grab(made);
        const bool pictured = row.children.find("<round file") != std::string::npos;
        EXPECT_EQ(ringIsBare(), row.ring == 1 && !pictured);
        delete made;
    }
}

TEST_F(ZELRoundProgressBarTest, withoutAnElementTellsItAndKeepsAValue)
{
    log().expectError("[createSubComponent] ZELRoundProgress, Node * pLayout == NULL", 1);
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELRoundProgressBar");
    auto* const made = make<Ring>("", "ZELRoundProgress");
    log().expectInOrder({"[E] [createSubComponent] ZELRoundProgress, Node * pLayout == NULL",
                         "[E] [setLayout] ok pLayout == NULL",
                         "[D] [SetPercent] Percent : 0 Angle : 360"});
    EXPECT_EQ(made->m_pBGBox, nullptr);
    EXPECT_EQ(made->m_pRoundBox, nullptr);
    made->SetPercent(30);
    EXPECT_EQ(made->value(), 30);
    log().expectError("[setRoundImage] Failed to load progress round image a.png", 1);
    log().expectError("[setBackgroundImage] Failed to load progress background image b.png", 1);
    made->setRoundImage("a.png");
    made->setBackgroundImage("b.png");
}

TEST_F(ZELRoundProgressBarTest, aPictureThatIsNotThereIsToldByItsBoxAlone)
{
    expectBoxLines();
    log().expectError("[setImage] m_pBGPixmap == NULL", 2, "ZELImageBox");
    open("<image file='no.png'/><round file='no.png'/>");
    EXPECT_TRUE(ringIsBare());
}

TEST_F(ZELRoundProgressBarTest, hidesTheAngleThatIsNotDone)
{
    struct Case
    {
        int percent;
        int value;
        int angle;
    };
    auto* const made = whole();
    EXPECT_EQ(made->value(), 0);
    EXPECT_EQ(made->angle(), 16 * 360);
    for (const Case& row :
         {Case{25, 25, 270}, Case{33, 33, 241}, Case{30, 30, 251}, Case{50, 50, 180},
          Case{65, 65, 125}, Case{99, 99, 3}, Case{100, 100, 0}, Case{0, 0, 360}, Case{1, 1, 356},
          // beyond: the value stays and the ring follows
          Case{101, 1, -3}, Case{-1, 1, 363}, Case{200, 1, -360}, Case{-100, 1, 720}}) {
        log().startHere();
        made->SetPercent(row.percent);
        EXPECT_EQ(made->value(), row.value) << row.percent;
        EXPECT_EQ(made->angle(), 16 * row.angle) << row.percent;
        EXPECT_EQ(log().texts("ZELRoundProgressBar"),
                  Texts{"[D] [SetPercent] Percent : " + std::to_string(row.percent) +
                        " Angle : " + std::to_string(row.angle)});
    }
}

TEST_F(ZELRoundProgressBarTest, extremeNumbersBreakNothing)
{
    auto* const made = whole();
    made->SetPercent(INT_MAX);
    EXPECT_EQ(made->angle(), INT_MIN / 16 * 16);
    Pixels::grab(made);
    made->SetPercent(INT_MIN);
    EXPECT_EQ(made->angle(), INT_MAX / 16 * 16);
    Pixels::grab(made);
    EXPECT_EQ(made->value(), 0);
}

TEST_F(ZELRoundProgressBarTest, growsClockwiseFromTheTop)
{
    auto* const made = whole();
    // the middle of each quarter of the ring, clockwise from the top
    const std::vector<QPoint> quarters = {{45, 26}, {45, 46}, {25, 46}, {25, 26}};
    for (const int done : {0, 1, 2, 3, 4}) {
        made->SetPercent(25 * done);
        EventLoop::deliver();
        const QImage image = Pixels::grab(&panel()).copy(made->geometry());
        for (int i = 0; i < 4; ++i) {
            const QPoint& at = quarters[size_t(i)];
            EXPECT_EQ(Pixels::at(image, at.x(), at.y()), QColor(i < done ? Qt::red : Qt::cyan))
                << done << " quarters, at quarter " << i;
        }
    }
}

TEST_F(ZELRoundProgressBarTest, paintsNothingItself)
{
    auto* const made = whole();
    made->m_pBGBox->hide();
    made->m_pRoundBox->hide();
    made->SetPercent(60);
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(made)), QRect());
}

TEST_F(ZELRoundProgressBarTest, itsPicturesCanBeChanged)
{
    auto* const made = whole();
    made->SetPercent(100);
    made->setRoundImage("up.png");
    made->setBackgroundImage("down.png");
    EXPECT_EQ(made->m_pRoundBox->size(), QSize(60, 30)) << "as an image box does";
    EXPECT_EQ(made->m_pBGBox->size(), QSize(60, 30));
    made->m_pRoundBox->hide();
    EXPECT_EQ(Pixels::count(Pixels::grab(made), Qt::blue), 60 * 30);

    log().expectError("[setImage] m_pBGPixmap == NULL", 2, "ZELImageBox");
    log().expectError("[setRoundImage] Failed to load progress round image no.png", 1,
                      "ZELRoundProgressBar");
    log().expectError("[setBackgroundImage] Failed to load progress background image none.png", 1,
                      "ZELRoundProgressBar");
    made->setRoundImage("no.png");
    made->setBackgroundImage("none.png");
}

TEST_F(ZELRoundProgressBarTest, deletesItsBoxesAndNoneTwice)
{
    auto* const made = whole();
    const QPointer<QWidget> ring(made->m_pRoundBox);
    const QPointer<QWidget> back(made->m_pBGBox);
    delete made;
    EXPECT_TRUE(ring.isNull());
    EXPECT_TRUE(back.isNull());

    auto* const second = whole();
    delete second->m_pBGBox;
    delete second->m_pRoundBox;
    second->SetPercent(30);
    EXPECT_EQ(second->value(), 30) << "it goes on without";
    delete second;
}

TEST_F(ZELRoundProgressBarTest, deletesTheBackgroundAndThenTheRing)
{
    auto* const made = whole();
    auto* const other = new QWidget(made);
    // as Qt's children they would die the other way round
    made->m_pBGBox->raise();
    other->lower();
    ZELRoundProgressBar* const bar = made;
    std::string deaths;
    for (const auto& [widget, name] : {std::pair<QWidget*, const char*>(made->m_pBGBox, "image "),
                                       {made->m_pRoundBox, "round "},
                                       {other, "other"}})
        QObject::connect(widget, &QObject::destroyed, [&deaths, name = name] { deaths += name; });
    QObject::connect(made->m_pRoundBox, &QObject::destroyed,
                     [bar] { EXPECT_EQ(bar->*Ring::backgroundBox, nullptr) << "gone and let go"; });
    delete made;
    EXPECT_EQ(deaths, "image round other");
}

TEST_F(ZELRoundProgressBarTest, postsNothingOfItsOwn)
{
    auto* const made = whole();
    made->SetPercent(50);
    Touch::tap(made);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

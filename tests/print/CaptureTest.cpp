#include "print/Capture.h"

#include "support/EndThroughBase.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "support/ScreenFaults.h"
#include "windows/ZELChildWindow.h"
#include "windows/ZELPopupWindow.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QScreen>
#include <QWindow>

#include <chrono>
#include <ctime>
#include <memory>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Windows::ZELChildWindow;
using PANFx::Windows::ZELPopupWindow;

namespace {

class CaptureTest : public PanelTest
{
protected:
    QImage saved(const std::string& path, const QByteArray& format = "jpeg")
    {
        QImageReader reader(QFile::decodeName(realPath(path).c_str()));
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.format(), format) << path;
        return reader.read();
    }

    QStringList captures() const
    {
        const QDir folder(QFile::decodeName(realPath("/tmp").c_str()));
        return folder.entryList({QStringLiteral("screen_*")}, QDir::Files);
    }

    // a window of one colour, on the screen
    static std::unique_ptr<QWidget> window(const QRect& geometry, const QColor& colour)
    {
        auto made = std::make_unique<QWidget>();
        QPalette palette;
        palette.setColor(QPalette::Window, colour);
        made->setPalette(palette);
        made->setGeometry(geometry);
        made->show();
        EventLoop::deliver();
        return made;
    }

    // as exactly as a JPEG tells
    static bool isNear(const QImage& image, int x, int y, const QColor& colour)
    {
        const QColor pixel = image.pixelColor(x, y);
        return std::abs(pixel.red() - colour.red()) < 12 &&
               std::abs(pixel.green() - colour.green()) < 12 &&
               std::abs(pixel.blue() - colour.blue()) < 12;
    }

    static std::string now()
    {
        // std::time lags by some milliseconds behind the clock that Qt reads
        using Clock = std::chrono::system_clock;
        const time_t time = Clock::to_time_t(Clock::now());
        char text[32];
        strftime(text, sizeof text, "%Y%m%d_%H%M%S", localtime(&time));
        return text + 2; // without the century
    }

    // takes captures until one began and ended within a second, and tells its stamp
    template <typename Take>
    std::string withinOneSecond(const Take& take)
    {
        for (int tries = 0; tries < 10; ++tries) {
            for (const QString& name : captures())
                removeFile("/tmp/" + name.toStdString());
            const std::string before = now();
            take();
            if (now() == before)
                return before;
        }
        ADD_FAILURE() << "no capture within a second";
        return "";
    }
};

} // namespace

static_assert(std::has_virtual_destructor_v<Capture>);
static_assert(std::is_default_constructible_v<Capture>);
static_assert(sizeof(Capture) == sizeof(void*)); // no fields

TEST_F(CaptureTest, SavesTheWholeScreen)
{
    const auto red = window(QRect(100, 50, 200, 100), Qt::red);
    Capture::viewCapture(100, "/tmp/shot.jpg");
    const QImage picture = saved("/tmp/shot.jpg");
    EXPECT_EQ(picture.size(), QGuiApplication::primaryScreen()->size());
    EXPECT_TRUE(isNear(picture, 200, 100, Qt::red));
    EXPECT_TRUE(isNear(picture, 104, 54, Qt::red));
    EXPECT_TRUE(isNear(picture, 90, 100, Qt::black));
    EXPECT_TRUE(isNear(picture, 200, 160, Qt::black));
}

TEST_F(CaptureTest, ShowsALaterWindowOverAnEarlierOne)
{
    const auto red = window(QRect(100, 50, 200, 100), Qt::red);
    const auto blue = window(QRect(200, 50, 200, 100), Qt::blue);
    const auto hidden = window(QRect(0, 0, 400, 400), Qt::green);
    hidden->hide();
    Capture::viewCapture(100, "/tmp/shot.jpg");
    const QImage picture = saved("/tmp/shot.jpg");
    EXPECT_TRUE(isNear(picture, 150, 100, Qt::red));
    EXPECT_TRUE(isNear(picture, 250, 100, Qt::blue));
    EXPECT_TRUE(isNear(picture, 10, 10, Qt::black));
}

TEST_F(CaptureTest, ShowsTheDialogOverItsPage)
{
    writePicture("page.png", 800, 480, Qt::yellow);
    writeLayout("page",
                "<layout><Base><background>page.png</background></Base><Components/></layout>");
    writePicture("box.png", 100, 100, Qt::cyan);
    writeLayout("dialog", "<layout><Components><imagebox><box file='box.png' x='300' y='200' "
                          "width='100' height='100'/></imagebox></Components></layout>");
    frame().addPage("page");
    expectBackgroundLines();
    frame().moveTo("page", true, true);
    EventLoop::deliver();
    Capture::viewCapture(100, "/tmp/page.jpg");
    EXPECT_TRUE(isNear(saved("/tmp/page.jpg"), 350, 250, Qt::yellow));
    EXPECT_TRUE(isNear(saved("/tmp/page.jpg"), 20, 20, Qt::yellow));

    expectNoBackgroundLines();
    ZELPopupWindow dialog("dialog", frame().getCurrentWindow());
    dialog.setModal(true);
    dialog.show();
    EventLoop::deliver();
    Capture::viewCapture(100, "/tmp/dialog.jpg");
    const QImage picture = saved("/tmp/dialog.jpg");
    EXPECT_TRUE(isNear(picture, 350, 250, Qt::cyan));
    EXPECT_TRUE(isNear(picture, 20, 20, Qt::black)); // nothing shows through a dialog
}

TEST_F(CaptureTest, PassesWindowsThatAreNoneOfItsOwnOrNotOnTheScreenYet)
{
    const auto red = window(QRect(100, 50, 200, 100), Qt::red);
    QWindow foreign;
    foreign.create();
    QWindow unseen;
    Capture::viewCapture(100, "/tmp/shot.jpg");
    EXPECT_TRUE(isNear(saved("/tmp/shot.jpg"), 200, 100, Qt::red));
    EXPECT_EQ(unseen.handle(), nullptr) << "it was made by the capture";
}

TEST_F(CaptureTest, SavesWhatARealScreenShows)
{
    const auto red = window(QRect(100, 50, 200, 100), Qt::red);
    const QSize size = QGuiApplication::primaryScreen()->size();
    ScreenFaults screen;
    screen.platform = QStringLiteral("linuxfb");
    screen.shown = QPixmap(size);
    screen.shown.fill(Qt::magenta);
    Capture::viewCapture(100, "/tmp/shot.jpg");
    EXPECT_EQ(screen.grabbed, std::vector<QRect>{QRect(QPoint(0, 0), size)});
    const QImage picture = saved("/tmp/shot.jpg");
    EXPECT_EQ(picture.size(), size);
    EXPECT_TRUE(isNear(picture, 200, 100, Qt::magenta));
}

TEST_F(CaptureTest, PaintsTheWindowsOfAScreenThatShowsNothing)
{
    const auto red = window(QRect(100, 50, 200, 100), Qt::red);
    ScreenFaults screen;
    screen.platform = QStringLiteral("eglfs");
    Capture::viewCapture(100, "/tmp/shot.jpg");
    EXPECT_EQ(screen.grabbed.size(), 1U);
    EXPECT_TRUE(isNear(saved("/tmp/shot.jpg"), 200, 100, Qt::red));
}

TEST_F(CaptureTest, AsksNothingOfAScreenThatIsNone)
{
    ScreenFaults screen;
    Capture::viewCapture(100, "/tmp/shot.jpg");
    EXPECT_TRUE(screen.grabbed.empty()) << "offscreen it would be what nobody has written";
    EXPECT_FALSE(saved("/tmp/shot.jpg").isNull());
}

TEST_F(CaptureTest, SavesNothingWithoutAScreen)
{
    ScreenFaults screen;
    screen.noScreen = true;
    Capture::viewCapture(100, "/tmp/shot.jpg");
    EXPECT_FALSE(fileExists("/tmp/shot.jpg"));
}

TEST_F(CaptureTest, CanBeMadeAndDeletedThroughItsBase)
{
    EXPECT_TRUE(endsThroughItsBase<Capture>());
}

TEST_F(CaptureTest, UsesTheNameAsItStands)
{
    Capture::viewCapture(80, "/tmp/shot.png");
    EXPECT_FALSE(saved("/tmp/shot.png").isNull()); // still a JPEG
    Capture::viewCapture(80, "/tmp/bare");
    EXPECT_FALSE(saved("/tmp/bare").isNull());
    EXPECT_TRUE(captures().isEmpty());
}

TEST_F(CaptureTest, WritesARelativeNameIntoTheCurrentDirectory)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QFile::decodeName(realPath("/data").c_str())));
    Capture::viewCapture(80, "shot.jpg");
    QDir::setCurrent(before);
    EXPECT_FALSE(saved("/data/shot.jpg").isNull());
}

TEST_F(CaptureTest, TakesTheNameForLatin1)
{
    Capture::viewCapture(80, "/tmp/\xE9t\xE9.jpg");
    EXPECT_TRUE(fileExists("/tmp/\xC3\xA9t\xC3\xA9.jpg"));
}

TEST_F(CaptureTest, MakesANameOfTheTime)
{
    for (const char* name : {static_cast<const char*>(nullptr), ""}) {
        const std::string stamp = withinOneSecond([name] { Capture::viewCapture(80, name); });
        EXPECT_EQ(captures().join(QLatin1Char(' ')).toStdString(), "screen_" + stamp + ".jpg");
        EXPECT_FALSE(saved("/tmp/screen_" + stamp + ".jpg").isNull());
    }
}

TEST_F(CaptureTest, OverwritesACaptureOfTheSameSecond)
{
    const auto first = window(QRect(0, 0, 800, 480), Qt::blue);
    const std::string stamp = withinOneSecond([this] {
        Capture::viewCapture(80, nullptr);
        const auto second = window(QRect(0, 0, 800, 480), Qt::red);
        Capture::viewCapture(80, "");
    });
    EXPECT_EQ(captures().size(), 1);
    const QColor kept = saved("/tmp/screen_" + stamp + ".jpg").pixelColor(400, 240);
    EXPECT_TRUE(kept.red() > 200 && kept.blue() < 50) << "the second one";
}

TEST_F(CaptureTest, SavesInTheQualityAskedFor)
{
    QImage noise(200, 200, QImage::Format_RGB32);
    unsigned value = 1;
    for (int i = 0; i < 200 * 200; ++i) {
        value = value * 1664525 + 1013904223;
        noise.setPixel(i % 200, i / 200, value);
    }
    const auto shown = window(QRect(0, 0, 200, 200), Qt::white);
    QPalette palette;
    palette.setBrush(QPalette::Window, QBrush(noise));
    shown->setPalette(palette);
    EventLoop::deliver();
    Capture::viewCapture(100, "/tmp/fine.jpg");
    Capture::viewCapture(10, "/tmp/coarse.jpg");
    EXPECT_GT(readFile("/tmp/fine.jpg").size(), 3 * readFile("/tmp/coarse.jpg").size());
}

TEST_F(CaptureTest, LeavesNoTraceOfAFailure)
{
    Capture::viewCapture(80, "/nowhere/shot.jpg");
    Capture::viewCapture(80, "/tmp");
    EXPECT_TRUE(log().lines().empty());
    EXPECT_FALSE(fileExists("/nowhere/shot.jpg"));
}

// ---- a page's own

TEST_F(CaptureTest, NamesThePictureOfAPageByItsResource)
{
    writePicture("page.png", 800, 480, Qt::yellow);
    writeLayout("setup",
                "<layout><Base><background>page.png</background></Base><Components/></layout>");
    frame().addPage("first", "setup");
    expectBackgroundLines();
    ZELChildWindow* const page = frame().moveTo("first", true, true);
    EventLoop::deliver();
    const std::string stamp = withinOneSecond([page] { page->CaptureView(); });
    EXPECT_EQ(captures().join(QLatin1Char(' ')).toStdString(), "screen_setup" + stamp + ".jpg");
    EXPECT_TRUE(isNear(saved("/tmp/screen_setup" + stamp + ".jpg"), 400, 240, Qt::yellow));
}

TEST_F(CaptureTest, SavesAPageInFullQuality)
{
    writePicture("page.png", 800, 480, QColor(200, 100, 50));
    writeLayout("setup",
                "<layout><Base><background>page.png</background></Base><Components/></layout>");
    frame().addPage("setup");
    expectBackgroundLines();
    ZELChildWindow* const page = frame().moveTo("setup", true, true);
    EventLoop::deliver();
    const std::string stamp = withinOneSecond([page] { page->CaptureView(); });
    Capture::viewCapture(100, "/tmp/full.jpg");
    EXPECT_EQ(readFile("/tmp/screen_setup" + stamp + ".jpg"), readFile("/tmp/full.jpg"));
}

TEST_F(CaptureTest, TakesTheIdOfAPageWithoutAResource)
{
    ZELChildWindow page("lonely", nullptr, "");
    const std::string path = resources + "/layout/lonely.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path);
    log().expectError("[ZELChildWindow] Layout load failed: " + path);
    const std::string stamp = withinOneSecond([&page] { page.CaptureView(); });
    EXPECT_EQ(captures().join(QLatin1Char(' ')).toStdString(), "screen_lonely" + stamp + ".jpg");
}

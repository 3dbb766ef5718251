#include "resource/ZELImageMgr.h"

#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/ResourceFaults.h"
#include "support/SystemFaults.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cerrno>
#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Resource::ZELImageMgr;

namespace {

class ZELImageMgrTest : public PanelTest
{
protected:
    // a manager of the instrument's pictures in a language
    void begin(const std::string& locale = "")
    {
        m_manager.setBasePath(resources);
        m_manager.changeLocale(locale);
        log().startHere();
    }

    // the colour of a picture; invalid for a null picture
    static QColor colourOf(const QPixmap* pixmap)
    {
        return pixmap->isNull() ? QColor() : Pixels::at(pixmap->toImage(), 0, 0);
    }

    QColor colourOf(const std::string& name) { return colourOf(m_manager.getImage(name)); }

    static std::string imagePath(const std::string& name, const std::string& locale = "")
    {
        return resources + locale + "/img/" + name;
    }

    ZELImageMgr m_manager;
};

const QColor red(Qt::red);
const QColor blue(Qt::blue);

QByteArray bytesOf(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QImage plainImage(const QColor& colour)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

TEST_F(ZELImageMgrTest, tellsItsDirectoryAndLanguage)
{
    log().startHere();
    m_manager.setBasePath("/app/bin/resource/");
    m_manager.changeLocale("kr");
    m_manager.changeLocale("");
    EXPECT_EQ(log().texts("ZELImageMgr"),
              (std::vector<std::string>{"[D] [setBasePath] m_strBasePath:/app/bin/resource/",
                                        "[D] [changeLocale] m_strLocale:kr",
                                        "[D] [changeLocale] m_strLocale:"}));
    EXPECT_EQ(m_manager.m_strBasePath, "/app/bin/resource/");
    EXPECT_EQ(m_manager.m_strLocale, "");
}

TEST_F(ZELImageMgrTest, refusesAnEmptyName)
{
    begin();
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    EXPECT_EQ(m_manager.getImage(""), nullptr);
    EXPECT_EQ(m_manager.m_tableImages.getCount(), 0);
}

TEST_F(ZELImageMgrTest, loadsAPictureWithoutALine)
{
    writePicture("a.png", 40, 30, red);
    begin();
    QPixmap* const pixmap = m_manager.getImage("a.png");
    ASSERT_NE(pixmap, nullptr);
    EXPECT_EQ(pixmap->size(), QSize(40, 30));
    EXPECT_EQ(colourOf(pixmap), red);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageMgrTest, keepsTransparency)
{
    writePicture("a.png", 4, 4, QColor(255, 0, 255, 51));
    begin();
    QPixmap* const pixmap = m_manager.getImage("a.png");
    EXPECT_TRUE(pixmap->hasAlphaChannel());
    EXPECT_EQ(colourOf(pixmap), QColor(255, 0, 255, 51));
}

TEST_F(ZELImageMgrTest, givesEverybodyTheSameObject)
{
    writePicture("a.png", 4, 4, red);
    writePicture("b.png", 4, 4, blue);
    begin();
    QPixmap* const a = m_manager.getImage("a.png");
    QPixmap* const b = m_manager.getImage("b.png");
    EXPECT_NE(a, b);
    EXPECT_EQ(m_manager.getImage("a.png"), a);
    EXPECT_EQ(m_manager.getImage("b.png"), b);
    EXPECT_EQ(m_manager.m_tableImages.getCount(), 2);
}

TEST_F(ZELImageMgrTest, doesNotTouchTheFileSystemForAPictureItHas)
{
    writePicture("a.png", 4, 4, red);
    begin("kr");
    m_manager.getImage("a.png");
    m_manager.getImage("missing.png");
    const SystemFaults faults;
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(colourOf("a.png"), red);
        EXPECT_TRUE(m_manager.getImage("missing.png")->isNull());
    }
    EXPECT_EQ(faults.count(SystemCall::Fopen), 0);
    EXPECT_EQ(faults.count(SystemCall::Open), 0);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageMgrTest, prefersTheLanguagesOwnPicture)
{
    writePicture("a.png", 4, 4, red);
    writePicture("a.png", 4, 4, blue, "kr");
    begin("kr");
    EXPECT_EQ(colourOf("a.png"), blue);
}

TEST_F(ZELImageMgrTest, fallsBackToTheCommonPicture)
{
    writePicture("a.png", 4, 4, red);
    writePicture("b.png", 4, 4, blue, "kr");
    begin("kr");
    EXPECT_EQ(colourOf("a.png"), red);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageMgrTest, fallsBackAfterAChangeToALanguageWithoutThePicture)
{
    writePicture("a.png", 4, 4, red);
    writePicture("a.png", 4, 4, blue, "kr");
    begin("kr");
    EXPECT_EQ(colourOf("a.png"), blue);
    m_manager.changeLocale("ger");
    EXPECT_EQ(colourOf("a.png"), red);
    m_manager.changeLocale("kr");
    EXPECT_EQ(colourOf("a.png"), blue);
}

TEST_F(ZELImageMgrTest, findsAPictureThatOnlyTheLanguageHas)
{
    writePicture("a.png", 4, 4, blue, "kr");
    begin("kr");
    EXPECT_EQ(colourOf("a.png"), blue);
    m_manager.changeLocale("ger");
    ASSERT_NE(m_manager.getImage("a.png"), nullptr);
    EXPECT_TRUE(m_manager.getImage("a.png")->isNull());
}

TEST_F(ZELImageMgrTest, testsOnlyTheFirstPath)
{
    writePicture("a.png", 4, 4, red);
    writePicture("b.png", 4, 4, blue, "kr");
    begin("kr");
    const SystemFaults faults;
    m_manager.getImage("a.png");
    EXPECT_EQ(faults.count(SystemCall::Fopen, "a.png"), 1);
    EXPECT_EQ(faults.lastPath(SystemCall::Fopen), realPath(imagePath("a.png", "kr")));
    EXPECT_EQ(faults.lastPath(SystemCall::Open, "a.png"), realPath(resources + "img/a.png"));
    m_manager.getImage("b.png");
    EXPECT_EQ(faults.count(SystemCall::Fopen, "b.png"), 1);
    EXPECT_EQ(faults.lastPath(SystemCall::Open, "b.png"), realPath(imagePath("b.png", "kr")));
}

TEST_F(ZELImageMgrTest, looksForTheDefaultLanguageBehindADoubledSlash)
{
    writePicture("a.png", 4, 4, red);
    begin();
    const SystemFaults faults;
    EXPECT_EQ(colourOf("a.png"), red);
    EXPECT_EQ(faults.lastPath(SystemCall::Fopen), realPath("/app/bin/resource//img/a.png"));
}

TEST_F(ZELImageMgrTest, givesAnEmptyPictureForAMissingFile)
{
    for (const char* locale : {"", "kr"}) {
        begin(locale);
        QPixmap* const pixmap = m_manager.getImage("missing.png");
        ASSERT_NE(pixmap, nullptr);
        EXPECT_TRUE(pixmap->isNull());
        EXPECT_EQ(m_manager.getImage("missing.png"), pixmap);
        EXPECT_TRUE(log().lines().empty());
    }
}

TEST_F(ZELImageMgrTest, remembersAFailedLookUpUntilTheLanguageChanges)
{
    begin();
    QPixmap* const pixmap = m_manager.getImage("a.png");
    writePicture("a.png", 4, 4, red);
    EXPECT_TRUE(m_manager.getImage("a.png")->isNull());
    m_manager.changeLocale("");
    EXPECT_EQ(colourOf("a.png"), red);
    EXPECT_EQ(m_manager.getImage("a.png"), pixmap);
}

TEST_F(ZELImageMgrTest, givesAnEmptyPictureForAFileThatIsNone)
{
    const QByteArray png = bytesOf(plainImage(red), "PNG");
    const QByteArray jpeg = bytesOf(plainImage(red), "JPG");
    writeFile(imagePath("text.png"), "no picture at all");
    writeFile(imagePath("empty.png"), "");
    writeFile(imagePath("cut.png"), png.left(png.size() / 2).toStdString());
    writeFile(imagePath("head.png"), png.left(8).toStdString());
    writeFile(imagePath("head.jpg"), jpeg.left(20).toStdString());
    QDir().mkpath(QString::fromStdString(realPath(imagePath("directory.png"))));
    begin();
    for (const char* name : {"text.png", "empty.png", "cut.png", "head.png", "head.jpg",
                             "directory.png", ".", "..", "no/such/directory.png"}) {
        QPixmap* const pixmap = m_manager.getImage(name);
        ASSERT_NE(pixmap, nullptr) << name;
        EXPECT_TRUE(pixmap->isNull()) << name;
    }
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageMgrTest, fallsBackFromAPictureThatMustNotBeRead)
{
    writePicture("a.png", 4, 4, red);
    writePicture("a.png", 4, 4, blue, "kr");
    begin("kr");
    SystemFaults faults;
    faults.fail(SystemCall::Fopen, EACCES, "kr/img/a.png");
    EXPECT_EQ(colourOf("a.png"), red);
}

TEST_F(ZELImageMgrTest, givesAnEmptyPictureWhereTheCommonOneMustNotBeRead)
{
    writePicture("a.png", 4, 4, red);
    begin();
    SystemFaults faults;
    faults.fail(SystemCall::Fopen, EACCES, "a.png");
    faults.fail(SystemCall::Open, EACCES, "a.png");
    ASSERT_NE(m_manager.getImage("a.png"), nullptr);
    EXPECT_TRUE(m_manager.getImage("a.png")->isNull());
}

TEST_F(ZELImageMgrTest, letsADirectoryOfTheNameStopTheFallBack)
{
    writePicture("a.png", 4, 4, red);
    QDir().mkpath(QString::fromStdString(realPath(imagePath("a.png", "kr"))));
    begin("kr");
    ASSERT_NE(m_manager.getImage("a.png"), nullptr);
    EXPECT_TRUE(m_manager.getImage("a.png")->isNull());
}

TEST_F(ZELImageMgrTest, letsABrokenPictureStopTheFallBack)
{
    writePicture("a.png", 4, 4, red);
    writeFile(imagePath("a.png", "kr"), "no picture");
    begin("kr");
    EXPECT_TRUE(m_manager.getImage("a.png")->isNull());
}

TEST_F(ZELImageMgrTest, findsNamesInAnyLanguage)
{
    const std::string name = "\xEC\xB8\xA1\xEC\xA0\x95 \xC3\xA9.png";
    writePicture(name, 4, 4, red);
    begin();
    EXPECT_EQ(colourOf(name), red);
}

TEST_F(ZELImageMgrTest, findsPicturesInDirectoriesBelow)
{
    writePicture("icons/a.png", 4, 4, red);
    begin();
    EXPECT_EQ(colourOf("icons/a.png"), red);
}

TEST_F(ZELImageMgrTest, joinsThePathsAsTheyAre)
{
    writeFile("/app/own/img/a.bmp", bytesOf(plainImage(red), "BMP").toStdString());
    begin();
    m_manager.setBasePath("/app/own/");
    EXPECT_EQ(colourOf("a.bmp"), red);
    m_manager.setBasePath("/app/own"); // becomes /app/ownimg/, which nobody has
    EXPECT_TRUE(m_manager.getImage("b.bmp")->isNull());
    const SystemFaults faults;
    m_manager.getImage("c.bmp");
    EXPECT_EQ(faults.lastPath(SystemCall::Fopen), realPath("/app/own/img/c.bmp"));
}

// ---- a change of language

TEST_F(ZELImageMgrTest, freesThePixelsWhenTheLanguageChanges)
{
    writePicture("a.png", 4, 4, red);
    for (const char* locale : {"kr", ""}) { // another language, and the same again
        begin();
        QPixmap* const held = m_manager.getImage("a.png");
        ASSERT_EQ(colourOf(held), red);
        m_manager.changeLocale(locale);
        EXPECT_TRUE(held->isNull()) << locale;
        EXPECT_EQ(m_manager.m_tableImages.getCount(), 0);
    }
}

TEST_F(ZELImageMgrTest, keepsNoCopyOfThePixelsElsewhere)
{
    writePicture("a.png", 4, 4, red);
    begin();
    const qint64 first = m_manager.getImage("a.png")->cacheKey();
    m_manager.changeLocale("");
    EXPECT_NE(m_manager.getImage("a.png")->cacheKey(), first);
}

TEST_F(ZELImageMgrTest, readsAChangedFileAfterAChangeOfLanguage)
{
    // the same size in bytes and within the same second
    writeFile(imagePath("a.bmp"), bytesOf(plainImage(red), "BMP").toStdString());
    begin();
    EXPECT_EQ(colourOf("a.bmp"), red);
    writeFile(imagePath("a.bmp"), bytesOf(plainImage(blue), "BMP").toStdString());
    EXPECT_EQ(colourOf("a.bmp"), red);
    m_manager.changeLocale("");
    EXPECT_EQ(colourOf("a.bmp"), blue);
}

TEST_F(ZELImageMgrTest, leavesEarlierPointersReadableAfterAChangeOfLanguage)
{
    writePicture("a.png", 4, 4, red);
    writePicture("a.png", 8, 8, blue, "kr");
    writePicture("b.png", 4, 4, red);
    begin();
    QPixmap* const a = m_manager.getImage("a.png");
    QPixmap* const b = m_manager.getImage("b.png");
    m_manager.changeLocale("kr");
    // what a window that outlives the change does with them: they show nothing
    QImage canvas = Pixels::canvas(QSize(20, 20));
    QPainter painter(&canvas);
    painter.drawPixmap(0, 0, *a);
    painter.drawPixmap(QRect(0, 0, 20, 20), *b);
    painter.end();
    EXPECT_TRUE(Pixels::inkBox(canvas).isNull());
    // until somebody asks for the name: then they show the language's own
    EXPECT_EQ(m_manager.getImage("a.png"), a);
    EXPECT_EQ(a->size(), QSize(8, 8));
    EXPECT_EQ(colourOf(a), blue);
    EXPECT_TRUE(b->isNull());
}

TEST_F(ZELImageMgrTest, leavesPointersReadableOverManyChanges)
{
    writePicture("a.png", 4, 4, red);
    begin();
    QPixmap* const held = m_manager.getImage("a.png");
    for (const char* locale : {"kr", "esp", "", "", "kr"}) {
        m_manager.changeLocale(locale);
        EXPECT_TRUE(held->isNull());
        EXPECT_EQ(m_manager.getImage("a.png"), held);
        EXPECT_EQ(colourOf(held), red);
    }
    EXPECT_EQ(m_manager.m_tableImages.getCount(), 1);
}

TEST_F(ZELImageMgrTest, leavesACopyThatSomebodyTookAlone)
{
    writePicture("a.png", 4, 4, red);
    begin();
    const QPixmap copy = *m_manager.getImage("a.png");
    m_manager.changeLocale("kr");
    EXPECT_EQ(colourOf(&copy), red);
}

TEST_F(ZELImageMgrTest, looksAtThePictureAndNotAtItsNameForTheFormat)
{
    writePicture("a.jpg", 4, 4, red); // the bytes of a PNG
    begin();
    EXPECT_EQ(readFile(imagePath("a.jpg")).substr(1, 3), "PNG");
    EXPECT_EQ(colourOf("a.jpg"), red);
}

// ---- what never happens by itself

TEST_F(ZELImageMgrTest, tellsAPictureThatThereIsNoRoomFor)
{
    writePicture("a.png", 4, 4, red);
    begin();
    log().expectError("[getImage] cannot load image -->/app/bin/resource//img/a.png\n", 1,
                      "ZELImageMgr");
    {
        ResourceFaults faults;
        faults.failingAllocations = 1;
        EXPECT_EQ(m_manager.getImage("a.png"), nullptr);
    }
    EXPECT_EQ(m_manager.m_tableImages.getCount(), 0);
    EXPECT_EQ(colourOf("a.png"), red);
}

TEST_F(ZELImageMgrTest, survivesAnExceptionWhileThePathIsBuilt)
{
    writePicture("a.png", 4, 4, red);
    begin();
    {
        ResourceFaults faults;
        faults.onPath = [](const std::string&) { throw std::length_error("too long"); };
        EXPECT_EQ(m_manager.getImage("a.png"), nullptr);
    }
    EXPECT_EQ(log().texts("ZELImageMgr"),
              std::vector<std::string>{"[D] [getImage] string exception"});
    EXPECT_EQ(colourOf("a.png"), red);
}

TEST_F(ZELImageMgrTest, isDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELImageMgr>);
    writePicture("a.png", 4, 4, red);
    const auto manager = std::make_unique<ZELImageMgr>();
    manager->setBasePath(resources);
    EXPECT_EQ(colourOf(manager->getImage("a.png")), red);
}

TEST_F(ZELImageMgrTest, signsWithItsOwnName)
{
    EXPECT_EQ(m_manager.m_logger.m_strIdentity, "QTPANFx ZELImageMgr    ");
}

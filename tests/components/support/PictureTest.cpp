#include "components/pictures/ZELImageBox.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QPixmap>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageBox;
using PANFx::Resource::ZELResourceMgr;

namespace {

// what counts as a picture, seen through a box that shows one
class PictureTest : public PanelTest
{
protected:
    void SetUp() override
    {
        writePicture("old.png", 8, 6, Qt::red);
        m_box = buildComponent<ZELImageBox>("imagebox", "<b file='old.png' width='8' height='6'/>");
        ASSERT_NE(m_box, nullptr);
    }

    // the name gives no picture: the old one is gone, the size stays, one line tells
    void expectNoPicture(const std::string& name)
    {
        SCOPED_TRACE(name);
        log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
        EXPECT_FALSE(m_box->setImage(name));
        EXPECT_EQ(m_box->geometry(), QRect(0, 0, 8, 6));
        EXPECT_EQ(Pixels::count(Pixels::grab(m_box), Pixels::untouched), 8 * 6);
    }

    void expectPicture(const std::string& name, const QColor& colour)
    {
        SCOPED_TRACE(name);
        EXPECT_TRUE(m_box->setImage(name));
        EXPECT_EQ(Pixels::count(Pixels::grab(m_box), colour), m_box->width() * m_box->height());
    }

    std::string images() const { return resources + "img/"; }

    ZELImageBox* m_box = nullptr;
};

} // namespace

TEST_F(PictureTest, aFileWithAPictureIsOne)
{
    writePicture("new.png", 5, 4, Qt::blue);
    expectPicture("new.png", Qt::blue);
    EXPECT_EQ(m_box->size(), QSize(5, 4));
}

TEST_F(PictureTest, aNameMayHoldFoldersBlanksAndLettersOfAnyLanguage)
{
    writePicture("sub/new.png", 5, 4, Qt::blue);
    writePicture("a b.png", 5, 4, Qt::green);
    writePicture("\xea\xb0\x80.png", 5, 4, Qt::yellow);
    expectPicture("sub/new.png", Qt::blue);
    expectPicture("a b.png", Qt::green);
    expectPicture("\xea\xb0\x80.png", Qt::yellow);
}

TEST_F(PictureTest, aMissingFileIsNoPicture)
{
    expectNoPicture("nosuch.png");
    expectNoPicture("OLD.PNG");
    expectPicture("old.png", Qt::red);
}

TEST_F(PictureTest, anEmptyNameIsNoPictureAndTheImageManagerSaysSo)
{
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    expectNoPicture("");
}

TEST_F(PictureTest, aDirectoryIsNoPicture)
{
    writePicture("folder.png/inner.png", 5, 4, Qt::blue);
    expectNoPicture("folder.png");
}

TEST_F(PictureTest, aFileThatIsNoPictureIsNone)
{
    writeFile(images() + "empty.png", "");
    writeFile(images() + "text.png", "this is a text");
    expectNoPicture("empty.png");
    expectNoPicture("text.png");
}

TEST_F(PictureTest, aTruncatedFileIsNoPicture)
{
    QImage noise(64, 64, QImage::Format_RGB32); // does not compress, so that the cut hits pixels
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, qRgb(x * 7919 % 256, y * 104729 % 256, x * y * 31 % 256));
    }
    writePicture("whole.png", noise);
    const std::string bytes = readFile(images() + "whole.png");
    writeFile(images() + "half.png", bytes.substr(0, bytes.size() / 2));
    writeFile(images() + "head.png", bytes.substr(0, 20));
    expectNoPicture("head.png");
    expectNoPicture("half.png");
    EXPECT_TRUE(m_box->setImage("whole.png"));
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_box), noise));
}

TEST_F(PictureTest, aPixmapWithoutPixelsIsNoPicture)
{
    QPixmap empty;
    log().startHere();
    m_box->setImage(&empty);
    EXPECT_EQ(log().texts(), std::vector<std::string>{"[D] [setImage] Background Image is NULL"});
    EXPECT_EQ(m_box->geometry(), QRect(0, 0, 8, 6));
    EXPECT_EQ(Pixels::count(Pixels::grab(m_box), Pixels::untouched), 8 * 6);
}

TEST_F(PictureTest, aChangeOfLanguageTakesThePictureAwayAndTheNextLookUpBringsTheNewOne)
{
    writePicture("old.png", 8, 6, Qt::blue, "kr");
    ZELResourceMgr::getInstance()->changeLocale("kr");
    EXPECT_EQ(Pixels::count(Pixels::grab(m_box), Pixels::untouched), 8 * 6);
    ZELResourceMgr::getInstance()->getImage("old.png");
    EXPECT_EQ(Pixels::count(Pixels::grab(m_box), Qt::blue), 8 * 6);
}

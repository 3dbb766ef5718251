// The gallery as it lies in a folder: what is written passes the check, and what was changed since
// does not.

#include "gallery/Book.h"
#include "gallery/Comparison.h"
#include "support/PanelTest.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

using namespace PANFx::Testing;
using gallery::Book;

namespace {

class GalleryBookTest : public PanelTest
{
protected:
    GalleryBookTest()
    {
        // the gallery's own file system, before anything is asked for a resource
        qputenv("QTPANFX_SYSROOT", GALLERY_ROOTFS);
        book().write();
    }

    // the lines of the components are the matter of the gallery's own test
    void TearDown() override
    {
        log().reset();
        PanelTest::TearDown();
    }

    Book book() const { return Book(m_docs.path(), {gallery::roomOfTexts()}); }

    QString picturePath(const char* name) const
    {
        return m_docs.path() + QStringLiteral("/images/gallery/") + QLatin1String(name);
    }

    void changeSample() const
    {
        QImage sample(picturePath("fonts.png"));
        sample.invertPixels();
        sample.save(picturePath("fonts.png"));
    }

    // as if its box had been drawn otherwise by an older version
    void drawFrame(const char* name) const
    {
        QImage picture(picturePath(name));
        QPainter painter(&picture);
        painter.setPen(Qt::red);
        painter.drawRect(picture.rect().adjusted(12, 12, -13, -13));
        painter.end();
        picture.save(picturePath(name));
    }

    QTemporaryDir m_docs;
};

} // namespace

TEST_F(GalleryBookTest, PassesTheCheckAsItWasWritten)
{
    Book checked = book();
    EXPECT_TRUE(checked.check());
    EXPECT_EQ(checked.faults(), QStringList());
}

TEST_F(GalleryBookTest, CatchesAPictureThatLooksOtherwise)
{
    drawFrame("label-first-style.png");
    Book checked = book();
    EXPECT_TRUE(checked.check());
    ASSERT_EQ(checked.faults().size(), 1);
    EXPECT_TRUE(checked.faults().first().startsWith(
        QStringLiteral("label-first-style.png looks otherwise in ")))
        << checked.faults().first().toStdString();
}

TEST_F(GalleryBookTest, DoesNotJudgeLooksWhereTheFontsAreOthers)
{
    drawFrame("label-first-style.png");
    changeSample();
    Book checked = book();
    EXPECT_FALSE(checked.check());
    EXPECT_EQ(checked.faults(), QStringList());
}

TEST_F(GalleryBookTest, CatchesWhatIsMissingStrangeOrRewrittenWithAnyFonts)
{
    changeSample();
    QFile::remove(picturePath("label-first-style.png"));
    QFile::copy(picturePath("fonts.png"), picturePath("dial-at-rest.png"));
    QFile page(m_docs.path() + QStringLiteral("/gallery.md"));
    ASSERT_TRUE(page.open(QIODevice::Append));
    page.write("\n");
    page.close();
    Book checked = book();
    EXPECT_FALSE(checked.check());
    const QStringList faults{
        QStringLiteral("label-first-style.png is missing, or of another size"),
        QStringLiteral("dial-at-rest.png belongs to no scene"),
        QStringLiteral("gallery.md is not what the layouts make"),
    };
    EXPECT_EQ(checked.faults(), faults);
}

TEST_F(GalleryBookTest, LosesPicturesOfNoSceneWhenItIsWritten)
{
    QFile::copy(picturePath("fonts.png"), picturePath("dial-at-rest.png"));
    book().write();
    EXPECT_FALSE(QFile::exists(picturePath("dial-at-rest.png")));
    EXPECT_TRUE(QFile::exists(picturePath("fonts.png")));
}

TEST_F(GalleryBookTest, TellsWhatItCannotWrite)
{
    QFile::remove(m_docs.path() + QStringLiteral("/gallery.md"));
    Book nowhere(QStringLiteral("/proc/none"), {});
    nowhere.write();
    EXPECT_EQ(nowhere.faults().size(), 2);
}

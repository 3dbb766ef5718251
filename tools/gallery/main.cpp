// The gallery of components: gallery DOCS writes DOCS/gallery.md and DOCS/images/gallery/;
// gallery --check DOCS tells whether they are what it would write: the text to the letter, the
// pictures by their names and sizes, since fonts differ from machine to machine.

#include "Guide.h"
#include "Scenes.h"
#include "Stage.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>

namespace {

using namespace gallery;

const QString layouts = QStringLiteral(GALLERY_ROOTFS "/app/bin/resource/layout/");
const QString textFile = QStringLiteral("/gallery.md");
const QString pictureFolder = QStringLiteral("/images/gallery/");

int faults = 0;

void fault(const QString& text)
{
    std::fprintf(stderr, "gallery: %s\n", text.toUtf8().constData());
    ++faults;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fault(QStringLiteral("cannot read ") + path);
    return file.readAll();
}

// shows each scene and hands its picture over
template <typename Take>
PictureSizes playAll(Take take)
{
    PictureSizes sizes;
    for (const Room& room : allRooms()) {
        for (const Exhibit& exhibit : room.exhibits) {
            for (const Scene& scene : exhibit.scenes) {
                const QString name = pictureName(exhibit.keyword, scene.state);
                const QImage picture = Stage(exhibit.keyword, scene).picture();
                sizes[name] = picture.size();
                take(name, picture);
            }
        }
    }
    return sizes;
}

void removeOthers(const QString& folder, const PictureSizes& sizes, bool bOnlyTell)
{
    const QStringList files = QDir(folder).entryList(QDir::Files);
    for (const QString& name : files) {
        if (sizes.count(name) != 0)
            continue;
        if (bOnlyTell)
            fault(name + QStringLiteral(" belongs to no scene"));
        else
            QFile::remove(folder + name);
    }
}

void write(const QString& docs)
{
    const QString folder = docs + pictureFolder;
    QDir().mkpath(folder);
    const PictureSizes sizes = playAll([&folder](const QString& name, const QImage& picture) {
        // the quality of a PNG is how little it is packed
        if (!picture.save(folder + name, "PNG", 0))
            fault(QStringLiteral("cannot write ") + folder + name);
    });
    removeOthers(folder, sizes, false);
    QFile file(docs + textFile);
    const QByteArray text = guide(layouts, sizes).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        fault(QStringLiteral("cannot write ") + file.fileName());
}

void check(const QString& docs)
{
    const QString folder = docs + pictureFolder;
    const PictureSizes sizes = playAll([&folder](const QString& name, const QImage& picture) {
        if (QImage(folder + name).size() != picture.size())
            fault(name + QStringLiteral(" is missing, or of another size"));
    });
    removeOthers(folder, sizes, true);
    if (bytesOf(docs + textFile) != guide(layouts, sizes).toUtf8())
        fault(QStringLiteral("gallery.md is not what the layouts make; run ./panel gallery"));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QTPANFX_SYSROOT", GALLERY_ROOTFS);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "72"); // as on the instrument: a point is a pixel
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool checking = arguments.removeOne(QStringLiteral("--check"));
    if (arguments.size() != 1) {
        std::fputs("usage: gallery [--check] DOCS\n", stderr);
        return 2;
    }
    try {
        (checking ? check : write)(arguments.first());
    } catch (const std::exception& exception) {
        fault(QString::fromUtf8(exception.what()));
    }
    return faults == 0 ? 0 : 1;
}

#include "Book.h"

#include "Comparison.h"
#include "Stage.h"

#include <QDir>
#include <QFile>

namespace gallery {

namespace {

const char* const layouts = GALLERY_ROOTFS "/app/bin/resource/layout/";
const char* const sampleFile = "fonts.png";

} // namespace

Book::Book(const QString& docs, const std::vector<Room>& rooms)
    : m_textFile(docs + QStringLiteral("/gallery.md"))
    , m_folder(docs + QStringLiteral("/images/gallery/"))
    , m_rooms(rooms)
{
}

// shows each scene and hands its picture over
template <typename Take>
PictureSizes Book::playAll(Take take) const
{
    PictureSizes sizes;
    for (const Room& room : m_rooms) {
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

QStringList Book::strangers(const PictureSizes& sizes) const
{
    QStringList names;
    for (const QString& name : QDir(m_folder).entryList(QDir::Files)) {
        if (name != QLatin1String(sampleFile) && sizes.count(name) == 0)
            names.append(name);
    }
    return names;
}

QByteArray Book::text(const PictureSizes& sizes) const
{
    return guide(QString::fromLatin1(layouts), m_rooms, sizes).toUtf8();
}

void Book::save(const QImage& picture, const QString& name)
{
    // the quality of a PNG is how little it is packed
    if (!picture.save(m_folder + name, "PNG", 0))
        m_faults.append(QStringLiteral("cannot write ") + m_folder + name);
}

void Book::write()
{
    QDir().mkpath(m_folder);
    const PictureSizes sizes =
        playAll([this](const QString& name, const QImage& picture) { save(picture, name); });
    save(fontSample(), QLatin1String(sampleFile));
    for (const QString& name : strangers(sizes))
        QFile::remove(m_folder + name);
    QFile file(m_textFile);
    const QByteArray page = text(sizes);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size())
        m_faults.append(QStringLiteral("cannot write ") + m_textFile);
}

void Book::compare(const QString& name, const QImage& made, bool bLooks)
{
    const QImage kept(m_folder + name);
    if (kept.size() != made.size())
        m_faults.append(name + QStringLiteral(" is missing, or of another size"));
    else if (bLooks && looksOtherwise(kept, made))
        m_faults.append(name +
                        QStringLiteral(" looks otherwise in %1 pixels").arg(pixelsOff(kept, made)));
}

bool Book::check()
{
    const QImage sample(m_folder + QLatin1String(sampleFile));
    const bool looks = sample.convertToFormat(QImage::Format_RGB32) == fontSample();
    const PictureSizes sizes = playAll([this, looks](const QString& name, const QImage& picture) {
        compare(name, picture, looks);
    });
    for (const QString& name : strangers(sizes))
        m_faults.append(name + QStringLiteral(" belongs to no scene"));
    QFile file(m_textFile);
    if (!file.open(QIODevice::ReadOnly) || file.readAll() != text(sizes))
        m_faults.append(QStringLiteral("gallery.md is not what the layouts make"));
    return looks;
}

} // namespace gallery

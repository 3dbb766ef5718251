#pragma once

#include "Guide.h"
#include "Scenes.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <vector>

namespace gallery {

/** The gallery as it lies in a folder of documents: its page, its pictures, a sample of the fonts.
 */
class Book
{
public:
    /**
     * @param docs the folder: it has gallery.md and images/gallery/
     * @param rooms what the gallery consists of
     */
    explicit Book(const QString& docs, const std::vector<Room>& rooms = allRooms());

    /** Draws all pictures and writes the book anew; pictures of no scene are removed. */
    void write();

    /**
     * Looks whether the book is what write() would make: the text to the letter, the pictures by
     * name and size, and by look where the sample of the fonts comes out as it lies there.
     * @return whether the looks could be compared
     */
    bool check();

    /** What went wrong or was found, a sentence each. */
    const QStringList& faults() const { return m_faults; }

private:
    template <typename Take>
    PictureSizes playAll(Take take) const;
    QStringList strangers(const PictureSizes& sizes) const;
    QByteArray text(const PictureSizes& sizes) const;
    void save(const QImage& picture, const QString& name);
    void compare(const QString& name, const QImage& made, bool bLooks);

    const QString m_textFile;
    const QString m_folder; ///< of the pictures, with a slash at the end
    const std::vector<Room> m_rooms;
    QStringList m_faults;
};

} // namespace gallery

#pragma once

#include <QSize>
#include <QString>

#include <map>
#include <string>
#include <vector>

namespace gallery {

struct Room;

/** The sizes of the pictures by their file names. */
using PictureSizes = std::map<QString, QSize>;

/** The file name of the picture of a scene: "checkbutton-checked-and-dim.png". */
QString pictureName(const std::string& strKeyword, const std::string& strState);

/**
 * The text of docs/gallery.md: for each keyword its pictures and its layout.
 * @param layouts the directory of the layout files
 * @param rooms what it tells of
 * @param sizes of all pictures, which are laid out in rows that fit a page
 */
QString guide(const QString& layouts, const std::vector<Room>& rooms, const PictureSizes& sizes);

} // namespace gallery

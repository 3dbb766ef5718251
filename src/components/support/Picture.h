#pragma once

#include <string>

class QPixmap;

namespace PANFx::Components {

/** Whether there is something to draw: a pointer, and pixels behind it. */
bool hasPicture(const QPixmap* pPixmap);

/**
 * The picture of that file name, which stays the resource manager's. Null for an empty name, a
 * file that is missing and a file that is no picture.
 */
QPixmap* findPicture(const std::string& strName);

} // namespace PANFx::Components

#pragma once

#include "PageGenerator.h"

#include <string>

namespace bench {

// The same page in the three languages that the candidates read.

/** The layout language, for the library and the floor. */
std::string layoutFile(const Page& page);

/** The Designer's language; @p customClasses takes the floor's own widgets. */
std::string designerFile(const Site& site, const Page& page, bool customClasses);

/** QML. Its root has the properties "texts" of a list, "tab", and "percent" of a gauge. */
std::string qmlFile(const Site& site, const Page& page);

/** The type of the buttons, a file of its own, as a QML application would have it. */
std::string qmlButtonFile();

} // namespace bench

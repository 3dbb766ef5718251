#pragma once

/**
 * @file
 * Names of the software images of an update.
 */

#include <string>

/** Name of the software image with the id @p nImageID: "Boot" for 0 to "Sys" for 7, else "unknown".
 */
std::string updateImageName(int nImageID);

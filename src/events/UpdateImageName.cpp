#include "events/UpdateImageName.h"

#include <iterator>

std::string updateImageName(int nImageID)
{
    static constexpr const char* names[] = {"Boot", "Kernel", "Rootfs", "App",
                                            "QTE",  "DSP",    "XML",    "Sys"};
    // as an unsigned number a negative id lies above the table
    const auto index = static_cast<unsigned int>(nImageID);
    return index < std::size(names) ? names[index] : "unknown";
}

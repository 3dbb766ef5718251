#pragma once

#include <functional>
#include <string>

namespace PANFx::Testing {

/**
 * Stands in front of two operations of the libraries while the object lives, so that a test can
 * have them throw what it likes. What a wish does not throw goes through. One object at a time.
 */
class LibraryFaults
{
public:
    LibraryFaults();
    ~LibraryFaults();

    LibraryFaults(const LibraryFaults&) = delete;
    LibraryFaults& operator=(const LibraryFaults&) = delete;

    /** Called before an XML file is read, with its path as the system knows it. */
    std::function<void(const std::string& path)> onLoad;

    /** Called before a component is made, with keyword and id. */
    std::function<void(const std::string& keyword, const std::string& id)> onCreate;
};

} // namespace PANFx::Testing

#pragma once

#include <functional>
#include <string>

namespace TAMFx::Data::Properties {
class FileProperty;
}

namespace PANFx::Testing {

/**
 * Stands in front of what the resource managers call while the object lives, and lets it answer
 * what it never does by itself, so that the managers' answers to that can be seen. What no wish
 * is made for goes through. One object at a time.
 */
class ResourceFaults
{
public:
    ResourceFaults();
    ~ResourceFaults();

    ResourceFaults(const ResourceFaults&) = delete;
    ResourceFaults& operator=(const ResourceFaults&) = delete;

    /** A search for elements in a document reports failure. */
    bool noElementList = false;

    /** The place in a list of elements that is empty. */
    int emptyPlaceInList = -1;

    /** The place among the children of an element "Font" that is empty. */
    int emptyPlaceInStyles = -1;

    /** So many of the next allocations that may fail do. */
    int failingAllocations = 0;

    /** Called instead of opening a configuration file, with its path and mode. */
    std::function<TAMFx::Data::Properties::FileProperty*(const std::string&, int)> onOpenProperty;

    /** Called before an entry of a list is looked up. */
    std::function<void(int index)> onListEntry;

    /** Called before a path is handed to the system, with the instrument's path. */
    std::function<void(const std::string& path)> onPath;
};

} // namespace PANFx::Testing

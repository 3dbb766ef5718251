#pragma once

#include <cstddef>

namespace PANFx::Testing {

/**
 * What operator new has given out and not taken back yet, in the whole process. Under the address
 * sanitizer malloc counts too; differences over a few lines tell the same.
 */
class HeapCount
{
public:
    static std::size_t bytes();
    static std::size_t pieces();
};

} // namespace PANFx::Testing

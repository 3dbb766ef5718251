#pragma once

#include <cstdint>
#include <cstring>

namespace PANFx::Testing {

/** The bytes from one place to the next among the virtual operations of a class. */
constexpr std::intptr_t slotSize = sizeof(void*);

/** Where a virtual operation stands among the others of its class, in bytes. */
template <typename Operation>
std::intptr_t slot(Operation operation)
{
    std::intptr_t place = 0;
    static_assert(sizeof operation >= sizeof place);
    std::memcpy(&place, &operation, sizeof place);
    return place;
}

} // namespace PANFx::Testing

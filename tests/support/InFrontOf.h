#pragma once

#include <cstdlib>
#include <dlfcn.h>

/**
 * Gives a function the name that the compiler has for a member function of the libraries, so that
 * the libraries call it instead. Where such a name changes, nothing is called any more, and the
 * tests that count on it fail. The member's object comes as the first argument.
 */
#define IN_FRONT_OF(name) __asm__(name) __attribute__((visibility("default"), used))

namespace PANFx::Testing {

/** The libraries' own function of that name, behind the one that stands in front of it. */
template <typename Function>
Function next(const char* name)
{
    void* const found = dlsym(RTLD_NEXT, name);
    if (!found)
        std::abort();
    return reinterpret_cast<Function>(found);
}

} // namespace PANFx::Testing

#pragma once

#include <cstddef>
#include <cstdlib>

namespace PANFx::Testing {

/**
 * A component that always lies at the same address, one at a time: what is made after one was
 * deleted comes to lie where that was.
 */
template <class Component>
class InOnePlace : public Component
{
public:
    using Component::Component;

    static void* operator new(std::size_t size)
    {
        alignas(std::max_align_t) static std::byte place[sizeof(InOnePlace)];
        if (size != sizeof(place) || m_taken)
            std::abort(); // one at a time, and nothing derived
        m_taken = true;
        return place;
    }
    static void operator delete(void* /*place*/) { m_taken = false; }

private:
    inline static bool m_taken = false;
};

} // namespace PANFx::Testing

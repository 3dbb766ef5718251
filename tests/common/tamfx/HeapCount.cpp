#include "common/tamfx/HeapCount.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

#if defined(__has_feature)
#define WITH_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#elif defined(__SANITIZE_ADDRESS__)
#define WITH_ADDRESS_SANITIZER 1
#else
#define WITH_ADDRESS_SANITIZER 0
#endif

#if WITH_ADDRESS_SANITIZER
// as in <sanitizer/allocator_interface.h>, which not every compiler brings along
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*,
                                                                  std::size_t),
                                                         void (*)(const volatile void*));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void*);
#endif

namespace {

std::atomic<std::size_t> bytesInUse{0};
std::atomic<std::size_t> piecesInUse{0};

void noteGiven(std::size_t size)
{
    bytesInUse += size;
    ++piecesInUse;
}

void noteTaken(std::size_t size)
{
    bytesInUse -= size;
    --piecesInUse;
}

} // namespace

namespace PANFx::Testing {

std::size_t HeapCount::bytes()
{
    return bytesInUse;
}

std::size_t HeapCount::pieces()
{
    return piecesInUse;
}

} // namespace PANFx::Testing

#if WITH_ADDRESS_SANITIZER

// The sanitizer must keep its own operators, or it could not tell a wrong delete from a right one.
namespace {

void givenHook(const volatile void* piece, std::size_t size)
{
    if (piece)
        noteGiven(size);
}

void takenHook(const volatile void* piece)
{
    if (piece)
        noteTaken(__sanitizer_get_allocated_size(piece));
}

const int hooks = __sanitizer_install_malloc_and_free_hooks(givenHook, takenHook);

} // namespace

#else

void* operator new(std::size_t size)
{
    void* const piece = std::malloc(size ? size : 1);
    if (!piece)
        throw std::bad_alloc();
    noteGiven(malloc_usable_size(piece));
    return piece;
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete(void* piece) noexcept
{
    if (!piece)
        return;
    noteTaken(malloc_usable_size(piece));
    std::free(piece);
}

void operator delete[](void* piece) noexcept
{
    operator delete(piece);
}

void operator delete(void* piece, std::size_t) noexcept
{
    operator delete(piece);
}

void operator delete[](void* piece, std::size_t) noexcept
{
    operator delete(piece);
}

#endif

#include "hfm/offline/LargeMemory.h"

#include <QtGlobal>

#include <cstdlib>
#include <new>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

namespace hfm::offline {

void *allocateLarge(std::size_t bytes)
{
#ifdef Q_OS_LINUX
    constexpr std::size_t largePage = std::size_t(2) << 20;
    const std::size_t rounded = (bytes + largePage - 1) / largePage * largePage;
    if (bytes >= largeMemory && rounded >= bytes) {
        void *memory = std::aligned_alloc(largePage, rounded);
        if (!memory)
            throw std::bad_alloc();
        madvise(memory, rounded, MADV_HUGEPAGE); // only a wish; without it all is as usual
        return memory;
    }
#endif
    void *memory = std::malloc(bytes);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void freeLarge(void *memory) noexcept
{
    std::free(memory);
}

} // namespace hfm::offline

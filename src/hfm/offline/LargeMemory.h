#pragma once

#include <cstddef>
#include <vector>

namespace hfm::offline {

/// The size from which memory is asked for in large pages.
inline constexpr std::size_t largeMemory = std::size_t(2) << 20;

/// Memory for a table of some million entries, which the system is asked to give in large pages:
/// looking something up in small ones costs a second wait, for the page's own address. Throws
/// std::bad_alloc.
void *allocateLarge(std::size_t bytes);
void freeLarge(void *memory) noexcept;

/// Allocates large memory as above, and less than that as usual.
template <typename Value>
struct LargeAllocator
{
    using value_type = Value;

    LargeAllocator() = default;
    template <typename Other>
    LargeAllocator(const LargeAllocator<Other> &) // NOLINT: containers convert allocators
    {
    }
    Value *allocate(std::size_t count)
    {
        return static_cast<Value *>(allocateLarge(count * sizeof(Value)));
    }
    void deallocate(Value *values, std::size_t) noexcept { freeLarge(values); }
    friend bool operator==(const LargeAllocator &, const LargeAllocator &) { return true; }
};

/// A vector for one entry a member, or more.
template <typename Value>
using LargeVector = std::vector<Value, LargeAllocator<Value>>;

} // namespace hfm::offline

#pragma once

namespace hfm::offline {

/// Has the memory at `address` fetched, so that it is there when it is read a little later. The
/// tables of a large application do not fit into a processor's caches, and waiting for them is
/// most of what opening it costs.
inline void prefetch([[maybe_unused]] const void *address)
{
#if defined(__GNUC__)
    __builtin_prefetch(address);
#endif
}

} // namespace hfm::offline

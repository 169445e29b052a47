#pragma once
// The module's operator new, in place of FailingMemory.cpp, whose orders and counts it follows: each
// block ends at a page that can't be touched. A freed block is filled with a pattern, and isn't used
// again until many others of its size were freed after it; a byte of it that has changed by then traps.
// One in sixteen can't be touched at all while it is free: a change of protection costs more than all
// else.

#include <cstddef>

namespace GuardedHeap
{
struct TUse {
    std::size_t nLive = 0;    // bytes in use
    std::size_t nPeak = 0;    // most of them since the watch began
    std::size_t nLargest = 0; // largest single request since then
};

// Starts counting anew from what is in use now.
void BeginWatch() noexcept;
[[nodiscard]] TUse Use() noexcept;
// Without guards the heap is as fast as any: for measures of time.
void SetGuards(bool bOn) noexcept;
} // namespace GuardedHeap

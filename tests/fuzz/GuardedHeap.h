#pragma once
// The program's operator new: each block ends at a page that can't be touched, and a freed
// block can't be touched either until 2,000 others were freed after it. Guards are slow: after
// BeginWatch the first 10,000 blocks have them.

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

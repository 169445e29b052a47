#pragma once
// One row for each animation of the bar chart, with all that sets it apart. A new
// animation is a row here, and a tick of CBarAnimation or a picture of CBarComposer if it needs
// one that isn't there yet.

#include <cstdint>

struct CBarAnimation;
class CBarComposer;

// How many there are of what an animation goes through one after the other.
struct TBarCounts {
    std::int32_t nSegments = 0;
    std::int32_t nSeries = 0;
};

struct TBarAnimationRow {
    std::int32_t nType; // as the host passes it
    std::int32_t CBarAnimation::*pFinished;
    std::int32_t TBarCounts::*pCount; // which of them pFinished counts
    void (CBarAnimation::*pfnTick)(std::int32_t& finished, std::int32_t count) noexcept;
    void (CBarComposer::*pfnCompose)(); // what a frame shows
};

// The row of that type, or null.
[[nodiscard]] const TBarAnimationRow* FindBarAnimation(std::int32_t type) noexcept;

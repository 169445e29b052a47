#pragma once
// The two animations of the flat pie, as a state that one tick moves on. Unlike those of bars
// and lines they hold nothing at the end.

#include <cstdint>

#include "base/Geometry.h"

struct CFlatPieAnimation {
    enum EType : std::int32_t { sweep = 10, fade = 11 };

    // Starts over; `start` is the radial at which the first slice begins. `on`: 1 animated; any
    // other value means the still picture.
    void SetAnimation(std::int32_t on, std::int32_t type, TPoint start) noexcept;

    // Starts the same animation over, after a change of a segment.
    void Restart(TPoint start) noexcept { SetAnimation(m_bAnimation, m_nAnimationType, start); }

    // One tick, for a pie of that total and that many segments.
    void Animate(double totalPercent, std::int32_t segments, TPoint start) noexcept;

    std::int32_t m_bAnimation = 0;
    std::int32_t m_nAnimationType = 0;
    double m_dAnimationPercent = 0;
    double m_dSweepAngle = 0;        // radians: how far the sweep has come
    double m_dDrawnPercent = 0;      // sum of the percents that the last frame drew whole
    std::int32_t m_nFadeSegment = 0; // segments faded in

    // The radial at which the slice in progress starts, in pixels of the window. Frames move it: a
    // sweep to the end of each whole slice, a fade at the end of its slice.
    TPoint m_ptStart;
};

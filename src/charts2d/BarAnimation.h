#pragma once
// The state of the bar chart's animation, which one tick moves on. BarAnimationTable.h has the
// animations themselves.

#include <cstdint>

#include "charts2d/BarAnimationTable.h"

struct CBarAnimation {
    // As the host passes them.
    enum EType : std::int32_t {
        allGrow = 20,
        groupsGrow = 21,
        seriesGrow = 22,
        groupsFade = 25,
        seriesFade = 26
    };

    // Starts over. `on`: 1 animated, 0 still, any other value axes alone.
    void SetAnimation(std::int32_t on, std::int32_t type) noexcept;

    // One tick, for a chart of that many segments and series.
    void Animate(std::int32_t segments, std::int32_t series) noexcept;

    // What one tick is for the animations: growth holds its end for 21 ticks, fades start again at
    // once. `finished` of `count` are done.
    void GrowAll(std::int32_t& finished, std::int32_t count) noexcept;
    void GrowInTurn(std::int32_t& finished, std::int32_t count) noexcept;
    void FadeInTurn(std::int32_t& finished, std::int32_t count) noexcept;

    std::int32_t m_bAnimation = 0;
    std::int32_t m_nAnimationType = 0;
    std::int32_t m_nAnimationPercent = 0; // of the current step
    std::int32_t m_bAnimationHold = 0;    // the finished picture is held
    std::int32_t m_nHoldCount = 0;        // ticks held
    std::int32_t m_nGrowSegment = 0;      // segments finished (groupsGrow)
    std::int32_t m_nGrowSeries = 0;       // series finished (seriesGrow)
    std::int32_t m_nFadeSegment = 0;      // segments faded in (groupsFade)
    std::int32_t m_nFadeSeries = 0;       // series faded in (seriesFade)
};

#pragma once
// The two animations of the line chart, as a state that one tick moves on.

#include <cstdint>
#include <vector>

#include "base/Geometry.h"

struct CLineAnimation {
    enum EType : std::int32_t { allDraw = 30, seriesDraw = 31 };

    [[nodiscard]] static constexpr bool IsKnown(std::int32_t type) noexcept
    {
        return type == allDraw || type == seriesDraw;
    }

    // Starts over for a chart of that many segments, with an end point at `start` for every
    // series id up to the highest. `on`: 1 animated, 0 still, any other value axes alone.
    void SetAnimation(std::int32_t on, std::int32_t type, std::int32_t segments,
                      std::int32_t highestSeries, TPoint start);

    // One tick, for a chart of that many segments and series.
    void Animate(std::int32_t segments, std::int32_t series, TPoint start);

    std::int32_t m_bAnimation = 0;
    std::int32_t m_nAnimationType = 0;
    std::int32_t m_nAnimationPercent = 0;
    std::int32_t m_nSegmentPercent = 0; // that one line takes: Trunc(100 / G)
    std::int32_t m_bAnimationHold = 0;
    std::int32_t m_nHoldCount = 0;
    std::int32_t m_nGrowSegment = 0; // lines finished
    std::int32_t m_nGrowSeries = 0;  // series finished (seriesDraw)

    // By series id - 1: the end of the part that is drawn, in pixels of the frame that drew it: a
    // new size or position leaves it where it is until the next finished line. A series without an
    // entry, because it came after the animation started, shows its finished lines alone.
    std::vector<TPoint> m_pPoints;

private:
    void DrawAll(std::int32_t runEnd, TPoint start);
    void DrawInTurn(std::int32_t runEnd, std::int32_t series, TPoint start);
    void StartRun(TPoint start);
};

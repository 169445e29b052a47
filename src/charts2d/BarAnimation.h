#pragma once
// The five animations of the bar chart, as a state that one tick moves on.

#include <cstdint>

struct CBarAnimation {
    enum EType : std::int32_t {
        allGrow = 20,
        groupsGrow = 21,
        seriesGrow = 22,
        groupsFade = 25,
        seriesFade = 26
    };

    [[nodiscard]] static constexpr bool IsKnown(std::int32_t type) noexcept
    {
        return (type >= allGrow && type <= seriesGrow) || type == groupsFade || type == seriesFade;
    }

    // Starts over. `on`: 1 animated, 0 still, any other value axes alone.
    void SetAnimation(std::int32_t on, std::int32_t type) noexcept;

    // One tick, for a chart of that many segments and series.
    void Animate(std::int32_t segments, std::int32_t series) noexcept;

    std::int32_t m_bAnimation = 0;
    std::int32_t m_nAnimationType = 0;
    std::int32_t m_nAnimationPercent = 0; // of the current step
    std::int32_t m_bAnimationHold = 0;    // the finished picture is held
    std::int32_t m_nHoldCount = 0;        // ticks held
    std::int32_t m_nGrowSegment = 0;      // segments finished (groupsGrow)
    std::int32_t m_nGrowSeries = 0;       // series finished (seriesGrow)
    std::int32_t m_nFadeSegment = 0;      // segments faded in (groupsFade)
    std::int32_t m_nFadeSeries = 0;       // series faded in (seriesFade)

private:
    void GrowAll() noexcept;
    void GrowInTurn(std::int32_t& finished, std::int32_t count) noexcept;
    void FadeInTurn(std::int32_t& finished, std::int32_t count) noexcept;
};

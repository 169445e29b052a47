#pragma once
// Places and heights of the bars, in pixels of the window.

#include <cstdint>

#include "base/Geometry.h"
#include "charts2d/ChartMeasures.h"

namespace BarGeometry
{

struct TBars {
    ChartMeasures::TMeasures Measures;
    std::int32_t nWidth = 0; // of one bar: Trunc((groupW - (S-1) barGap) / S)
    std::int32_t nPitch = 0; // from a group's first bar to the next group's: S bars, their gaps, one gap
    std::int32_t nBase = 0;  // the bottom of every bar
    std::int32_t nFixedStartX = 0; // left of the first group where series grow or anything fades
    double dFullHeight = 0;        // the height of a bar of the scale's maximum: H * 0.8
};

// For one segment and one series at least.
[[nodiscard]] TBars Measure(TPoint position, TSize size, std::int32_t segments,
                            std::int32_t series) noexcept;

// The left edge of a bar, by segment and series counted from 0.
[[nodiscard]] std::int32_t Left(const TBars& bars, std::int32_t start, std::int32_t segment,
                                std::int32_t series) noexcept;

// Trunc(v / M * (H * 0.8)). A maximum of 0 leads to NaN or an infinity, and so the smallest int.
[[nodiscard]] std::int32_t Height(const TBars& bars, std::int32_t value, std::int32_t maximum) noexcept;

// The height of a growing bar: the full height is truncated first, then the part of it.
[[nodiscard]] std::int32_t GrownHeight(std::int32_t height, std::int32_t percent) noexcept;

// From the base line up by the height; a negative height hangs below it. A far edge is
// drawn in to what the device can take.
[[nodiscard]] TRect Rectangle(const TBars& bars, std::int32_t left, std::int32_t height) noexcept;

} // namespace BarGeometry

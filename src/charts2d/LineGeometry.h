#pragma once
// Places of the line chart's points, in pixels of the window.

#include <cstdint>

#include "base/Geometry.h"
#include "charts2d/ChartMeasures.h"

namespace LineGeometry
{

struct TPlot {
    ChartMeasures::TMeasures Measures;
    std::int32_t nStep = 0;   // from one point to the next: groupW + gap
    std::int32_t nBase = 0;   // y of the value 0: Y + Trunc(H * 0.93)
    std::int32_t nHeight = 0; // of the scale's maximum: Trunc(H * 0.8)
};

// For two segments and one series at least.
[[nodiscard]] TPlot Measure(TPoint position, TSize size, std::int32_t segments,
                            std::int32_t series) noexcept;

// The point of the k-th value, counted from 0.
[[nodiscard]] TPoint Point(const TPlot& plot, std::int32_t k, std::int32_t value,
                           std::int32_t maximum) noexcept;

// y of a value: base - Trunc(v / M * height).
[[nodiscard]] std::int32_t PointY(const TPlot& plot, std::int32_t value, std::int32_t maximum) noexcept;

// Where an animation's lines start. The factor of its width is 0.7, not that of the plot, so
// the start lies a little beside the first point.
[[nodiscard]] TPoint StartPoint(TPoint position, TSize size, std::int32_t segments) noexcept;

// The end of the part of the line from `from` to `to` that is due, `rest` of `whole` percent.
// A part without a length (no percent a line, no direction) ends where Trunc sends what isn't
// a number: far to the upper left.
[[nodiscard]] TPoint PartialEnd(TPoint from, TPoint to, std::int32_t rest, std::int32_t whole) noexcept;

// Cuts the line along itself to the square that the device reaches; false if none of it lies
// inside.
[[nodiscard]] bool CutToDevice(TPoint& from, TPoint& to) noexcept;

} // namespace LineGeometry

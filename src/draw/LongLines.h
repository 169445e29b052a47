#pragma once
// Lines and polygons that reach far outside the canvas. The platform's own arithmetic loses
// the slope of such lines, so they are cut, along their own lines and in doubles, to the
// square of |x|, |y| <= 2^26 before the platform sees them: what is visible keeps its place.
// CDCEx::LineTo and CDCEx::Polygon cut by these; whoever draws through a CDCEx needs not.

#include "base/Geometry.h"

#include <cstdint>
#include <span>
#include <vector>

namespace LongLines
{
inline constexpr std::int32_t Limit = 1 << 26;

struct TVertex {
    double x = 0;
    double y = 0;
    friend bool operator==(const TVertex&, const TVertex&) = default;
};

// No cut is needed. (Comparisons alone: the smallest int has no absolute value.)
[[nodiscard]] constexpr bool IsShort(std::int32_t x, std::int32_t y) noexcept
{
    return x >= -Limit && x <= Limit && y >= -Limit && y <= Limit;
}
[[nodiscard]] constexpr bool IsShort(TPoint point) noexcept
{
    return IsShort(point.x, point.y);
}
[[nodiscard]] bool AreShort(std::span<const TPoint> points) noexcept;

// Cuts the segment to the square. False, and nothing is changed, where no part of it lies
// inside or a coordinate is beyond 1e300 or isn't a number. An end inside the square stays as it is,
// exactly.
[[nodiscard]] bool CutSegment(TVertex& from, TVertex& to) noexcept;
// The same on pixels; the cut ends are rounded to the nearest pixel.
[[nodiscard]] bool CutSegment(TPoint& from, TPoint& to) noexcept;

// To the nearest pixel; for vertices inside the square.
[[nodiscard]] TPoint ToPixel(TVertex vertex) noexcept;

// The polygon's part inside the square, in the same sense of rotation; empty where there is
// none. Parts that a concave polygon falls into stay joined along the square's edge, which
// no canvas shows. A vertex beyond 1e300, or that isn't a number, is left out.
[[nodiscard]] std::vector<TPoint> CutPolygon(std::span<const TVertex> polygon);
[[nodiscard]] std::vector<TPoint> CutPolygon(std::span<const TPoint> polygon);
} // namespace LongLines

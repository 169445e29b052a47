#pragma once
// Lines and polygons that reach far outside the canvas. The platform's own arithmetic loses
// the slope of such lines, so they are cut, along their own lines and in doubles, to the
// square of |x|, |y| <= 2^26 before the platform sees them: what is visible keeps its place.
// CDCEx::LineTo and CDCEx::Polygon cut by these; code that draws through a CDCEx need not.

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

// From here on a polygon, and a line of a wide pen, is worth cutting to what is visible:
// filling it costs the platform one step for each row that it covers, seen or not.
inline constexpr std::int32_t TallPolygon = 1 << 20;
inline constexpr std::int32_t TallWideLine = 1 << 15;

// No cut is needed. (Comparisons alone: the smallest int has no absolute value.)
[[nodiscard]] constexpr bool IsShort(std::int32_t x, std::int32_t y) noexcept
{
    return x >= -Limit && x <= Limit && y >= -Limit && y <= Limit;
}
[[nodiscard]] constexpr bool IsShort(TPoint point) noexcept
{
    return IsShort(point.x, point.y);
}

// A part of the square to which lines and polygons are cut; no side lies outside the square.
struct TArea {
    double left = -Limit;
    double top = -Limit;
    double right = Limit;
    double bottom = Limit;
};

// What is visible with that much room on all sides, as far as it lies in the square.
[[nodiscard]] TArea AreaAround(const TRect& visible, std::int32_t room) noexcept;

// Cuts the segment to the area. False, and nothing is changed, where no part of it lies
// inside or a coordinate is beyond 1e300 or isn't a number. An end inside the area stays as it is,
// exactly.
[[nodiscard]] bool CutSegment(TVertex& from, TVertex& to, const TArea& area = {}) noexcept;
// The same on pixels; the cut ends are rounded to the nearest pixel.
[[nodiscard]] bool CutSegment(TPoint& from, TPoint& to) noexcept;

// To the nearest pixel; for vertices inside the square.
[[nodiscard]] TPoint ToPixel(TVertex vertex) noexcept;

// The polygon's part inside the area, in the same sense of rotation; empty where there is
// none. Parts that a concave polygon falls into stay joined along the area's edge, which
// no canvas shows. A vertex beyond 1e300, or that isn't a number, is left out.
[[nodiscard]] std::vector<TPoint> CutPolygon(std::span<const TVertex> polygon, const TArea& area = {});
[[nodiscard]] std::vector<TPoint> CutPolygon(std::span<const TPoint> polygon, const TArea& area = {});
} // namespace LongLines

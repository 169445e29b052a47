#pragma once
// The extent of an array of points. A value that is not a number widens nothing.

#include "base/Vocabulary.h"

#include <limits>
#include <span>

struct TDataExtent {
    double fMinX;
    double fMaxX;
    double fMinY;
    double fMaxY;
};

namespace DataExtent
{

// Widens an extent by every point: a larger value replaces the maximum, a smaller one the
// minimum, for x and y separately.
[[nodiscard]] TDataExtent Widen(TDataExtent start, std::span<const TDataPoint> points) noexcept;

// The same, point by point: what Widen has to agree with, to the last bit.
[[nodiscard]] TDataExtent WidenPlain(TDataExtent start, std::span<const TDataPoint> points) noexcept;

// The extent of no points: to widen it by some is to find theirs.
inline constexpr TDataExtent Nothing{
    std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

// Widens an extent by that of other points, as widening it by the points themselves would.
[[nodiscard]] TDataExtent Widen(TDataExtent start, const TDataExtent& other) noexcept;

} // namespace DataExtent

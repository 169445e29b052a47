#pragma once
// The extent of an array of points. A value that is not a number widens nothing.

#include "base/Vocabulary.h"

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

} // namespace DataExtent

#pragma once
// The extent of an array of points. What is not a number widens nothing.

#include "base/Vocabulary.h"

#include <cfloat>
#include <span>

namespace CurveExtent
{

// Starts inverted, as a fresh axis does.
struct TExtent {
    double fMinX = DBL_MAX;
    double fMaxX = -DBL_MAX;
    double fMinY = DBL_MAX;
    double fMaxY = -DBL_MAX;
};

// Widens the extent by every point: a larger value replaces the maximum, a smaller one the
// minimum, for x and y separately.
void Widen(TExtent& extent, std::span<const TDataPoint> points) noexcept;

// The same, point by point: what Widen has to agree with, to the last bit.
void WidenPlain(TExtent& extent, std::span<const TDataPoint> points) noexcept;

} // namespace CurveExtent

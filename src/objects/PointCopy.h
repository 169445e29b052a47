#pragma once
// The copying of an array of points, with what there is to know of them found on the way: each
// block is looked at while it is still near the processor.

#include "base/Vocabulary.h"
#include "objects/DataExtent.h"

#include <span>

struct TPointFacts {
    TDataExtent extent; // of the points alone
    bool bAscending;    // x is a number everywhere and never falls
};

namespace PointCopy
{

// Copies all points to a place that doesn't overlap them.
TPointFacts Copy(std::span<const TDataPoint> points, TDataPoint* pTo) noexcept;

} // namespace PointCopy

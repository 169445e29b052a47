#pragma once
// The index of a point by its x.
// Points are ascending where x is a number everywhere and never falls.

#include "base/Vocabulary.h"

#include <span>

namespace IndexSearch
{

// Starts where even spacing would put x. From a point past x it steps down to the last one
// that isn't (or to 0); else it steps up to the first one that is, which may be one behind
// the end. With fewer than two points it is 0.
[[nodiscard]] int FindIndexForX(std::span<const TDataPoint> points, double x) noexcept;

// The same result for ascending points, found by halving.
[[nodiscard]] int FindIndexForXAscending(std::span<const TDataPoint> points, double x) noexcept;

[[nodiscard]] bool IsAscending(std::span<const TDataPoint> points) noexcept;

} // namespace IndexSearch

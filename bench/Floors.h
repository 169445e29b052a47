#pragma once
// What a frame can't be expected to beat, or can: plain loops over the same points, compiled
// with the same flags and timed in the same run. Ratios to them hold on any machine.

#include "base/Vocabulary.h"

#include <cstdint>
#include <span>

namespace Floors
{

// Maps every point to its pixel in an 800 by 600 plot, one after another. The result only
// keeps the loop from being left out.
std::uint32_t MapAll(std::span<const TDataPoint> points);

// Finds the first point of each of 800 pixel columns by binary search.
std::uint32_t FindColumns(std::span<const TDataPoint> points);

// Copies the array.
std::uint32_t Copy(std::span<const TDataPoint> points, std::span<TDataPoint> target);

} // namespace Floors

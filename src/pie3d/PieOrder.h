#pragma once
// Orders of the elements. Each function returns positions in its argument, in the order that
// the elements will have.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace PieOrder
{

// By value: descending if bDescending, else ascending. Of equal values the last comes first.
[[nodiscard]] std::vector<std::size_t> ByValue(std::span<const double> values, bool bDescending);

// By number of insertion, smallest first. Of equal numbers the last comes first.
[[nodiscard]] std::vector<std::size_t> ByInsertion(std::span<const std::int32_t> orders);

} // namespace PieOrder

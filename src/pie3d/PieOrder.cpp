#include "pie3d/PieOrder.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace PieOrder
{
namespace
{

// Picking the last of the best again and again is a stable sort of the reversed sequence,
// without the square of the element count.
template <typename T, typename Before>
std::vector<std::size_t> LastOfEqualsFirst(std::span<const T> keys, Before before)
{
    std::vector<std::size_t> positions(keys.size());
    std::iota(positions.rbegin(), positions.rend(), std::size_t{0});
    std::stable_sort(positions.begin(), positions.end(), [&](std::size_t left, std::size_t right) {
        return before(keys[left], keys[right]);
    });
    return positions;
}

} // namespace

std::vector<std::size_t> ByValue(std::span<const double> values, bool bDescending)
{
    return bDescending ? LastOfEqualsFirst(values, std::greater<>())
                       : LastOfEqualsFirst(values, std::less<>());
}

std::vector<std::size_t> ByInsertion(std::span<const std::int32_t> orders)
{
    return LastOfEqualsFirst(orders, std::less<>());
}

} // namespace PieOrder

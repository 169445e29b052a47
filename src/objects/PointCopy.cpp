#include "objects/PointCopy.h"

#include "objects/IndexSearch.h"

#include <algorithm>
#include <cstddef>

namespace PointCopy
{

TPointFacts Copy(std::span<const TDataPoint> points, TDataPoint* pTo) noexcept
{
    constexpr std::size_t block = 512; // both copies fit the smallest cache
    TPointFacts facts{DataExtent::Nothing, !points.empty()};
    for (std::size_t from = 0; from < points.size(); from += block) {
        const std::span<const TDataPoint> copied(pTo + from, std::min(block, points.size() - from));
        std::copy_n(points.begin() + static_cast<std::ptrdiff_t>(from), copied.size(), pTo + from);
        facts.extent = DataExtent::Widen(facts.extent, copied);
        facts.bAscending = facts.bAscending && IndexSearch::IsAscending(copied) &&
                           (from == 0 || pTo[from - 1].fXVal <= pTo[from].fXVal);
    }
    return facts;
}

} // namespace PointCopy

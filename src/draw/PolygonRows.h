#pragma once
// The rows of a polygon of very many edges. The platform sorts all edges that cross a row anew
// for each row, seen or not, which takes minutes for a fill of some thousand steep edges. Here
// a row costs a step for each edge, and only visible rows count.

#include "draw/LongLines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

namespace PolygonRows
{
// Steps that the platform takes for the polygon: in each row between top and bottom the square
// of the edges that cross it, on the average. Of pixels or vertices, whichever there are.
template <class TPlace>
[[nodiscard]] double Cost(std::span<const TPlace> polygon, double top, double bottom)
{
    const auto rowOf = [=](const TPlace& place) {
        return std::clamp(static_cast<double>(place.y), top, bottom);
    };
    double crossings = 0;
    double highest = bottom;
    double lowest = top;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const double y = rowOf(polygon[i]);
        crossings += std::fabs(y - rowOf(polygon[i == 0 ? polygon.size() - 1 : i - 1]));
        highest = std::min(highest, y);
        lowest = std::max(lowest, y);
    }
    return lowest > highest ? crossings * crossings / (lowest - highest) : 0;
}

// The visible pixels of the polygon in alternate filling, as bands from top to bottom with their
// rectangles from left to right. The pixels are those of the platform: an edge counts in the rows
// from its upper end to the one above its lower end, and the inside begins and ends at the first
// column that isn't left of it. A vertex beyond 1e300, or that isn't a number, is left out.
[[nodiscard]] std::vector<TRect> Fill(std::span<const LongLines::TVertex> polygon, const TRect& visible);
} // namespace PolygonRows

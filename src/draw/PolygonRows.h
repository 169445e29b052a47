#pragma once
// The rows of a polygon of very many edges. The platform sorts all edges that cross a row anew
// for each row, seen or not, which takes minutes for a fill of some thousand steep edges. Here
// a row costs a step for each edge, and only visible rows count.

#include "draw/LongLines.h"

namespace PolygonRows
{
// Steps that the platform takes for the polygon: in each row between top and bottom the square
// of the edges that cross it, on the average.
[[nodiscard]] double Cost(std::span<const LongLines::TVertex> polygon, double top, double bottom);

// The visible pixels of the polygon in alternate filling, as bands from top to bottom with their
// rectangles from left to right. The pixels are those of the platform: an edge counts in the rows
// from its upper end to the one above its lower end, and the inside begins and ends at the first
// column that isn't left of it. A vertex beyond 1e300, or that isn't a number, is left out.
[[nodiscard]] std::vector<TRect> Fill(std::span<const LongLines::TVertex> polygon, const TRect& visible);
} // namespace PolygonRows

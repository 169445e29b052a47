#pragma once
// The point of a curve that belongs to an x value.

#include "base/Vocabulary.h"

class CXGraph;

namespace PointSearch
{
// Index of the first point past x, or of the last point where x lies beyond all of them; -1 for a
// curve without points. An nCurve outside the list ends the process.
[[nodiscard]] int Index(CXGraph& graph, int nCurve, double x);

// x by the curve's own X axis for a pixel column.
[[nodiscard]] double ValueAtColumn(CXGraph& graph, int nCurve, int x);

// y of the point at Index; 0 for a curve without points.
[[nodiscard]] double Y(CXGraph& graph, int nCurve, double x);
} // namespace PointSearch

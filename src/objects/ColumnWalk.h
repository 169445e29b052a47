#pragma once
// From the points of a curve to the segments of a frame.
//
// The rule (WalkEverySegment): the first point is kept; each further point is kept if its
// pixel column differs from that of the last kept one; each two successive kept points are
// a segment. So a run of points on one column keeps its first point alone, whatever its y.
//
// WalkVisibleSegments visits the same segments in the same order but leaves out those that
// lie wholly left or wholly right of the columns of interest. What it leaves out it doesn't
// map; in ascending points it finds each column's first point by search, and on a logarithmic scale
// it maps few.

#include "base/Geometry.h"
#include "objects/ColumnScan.h"
#include "objects/LogColumns.h"

namespace ColumnWalk
{

struct TCurve {
    std::span<const TDataPoint> points; // not empty
    const AxisMapping::CMapper& x;
    const AxisMapping::CMapper& y;
    bool bAscending; // x never falls and is always a number

    [[nodiscard]] TPoint PixelAt(std::size_t index) const noexcept
    {
        return {x.Pixel(points[index].fXVal), y.Pixel(points[index].fYVal)};
    }
};

// First and last kept point.
struct TEnds {
    TPoint ptFirst;
    TPoint ptLast;
};

// Calls visit(from, to) for every segment.
template <class Visit> TEnds WalkEverySegment(const TCurve& curve, Visit&& visit)
{
    const TPoint first = curve.PixelAt(0);
    TPoint last = first;
    for (std::size_t i = 1; i < curve.points.size(); ++i) {
        const TPoint point = curve.PixelAt(i);
        if (point.x == last.x)
            continue;
        visit(last, point);
        last = point;
    }
    return {first, last};
}

namespace Details
{

// The columns that have no visible segment as long as the walk stays among them.
[[nodiscard]] inline TColumns SkipFrom(std::int32_t column, TColumns visible) noexcept
{
    if (column < visible.nFirst)
        return {INT32_MIN, visible.nFirst - 1};
    if (column > visible.nLast)
        return {visible.nLast + 1, INT32_MAX};
    return {column, column};
}

// Walks the first `count` points and returns the last kept one.
template <class Columns, class Visit>
TPoint Walk(const TCurve& curve, Columns&& columns, std::size_t count, TColumns visible, Visit&& visit)
{
    std::size_t kept = 0;
    for (;;) {
        const TColumns skip = SkipFrom(curve.x.Pixel(curve.points[kept].fXVal), visible);
        const std::size_t next = columns.FirstOutside(kept + 1, skip);
        if (skip.nFirst != skip.nLast)
            kept = columns.RunStart(kept, next - 1);
        if (next == count)
            return curve.PixelAt(kept);
        visit(curve.PixelAt(kept), curve.PixelAt(next));
        kept = next;
    }
}

} // namespace Details

template <class Visit> TEnds WalkVisibleSegments(const TCurve& curve, TColumns visible, Visit&& visit)
{
    const TPoint first = curve.PixelAt(0);
    const std::size_t count = curve.points.size();
    if (curve.x.IsLogHorizontal())
        return {first, Details::Walk(curve, CLogColumns(curve.points, curve.x, curve.bAscending), count,
                                     visible, visit)};
    if (!curve.bAscending || !curve.x.KeepsOrder())
        return {first, Details::Walk(curve, CColumnScan(curve.points, curve.x), count, visible, visit)};

    // Places too large for an int share the column of those too small: one column more, at
    // the end of the row.
    const std::size_t regular = CountWithColumn(curve.points, curve.x);
    TPoint last = first;
    if (regular > 0) {
        CColumnSearch search(curve.points.first(regular), curve.x);
        last = Details::Walk(curve, search, regular, visible, visit);
    }
    if (regular < count) {
        const TPoint beyond = curve.PixelAt(regular);
        if (beyond.x != last.x) {
            visit(last, beyond);
            last = beyond;
        }
    }
    return {first, last};
}

} // namespace ColumnWalk

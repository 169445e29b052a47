#pragma once
// The line test behind selecting a curve with the mouse. All coordinates are client pixels.

#include "base/Geometry.h"

#include <span>

// A piece of a curve as the last frame showed it.
struct TSegment {
    TPoint ptFrom;
    TPoint ptTo;
    friend bool operator==(const TSegment&, const TSegment&) = default;
};

namespace SegmentHit
{

// Distance of `point` from the endless line through `from` and `to`. Not a number where
// the two ends are one point.
[[nodiscard]] double PointLineDistance(TPoint from, TPoint to, TPoint point) noexcept;

// True when the distance from the line is at most max(1, tolerance / 2) pixels.
[[nodiscard]] bool HitTestSegment(TPoint from, TPoint to, TPoint point, int tolerance) noexcept;

// True when the point lies in the segment's bounding rectangle grown by 2 pixels, its right
// and bottom edges excluded, and passes HitTestSegment.
[[nodiscard]] bool HitsSegment(const TSegment& segment, TPoint point, int tolerance) noexcept;

// Whether any of the segments is hit.
[[nodiscard]] bool HitsAny(std::span<const TSegment> segments, TPoint point, int tolerance) noexcept;

} // namespace SegmentHit

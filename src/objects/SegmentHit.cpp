#include "objects/SegmentHit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace SegmentHit
{

double PointLineDistance(TPoint from, TPoint to, TPoint point) noexcept
{
    const double ux = static_cast<double>(to.x) - from.x;
    const double uy = static_cast<double>(to.y) - from.y;
    const double wx = static_cast<double>(point.x) - from.x;
    const double wy = static_cast<double>(point.y) - from.y;
    const double t = (wx * ux + wy * uy) / (ux * ux + uy * uy);
    const double dx = wx - t * ux;
    const double dy = wy - t * uy;
    return std::sqrt(dx * dx + dy * dy);
}

bool HitTestSegment(TPoint from, TPoint to, TPoint point, int tolerance) noexcept
{
    const int half = std::max(tolerance / 2, 1);
    const double distance = PointLineDistance(from, to, point);
    return -half <= distance && distance <= half;
}

bool HitsSegment(const TSegment& segment, TPoint point, int tolerance) noexcept
{
    // In 64 bits: the ends may lie anywhere.
    constexpr std::int64_t grown = 2;
    const std::int64_t left = std::min(segment.ptFrom.x, segment.ptTo.x) - grown;
    const std::int64_t right = std::max(segment.ptFrom.x, segment.ptTo.x) + grown;
    const std::int64_t top = std::min(segment.ptFrom.y, segment.ptTo.y) - grown;
    const std::int64_t bottom = std::max(segment.ptFrom.y, segment.ptTo.y) + grown;
    if (point.x < left || point.x >= right || point.y < top || point.y >= bottom)
        return false;
    return HitTestSegment(segment.ptFrom, segment.ptTo, point, tolerance);
}

bool HitsAny(std::span<const TSegment> segments, TPoint point, int tolerance) noexcept
{
    return std::any_of(segments.begin(), segments.end(),
                       [&](const TSegment& segment) { return HitsSegment(segment, point, tolerance); });
}

} // namespace SegmentHit

#include "draw/LongLines.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace LongLines
{
namespace
{
constexpr double Edge = Limit;

// Beyond this a difference of two coordinates may not be a number any more.
constexpr double Farthest = 1e300;

bool IsUsable(TVertex vertex)
{
    return std::fabs(vertex.x) <= Farthest && std::fabs(vertex.y) <= Farthest;
}

// One side of an area, as the half plane in which sign * coordinate <= limit.
struct TBound {
    double TVertex::*coordinate;
    double TVertex::*other;
    double sign;
    double limit;

    bool Holds(TVertex vertex) const { return sign * (vertex.*coordinate) <= limit; }

    // Where the line from inside to outside meets the bound.
    TVertex Cut(TVertex inside, TVertex outside) const
    {
        const double bound = sign * limit;
        const double part = (bound - inside.*coordinate) / (outside.*coordinate - inside.*coordinate);
        TVertex cut;
        cut.*coordinate = bound;
        cut.*other = inside.*other + part * (outside.*other - inside.*other);
        return cut;
    }
};

// The parameters between which the segment lies inside the square.
struct TSpan {
    double enter = 0.0;
    double leave = 1.0;

    // One bound: start + t * step <= limit.
    bool Narrow(double step, double room)
    {
        if (step == 0.0)
            return room >= 0.0;
        const double t = room / step;
        if (step > 0.0)
            leave = std::min(leave, t);
        else
            enter = std::max(enter, t);
        return enter <= leave;
    }
};

std::vector<TVertex> CutBy(const TBound& bound, const std::vector<TVertex>& polygon)
{
    std::vector<TVertex> kept;
    kept.reserve(polygon.size() + 4);
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const TVertex current = polygon[i];
        const TVertex previous = polygon[i == 0 ? polygon.size() - 1 : i - 1];
        const bool currentInside = bound.Holds(current);
        const bool previousInside = bound.Holds(previous);
        if (currentInside != previousInside)
            kept.push_back(currentInside ? bound.Cut(current, previous) : bound.Cut(previous, current));
        if (currentInside)
            kept.push_back(current);
    }
    return kept;
}
} // namespace

TPoint ToPixel(TVertex vertex) noexcept
{
    return {static_cast<std::int32_t>(std::lround(vertex.x)),
            static_cast<std::int32_t>(std::lround(vertex.y))};
}

bool CutSegment(TVertex& from, TVertex& to, const TArea& area) noexcept
{
    if (!IsUsable(from) || !IsUsable(to))
        return false;

    const double stepX = to.x - from.x;
    const double stepY = to.y - from.y;
    TSpan span;
    if (!span.Narrow(stepX, area.right - from.x) || !span.Narrow(-stepX, from.x - area.left) ||
        !span.Narrow(stepY, area.bottom - from.y) || !span.Narrow(-stepY, from.y - area.top))
        return false;

    const TVertex start = from;
    const auto at = [&](double part) {
        return TVertex{std::clamp(start.x + part * stepX, area.left, area.right),
                       std::clamp(start.y + part * stepY, area.top, area.bottom)};
    };
    if (span.enter > 0.0)
        from = at(span.enter);
    if (span.leave < 1.0)
        to = at(span.leave);
    return true;
}

bool CutSegment(TPoint& from, TPoint& to) noexcept
{
    TVertex start{static_cast<double>(from.x), static_cast<double>(from.y)};
    TVertex end{static_cast<double>(to.x), static_cast<double>(to.y)};
    if (!CutSegment(start, end))
        return false;
    from = ToPixel(start);
    to = ToPixel(end);
    return true;
}

TArea AreaAround(const TRect& visible, std::int32_t room) noexcept
{
    const auto inSquare = [](double coordinate) { return std::clamp(coordinate, -Edge, Edge); };
    const double margin = room;
    return {inSquare(visible.left - margin), inSquare(visible.top - margin),
            inSquare(visible.right + margin), inSquare(visible.bottom + margin)};
}

std::vector<TPoint> CutPolygon(std::span<const TVertex> polygon, const TArea& area)
{
    std::vector<TVertex> kept;
    kept.reserve(polygon.size());
    std::copy_if(polygon.begin(), polygon.end(), std::back_inserter(kept), IsUsable);
    const TBound bounds[] = {{&TVertex::x, &TVertex::y, -1.0, -area.left},
                             {&TVertex::x, &TVertex::y, 1.0, area.right},
                             {&TVertex::y, &TVertex::x, -1.0, -area.top},
                             {&TVertex::y, &TVertex::x, 1.0, area.bottom}};
    for (const TBound& bound : bounds)
        kept = CutBy(bound, kept);

    std::vector<TPoint> pixels(kept.size());
    std::transform(kept.begin(), kept.end(), pixels.begin(), ToPixel);
    return pixels;
}

std::vector<TPoint> CutPolygon(std::span<const TPoint> polygon, const TArea& area)
{
    std::vector<TVertex> vertices(polygon.size());
    std::transform(polygon.begin(), polygon.end(), vertices.begin(), [](TPoint point) {
        return TVertex{static_cast<double>(point.x), static_cast<double>(point.y)};
    });
    return CutPolygon(vertices, area);
}
} // namespace LongLines

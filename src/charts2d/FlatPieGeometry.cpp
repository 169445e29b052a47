#include "charts2d/FlatPieGeometry.h"

#include <cmath>

#include "base/Trunc.h"
#include "base/Wrap.h"
#include "charts2d/Rectangles.h"

namespace FlatPieGeometry
{

double Angle(double percent) noexcept
{
    return percent / 100 * FullCircle;
}

TPoint Start(TPoint position, TSize size) noexcept
{
    using namespace Wrap;
    return {Add(position.x, size.cx), Add(size.cy / 2, position.y)};
}

TPoint ByHalves(TPoint position, TSize size, double angle) noexcept
{
    using namespace Wrap;
    const std::int32_t halfX = size.cx / 2;
    const std::int32_t halfY = size.cy / 2;
    return {Add(Add(Trunc(std::cos(angle) * halfX), halfX), position.x),
            Add(Subtract(halfY, Trunc(std::sin(angle) * halfY)), position.y)};
}

TPoint Rounded(TPoint position, TSize size, double angle, TPoint before) noexcept
{
    using namespace Wrap;
    if (!(angle >= 0 && angle <= FullCircle))
        return before;
    const double halfX = size.cx * 0.5;
    const double halfY = size.cy * 0.5;
    return {Add(Trunc(std::cos(angle) * halfX + halfX + 0.5), position.x),
            Add(Trunc(halfY - std::sin(angle) * halfY + 0.5), position.y)};
}

bool OnOneRadial(TPoint position, TSize size, TPoint a, TPoint b) noexcept
{
    // Twice the distances from the middle, which may lie between pixels.
    const double ax = 2.0 * (static_cast<double>(a.x) - position.x) - size.cx;
    const double ay = 2.0 * (static_cast<double>(a.y) - position.y) - size.cy;
    const double bx = 2.0 * (static_cast<double>(b.x) - position.x) - size.cx;
    const double by = 2.0 * (static_cast<double>(b.y) - position.y) - size.cy;
    return ax * by == ay * bx && ax * bx + ay * by > 0;
}

TRect Bounds(TPoint position, TSize size, TPoint start, TPoint end) noexcept
{
    constexpr std::int32_t outline = 2;
    const TRect box{position.x, position.y, position.x + size.cx, position.y + size.cy};
    if (OnOneRadial(position, size, start, end))
        return box;

    // Angles of the ellipse's own circle, 0 to 2 pi.
    const auto angleOf = [&](TPoint point) {
        const double x = (2.0 * (static_cast<double>(point.x) - position.x) - size.cx) / size.cx;
        const double y = (size.cy - 2.0 * (static_cast<double>(point.y) - position.y)) / size.cy;
        const double angle = std::atan2(y, x);
        return angle < 0 ? angle + FullCircle : angle;
    };
    const double from = angleOf(start);
    double to = angleOf(end);
    if (to < from)
        to += FullCircle;

    const TPoint middle{position.x + size.cx / 2, position.y + size.cy / 2};
    TRect bounds{middle.x, middle.y, middle.x + 1, middle.y + 1};
    const auto include = [&](double angle) {
        const TPoint point = ByHalves(position, size, angle);
        bounds = Rectangles::Around(bounds, {point.x, point.y, point.x + 1, point.y + 1});
    };
    include(from);
    include(to);
    constexpr double quarter = FullCircle / 4;
    for (double axis = std::ceil(from / quarter) * quarter; axis < to; axis += quarter)
        include(axis); // the arc's farthest points
    return Rectangles::Common(
        {bounds.left - outline, bounds.top - outline, bounds.right + outline, bounds.bottom + outline},
        box);
}

} // namespace FlatPieGeometry

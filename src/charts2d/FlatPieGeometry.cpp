#include "charts2d/FlatPieGeometry.h"

#include <cmath>

#include "base/Trunc.h"
#include "charts2d/Wrap32.h"

namespace FlatPieGeometry
{

double Angle(double percent) noexcept
{
    return percent / 100 * fullCircle;
}

bool InCircle(double angle) noexcept
{
    constexpr double roundingSlack = 1e-9;
    return angle >= 0 && angle <= fullCircle + roundingSlack;
}

TPoint Start(TPoint position, TSize size) noexcept
{
    using namespace Wrap32;
    return {Add(position.x, size.cx), Add(size.cy / 2, position.y)};
}

TPoint ByHalves(TPoint position, TSize size, double angle) noexcept
{
    using namespace Wrap32;
    const std::int32_t halfX = size.cx / 2;
    const std::int32_t halfY = size.cy / 2;
    return {Add(Add(Trunc(std::cos(angle) * halfX), halfX), position.x),
            Add(Sub(halfY, Trunc(std::sin(angle) * halfY)), position.y)};
}

TPoint Rounded(TPoint position, TSize size, double angle, TPoint before) noexcept
{
    using namespace Wrap32;
    if (!InCircle(angle))
        return before;
    const double halfX = size.cx * 0.5;
    const double halfY = size.cy * 0.5;
    return {Add(Trunc(std::cos(angle) * halfX + halfX + 0.5), position.x),
            Add(Trunc(halfY - std::sin(angle) * halfY + 0.5), position.y)};
}

} // namespace FlatPieGeometry

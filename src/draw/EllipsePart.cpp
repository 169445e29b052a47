#include "draw/EllipsePart.h"

#include <algorithm>
#include <cmath>

namespace
{
// An ellipse around the origin.
struct THalfAxes {
    double x;
    double y;

    [[nodiscard]] bool Holds(double atX, double atY) const noexcept
    {
        return x > 0 && y > 0 && (atX / x) * (atX / x) + (atY / y) * (atY / y) < 1;
    }
};
} // namespace

EEllipsePart EllipsePart(const TRect& visible, const TRect& ellipse, double lineWidth) noexcept
{
    constexpr double doubt = 2; // pixels beside an edge that rounding may move
    const double centerX = (static_cast<double>(ellipse.left) + ellipse.right) / 2;
    const double centerY = (static_cast<double>(ellipse.top) + ellipse.bottom) / 2;
    const double halfX = std::fabs(static_cast<double>(ellipse.right) - ellipse.left) / 2;
    const double halfY = std::fabs(static_cast<double>(ellipse.bottom) - ellipse.top) / 2;
    const auto rim = [&](double by) { return THalfAxes{halfX + by, halfY + by}; };
    const double left = visible.left - centerX, right = visible.right - centerX;
    const double top = visible.top - centerY, bottom = visible.bottom - centerY;
    const double farX = std::max(std::fabs(left), std::fabs(right));
    const double farY = std::max(std::fabs(top), std::fabs(bottom));
    const double nearX = std::clamp(0.0, left, std::max(left, right));
    const double nearY = std::clamp(0.0, top, std::max(top, bottom));

    const double reach = lineWidth / 2;
    if (rim(-reach - doubt).Holds(farX, farY))
        return EEllipsePart::inside;
    if (!rim(reach + doubt).Holds(nearX, nearY))
        return EEllipsePart::nothing;
    if (rim(reach - doubt).Holds(farX, farY) && !rim(-reach + doubt).Holds(nearX, nearY))
        return EEllipsePart::line;
    return EEllipsePart::mixed;
}

#include "draw/EllipsePart.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace
{
using LongLines::TVertex;

// A quarter of the rim after the other, each from its beginning to before its end.
class COutline
{
public:
    COutline(const TRect& visible, TVertex center, TVertex half) noexcept
        : m_visible(visible), m_center(center), m_half(half)
    {
    }

    [[nodiscard]] std::vector<TVertex> Take()
    {
        constexpr double quarter = std::numbers::pi / 2;
        for (int i = 0; i < 4; ++i)
            Append(i * quarter, (i + 1) * quarter);
        return std::move(m_vertices);
    }

private:
    [[nodiscard]] TVertex At(double angle) const noexcept
    {
        return {m_center.x + m_half.x * std::cos(angle), m_center.y + m_half.y * std::sin(angle)};
    }

    // Of an arc within a quarter, which doesn't leave the rectangle of its ends.
    [[nodiscard]] bool IsNear(TVertex a, TVertex b) const noexcept
    {
        constexpr double room = 2;
        const auto [left, right] = std::minmax(a.x, b.x);
        const auto [top, bottom] = std::minmax(a.y, b.y);
        return right >= m_visible.left - room && left <= m_visible.right + room &&
               bottom >= m_visible.top - room && top <= m_visible.bottom + room;
    }

    void Append(double from, double to)
    {
        constexpr double flat = 0.25;
        const TVertex a = At(from), b = At(to), middle = At((from + to) / 2);
        if (IsNear(a, b) && std::hypot(middle.x - (a.x + b.x) / 2, middle.y - (a.y + b.y) / 2) > flat) {
            Append(from, (from + to) / 2);
            Append((from + to) / 2, to);
        } else {
            m_vertices.push_back(a);
        }
    }

    TRect m_visible;
    TVertex m_center;
    TVertex m_half;
    std::vector<TVertex> m_vertices;
};

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

std::vector<TVertex> EllipseOutline(const TRect& visible, const TRect& ellipse, double by)
{
    const TVertex half = {std::fabs(static_cast<double>(ellipse.right) - ellipse.left) / 2 + by,
                          std::fabs(static_cast<double>(ellipse.bottom) - ellipse.top) / 2 + by};
    if (!(half.x > 0 && half.y > 0))
        return {};
    const TVertex center = {(static_cast<double>(ellipse.left) + ellipse.right) / 2,
                            (static_cast<double>(ellipse.top) + ellipse.bottom) / 2};
    return COutline(visible, center, half).Take();
}

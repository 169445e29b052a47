#include "pie3d/PieGeometry.h"

#include "base/Trunc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace PieGeometry
{
namespace
{

// No window is higher than this. Larger rectangles cost the drawing library time and show
// nothing else.
constexpr std::int32_t Farthest = 0x4000;

// Angles of two points that differ by rounding alone differ by less than this.
constexpr float AngleNoise = 0.01f;

double Radians(float degrees) noexcept
{
    return degrees * std::numbers::pi / 180.0;
}

double Unwound(double radians, double target) noexcept
{
    constexpr double turn = 2 * std::numbers::pi;
    return radians + turn * std::round((target - radians) / turn);
}

// An ellipse by its parameter: the angle on the circle that it was stretched from.
struct TEllipse {
    explicit TEllipse(const TRectF& rc) noexcept
        : halfWidth(std::abs(rc.width) / 2), halfHeight(std::abs(rc.height) / 2)
    {
        // Coordinates are floats, which are the coarser the farther they lie from zero.
        const float farthest = std::max({std::abs(rc.x), std::abs(rc.x + rc.width), std::abs(rc.y),
                                         std::abs(rc.y + rc.height), 500.0f});
        flattest = farthest * 4e-7;
        shortest = farthest * 2e-4;
    }

    [[nodiscard]] double Parameter(float degrees) const noexcept
    {
        const double angle = Radians(degrees);
        return Unwound(std::atan2(halfWidth * std::sin(angle), halfHeight * std::cos(angle)), angle);
    }

    // In degrees.
    [[nodiscard]] double Angle(double parameter) const noexcept
    {
        const double angle =
            std::atan2(halfHeight * std::sin(parameter), halfWidth * std::cos(parameter));
        return Unwound(angle, parameter) * 180.0 / std::numbers::pi;
    }

    // Whether the arc has hardly a length, or differs from its chord by less than floats can show.
    [[nodiscard]] bool IsSliver(double from, double to) const noexcept
    {
        const double chord = std::hypot(halfWidth * (std::cos(to) - std::cos(from)),
                                        halfHeight * (std::sin(to) - std::sin(from)));
        const double rise = 1 - std::cos((to - from) / 2);
        const double middle = (from + to) / 2;
        return rise * std::hypot(halfWidth * std::cos(middle), halfHeight * std::sin(middle)) <
                   flattest ||
               chord < shortest;
    }

    // A step of the parameter that the angles, which are floats, can show.
    [[nodiscard]] double SmallStep() const noexcept
    {
        return 1e-5 * std::max(halfWidth / halfHeight, halfHeight / halfWidth);
    }

    double halfWidth;
    double halfHeight;
    double flattest;
    double shortest;
};

std::int32_t WithinWindow(float pixels) noexcept
{
    return pixels > 0 ? Trunc(std::min(pixels, float{Farthest})) : 0;
}

// The start point and the points of the rim go through the same arithmetic.
float SqueezedY(const TRect& rcPie, std::int32_t squeeze, float angle) noexcept
{
    const float y = RimPoint(rcPie, angle).y;
    return static_cast<float>(y - std::sin(Radians(angle)) * squeeze);
}

float SweepBetween(float from, float to, float trueSweep) noexcept
{
    if (trueSweep == 360.0f)
        return 360.0f; // a lone element ends where it starts
    float sweep = to - from;
    if (sweep < 0)
        sweep += 360.0f;
    // Where two ends are the same point but for rounding, a sliver must not become the
    // whole pie, nor the rest of the pie a sliver.
    const bool nowhere = std::abs(sweep) < AngleNoise;
    const bool around = std::abs(sweep - 360.0f) < AngleNoise;
    if (nowhere || around) {
        return trueSweep > 359.0f ? 360.0f
               : trueSweep < 1.0f ? std::max(nowhere ? sweep : 0.0f, 0.0f)
                                  : sweep;
    }
    return sweep;
}

} // namespace

TRect PieSquare(const TRect& rcClient, std::int32_t nPieLimit) noexcept
{
    TRect rc;
    rc.left = rcClient.left + 30;
    rc.top = rcClient.top + 100;
    const std::int32_t bottomLimit = rcClient.bottom - 30;
    if (bottomLimit - rc.top <= nPieLimit - rc.left) {
        rc.bottom = std::max(rcClient.top + 250, bottomLimit);
        rc.right = rc.bottom - rc.top + rc.left;
    } else {
        rc.right = std::max(rc.left + 150, nPieLimit);
        rc.bottom = rc.top - rc.left + rc.right;
    }
    return rc;
}

TFaces FaceRects(const TRect& rcPie, float fIncline, float fDepthRatio) noexcept
{
    TFaces faces;
    const auto height = static_cast<float>(rcPie.Height());
    faces.nSqueeze = WithinWindow(height * fIncline / 180.0f);
    faces.nDepth = WithinWindow(static_cast<float>(faces.nSqueeze) * fDepthRatio * 0.5f);
    faces.rcUpper = {rcPie.left, rcPie.top + faces.nSqueeze - faces.nDepth, rcPie.right,
                     rcPie.bottom - faces.nSqueeze - faces.nDepth};
    faces.rcLower = {rcPie.left, rcPie.top + faces.nSqueeze + faces.nDepth, rcPie.right,
                     rcPie.bottom - faces.nSqueeze + faces.nDepth};
    return faces;
}

float RatioForDepth(const TRect& rcPie, float fDepth) noexcept
{
    const std::int32_t squeezeAt85 = rcPie.Height() * 85 / 180;
    return fDepth / static_cast<float>(squeezeAt85);
}

float BelowFullTurn(float fAngle) noexcept
{
    return fAngle >= 360.0f ? std::fmod(fAngle, 360.0f) : fAngle;
}

TPoint CentreOf(const TRect& rc) noexcept
{
    return {(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
}

float AngleOfPoint(const TPointF& point, const TRect& rc) noexcept
{
    const TPoint centre = CentreOf(rc);
    const double dx = static_cast<double>(point.x) - centre.x;
    const double dy = static_cast<double>(point.y) - centre.y;
    const auto angle = static_cast<float>(std::atan(dy / dx) * 180.0 / std::numbers::pi);
    if (!std::isfinite(angle))
        return 0.0f;
    if (dx < 0)
        return angle + 180.0f;
    return dy < 0 ? angle + 360.0f : angle;
}

TPointF RimPoint(const TRect& rc, float fAngle) noexcept
{
    const TPoint centre = CentreOf(rc);
    const double angle = Radians(fAngle);
    const std::int32_t halfWidth = rc.Width() / 2;
    const std::int32_t halfHeight = rc.Height() / 2;
    return {static_cast<float>(std::cos(angle) * halfWidth + centre.x),
            static_cast<float>(std::sin(angle) * halfHeight + centre.y)};
}

float ProjectAngles(const TRect& rcPie, const TFaces& faces, float fStartAngle,
                    std::span<const float> sweeps, std::span<TProjection> projections) noexcept
{
    TRect rcEllipse = faces.rcUpper;
    rcEllipse.top += faces.nDepth;
    rcEllipse.bottom += faces.nDepth;

    const TPointF start{RimPoint(rcPie, fStartAngle).x, SqueezedY(rcPie, faces.nSqueeze, fStartAngle)};
    const float drawStart = AngleOfPoint(start, rcEllipse);
    float onEllipse = drawStart;
    float onCircle = fStartAngle;
    for (std::size_t i = 0; i < sweeps.size() && i < projections.size(); ++i) {
        const float end = onCircle + sweeps[i];
        TProjection& projection = projections[i];
        projection.fLabelX = RimPoint(rcPie, end).x;
        projection.fLabelY = SqueezedY(rcPie, faces.nSqueeze, end);
        const float angle = AngleOfPoint({projection.fLabelX, projection.fLabelY}, rcEllipse);
        projection.fDrawSweep = SweepBetween(onEllipse, angle, sweeps[i]);
        onCircle = end;
        onEllipse += projection.fDrawSweep;
    }
    return drawStart;
}

TRectF Inset(const TRect& rc, float fInset) noexcept
{
    return {static_cast<float>(rc.left) + fInset, static_cast<float>(rc.top) + fInset,
            static_cast<float>(rc.Width()) - 2 * fInset, static_cast<float>(rc.Height()) - 2 * fInset};
}

TRectF AboutCentre(const TRect& rc, float fReach) noexcept
{
    const TPoint centre = CentreOf(rc);
    return {static_cast<float>(centre.x) - fReach, static_cast<float>(centre.y) - fReach, 2 * fReach,
            2 * fReach};
}

bool DrawableAngles(float& fStart, float& fSweep) noexcept
{
    if (!std::isfinite(fStart) || !(std::abs(fSweep) >= ThinnestSweep))
        return false;
    if (std::abs(fStart) > 720.0f)
        fStart = std::fmod(fStart, 360.0f);
    fSweep = std::clamp(fSweep, -360.0f, 360.0f);
    return true;
}

TRadii RadiiOf(const TRectF& rc, float fStart, float fSweep) noexcept
{
    const TEllipse ellipse(rc);
    const TPointF centre{rc.x + rc.width / 2, rc.y + rc.height / 2};
    const auto rim = [&](float angle) {
        const double parameter = ellipse.Parameter(angle);
        return TPointF{static_cast<float>(centre.x + ellipse.halfWidth * std::cos(parameter)),
                       static_cast<float>(centre.y + ellipse.halfHeight * std::sin(parameter))};
    };
    return {centre, rim(fStart), rim(fStart + fSweep)};
}

EOutline OutlineAngles(const TRectF& rc, float& fStart, float& fSweep) noexcept
{
    if (!DrawableAngles(fStart, fSweep))
        return EOutline::nothing;
    const TEllipse ellipse(rc);
    if (std::min(ellipse.halfWidth, ellipse.halfHeight) < 0.5)
        return EOutline::nothing;
    const double from = ellipse.Parameter(fStart);
    const double to = ellipse.Parameter(fStart + fSweep);
    if (std::abs(fSweep) < 180.0f && ellipse.IsSliver(from, to))
        return EOutline::radii;
    constexpr double quarter = std::numbers::pi / 2;
    const double quarters = std::round(std::abs(to - from) / quarter);
    const double nearest = from + std::copysign(quarters * quarter, to - from);
    const double step = ellipse.SmallStep();
    if (quarters > 0 && (ellipse.IsSliver(nearest, to) || std::abs(nearest - to) < step))
        fSweep = static_cast<float>(ellipse.Angle(nearest - std::copysign(step, to - from)) - fStart);
    return EOutline::whole;
}

} // namespace PieGeometry

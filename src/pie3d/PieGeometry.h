#pragma once
// Geometry of the pie, without a window. Pixels with y downward; angles in degrees, which
// therefore grow clockwise from the right; sweeps likewise.
//
// A tilted pie is two equal ellipses, one above the other, and the wall between their
// front halves. A circle seen at a tilt keeps its width and loses height, so the angles of
// the slices on the ellipse differ from those on the circle: those are the draw angles.

#include "base/Geometry.h"

#include <cstdint>
#include <span>

namespace PieGeometry
{

struct TPointF {
    float x = 0;
    float y = 0;
    friend bool operator==(const TPointF&, const TPointF&) = default;
};

struct TRectF {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
    friend bool operator==(const TRectF&, const TRectF&) = default;
};

struct TFaces {
    TRect rcUpper;
    TRect rcLower;
    std::int32_t nSqueeze = 0; // taken from the circle's top and bottom each
    std::int32_t nDepth = 0;   // the upper face is this much above the middle, the lower below
};

// One element's place on the ellipse.
struct TProjection {
    float fDrawSweep = 0;
    float fLabelX = 0; // where the element ends on the rim
    float fLabelY = 0;
};

// The square of the pie: at least 150 a side, 30 from the left and 100 from the top, up to
// nPieLimit and to 30 above the bottom where they leave that much.
[[nodiscard]] TRect PieSquare(const TRect& rcClient, std::int32_t nPieLimit) noexcept;

// squeeze = trunc(h * fIncline / 180), depth = trunc(squeeze * fDepthRatio * 0.5), in floats,
// with h the square's height. Both are kept to what a window can be high.
[[nodiscard]] TFaces FaceRects(const TRect& rcPie, float fIncline, float fDepthRatio) noexcept;

// The ratio that makes the wall about fDepth pixels high at an incline of 85.
[[nodiscard]] float RatioForDepth(const TRect& rcPie, float fDepth) noexcept;

// fAngle, 360 taken off while it is 360 or more. A negative angle stays.
[[nodiscard]] float BelowFullTurn(float fAngle) noexcept;

// The middle of a rectangle, with integer halves.
[[nodiscard]] TPoint CentreOf(const TRect& rc) noexcept;

// The angle of a point about the centre of rc: 0 up to 360, and 0 for the centre itself.
[[nodiscard]] float AngleOfPoint(const TPointF& point, const TRect& rc) noexcept;

// The point of the circle or ellipse inscribed in rc, with integer half axes.
[[nodiscard]] TPointF RimPoint(const TRect& rc, float fAngle) noexcept;

// Fills in every element's projection and returns the projected start angle. The running
// angle on the ellipse is not brought back under 360.
float ProjectAngles(const TRect& rcPie, const TFaces& faces, float fStartAngle,
                    std::span<const float> sweeps, std::span<TProjection> projections) noexcept;

// rc less fInset on every side.
[[nodiscard]] TRectF Inset(const TRect& rc, float fInset) noexcept;

// A square about the centre of rc that reaches fReach to every side.
[[nodiscard]] TRectF AboutCentre(const TRect& rc, float fReach) noexcept;

constexpr float ThinnestSweep = 0.001f;

// A pair of angles as the drawing library takes it: the start within a turn or two, the
// sweep within one turn. False if nothing can be drawn from them: they are not numbers, or
// the sweep is under a thousandth of a degree, which has no pixel.
[[nodiscard]] bool DrawableAngles(float& fStart, float& fSweep) noexcept;

// The two radii of a slice of the ellipse in rc.
struct TRadii {
    TPointF centre;
    TPointF first; // where the slice begins on the rim
    TPointF last;
};
[[nodiscard]] TRadii RadiiOf(const TRectF& rc, float fStart, float fSweep) noexcept;

// What can be drawn of an outline on the ellipse in rc, and its angles. The library splits an arc into
// quarters of the ellipse, and some versions do not survive to stroke a piece that is as good as
// straight. So the sweep ends just short of a quarter where it would reach beyond it by so little. An
// arc that is so short as a whole is left out: the radii alone are the outline. Nothing is
// drawn of an ellipse less than a pixel high.
enum class EOutline { nothing, radii, whole };
[[nodiscard]] EOutline OutlineAngles(const TRectF& rc, float& fStart, float& fSweep) noexcept;

} // namespace PieGeometry

#pragma once
// Points at which slices begin and end, in pixels of the window. A percent p is the angle
// p / 100 * 2 pi, counterclockwise from the right end of the box (X, Y, W, H).
//
//            y up to H/2           Slices are drawn from a start radial to an end radial;
//          .--|--.                 two ways of rounding are in use:
//         /   |   \                  ByHalves: still pictures, and the slice that fades in
//        |    +----| a = 0           Rounded:  sweeps, and slices that have faded in before
//         \       /
//          '-----'

#include <cstdint>

#include "base/Geometry.h"

namespace FlatPieGeometry
{

inline constexpr double FullCircle = 2.0 * 3.14159265358979323846;

[[nodiscard]] double Angle(double percent) noexcept;

// The radial at which the first slice starts: (X + W, H / 2 + Y).
[[nodiscard]] TPoint Start(TPoint position, TSize size) noexcept;

// x = Trunc(cos a (W / 2)) + W / 2 + X, y = H / 2 - Trunc(sin a (H / 2)) + Y, with integer halves.
[[nodiscard]] TPoint ByHalves(TPoint position, TSize size, double angle) noexcept;

// x = Trunc(cos a W 0.5 + W 0.5 + 0.5) + X, y = Trunc(H 0.5 - sin a H 0.5 + 0.5) + Y.
// An angle outside 0 to the full circle yields no new point: `before` is the result. Percents
// that sum to 100 may sum to an angle a last place above it, which is outside.
[[nodiscard]] TPoint Rounded(TPoint position, TSize size, double angle, TPoint before) noexcept;

// True if both points lie on one radial, seen from the middle of the box. A slice between them
// has no width; the platform draws the whole ellipse for it.
[[nodiscard]] bool OnOneRadial(TPoint position, TSize size, TPoint a, TPoint b) noexcept;

// A rectangle around a slice with its outline: from `start` counterclockwise to `end`, the whole
// box if the two are on one radial.
[[nodiscard]] TRect Bounds(TPoint position, TSize size, TPoint start, TPoint end) noexcept;

} // namespace FlatPieGeometry

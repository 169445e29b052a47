#pragma once
// Trends of a curve: its points replaced by those of a fitted function, and further points past
// its end. The output spans say how many points are wanted; with fewer than the curve has, the
// trend stops early. An empty curve leaves the output as it was.

#include "base/Vocabulary.h"

#include <span>

class CPolynomialSolver;

namespace Trends
{
// Straight line a + (j+1) b by ordinary least squares over the ordinals 1..n of the points, not
// over their x. Past the end x goes on by the distance of the first two points (0 for one point).
// One point has no line: its y is not a number.
void Linear(std::span<const TDataPoint> points, std::span<TDataPoint> trend) noexcept;

// k (j+1)^3, the least-squares fit of the single term: k = sum t^3 y / sum t^6 over the ordinals t.
void Cubic(std::span<const TDataPoint> points, std::span<TDataPoint> trend) noexcept;

// The solver's polynomial over the true x values. Past the end each point repeats the last step
// of x. Requires that the solver holds the fit of these points.
void Polynomial(const CPolynomialSolver& solver, std::span<const TDataPoint> points,
                std::span<TDataPoint> trend) noexcept;
} // namespace Trends

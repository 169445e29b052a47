#include "objects/Trends.h"

#include "base/Wrap.h"
#include "objects/PolynomialSolver.h"

#include <algorithm>
#include <cstdint>

namespace Trends
{
namespace
{
// x of the curve's points, then on from the last output by one fixed distance.
void FillX(std::span<const TDataPoint> points, std::span<TDataPoint> trend) noexcept
{
    const double distance = points.size() > 1 ? points[1].fXVal - points[0].fXVal : 0.0;
    for (std::size_t j = 0; j < trend.size(); ++j)
        trend[j].fXVal = j < points.size() ? points[j].fXVal : trend[j - 1].fXVal + distance;
}

// The square is taken in 32 bits, as the sums of this fit always were: past 46340 it wraps.
double WrappedSquare(std::size_t ordinal) noexcept
{
    const auto narrow = static_cast<std::int32_t>(ordinal);
    return Wrap::Multiply(narrow, narrow);
}
} // namespace

void Linear(std::span<const TDataPoint> points, std::span<TDataPoint> trend) noexcept
{
    if (points.empty())
        return;
    double sumX = 0.0;
    double sumY = 0.0;
    double sumXY = 0.0;
    double sumXX = 0.0;
    for (std::size_t i = 1; i <= points.size(); ++i) {
        const double y = points[i - 1].fYVal;
        sumX += static_cast<double>(i);
        sumY += y;
        sumXY += static_cast<double>(i) * y;
        sumXX += WrappedSquare(i);
    }
    const auto n = static_cast<double>(points.size());
    const double b = (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
    const double a = (sumY - b * sumX) / n;

    FillX(points, trend);
    for (std::size_t j = 0; j < trend.size(); ++j)
        trend[j].fYVal = a + static_cast<double>(j + 1) * b;
}

void Cubic(std::span<const TDataPoint> points, std::span<TDataPoint> trend) noexcept
{
    if (points.empty())
        return;
    double sumY = 0.0;
    double sumT = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double t = static_cast<double>(i) + 1.0;
        sumY += Powers::Integer(t, 3) * points[i].fYVal;
        sumT += Powers::Integer(t, 6);
    }
    const double k = sumY / sumT;

    FillX(points, trend);
    for (std::size_t j = 0; j < trend.size(); ++j)
        trend[j].fYVal = k * Powers::Integer(static_cast<double>(j) + 1.0, 3);
}

void Polynomial(const CPolynomialSolver& solver, std::span<const TDataPoint> points,
                std::span<TDataPoint> trend) noexcept
{
    if (points.empty())
        return;
    for (std::size_t j = 0; j < trend.size(); ++j) {
        if (j < points.size())
            trend[j].fXVal = points[j].fXVal;
        else if (j < 2)
            trend[j].fXVal = trend[j - 1].fXVal; // one point has no step to repeat
        else
            trend[j].fXVal = trend[j - 1].fXVal - trend[j - 2].fXVal + trend[j - 1].fXVal;
        trend[j].fYVal = solver.Evaluate(trend[j].fXVal);
    }
}
} // namespace Trends

// Trends and moving averages of a curve, as arrays that the caller owns.

#include "objects/MovingAverages.h"
#include "objects/Trends.h"
#include "objects/XGraphDataSerie.h"

#include <memory>

namespace
{

// A new array, filled by fill(points, array); null where it would hold no point.
template <class Fill> TDataPoint* Filled(std::span<const TDataPoint> points, int nMore, const Fill& fill)
{
    const long long nCount = static_cast<long long>(points.size()) + nMore;
    if (points.empty() || nCount < 1)
        return nullptr;
    auto result = std::make_unique_for_overwrite<TDataPoint[]>(static_cast<std::size_t>(nCount));
    fill(points, std::span(result.get(), static_cast<std::size_t>(nCount)));
    return result.release();
}

template <class Average>
TDataPoint* Averaged(std::span<const TDataPoint> points, int span, Average average)
{
    return Filled(points, 0, [&](auto from, auto to) { average(from, span, to); });
}

} // namespace

TDataPoint* CXGraphDataSerie::GetLinearTrend(int nPoints) const
{
    return Filled(Points(), nPoints, Trends::Linear);
}

TDataPoint* CXGraphDataSerie::GetCubicTrend(int nPoints) const
{
    return Filled(Points(), nPoints, Trends::Cubic);
}

TDataPoint* CXGraphDataSerie::GetPolynomialTrend(int nDegree, int nPoints)
{
    if (nDegree > CPolynomialSolver::MaxTerms)
        return nullptr;
    m_Solver.m_nDegree = nDegree;
    if (!m_Solver.Solve(m_nCount, nDegree, m_pData))
        return nullptr;
    return Filled(Points(), nPoints,
                  [this](auto from, auto to) { Trends::Polynomial(m_Solver, from, to); });
}

TDataPoint* CXGraphDataSerie::GetSimpleMovingAverage(int span) const
{
    return Averaged(Points(), span, MovingAverages::Simple);
}

TDataPoint* CXGraphDataSerie::GetExponentialMovingAverage(int span) const
{
    return Averaged(Points(), span, MovingAverages::Exponential);
}

TDataPoint* CXGraphDataSerie::GetLinearMovingAverage(int span) const
{
    return Averaged(Points(), span, MovingAverages::Linear);
}

TDataPoint* CXGraphDataSerie::GetTriangularMovingAverage(int span) const
{
    return Averaged(Points(), span, MovingAverages::Triangular);
}

TDataPoint* CXGraphDataSerie::GetSineWeightedMovingAverage(int span) const
{
    return Averaged(Points(), span, MovingAverages::SineWeighted);
}

#include "objects/LogColumns.h"

#include "objects/WideScan.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace ColumnWalk
{

namespace
{

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr TBand NoBand{1, 0};

// Points of a run that are mapped one by one before its band is worth two powers.
constexpr std::size_t Near = 16;

// What a place may be off by, in pixels, at logarithms up to a size: a hundred times what rounding
// does to the logarithm and to each operation after it.
double PlaceError(const AxisMapping::CMapper& x, double fLargestLog, double fLargestPlace) noexcept
{
    constexpr double relative = 1e-13;
    return relative * (x.Length() / x.Span() * (1 + fLargestLog + std::fabs(x.Start())) + fLargestPlace +
                       std::fabs(x.Origin()));
}

// Every logarithm of a number is within this.
double CutLog(double fLog) noexcept
{
    return std::clamp(fLog, -330.0, 330.0);
}

} // namespace

TBand SureBand(const AxisMapping::CMapper& x, TColumns columns) noexcept
{
    const bool bRegular = std::isfinite(x.Start()) && std::isfinite(x.Span()) && x.Span() > 0;
    if (!bRegular || !(x.Length() > 0))
        return NoBand;
    // Pixels are cut toward zero. The smallest int is also the column of all places below it.
    const bool bOpen = columns.nFirst == INT32_MIN;
    const double fFirst = columns.nFirst > 0 ? columns.nFirst : columns.nFirst - 1.0;
    const double fEnd = columns.nLast >= 0 ? columns.nLast + 1.0 : columns.nLast;
    const auto logAt = [&](double fPlace) {
        return CutLog(x.Start() + (fPlace - x.Origin()) / x.Length() * x.Span());
    };
    const double fLargestLog = std::max(std::fabs(logAt(fFirst)), std::fabs(logAt(fEnd)));
    const double fRoom = 2 * PlaceError(x, fLargestLog, std::max(std::fabs(fFirst), std::fabs(fEnd)));
    if (!(fRoom < 0.25))
        return NoBand;
    // Numbers only: an infinity, a zero and what is below them have columns of their own.
    // The smallest of them have too few digits left for a bound.
    double fHigh = std::min(std::pow(10.0, logAt(fEnd - fRoom)), DBL_MAX);
    if (fHigh < DBL_MIN)
        fHigh = 0;
    if (bOpen)
        return {-Infinity, fHigh};
    return {std::max(std::pow(10.0, logAt(fFirst + fRoom)), DBL_MIN), fHigh};
}

std::size_t CLogColumns::PassBand(std::size_t from, const TBand& band) const noexcept
{
    if (m_bAscending && from < m_points.size() && band.Contains(m_points[from].fXVal)) {
        const auto first = m_points.begin() + static_cast<std::ptrdiff_t>(from);
        const auto end = std::partition_point(
            first, m_points.end(), [&](const TDataPoint& point) { return point.fXVal <= band.fHigh; });
        return static_cast<std::size_t>(end - m_points.begin());
    }
    if (WideScan::IsAvailable())
        from = WideScan::SkipWithin(m_points, from, band.fLow, band.fHigh);
    while (from < m_points.size() && band.Contains(m_points[from].fXVal))
        ++from;
    return from;
}

std::size_t CLogColumns::FirstOutside(std::size_t from, TColumns columns) const noexcept
{
    const std::size_t close = std::min(m_points.size(), from + Near);
    std::size_t index = from;
    while (index < close && IsIn(index, columns))
        ++index;
    if (index < close || index == m_points.size())
        return index;
    const TBand band = SureBand(m_x, columns);
    for (;;) {
        index = PassBand(index, band);
        if (index == m_points.size() || !IsIn(index, columns))
            return index;
        ++index;
    }
}

std::size_t CLogColumns::RunStart(std::size_t from, std::size_t index) const noexcept
{
    const std::int32_t nColumn = m_x.Pixel(m_points[index].fXVal);
    const TColumns column{nColumn, nColumn};
    const TBand band = m_bAscending ? SureBand(m_x, column) : NoBand;
    while (index > from && IsIn(index - 1, column)) {
        --index;
        if (!band.Contains(m_points[index].fXVal))
            continue;
        const auto first = m_points.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = m_points.begin() + static_cast<std::ptrdiff_t>(index);
        index = static_cast<std::size_t>(
            std::partition_point(first, last,
                                 [&](const TDataPoint& point) { return point.fXVal < band.fLow; }) -
            m_points.begin());
    }
    return index;
}

} // namespace ColumnWalk

#pragma once
// Finding, on a logarithmic scale, the first point whose pixel column lies outside an interval,
// with few logarithms: far from a column's edges the value alone says that it is in.

#include "objects/ColumnScan.h"

namespace ColumnWalk
{

// Values that fall on columns for certain; none for fLow > fHigh.
struct TBand {
    double fLow;
    double fHigh;

    [[nodiscard]] bool Contains(double value) const noexcept { return fLow <= value && value <= fHigh; }
};

// The band of some columns on a horizontal logarithmic scale. The mapping of its values is
// monotone but for errors of rounding; the band leaves out what lies nearer to an edge than a
// hundred times those. A value outside it may fall on the columns too.
[[nodiscard]] TBand SureBand(const AxisMapping::CMapper& x, TColumns columns) noexcept;

// Answers of CColumnScan for a horizontal logarithmic scale.
class CLogColumns
{
public:
    // bAscending: x never falls and is always a number.
    CLogColumns(std::span<const TDataPoint> points, const AxisMapping::CMapper& x,
                bool bAscending) noexcept
        : m_points(points), m_x(x), m_bAscending(bAscending)
    {
    }

    [[nodiscard]] std::size_t FirstOutside(std::size_t from, TColumns columns) const noexcept;
    [[nodiscard]] std::size_t RunStart(std::size_t from, std::size_t index) const noexcept;

private:
    [[nodiscard]] bool IsIn(std::size_t index, TColumns columns) const noexcept
    {
        return columns.Contains(m_x.Pixel(m_points[index].fXVal));
    }
    // First index at or after `from` whose value isn't in the band, else the count.
    [[nodiscard]] std::size_t PassBand(std::size_t from, const TBand& band) const noexcept;

    std::span<const TDataPoint> m_points;
    const AxisMapping::CMapper& m_x;
    bool m_bAscending;
};

} // namespace ColumnWalk

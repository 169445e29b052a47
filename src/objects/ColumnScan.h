#pragma once
// Finding, in a row of points, the first whose pixel column lies outside an interval.

#include "base/Vocabulary.h"
#include "objects/AxisMapping.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace ColumnWalk
{

// Pixel columns, both ends included.
struct TColumns {
    std::int32_t nFirst;
    std::int32_t nLast;

    [[nodiscard]] bool Contains(std::int32_t column) const noexcept
    {
        return nFirst <= column && column <= nLast;
    }
};

// Points in any order, looked at one after the other.
class CColumnScan
{
public:
    CColumnScan(std::span<const TDataPoint> points, const AxisMapping::CMapper& x) noexcept
        : m_points(points), m_x(x)
    {
    }

    // First index at or after `from` whose column isn't one of `columns`, else the count.
    [[nodiscard]] std::size_t FirstOutside(std::size_t from, TColumns columns) const noexcept;
    // First index of the run of equal columns that ends with `index`, at `from` at the earliest.
    [[nodiscard]] std::size_t RunStart(std::size_t from, std::size_t index) const noexcept;

private:
    [[nodiscard]] std::size_t FirstOutsideLinear(std::size_t from, TColumns columns) const noexcept;
    [[nodiscard]] std::size_t SkipFours(std::size_t from, std::size_t to,
                                        TColumns columns) const noexcept;

    std::span<const TDataPoint> m_points;
    const AxisMapping::CMapper& m_x;
};

// The same answers for ascending points on a mapping that keeps order, as long as no column
// is beyond the range of an int: those are the smallest int again, out of order.
class CColumnSearch
{
public:
    CColumnSearch(std::span<const TDataPoint> points, const AxisMapping::CMapper& x) noexcept
        : m_points(points), m_x(x)
    {
    }

    // Looks first where a run as long as the last one would end: most points are even.
    [[nodiscard]] std::size_t FirstOutside(std::size_t from, TColumns columns) noexcept;
    [[nodiscard]] std::size_t RunStart(std::size_t from, std::size_t index) const noexcept;

private:
    [[nodiscard]] std::int32_t ColumnAt(std::size_t index) const noexcept
    {
        return m_x.Pixel(m_points[index].fXVal);
    }

    std::span<const TDataPoint> m_points;
    const AxisMapping::CMapper& m_x;
    std::size_t m_nRun = 0; // points that the last search passed
};

// Number of leading points, ascending on a mapping that keeps order, whose place is below
// the largest int.
[[nodiscard]] std::size_t CountWithColumn(std::span<const TDataPoint> points,
                                          const AxisMapping::CMapper& x) noexcept;

} // namespace ColumnWalk

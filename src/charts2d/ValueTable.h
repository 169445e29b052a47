#pragma once
// What one paint of a bar or line chart looks up, gathered from the lists once: the nodes by
// their place, and the value of every series for every segment that exists. Pointers are good
// until the data changes.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "charts2d/BarData.h"

class CValueTable
{
public:
    explicit CValueTable(const CBarData& data);

    [[nodiscard]] std::int32_t SegmentCount() const noexcept
    {
        return static_cast<std::int32_t>(m_Segments.size());
    }
    [[nodiscard]] std::int32_t SeriesCount() const noexcept
    {
        return static_cast<std::int32_t>(m_Series.size());
    }

    // The value that the series has for the segment, both by place from 0; 0 where the
    // series has no value for it.
    [[nodiscard]] std::int32_t Value(std::size_t segment, std::size_t series) const noexcept
    {
        return m_Values[series * m_Segments.size() + segment];
    }

    // The top of the scale: the largest value of the first segment alone, never below 0.
    [[nodiscard]] std::int32_t Maximum() const noexcept;

    std::vector<const SBarSegment*> m_Segments;
    std::vector<const SBarSeries*> m_Series;

private:
    std::vector<std::int32_t> m_Values;
};

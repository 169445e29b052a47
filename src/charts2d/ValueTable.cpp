#include "charts2d/ValueTable.h"

#include <algorithm>

CValueTable::CValueTable(const CBarData& data)
{
    for (const SBarSegment* segment = data.m_pSegments; segment; segment = segment->pNext)
        m_Segments.push_back(segment);
    for (const SBarSeries* series = data.m_pSeries; series; series = series->pNext)
        m_Series.push_back(series);

    m_Values.reserve(m_Segments.size() * m_Series.size());
    for (const SBarSeries* series : m_Series) {
        for (const SBarSegment* segment : m_Segments) {
            const SBarValue* value = series->FindValue(segment->nId);
            m_Values.push_back(value ? value->nValue : 0);
        }
    }
}

std::int32_t CValueTable::Maximum() const noexcept
{
    std::int32_t maximum = 0;
    if (!m_Segments.empty()) {
        for (std::size_t series = 0; series < m_Series.size(); ++series)
            maximum = std::max(maximum, Value(0, series));
    }
    return maximum;
}

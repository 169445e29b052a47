#include "charts2d/ValueTable.h"

#include <algorithm>

CValueTable::CValueTable(const CBarData& data)
{
    std::int32_t highestId = 0;
    for (const SBarSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        m_Segments.push_back(segment);
        highestId = std::max(highestId, segment->nId);
    }
    for (const SBarSeries* series = data.m_pSeries; series; series = series->pNext)
        m_Series.push_back(series);

    m_Values.reserve(m_Segments.size() * m_Series.size());
    std::vector<const SBarValue*> firstById;
    for (const SBarSeries* series : m_Series) {
        firstById.assign(static_cast<std::size_t>(highestId) + 1, nullptr);
        for (const SBarValue* value = series->pValues; value; value = value->pNext) {
            if (value->nSegment <= highestId && !firstById[static_cast<std::size_t>(value->nSegment)])
                firstById[static_cast<std::size_t>(value->nSegment)] = value;
        }
        for (const SBarSegment* segment : m_Segments) {
            const SBarValue* value = firstById[static_cast<std::size_t>(segment->nId)];
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

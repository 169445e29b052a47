#include "charts2d/FlatPieData.h"

#include <memory>

CFlatPieData::~CFlatPieData()
{
    Clear();
}

void CFlatPieData::SumAnew() noexcept
{
    m_dSum = 0;
    for (const SPieSegment* segment = m_pSegments; segment; segment = segment->pNext)
        m_dSum += segment->dPercent;
    m_dTotalPercent = m_dSum;
}

void CFlatPieData::AddSegment(double percent, std::uint32_t color, std::u16string_view text)
{
    m_dTotalPercent = m_dSum;
    if (percent < 0)
        return;

    double share = percent;
    if (percent > 100)
        share = 100;
    else if (m_dSum + percent > 100)
        share = 100 - m_dSum;
    if (!(share > 0))
        return;

    auto segment = std::make_unique<SPieSegment>();
    segment->dPercent = share;
    segment->crColor = color;
    segment->strName = text;
    segment->nId = ++m_nSegments;
    m_dSum += share; // as adding up the whole list would
    m_dTotalPercent = m_dSum;
    (m_pLast ? m_pLast->pNext : m_pSegments) = segment.get();
    m_pLast = segment.release();
}

ERefusal CFlatPieData::UpdateSegment(std::int32_t index, std::int32_t percent, std::uint32_t color,
                                     std::u16string_view text)
{
    if (index < 1 || index > m_nSegments)
        return ERefusal::indexOutOfBounds;
    if (percent <= 0)
        return ERefusal::percentNotValid;
    SPieSegment* segment = m_pSegments;
    while (segment->nId != index)
        segment = segment->pNext;
    segment->strName = text;
    segment->dPercent = percent;
    segment->crColor = color;
    SumAnew();
    return ERefusal::none;
}

ERefusal CFlatPieData::DeleteSegment(std::int32_t index)
{
    if (index < 1 || index > m_nSegments)
        return ERefusal::indexOutOfBounds;
    SPieSegment** link = &m_pSegments;
    while ((*link)->nId != index)
        link = &(*link)->pNext;
    const std::unique_ptr<SPieSegment> segment(*link);
    *link = segment->pNext;
    --m_nSegments;

    std::int32_t nId = 0;
    m_pLast = nullptr;
    for (SPieSegment* rest = m_pSegments; rest; rest = rest->pNext) {
        rest->nId = ++nId;
        m_pLast = rest;
    }
    SumAnew();
    return ERefusal::none;
}

void CFlatPieData::Clear() noexcept
{
    while (m_pSegments) {
        const std::unique_ptr<SPieSegment> first(m_pSegments);
        m_pSegments = first->pNext;
    }
    m_pLast = nullptr;
    m_nSegments = 0;
    m_dSum = 0;
}

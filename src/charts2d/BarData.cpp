#include "charts2d/BarData.h"

#include <algorithm>
#include <memory>

namespace
{

template <class Node> void Append(Node*& head, Node*& last, CIdIndex<Node>& index, Node* node) noexcept
{
    node->pPrevious = last;
    (last ? last->pNext : head) = node;
    last = node;
    index.Append(node);
}

// Takes the first node with the id out of the list; null if there is none.
template <class Node>
Node* Unlink(Node*& head, Node*& last, CIdIndex<Node>& index, std::int32_t nId) noexcept
{
    Node* const node = index.First(nId);
    if (!node)
        return nullptr;
    index.RemoveFirst(nId);
    (node->pPrevious ? node->pPrevious->pNext : head) = node->pNext;
    (node->pNext ? node->pNext->pPrevious : last) = node->pPrevious;
    return node;
}

template <class Node> void FreeAll(Node*& head, Node*& last) noexcept
{
    while (head) {
        Node* next = head->pNext;
        delete head;
        head = next;
    }
    last = nullptr;
}

} // namespace

SBarSeries::~SBarSeries()
{
    SBarValue* value = pValues;
    while (value && --value->nLinks == 0) {
        SBarValue* next = value->pNext;
        delete value;
        value = next;
    }
}

SBarValue* SBarSeries::FindValue(std::int32_t nSegment) const noexcept
{
    const auto place = static_cast<std::size_t>(nSegment);
    return nSegment >= 0 && place < m_FirstValues.size() ? m_FirstValues[place] : nullptr;
}

void SBarSeries::MakeRoom(std::int32_t nSegment)
{
    const std::size_t needed = static_cast<std::size_t>(nSegment) + 1;
    if (m_FirstValues.capacity() < needed)
        m_FirstValues.reserve(std::max(needed, 2 * m_FirstValues.capacity()));
}

void SBarSeries::AppendValue(SBarValue* value) noexcept
{
    SBarValue*& link = pLastValue ? pLastValue->pNext : pValues;
    if (link != value) {
        link = value;
        ++value->nLinks;
    }
    pLastValue = value;

    const auto place = static_cast<std::size_t>(value->nSegment);
    if (m_FirstValues.size() <= place)
        m_FirstValues.resize(place + 1);
    if (!m_FirstValues[place])
        m_FirstValues[place] = value;
}

CBarData::~CBarData()
{
    Clear();
}

void CBarData::AddSegment(std::u16string_view text)
{
    auto segment = std::make_unique<SBarSegment>();
    segment->nId = m_nSegments + 1;
    segment->strName = text;

    m_SegmentIndex.MakeRoom(segment->nId);
    for (SBarSeries* series = m_pSeries; series; series = series->pNext)
        series->MakeRoom(segment->nId);

    if (m_nSeries > 0) {
        auto* value = new SBarValue{.nSegment = segment->nId, .nLinks = 0};
        for (SBarSeries* series = m_pSeries; series; series = series->pNext)
            series->AppendValue(value);
    }
    Append(m_pSegments, m_pLastSegment, m_SegmentIndex, segment.release());
    ++m_nSegments;
}

ERefusal CBarData::DeleteSegment(std::int32_t index)
{
    if (index < 1 || index > m_nSegments)
        return ERefusal::indexOutOfBounds;
    const std::unique_ptr<SBarSegment> segment(
        Unlink(m_pSegments, m_pLastSegment, m_SegmentIndex, index));
    if (!segment)
        return ERefusal::indexOutOfBounds; // that id has left the list before
    --m_nSegments;
    return ERefusal::none;
}

ERefusal CBarData::AddSeries(std::u16string_view text, std::uint32_t color)
{
    if (m_nSegments < 1)
        return ERefusal::noSegments;
    auto series = std::make_unique<SBarSeries>();
    series->nId = m_nSeries + 1;
    series->crColor = color;
    series->strName = text;
    series->MakeRoom(m_nSegments);
    for (std::int32_t segment = 1; segment <= m_nSegments; ++segment)
        series->AppendValue(new SBarValue{.nSegment = segment, .nLinks = 0});

    m_SeriesIndex.MakeRoom(series->nId);
    Append(m_pSeries, m_pLastSeries, m_SeriesIndex, series.release());
    ++m_nSeries;
    return ERefusal::none;
}

ERefusal CBarData::DeleteSeries(std::int32_t index)
{
    if (index < 1 || index > m_nSeries)
        return ERefusal::seriesIndexOutOfBounds;
    const std::unique_ptr<SBarSeries> series(Unlink(m_pSeries, m_pLastSeries, m_SeriesIndex, index));
    if (!series)
        return ERefusal::seriesIndexOutOfBounds;
    --m_nSeries;
    return ERefusal::none;
}

ERefusal CBarData::SetValue(std::int32_t segment, std::int32_t series, std::int32_t value)
{
    if (segment < 1 || segment > m_nSegments)
        return ERefusal::segmentIndexOutOfBounds;
    if (series < 1 || series > m_nSeries)
        return ERefusal::seriesIndexOutOfBounds;

    const SBarSeries* found = m_SeriesIndex.First(series);
    if (!found)
        return ERefusal::seriesIndexOutOfBounds;
    found->FindValue(segment)->nValue = value; // every series has one for each id up to the count
    return ERefusal::none;
}

void CBarData::Clear() noexcept
{
    FreeAll(m_pSeries, m_pLastSeries);
    FreeAll(m_pSegments, m_pLastSegment);
    m_SeriesIndex.Clear();
    m_SegmentIndex.Clear();
    m_nSeries = 0;
    m_nSegments = 0;
}

#include "charts2d/BarData.h"

#include <memory>

namespace
{

template <class Node> void Append(Node*& head, Node*& last, Node* node) noexcept
{
    (last ? last->pNext : head) = node;
    last = node;
}

// Takes the first node with the id out of the list; null if there is none.
template <class Node> Node* Unlink(Node*& head, Node*& last, std::int32_t nId) noexcept
{
    Node* previous = nullptr;
    for (Node* node = head; node; previous = node, node = node->pNext) {
        if (node->nId != nId)
            continue;
        (previous ? previous->pNext : head) = node->pNext;
        if (last == node)
            last = previous;
        return node;
    }
    return nullptr;
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

// Links the node behind the last value of a series. Series that share their last value share
// its link too: the second of them finds the node there already.
void AppendValue(SBarSeries& series, SBarValue* node) noexcept
{
    SBarValue*& link = series.pLastValue ? series.pLastValue->pNext : series.pValues;
    if (link != node) {
        link = node;
        ++node->nLinks;
    }
    series.pLastValue = node;
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
    SBarValue* value = pValues;
    while (value && value->nSegment != nSegment)
        value = value->pNext;
    return value;
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

    if (m_nSeries > 0) {
        auto* value = new SBarValue{.nSegment = segment->nId, .nLinks = 0};
        for (SBarSeries* series = m_pSeries; series; series = series->pNext)
            AppendValue(*series, value);
    }
    Append(m_pSegments, m_pLastSegment, segment.release());
    ++m_nSegments;
}

ERefusal CBarData::DeleteSegment(std::int32_t index)
{
    if (index < 1 || index > m_nSegments)
        return ERefusal::indexOutOfBounds;
    const std::unique_ptr<SBarSegment> segment(Unlink(m_pSegments, m_pLastSegment, index));
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
    for (std::int32_t segment = 1; segment <= m_nSegments; ++segment)
        AppendValue(*series, new SBarValue{.nSegment = segment, .nLinks = 0});

    Append(m_pSeries, m_pLastSeries, series.release());
    ++m_nSeries;
    return ERefusal::none;
}

ERefusal CBarData::DeleteSeries(std::int32_t index)
{
    if (index < 1 || index > m_nSeries)
        return ERefusal::seriesIndexOutOfBounds;
    const std::unique_ptr<SBarSeries> series(Unlink(m_pSeries, m_pLastSeries, index));
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

    const SBarSeries* found = m_pSeries;
    while (found && found->nId != series)
        found = found->pNext;
    if (!found)
        return ERefusal::seriesIndexOutOfBounds;
    SBarValue* node = found->FindValue(segment);
    if (!node)
        return ERefusal::segmentIndexOutOfBounds;
    node->nValue = value;
    return ERefusal::none;
}

void CBarData::Clear() noexcept
{
    FreeAll(m_pSeries, m_pLastSeries);
    FreeAll(m_pSegments, m_pLastSegment);
    m_nSeries = 0;
    m_nSegments = 0;
}

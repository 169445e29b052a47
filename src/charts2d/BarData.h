#pragma once
// The data of the bar chart and of the line chart: segments (the groups along the axis),
// series (one colour each) and the integer values of each series.
//
// Three kinds of node in singly linked lists, in order of insertion, owned by CBarData.
// Ids count from 1 and are the count after an insertion; a deletion renumbers
// nothing, so after one a position and an id need not agree, and an id may come twice.
// Searches take the first node with the id; indexes beside the lists find it without a walk.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "charts2d/IdIndex.h"
#include "charts2d/Refusal.h"

struct SBarSegment {
    std::int32_t nId = 0;
    std::u16string strName;
    SBarSegment* pNext = nullptr;
    SBarSegment* pPrevious = nullptr;
    SBarSegment* pNextOfId = nullptr;
};

struct SBarValue {
    std::int32_t nSegment = 0; // the segment's id
    std::int32_t nValue = 0;
    SBarValue* pNext = nullptr;
    std::uint32_t nLinks = 1; // pointers to this node: it is freed with the last of them
};

// Owns its links into the value lists; the end of the list may be shared with other series.
struct SBarSeries {
    SBarSeries() = default;
    SBarSeries(const SBarSeries&) = delete;
    SBarSeries& operator=(const SBarSeries&) = delete;
    ~SBarSeries();

    // The first value for a segment id, or null.
    [[nodiscard]] SBarValue* FindValue(std::int32_t nSegment) const noexcept;

    // Takes the memory for a value of that segment; AppendValue of it doesn't fail afterwards.
    void MakeRoom(std::int32_t nSegment);

    // Links the value behind the last one. Series that share their last value share its link
    // too: the second of them finds the value there already.
    void AppendValue(SBarValue* value) noexcept;

    std::int32_t nId = 0;
    std::uint32_t crColor = 0; // 0x00BBGGRR
    std::u16string strName;
    SBarValue* pValues = nullptr;
    SBarValue* pLastValue = nullptr;
    SBarSeries* pNext = nullptr;
    SBarSeries* pPrevious = nullptr;
    SBarSeries* pNextOfId = nullptr;

private:
    std::vector<SBarValue*> m_FirstValues; // by segment id
};

class CBarData
{
public:
    CBarData() = default;
    CBarData(const CBarData&) = delete;
    CBarData& operator=(const CBarData&) = delete;
    ~CBarData();

    // Every series gets a value 0 for the new segment. One node serves them all: a value
    // set for one series is from then on the value of all.
    void AddSegment(std::u16string_view text);

    // The values of the segment stay in every series and keep their place.
    [[nodiscard]] ERefusal DeleteSegment(std::int32_t index);

    [[nodiscard]] ERefusal AddSeries(std::u16string_view text, std::uint32_t color);
    [[nodiscard]] ERefusal DeleteSeries(std::int32_t index);
    [[nodiscard]] ERefusal SetValue(std::int32_t segment, std::int32_t series, std::int32_t value);
    void Clear() noexcept;

    std::int32_t m_nSeries = 0;
    std::int32_t m_nSegments = 0;
    SBarSeries* m_pSeries = nullptr;
    SBarSegment* m_pSegments = nullptr;

private:
    SBarSeries* m_pLastSeries = nullptr;
    SBarSegment* m_pLastSegment = nullptr;
    CIdIndex<SBarSeries> m_SeriesIndex;
    CIdIndex<SBarSegment> m_SegmentIndex;
};

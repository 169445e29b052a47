#pragma once
// The data of the flat pie: segments, each a percent of the whole circle. The percents are the
// caller's; nothing scales them to a sum of 100.

#include <cstdint>
#include <string>
#include <string_view>

#include "charts2d/Refusal.h"

// Ids count from 1 and are renumbered after a deletion.
struct SPieSegment {
    std::int32_t nId = 0;
    double dPercent = 0;
    std::uint32_t crColor = 0; // 0x00BBGGRR
    std::u16string strName;
    SPieSegment* pNext = nullptr;
};

class CFlatPieData
{
public:
    CFlatPieData() = default;
    CFlatPieData(const CFlatPieData&) = delete;
    CFlatPieData& operator=(const CFlatPieData&) = delete;
    ~CFlatPieData();

    // A percent above 100 counts as 100, whatever is there already; a smaller one is cut to
    // what the circle has left. Nothing left, nothing asked or not a number: no segment.
    void AddSegment(double percent, std::uint32_t color, std::u16string_view text);

    // Here a percent has no upper limit.
    [[nodiscard]] ERefusal UpdateSegment(std::int32_t index, std::int32_t percent, std::uint32_t color,
                                         std::u16string_view text);
    [[nodiscard]] ERefusal DeleteSegment(std::int32_t index);

    // The total stays until the next segment sums afresh.
    void Clear() noexcept;

    double m_dTotalPercent = 0;
    std::int32_t m_nSegments = 0;
    SPieSegment* m_pSegments = nullptr;

private:
    void SumAnew() noexcept;

    SPieSegment* m_pLast = nullptr;
    double m_dSum = 0; // of the segments in the order of the list
};

#include "pie3d/PieScroll.h"

#include <algorithm>

namespace PieScroll
{
namespace
{

TScrolled LineUp(const TList& list) noexcept
{
    TScrolled result{list.nPos - list.Step(), list.nFirst, false};
    if (result.nFirst != 0) {
        --result.nFirst;
        if (result.nFirst == 0)
            result.nPos = 0;
    }
    return result;
}

TScrolled LineDown(const TList& list) noexcept
{
    TScrolled result{list.nPos, list.nFirst, false};
    if (list.nFirst == list.nElements)
        return result;
    result.nPos += list.Step();
    const std::int32_t last = list.LastFirst();
    if (result.nFirst != last) {
        ++result.nFirst;
        if (result.nFirst == last)
            result.nPos = list.nLimit;
    }
    return result;
}

TScrolled To(const TList& list, std::int32_t pos, bool track) noexcept
{
    const TSynced synced = SyncFirstLabel(list, pos, track);
    return {pos, synced.nFirst, synced.bToLimit};
}

} // namespace

TSynced SyncFirstLabel(const TList& list, std::int32_t nPos, bool bTrack) noexcept
{
    if (bTrack && list.nLimit == 0)
        return {list.nFirst, false};
    if (bTrack && list.nLimit - list.nPos < list.nRowHeight)
        return {list.LastFirst(), true};
    if (nPos >= 1)
        return {nPos / list.Step(), false};
    return {nPos == 0 ? 0 : list.nFirst, false};
}

TScrolled Scroll(const TList& list, EStep step, std::optional<std::int32_t> nTrackPos,
                 std::int32_t nMessagePos) noexcept
{
    switch (step) {
    case EStep::lineUp:
        return LineUp(list);
    case EStep::lineDown:
        return LineDown(list);
    case EStep::pageUp:
        return To(list, std::max(list.nPos - list.nPieHeight, 0), false);
    case EStep::pageDown:
        return To(list, std::min(list.nPos + list.nPieHeight, list.nLimit), false);
    case EStep::thumb:
        return nTrackPos ? To(list, *nTrackPos, true) : TScrolled{nMessagePos, list.nFirst, false};
    case EStep::none:
        break;
    }
    return {list.nPos, list.nFirst, false};
}

} // namespace PieScroll

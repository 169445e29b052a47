#include "charts2d/BarAnimationTable.h"

#include <algorithm>
#include <iterator>

#include "charts2d/BarAnimation.h"
#include "charts2d/BarComposer.h"

namespace
{

constexpr TBarAnimationRow Rows[] = {
    {CBarAnimation::allGrow, &CBarAnimation::m_nGrowSegment, &TBarCounts::nSegments,
     &CBarAnimation::GrowAll, &CBarComposer::GrowingBars},
    {CBarAnimation::groupsGrow, &CBarAnimation::m_nGrowSegment, &TBarCounts::nSegments,
     &CBarAnimation::GrowInTurn, &CBarComposer::GrowingGroups},
    {CBarAnimation::seriesGrow, &CBarAnimation::m_nGrowSeries, &TBarCounts::nSeries,
     &CBarAnimation::GrowInTurn, &CBarComposer::GrowingSeries},
    {CBarAnimation::groupsFade, &CBarAnimation::m_nFadeSegment, &TBarCounts::nSegments,
     &CBarAnimation::FadeInTurn, &CBarComposer::FadingGroups},
    {CBarAnimation::seriesFade, &CBarAnimation::m_nFadeSeries, &TBarCounts::nSeries,
     &CBarAnimation::FadeInTurn, &CBarComposer::FadingSeries},
};

} // namespace

const TBarAnimationRow* FindBarAnimation(std::int32_t type) noexcept
{
    const auto* const found =
        std::find_if(std::begin(Rows), std::end(Rows),
                     [type](const TBarAnimationRow& row) { return row.nType == type; });
    return found != std::end(Rows) ? found : nullptr;
}

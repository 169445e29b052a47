#include "charts2d/LineAnimation.h"

#include <algorithm>

#include "base/Trunc.h"
#include "base/Wrap.h"

namespace
{

constexpr std::int32_t LastHoldTick = 20;

} // namespace

void CLineAnimation::SetAnimation(std::int32_t on, std::int32_t type, std::int32_t segments,
                                  std::int32_t highestSeries, TPoint start)
{
    m_bAnimation = on;
    m_nAnimationType = type;
    m_nAnimationPercent = 0;
    m_nHoldCount = 0;
    m_bAnimationHold = 0;
    if (on != 1 || !IsKnown(type))
        return;
    m_nGrowSegment = 0;
    if (type == seriesDraw)
        m_nGrowSeries = 0;
    m_nSegmentPercent = Trunc(100.0 / segments);
    m_pPoints.assign(static_cast<std::size_t>(std::max(highestSeries, 0)), start);
}

void CLineAnimation::Animate(std::int32_t segments, std::int32_t series, TPoint start)
{
    using namespace Wrap;
    if (m_bAnimation != 1 || !IsKnown(m_nAnimationType))
        return;
    if (m_nAnimationPercent >= Multiply(m_nSegmentPercent, Add(m_nGrowSegment, 1)))
        ++m_nGrowSegment;

    const std::int32_t runEnd = Multiply(Subtract(segments, 1), m_nSegmentPercent);
    if (m_nAnimationType == allDraw)
        DrawAll(runEnd, start);
    else
        DrawInTurn(runEnd, series, start);
}

void CLineAnimation::DrawAll(std::int32_t runEnd, TPoint start)
{
    if (m_nAnimationPercent >= runEnd) {
        if (m_nHoldCount > LastHoldTick) {
            m_nGrowSegment = 0;
            StartRun(start);
        } else {
            m_bAnimationHold = 1;
            ++m_nHoldCount;
        }
    }
    if (!m_bAnimationHold)
        ++m_nAnimationPercent;
}

void CLineAnimation::DrawInTurn(std::int32_t runEnd, std::int32_t series, TPoint start)
{
    if (m_nAnimationPercent >= runEnd) {
        ++m_nGrowSeries;
        m_nGrowSegment = 0;
        if (m_nGrowSeries < series) {
            m_nAnimationPercent = 0;
        } else if (m_nHoldCount > LastHoldTick) {
            m_nGrowSeries = 0;
            StartRun(start);
        } else {
            m_bAnimationHold = 1;
            ++m_nHoldCount;
        }
    }
    if (!m_bAnimationHold)
        m_nAnimationPercent += 2;
}

void CLineAnimation::StartRun(TPoint start)
{
    m_nAnimationPercent = 0;
    m_nHoldCount = 0;
    m_bAnimationHold = 0;
    std::fill(m_pPoints.begin(), m_pPoints.end(), start);
}

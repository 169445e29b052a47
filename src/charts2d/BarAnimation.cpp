#include "charts2d/BarAnimation.h"

namespace
{

constexpr std::int32_t holdTicks = 21;

} // namespace

void CBarAnimation::SetAnimation(std::int32_t on, std::int32_t type) noexcept
{
    m_bAnimation = on;
    m_nAnimationType = type;
    m_nAnimationPercent = 0;
    m_nHoldCount = 0;
    m_bAnimationHold = 0;
    if (on != 1)
        return;
    switch (type) {
    case allGrow:
    case groupsGrow:
        m_nGrowSegment = 0;
        break;
    case seriesGrow:
        m_nGrowSeries = 0;
        break;
    case groupsFade:
        m_nFadeSegment = 0;
        break;
    case seriesFade:
        m_nFadeSeries = 0;
        break;
    default:
        break;
    }
}

void CBarAnimation::Animate(std::int32_t segments, std::int32_t series) noexcept
{
    if (m_bAnimation != 1)
        return;
    switch (m_nAnimationType) {
    case allGrow:
        GrowAll();
        break;
    case groupsGrow:
        GrowInTurn(m_nGrowSegment, segments);
        break;
    case seriesGrow:
        GrowInTurn(m_nGrowSeries, series);
        break;
    case groupsFade:
        FadeInTurn(m_nFadeSegment, segments);
        break;
    case seriesFade:
        FadeInTurn(m_nFadeSeries, series);
        break;
    default:
        break;
    }
}

void CBarAnimation::GrowAll() noexcept
{
    if (m_nAnimationPercent >= 100) {
        if (m_nHoldCount < holdTicks) {
            m_bAnimationHold = 1;
            ++m_nHoldCount;
        } else {
            m_nAnimationPercent = 0;
            m_nHoldCount = 0;
            m_bAnimationHold = 0;
        }
    }
    if (!m_bAnimationHold)
        ++m_nAnimationPercent;
}

void CBarAnimation::GrowInTurn(std::int32_t& finished, std::int32_t count) noexcept
{
    if (m_nAnimationPercent >= 100) {
        ++finished;
        if (finished >= count) {
            ++m_nHoldCount;
            m_bAnimationHold = 1;
        }
        if (!m_bAnimationHold) {
            m_nAnimationPercent = 0;
        } else if (m_nHoldCount >= holdTicks) {
            finished = 0;
            m_bAnimationHold = 0;
            m_nHoldCount = 0;
            m_nAnimationPercent = 0;
        }
    }
    if (!m_bAnimationHold)
        m_nAnimationPercent += 2;
}

void CBarAnimation::FadeInTurn(std::int32_t& finished, std::int32_t count) noexcept
{
    if (m_nAnimationPercent < 100) {
        m_nAnimationPercent += 2;
        return;
    }
    ++finished;
    if (finished >= count)
        finished = 0;
    m_nAnimationPercent = 2;
}

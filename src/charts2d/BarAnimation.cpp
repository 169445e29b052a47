#include "charts2d/BarAnimation.h"

namespace
{

constexpr std::int32_t HoldTicks = 21;

} // namespace

void CBarAnimation::SetAnimation(std::int32_t on, std::int32_t type) noexcept
{
    m_bAnimation = on;
    m_nAnimationType = type;
    m_nAnimationPercent = 0;
    m_nHoldCount = 0;
    m_bAnimationHold = 0;
    const TBarAnimationRow* const row = FindBarAnimation(type);
    if (on == 1 && row)
        this->*row->pFinished = 0;
}

void CBarAnimation::Animate(std::int32_t segments, std::int32_t series) noexcept
{
    const TBarCounts counts{segments, series};
    const TBarAnimationRow* const row = FindBarAnimation(m_nAnimationType);
    if (m_bAnimation == 1 && row)
        (this->*row->pfnTick)(this->*row->pFinished, counts.*row->pCount);
}

void CBarAnimation::GrowAll(std::int32_t&, std::int32_t) noexcept
{
    if (m_nAnimationPercent >= 100) {
        if (m_nHoldCount < HoldTicks) {
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
        } else if (m_nHoldCount >= HoldTicks) {
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

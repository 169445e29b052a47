#include "charts2d/FlatPieAnimation.h"

#include "charts2d/FlatPieGeometry.h"

void CFlatPieAnimation::SetAnimation(std::int32_t on, std::int32_t type, TPoint start) noexcept
{
    m_bAnimation = on;
    m_nAnimationType = type;
    m_dAnimationPercent = 0;
    m_ptStart = start;
    if (on != 1)
        return;
    if (type == sweep) {
        m_dSweepAngle = 0;
        m_dDrawnPercent = 0;
    } else if (type == fade) {
        m_nFadeSegment = 0;
    }
}

void CFlatPieAnimation::Animate(double totalPercent, std::int32_t segments, TPoint start) noexcept
{
    if (m_bAnimation != 1)
        return;
    if (m_nAnimationType == sweep) {
        if (m_dDrawnPercent > totalPercent || m_dAnimationPercent > 100) {
            m_dDrawnPercent = 0;
            m_dAnimationPercent = 0;
            m_ptStart = start;
        }
        m_dAnimationPercent += 1;
        m_dSweepAngle = m_dAnimationPercent * FlatPieGeometry::Angle(totalPercent) / 100;
    } else if (m_nAnimationType == fade) {
        if (m_dAnimationPercent >= 100) {
            m_dAnimationPercent = 0;
            ++m_nFadeSegment;
            if (m_nFadeSegment >= segments) {
                m_nFadeSegment = 0;
                m_ptStart = start;
            }
        }
        m_dAnimationPercent += 2;
    }
}

#include "objects/AxisMapping.h"

namespace AxisMapping
{

CMapper::CMapper(const TScale& scale) noexcept
    : m_fMin(scale.bLog ? std::log10(scale.fMin) : scale.fMin),
      m_fSpan(scale.bLog ? std::log10(scale.fMax) - m_fMin : scale.fMax - scale.fMin),
      m_fLength(scale.nLength), m_fFactor(scale.nLength / m_fSpan), m_fOrigin(scale.nOrigin),
      m_bVertical(scale.bVertical), m_bLog(scale.bLog)
{
}

bool CMapper::KeepsOrder() const noexcept
{
    return IsLinearHorizontal() && std::isfinite(m_fMin) && std::isfinite(m_fFactor) && m_fFactor > 0;
}

std::int32_t ToPixel(const TScale& scale, double value) noexcept
{
    return CMapper(scale).Pixel(value);
}

double ToValue(const TScale& scale, std::int32_t pixel) noexcept
{
    // 32-bit difference with wrap, as the platform's own integers would give.
    const auto from = static_cast<std::uint32_t>(scale.bVertical ? pixel : scale.nOrigin);
    const auto to = static_cast<std::uint32_t>(scale.bVertical ? scale.nOrigin : pixel);
    const double distance = static_cast<std::int32_t>(to - from);
    if (scale.bLog) {
        const double span = std::log10(scale.fMax) - std::log10(scale.fMin);
        return std::pow(10.0, std::log10(scale.fMin) + distance / scale.nLength * span);
    }
    const double range = scale.fMax - scale.fMin;
    return distance / (scale.nLength / range) + scale.fMin;
}

} // namespace AxisMapping

#include "objects/AxisMapping.h"

#include "base/Wrap.h"

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
    const double distance =
        scale.bVertical ? Wrap::Subtract(scale.nOrigin, pixel) : Wrap::Subtract(pixel, scale.nOrigin);
    if (scale.bLog) {
        const double span = std::log10(scale.fMax) - std::log10(scale.fMin);
        return std::pow(10.0, std::log10(scale.fMin) + distance / scale.nLength * span);
    }
    const double range = scale.fMax - scale.fMin;
    return distance / (scale.nLength / range) + scale.fMin;
}

} // namespace AxisMapping

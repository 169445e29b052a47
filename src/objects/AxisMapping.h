#pragma once
// Mapping between the values of an axis and pixels. Value to pixel truncates toward zero,
// so a pixel that goes to a value and back may come out one pixel off.
//
// The order of the operations is fixed: the pictures of a frame depend on every bit of it.

#include "base/Trunc.h"

#include <cmath>
#include <cstdint>

namespace AxisMapping
{

// What a mapping depends on.
struct TScale {
    double fMin = 0; // visible range
    double fMax = 1;
    std::int32_t nLength = 1; // pixels of the mapped range
    std::int32_t nOrigin = 0; // left edge of the plot (X axis) or its bottom edge (Y axis)
    bool bVertical = false;   // pixels fall as values grow
    bool bLog = false;
};

// A scale made ready for many values of one frame.
class CMapper
{
public:
    explicit CMapper(const TScale& scale) noexcept;

    // The pixel before truncation.
    [[nodiscard]] double Place(double value) const noexcept
    {
        const double distance =
            m_bLog ? m_fLength * ((std::log10(value) - m_fMin) / m_fSpan) : m_fFactor * (value - m_fMin);
        return m_bVertical ? m_fOrigin - distance : distance + m_fOrigin;
    }

    [[nodiscard]] std::int32_t Pixel(double value) const noexcept { return Trunc(Place(value)); }

    // Whether Place never falls where values grow, so that points in ascending order can be
    // searched by pixel. Holds for a linear horizontal scale with a finite positive factor:
    // subtraction, product and sum keep order also after rounding. Logarithms aren't
    // promised to.
    [[nodiscard]] bool KeepsOrder() const noexcept;

    [[nodiscard]] bool IsLinearHorizontal() const noexcept { return !m_bLog && !m_bVertical; }
    [[nodiscard]] bool IsLogHorizontal() const noexcept { return m_bLog && !m_bVertical; }
    [[nodiscard]] double Factor() const noexcept { return m_fFactor; }
    [[nodiscard]] double Start() const noexcept { return m_fMin; }
    [[nodiscard]] double Span() const noexcept { return m_fSpan; }
    [[nodiscard]] double Length() const noexcept { return m_fLength; }
    [[nodiscard]] double Origin() const noexcept { return m_fOrigin; }

private:
    double m_fMin;  // lower bound, or its logarithm
    double m_fSpan; // upper less lower, or the difference of the logarithms
    double m_fLength;
    double m_fFactor; // pixels a unit of value; linear only
    double m_fOrigin;
    bool m_bVertical;
    bool m_bLog;
};

[[nodiscard]] std::int32_t ToPixel(const TScale& scale, double value) noexcept;
[[nodiscard]] double ToValue(const TScale& scale, std::int32_t pixel) noexcept;

} // namespace AxisMapping

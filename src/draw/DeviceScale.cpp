#include "draw/DeviceScale.h"

#include "base/Trunc.h"
#include "base/Wrap.h"

#include <algorithm>
#include <cmath>

namespace DeviceScale
{
namespace
{
constexpr float SmallestFactor = 1e-10f;
constexpr std::int32_t SolidPen = 0;
} // namespace

float Factor(std::int32_t screenResolution, std::int32_t targetResolution) noexcept
{
    const auto larger = static_cast<float>(std::max(screenResolution, targetResolution));
    const auto smaller = static_cast<float>(std::min(screenResolution, targetResolution));
    if (smaller == 0.0f)
        return 1.0f; // a device that doesn't know its resolution
    const float factor = larger / smaller;
    return factor < SmallestFactor ? 1.0f : factor;
}

bool IsMono(std::int32_t colourCount) noexcept
{
    return static_cast<std::uint32_t>(colourCount) < 256;
}

std::int32_t Scaled(std::int32_t value, float factor) noexcept
{
    return Trunc(static_cast<float>(value) * factor);
}

TPoint Scaled(TPoint point, float factorX, float factorY) noexcept
{
    return {Scaled(point.x, factorX), Scaled(point.y, factorY)};
}

TRect Scaled(const TRect& rect, float factorX, float factorY) noexcept
{
    return {Scaled(rect.left, factorX), Scaled(rect.top, factorY), Scaled(rect.right, factorX),
            Scaled(rect.bottom, factorY)};
}

std::int32_t ScaledFontHeight(std::int32_t height, float factorY) noexcept
{
    return Scaled(Wrap::Subtract(height, 1), factorY); // a file may hold the smallest int
}

std::int32_t ScaledPenWidth(std::int32_t width, std::int32_t style, bool scaling, float factorX) noexcept
{
    return scaling && style == SolidPen ? Scaled(width, factorX) : width;
}
} // namespace DeviceScale

#include "pie3d/PieColors.h"

#include "base/Trunc.h"

#include <algorithm>

namespace PieColors
{
namespace
{

// Amounts come from the host and may drive a byte out on either side.
std::uint32_t ToByte(float value) noexcept
{
    return static_cast<std::uint32_t>(std::clamp(Trunc(std::min(value, 255.0f)), 0, 255));
}

std::uint32_t Lighter(std::uint32_t byte, float amount) noexcept
{
    const auto channel = static_cast<float>(byte);
    return ToByte((255.0f - channel) / 255.0f * amount + channel);
}

std::uint32_t Darker(std::uint32_t byte, float amount) noexcept
{
    const auto channel = static_cast<float>(byte);
    return ToByte(channel - channel / 255.0f * amount);
}

using ByteRule = std::uint32_t (*)(std::uint32_t, float) noexcept;

Argb ForEachByte(Argb color, float amount, ByteRule rule) noexcept
{
    const std::uint32_t red = rule(color >> 16 & 0xFFu, amount);
    const std::uint32_t green = rule(color >> 8 & 0xFFu, amount);
    const std::uint32_t blue = rule(color & 0xFFu, amount);
    return 0xFF000000u | red << 16 | green << 8 | blue;
}

} // namespace

Argb LightenColor(Argb crColor, float fAmount) noexcept
{
    return ForEachByte(crColor, fAmount, &Lighter);
}

Argb DarkenColor(Argb crColor, float fAmount) noexcept
{
    return ForEachByte(crColor, fAmount, &Darker);
}

} // namespace PieColors

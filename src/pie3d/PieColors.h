#pragma once
// Colour arithmetic of the pie. Colours are ARGB (0xAARRGGBB) except where a COLORREF
// (0x00BBGGRR) is named.

#include <cstdint>

namespace PieColors
{

using Argb = std::uint32_t;

// Every colour byte c becomes (255 - c) / 255 * fAmount + c, in floats, truncated and kept
// within a byte. Alpha is 255 whatever crColor has.
[[nodiscard]] Argb LightenColor(Argb crColor, float fAmount) noexcept;

// Every colour byte c becomes c - c / 255 * fAmount, in the same way.
[[nodiscard]] Argb DarkenColor(Argb crColor, float fAmount) noexcept;

// 0x00BBGGRR to 0xFFRRGGBB.
[[nodiscard]] constexpr Argb FromColorRef(std::uint32_t crColorRef) noexcept
{
    return 0xFF000000u | (crColorRef & 0xFFu) << 16 | (crColorRef & 0xFF00u) |
           (crColorRef >> 16 & 0xFFu);
}

// The same red, green and blue under another opacity.
[[nodiscard]] constexpr Argb WithAlpha(Argb crColor, std::uint32_t nAlpha) noexcept
{
    return (crColor & 0x00FFFFFFu) | nAlpha << 24;
}

} // namespace PieColors

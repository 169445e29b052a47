#pragma once
// From screen pixels to a device of another resolution. All products are formed in float
// and truncated toward zero.

#include "base/Geometry.h"

#include <cstdint>

namespace DeviceScale
{
// The larger of the two resolutions divided by the smaller: 1 or more, whichever side has
// the higher one. 1 where there is no such quotient.
[[nodiscard]] float Factor(std::int32_t screenResolution, std::int32_t targetResolution) noexcept;

// Whether a device with this number of colours is drawn on in black and white. Deep-colour
// devices answer -1, which counts as the largest number.
[[nodiscard]] bool IsMono(std::int32_t colourCount) noexcept;

[[nodiscard]] std::int32_t Scaled(std::int32_t value, float factor) noexcept;
[[nodiscard]] TPoint Scaled(TPoint point, float factorX, float factorY) noexcept;
[[nodiscard]] TRect Scaled(const TRect& rect, float factorX, float factorY) noexcept;

// One is taken from a font's height before it is multiplied.
[[nodiscard]] std::int32_t ScaledFontHeight(std::int32_t height, float factorY) noexcept;

// Only solid pens (style 0) widen with the device; patterned ones keep their width.
[[nodiscard]] std::int32_t ScaledPenWidth(std::int32_t width, std::int32_t style, bool scaling,
                                          float factorX) noexcept;
} // namespace DeviceScale

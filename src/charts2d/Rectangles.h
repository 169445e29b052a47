#pragma once
// Small questions about rectangles of pixels.

#include <algorithm>

#include "base/Geometry.h"

namespace Rectangles
{

[[nodiscard]] constexpr bool IsEmpty(const TRect& rect) noexcept
{
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

// Empty where the two have nothing in common.
[[nodiscard]] constexpr TRect Common(const TRect& a, const TRect& b) noexcept
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

[[nodiscard]] constexpr TRect Around(const TRect& a, const TRect& b) noexcept
{
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

// Edges in ascending order, as the platform sees them.
[[nodiscard]] constexpr TRect Ordered(const TRect& rect) noexcept
{
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
            std::max(rect.left, rect.right), std::max(rect.top, rect.bottom)};
}

} // namespace Rectangles

#include "pie3d/PieShares.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace PieShares
{

bool IsUsable(double dValue) noexcept
{
    return std::isfinite(dValue);
}

float ShareOf(double dValue, double dTotal) noexcept
{
    // The share of a value that others nearly cancel out may not fit a float.
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(dValue / dTotal, -largest, largest));
}

std::u16string PercentText(float fShare, bool bTwoDigits)
{
    char digits[64] = {};
    const float percent = fShare * 100;
    const int length = std::snprintf(digits, sizeof digits, "%.2f", percent);
    std::u16string text(bTwoDigits && percent < 10 ? 1 : 0, u'0');
    text.append(digits, digits + std::clamp<int>(length, 0, sizeof digits - 1));
    text += u'%';
    return text;
}

std::int32_t FontStyle(std::int32_t nWeight, bool bItalic, bool bUnderline, bool bStrikeOut) noexcept
{
    return (nWeight != 0 ? 1 : 0) + (bItalic ? 2 : 0) + (bUnderline ? 4 : 0) + (bStrikeOut ? 8 : 0);
}

} // namespace PieShares

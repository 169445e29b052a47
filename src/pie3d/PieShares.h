#pragma once
// Shares of the total, and their text.

#include <cstdint>
#include <string>

namespace PieShares
{

// A value or a total that the chart can hold.
[[nodiscard]] bool IsUsable(double dValue) noexcept;

// dValue / dTotal as a float.
[[nodiscard]] float ShareOf(double dValue, double dTotal) noexcept;

// A share of 0.25 as "25.00%"; with bTwoDigits a zero precedes a percent below 10.
[[nodiscard]] std::u16string PercentText(float fShare, bool bTwoDigits = false);

// GDI+ font style flags: 1 bold (any weight at all), 2 italic, 4 underlined, 8 struck out.
[[nodiscard]] std::int32_t FontStyle(std::int32_t nWeight, bool bItalic, bool bUnderline,
                                     bool bStrikeOut) noexcept;

} // namespace PieShares

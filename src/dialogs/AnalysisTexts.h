#pragma once
// What the curve page writes of a trend or an average: the formula, and the parts of the new
// curve's label behind that of its source.

#include <span>
#include <string>
#include <string_view>

namespace AnalysisTexts
{

// In the order of the list of the moving average's dialog.
inline constexpr int AverageKinds = 5;

inline constexpr std::u16string_view LinearTrend = u" Trend (lin.)";
inline constexpr std::u16string_view CubicTrend = u" Trend (cub.)";
inline constexpr std::u16string_view PolynomialTrend = u" Trend (poly.) ";

// " AVG, " and the kind in lower case; empty for a kind that isn't there.
[[nodiscard]] std::u16string Average(int nKind);

// "f(x)=" and a line for each power that has a coefficient, the lowest first. A term is
// followed by "+" and a line feed unless its power is the last one, so the text ends in those
// where the last coefficient is 0.
[[nodiscard]] std::u16string Formula(std::span<const double> coefficients);

} // namespace AnalysisTexts

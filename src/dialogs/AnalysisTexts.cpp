#include "dialogs/AnalysisTexts.h"

#include "base/NumberFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace AnalysisTexts
{

std::u16string Average(int nKind)
{
    constexpr std::array<std::u16string_view, AverageKinds> names = {
        u"simple", u"linear", u"exponential", u"triangular", u"sine weighted"};
    if (nKind < 0 || nKind >= AverageKinds)
        return {};
    return u" AVG, " + std::u16string(names[static_cast<std::size_t>(nKind)]);
}

std::u16string Formula(std::span<const double> coefficients)
{
    std::u16string text = u"f(x)=";
    for (std::size_t i = 0; i < coefficients.size(); ++i) {
        if (coefficients[i] == 0.0)
            continue;
        const std::array<NumberFormat::TArgument, 2> arguments = {
            NumberFormat::TArgument(coefficients[i]),
            NumberFormat::TArgument(static_cast<std::int64_t>(i))};
        text += NumberFormat::FormatText(u"%5.4e*X^%d", arguments);
        if (i + 1 < coefficients.size())
            text += u"+\n";
    }
    return text;
}

} // namespace AnalysisTexts

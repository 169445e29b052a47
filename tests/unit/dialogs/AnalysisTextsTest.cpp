#include "dialogs/AnalysisTexts.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

std::string Formula(const std::vector<double>& coefficients)
{
    const std::u16string text = AnalysisTexts::Formula(coefficients);
    return {text.begin(), text.end()};
}

} // namespace

TEST(AnalysisTexts, AFormulaHasALineForEachPower)
{
    EXPECT_EQ(Formula({1.0, -2.5, 0.000123456}),
              "f(x)=1.0000e+00*X^0+\n-2.5000e+00*X^1+\n1.2346e-04*X^2");
}

TEST(AnalysisTexts, AZeroCoefficientHasNoTerm)
{
    EXPECT_EQ(Formula({0.0, 3.0, -0.0, 4.0}), "f(x)=3.0000e+00*X^1+\n4.0000e+00*X^3");
}

TEST(AnalysisTexts, AZeroCoefficientAtTheEndLeavesThePlusOfTheTermBefore)
{
    EXPECT_EQ(Formula({1.0, 2.0, 0.0}), "f(x)=1.0000e+00*X^0+\n2.0000e+00*X^1+\n");
    EXPECT_EQ(Formula({1.0, 0.0, 0.0}), "f(x)=1.0000e+00*X^0+\n");
}

TEST(AnalysisTexts, AFormulaOfNothingIsItsHeadAlone)
{
    EXPECT_EQ(Formula({}), "f(x)=");
    EXPECT_EQ(Formula({0.0, 0.0}), "f(x)=");
}

TEST(AnalysisTexts, PowersOfTwoDigitsAndThreeDigitExponentsAreWrittenWhole)
{
    std::vector<double> coefficients(20, 0.0);
    coefficients[19] = 1e-300;
    EXPECT_EQ(Formula(coefficients), "f(x)=1.0000e-300*X^19");
}

TEST(AnalysisTexts, EachKindOfAverageHasItsName)
{
    const std::vector<std::u16string> expected = {u" AVG, simple", u" AVG, linear", u" AVG, exponential",
                                                  u" AVG, triangular", u" AVG, sine weighted"};
    for (int nKind = 0; nKind < AnalysisTexts::AverageKinds; ++nKind)
        EXPECT_EQ(AnalysisTexts::Average(nKind), expected[static_cast<std::size_t>(nKind)]);
}

TEST(AnalysisTexts, AKindOfAverageThatIsNotInTheListHasNone)
{
    for (const int nKind : {-1, AnalysisTexts::AverageKinds, -2147483647 - 1, 2147483647})
        EXPECT_EQ(AnalysisTexts::Average(nKind), u"") << nKind;
}

#pragma once
// Trends and moving averages of a curve, added to its graph as new curves.

#include <vantoplex.h>

#include <string>

namespace Viewer
{

enum class Analysis {
    LinearTrend,
    CubicTrend,
    PolynomialTrend,
    SimpleAverage,
    ExponentialAverage,
    LinearAverage,
    TriangularAverage
};

// `parameter` is the degree of a polynomial or the span of an average in points. The new curve lies
// on the axes of the other, and the whole range shows again. False if the graph can't work it out.
[[nodiscard]] bool AddAnalysis(ISGraph& graph, int curve, Analysis analysis, int parameter);

// "CO2, average of 12": for legend and status bar.
[[nodiscard]] std::u16string NameOfAnalysis(std::u16string_view curve, Analysis analysis, int parameter);

[[nodiscard]] std::u16string NameOfCurve(ISGraph& graph, int curve);

} // namespace Viewer

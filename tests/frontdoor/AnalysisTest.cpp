// Trends and moving averages as a host gets them: arrays that it frees itself.

#include "FrontDoorGraph.h"

#include <cmath>
#include <limits>
#include <memory>

namespace
{
struct Freed {
    void operator()(TDataPoint* pArray) const { ::CoTaskMemFree(pArray); }
};
using Array = std::unique_ptr<TDataPoint, Freed>;

class Analysis : public FrontDoorGraph
{
protected:
    Holder<ISGraphDataSerie> Curve(std::vector<TDataPoint> points)
    {
        Holder<ISGraphDataSerie> curve;
        graph->SetData(curve.Out(), points.data(), static_cast<long>(points.size()), CurveCount(), 0, 0,
                       1);
        return curve;
    }
    // Y at X 1, 2, 3 ...
    Holder<ISGraphDataSerie> CurveOf(const std::vector<double>& values)
    {
        std::vector<TDataPoint> points;
        for (const double value : values)
            points.push_back({static_cast<double>(points.size() + 1), value});
        return Curve(points);
    }
    // One of the array methods, which hands out nCount points.
    template <class Method, class... Arguments>
    static std::vector<TDataPoint> Get(const Holder<ISGraphDataSerie>& curve, std::size_t nCount,
                                       Method method, Arguments... arguments)
    {
        TDataPoint* pArray = nullptr;
        EXPECT_EQ((curve.Get()->*method)(&pArray, arguments...), S_OK);
        const Array owner(pArray);
        if (pArray == nullptr)
            return {};
        return {pArray, pArray + nCount};
    }
    static std::vector<double> Y(const std::vector<TDataPoint>& points)
    {
        std::vector<double> values;
        for (const TDataPoint& point : points)
            values.push_back(point.fYVal);
        return values;
    }
    static std::vector<double> X(const std::vector<TDataPoint>& points)
    {
        std::vector<double> values;
        for (const TDataPoint& point : points)
            values.push_back(point.fXVal);
        return values;
    }
};

using Values = std::vector<double>;
constexpr auto Linear = &ISGraphDataSerie::GetLinearTrend;
constexpr auto Cubic = &ISGraphDataSerie::GetCubicTrend;
constexpr auto Polynomial = &ISGraphDataSerie::GetPolynomialTrend;
constexpr auto Simple = &ISGraphDataSerie::GetSimpleMovingAverage;
constexpr auto Exponential = &ISGraphDataSerie::GetExponentialMovingAverage;
constexpr auto LinearAverage = &ISGraphDataSerie::GetLinearMovingAverage;
constexpr auto Triangular = &ISGraphDataSerie::GetTriangularMovingAverage;
constexpr auto SineWeighted = &ISGraphDataSerie::GetSineWeightedMovingAverage;
} // namespace

TEST_F(Analysis, TheLinearTrendRunsOnAtTheFirstStep)
{
    auto curve = CurveOf({2, 4, 6});
    EXPECT_EQ(Y(Get(curve, 3, Linear, 0)), (Values{2, 4, 6}));
    const auto longer = Get(curve, 5, Linear, 2);
    EXPECT_EQ(X(longer), (Values{1, 2, 3, 4, 5}));
    EXPECT_EQ(Y(longer), (Values{2, 4, 6, 8, 10}));
}

TEST_F(Analysis, OnlyOrdinalsCountForTheLinearTrend)
{
    const auto even = Y(Get(Curve({{1, 1}, {2, 2}, {3, 3}}), 3, Linear, 0));
    auto wide = Curve({{0, 1}, {10, 2}, {20, 3}});
    EXPECT_EQ(Y(Get(wide, 3, Linear, 0)), even);
    EXPECT_EQ(X(Get(wide, 4, Linear, 1)), (Values{0, 10, 20, 30}));
}

TEST_F(Analysis, TheCubicTrendReproducesCubes)
{
    auto curve = CurveOf({1, 8, 27});
    EXPECT_EQ(Y(Get(curve, 4, Cubic, 1)), (Values{1, 8, 27, 64}));
}

TEST_F(Analysis, APolynomialOfOneTermIsTheMean)
{
    auto curve = CurveOf({1, 2, 6});
    EXPECT_EQ(Y(Get(curve, 3, Polynomial, 1, 0)), (Values{3, 3, 3}));
}

TEST_F(Analysis, APolynomialFitsTheTrueXAndRepeatsTheLastStep)
{
    auto curve = Curve({{0, 0}, {1, 1}, {3, 9}, {6, 36}});
    const auto trend = Get(curve, 6, Polynomial, 3, 2);
    EXPECT_EQ(X(trend), (Values{0, 1, 3, 6, 9, 12}));
    const Values squares{0, 1, 9, 36, 81, 144};
    for (std::size_t i = 0; i < squares.size(); ++i)
        EXPECT_NEAR(trend[i].fYVal, squares[i], 1e-9);
}

TEST_F(Analysis, APolynomialThatCantBeFittedIsNullAndStillSucceeds)
{
    auto curve = Curve({{2, 1}, {2, 3}, {2, 5}});
    for (const int nDegree : {2, 22, 1000, INT_MAX}) {
        TDataPoint* pArray = reinterpret_cast<TDataPoint*>(this);
        EXPECT_EQ(curve->GetPolynomialTrend(&pArray, nDegree, 0), S_OK);
        EXPECT_EQ(pArray, nullptr) << nDegree;
    }
}

TEST_F(Analysis, APolynomialWithoutTermsIsZero)
{
    auto curve = CurveOf({1, 2, 3});
    EXPECT_EQ(Y(Get(curve, 3, Polynomial, 0, 0)), (Values{0, 0, 0}));
    EXPECT_EQ(Y(Get(curve, 3, Polynomial, -5, 0)), (Values{0, 0, 0}));
}

TEST_F(Analysis, FewerPointsThanTheCurveHasAreItsFirst)
{
    auto curve = CurveOf({2, 4, 6});
    EXPECT_EQ(Y(Get(curve, 1, Linear, -2)), (Values{2}));
    EXPECT_TRUE(Get(curve, 0, Linear, -3).empty());
    EXPECT_TRUE(Get(curve, 0, Cubic, -1000).empty());
}

TEST_F(Analysis, OfOnePointTheLinearTrendIsNoNumberAndAverageIsTheCopy)
{
    auto curve = Curve({{4, 5}});
    const auto trend = Get(curve, 2, Linear, 1);
    EXPECT_EQ(trend[0].fXVal, 4);
    EXPECT_TRUE(std::isnan(trend[0].fYVal) && std::isnan(trend[1].fYVal));
    for (const auto average : {Simple, Exponential, LinearAverage, Triangular}) {
        const auto points = Get(curve, 1, average, 3);
        EXPECT_EQ(points[0].fXVal, 4);
        EXPECT_EQ(points[0].fYVal, 5);
    }
}

TEST_F(Analysis, ASpanOfOneGivesTheValues)
{
    auto curve = CurveOf({1, 7, 3, 9});
    for (const auto average : {Simple, Exponential, LinearAverage, Triangular})
        EXPECT_EQ(Y(Get(curve, 4, average, 1)), (Values{1, 7, 3, 9}));
}

TEST_F(Analysis, TheWindowGrowsFromTheSecondPointAndNeverHoldsTheFirst)
{
    auto curve = CurveOf({1, 2, 3, 4, 5});
    EXPECT_EQ(Y(Get(curve, 5, Simple, 3)), (Values{1, 2, 2.5, 3, 4}));
    EXPECT_EQ(Y(Get(curve, 5, Simple, 1000)), (Values{1, 2, 2.5, 3, 3.5}));
    EXPECT_EQ(Get(curve, 5, LinearAverage, 3)[3].fYVal, 20.0 / 6);
    EXPECT_EQ(Get(curve, 5, Triangular, 3)[3].fYVal, 3);
    EXPECT_EQ(X(Get(curve, 5, Triangular, 3)), (Values{1, 2, 3, 4, 5}));
}

TEST_F(Analysis, ASpanOfZeroIsNoNumberInAWindow)
{
    auto curve = CurveOf({1, 2, 3});
    for (const auto average : {Simple, LinearAverage, Triangular}) {
        const auto points = Get(curve, 3, average, 0);
        EXPECT_EQ(points[0].fYVal, 1);
        EXPECT_TRUE(std::isnan(points[1].fYVal) && std::isnan(points[2].fYVal));
    }
    EXPECT_EQ(Y(Get(curve, 3, Exponential, 0)), (Values{1, 3, 3}));
}

TEST_F(Analysis, ANegativeSpanGivesNegativeZeroInTheSimpleKind)
{
    auto curve = CurveOf({1, 2, 3});
    const auto points = Get(curve, 3, Simple, -4);
    EXPECT_EQ(points[1].fYVal, 0);
    EXPECT_TRUE(std::signbit(points[1].fYVal));
    for (const int span : {-1, -2, INT_MIN, INT_MAX})
        for (const auto average : {Simple, Exponential, LinearAverage, Triangular})
            EXPECT_EQ(Get(curve, 3, average, span).size(), 3u);
}

TEST_F(Analysis, TheSineWeightedMethodHandsOutTheCubicTrend)
{
    auto curve = CurveOf({3, 1, 4, 1, 5});
    const auto sine = Get(curve, 8, SineWeighted, 3);
    const auto cubic = Get(curve, 8, Cubic, 3L);
    EXPECT_EQ(X(sine), X(cubic));
    EXPECT_EQ(Y(sine), Y(cubic));
}

TEST_F(Analysis, WithoutAPlaceForTheArrayNothingIsMade)
{
    auto curve = CurveOf({1, 2, 3});
    EXPECT_EQ(curve->GetLinearTrend(nullptr, 0), S_FALSE);
    EXPECT_EQ(curve->GetPolynomialTrend(nullptr, 2, 0), S_FALSE);
    EXPECT_EQ(curve->GetSimpleMovingAverage(nullptr, 2), S_FALSE);
}

TEST_F(Analysis, AWrapperWithoutACurveSucceedsAndWritesNothing)
{
    Holder<ISGraphDataSerie> curve;
    ASSERT_EQ(graph->SetData(curve.Out(), nullptr, 0, 0, 0, 0, 1), S_OK);
    TDataPoint* const mark = reinterpret_cast<TDataPoint*>(this);
    TDataPoint* pArray = mark;
    EXPECT_EQ(curve->GetCubicTrend(&pArray, 3), S_OK);
    EXPECT_EQ(curve->GetTriangularMovingAverage(&pArray, 3), S_OK);
    EXPECT_EQ(curve->GetLinearTrend(nullptr, 3), S_OK);
    EXPECT_EQ(pArray, mark);
}

TEST_F(Analysis, TrendsThroughTheWrappersHandleAddNothing)
{
    auto curve = CurveOf({2, 4, 6});
    EXPECT_EQ(graph->AddLinearTrend(nullptr), S_FALSE);
    EXPECT_EQ(graph->AddCubicTrend(nullptr), S_FALSE);
    EXPECT_EQ(graph->AddLinearTrend(curve.Get()), S_OK);
    EXPECT_EQ(graph->AddCubicTrend(curve.Get()), S_OK);
    EXPECT_EQ(CurveCount(), 1);
}

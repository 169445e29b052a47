#include "objects/Trends.h"
#include "objects/PolynomialSolver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace
{
using Points = std::vector<TDataPoint>;

Points Filled(std::size_t count)
{
    return Points(count, TDataPoint{-1.0, -1.0});
}

bool Fit(CPolynomialSolver& solver, const Points& points, int terms)
{
    solver.m_nDegree = terms;
    return solver.Solve(static_cast<int>(points.size()), terms, points.data());
}
} // namespace

TEST(LinearTrend, ReproducesALineAndRunsOnPastTheEnd)
{
    const Points points{{1, 2}, {2, 4}, {3, 6}};
    Points trend = Filled(5);
    Trends::Linear(points, trend);
    const double xs[] = {1, 2, 3, 4, 5};
    const double ys[] = {2, 4, 6, 8, 10};
    for (int j = 0; j < 5; ++j) {
        EXPECT_EQ(trend[j].fXVal, xs[j]);
        EXPECT_EQ(trend[j].fYVal, ys[j]);
    }
}

TEST(LinearTrend, OnlyOrdinalsCount)
{
    Points near = Filled(3);
    Points far = Filled(3);
    Trends::Linear(Points{{1, 1}, {2, 2}, {3, 3}}, near);
    Trends::Linear(Points{{0, 1}, {10, 2}, {20, 3}}, far);
    for (int j = 0; j < 3; ++j)
        EXPECT_EQ(near[j].fYVal, far[j].fYVal);
    EXPECT_EQ(far[2].fXVal, 20.0);
}

TEST(LinearTrend, OnePointHasNoLine)
{
    Points trend = Filled(2);
    Trends::Linear(Points{{5, 3}}, trend);
    EXPECT_EQ(trend[0].fXVal, 5.0);
    EXPECT_TRUE(std::isnan(trend[0].fYVal));
    EXPECT_TRUE(std::isnan(trend[1].fYVal));
}

TEST(LinearTrend, SquaresOfOrdinalsWrapIn32Bits)
{
    const int n = 46342; // 46341 squared is the first product past 2^31 - 1
    Points points;
    double sumX = 0, sumY = 0, sumXY = 0, sumXX = 0;
    for (int i = 1; i <= n; ++i) {
        points.push_back({1.0 * i, i % 7 * 0.5});
        sumX += i;
        sumY += points.back().fYVal;
        sumXY += i * points.back().fYVal;
        const auto square = static_cast<unsigned>(i) * static_cast<unsigned>(i);
        sumXX += static_cast<int>(square);
    }
    const double b = (n * sumXY - sumX * sumY) / (n * sumXX - sumX * sumX);
    const double a = (sumY - b * sumX) / n;
    Points trend = Filled(points.size());
    Trends::Linear(points, trend);
    EXPECT_EQ(trend[0].fYVal, a + b);
    EXPECT_EQ(trend[n - 1].fYVal, a + n * b);
}

TEST(LinearTrend, FewerPointsThanTheCurveStopEarly)
{
    Points trend = Filled(1);
    Trends::Linear(Points{{1, 2}, {2, 4}, {3, 6}}, trend);
    EXPECT_EQ(trend[0].fYVal, 2.0);
}

TEST(CubicTrend, ReproducesThePureCube)
{
    Points trend = Filled(4);
    Trends::Cubic(Points{{0, 1}, {1, 8}, {2, 27}}, trend);
    const double ys[] = {1, 8, 27, 64};
    for (int j = 0; j < 4; ++j)
        EXPECT_EQ(trend[j].fYVal, ys[j]);
    EXPECT_EQ(trend[3].fXVal, 3.0);
}

TEST(PolynomialTrend, OneTermIsTheMean)
{
    const Points points{{1, 2}, {2, 5}, {9, 8}};
    CPolynomialSolver solver;
    ASSERT_TRUE(Fit(solver, points, 1));
    Points trend = Filled(3);
    Trends::Polynomial(solver, points, trend);
    for (const TDataPoint& point : trend)
        EXPECT_EQ(point.fYVal, 5.0);
}

TEST(PolynomialTrend, ThreeTermsFitAParabolaByTrueX)
{
    Points points;
    for (const double x : {-2.0, -1.0, 0.0, 2.0, 4.0})
        points.push_back({x, 3.0 - 2.0 * x + x * x});
    CPolynomialSolver solver;
    ASSERT_TRUE(Fit(solver, points, 3));
    EXPECT_NEAR(solver.m_fCoeffs[0], 3.0, 1e-12);
    EXPECT_NEAR(solver.m_fCoeffs[1], -2.0, 1e-12);
    EXPECT_NEAR(solver.m_fCoeffs[2], 1.0, 1e-12);
}

TEST(PolynomialTrend, AddedPointsRepeatTheLastStep)
{
    const Points points{{0, 1}, {1, 2}, {5, 6}};
    CPolynomialSolver solver;
    ASSERT_TRUE(Fit(solver, points, 2));
    Points trend = Filled(5);
    Trends::Polynomial(solver, points, trend);
    EXPECT_EQ(trend[3].fXVal, 9.0);
    EXPECT_EQ(trend[4].fXVal, 13.0);
    EXPECT_NEAR(trend[4].fYVal, 14.0, 1e-12);

    Points ofTwo = Filled(3);
    Trends::Polynomial(solver, Points{{0, 1}, {4, 5}}, ofTwo);
    EXPECT_EQ(ofTwo[2].fXVal, 8.0);
}

TEST(PolynomialTrend, OnePointHasNoStepToRepeat)
{
    const Points points{{5, 3}};
    CPolynomialSolver solver;
    ASSERT_TRUE(Fit(solver, points, 1));
    Points trend = Filled(4);
    Trends::Polynomial(solver, points, trend);
    for (const TDataPoint& point : trend) {
        EXPECT_EQ(point.fXVal, 5.0);
        EXPECT_EQ(point.fYVal, 3.0);
    }
}

TEST(PolynomialTrend, OnlyTermsWithACoefficientAreSummed)
{
    CPolynomialSolver solver;
    solver.m_fCoeffs.fill(1.0);
    solver.m_nDegree = CPolynomialSolver::MaxTerms + 9;
    EXPECT_EQ(solver.Evaluate(1.0), CPolynomialSolver::MaxTerms);
}

TEST(Trends, WithoutPointsNothingIsWritten)
{
    CPolynomialSolver solver;
    Points trend = Filled(3);
    Trends::Linear({}, trend);
    Trends::Cubic({}, trend);
    Trends::Polynomial(solver, {}, trend);
    for (const TDataPoint& point : trend) {
        EXPECT_EQ(point.fXVal, -1.0);
        EXPECT_EQ(point.fYVal, -1.0);
    }
}

TEST(PolynomialTrend, EqualXValuesAreSingular)
{
    CPolynomialSolver solver;
    EXPECT_FALSE(Fit(solver, Points{{0, 1}, {0, 2}}, 2));
}

TEST(PolynomialTrend, NoTermsEvaluateToZero)
{
    const Points points{{0, 1}, {1, 2}};
    CPolynomialSolver solver;
    EXPECT_TRUE(Fit(solver, points, 0));
    EXPECT_EQ(solver.Evaluate(3.0), 0.0);
    EXPECT_TRUE(Fit(solver, points, -4));
    EXPECT_EQ(solver.Evaluate(3.0), 0.0);
}

TEST(PolynomialTrend, MoreTermsThanThereIsRoomForAreRefused)
{
    CPolynomialSolver solver;
    solver.m_fCoeffs[0] = 42.0;
    EXPECT_FALSE(solver.Solve(1, 22, Points{{0, 1}}.data()));
    EXPECT_EQ(solver.m_fCoeffs[0], 42.0);
}

TEST(PolynomialTrend, ValuesThatAreNotNumbersFindNoPivot)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    CPolynomialSolver solver;
    EXPECT_FALSE(Fit(solver, Points{{nan, 1}, {1, 2}, {2, nan}}, 2));
}

TEST(GaussJordan, TakesTheFirstOfEqualPivotsAndSolves)
{
    CPolynomialSolver::Matrix matrix{};
    CPolynomialSolver::Vector right{};
    matrix[0] = {0.0, 2.0};
    matrix[1] = {4.0, 1.0};
    right = {6.0, 7.0};
    ASSERT_TRUE(CPolynomialSolver::GaussJordan(matrix, right, 2));
    EXPECT_EQ(right[0], 1.0);
    EXPECT_EQ(right[1], 3.0);
}

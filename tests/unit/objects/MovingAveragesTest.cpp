#include "objects/MovingAverages.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <vector>

namespace
{
using Points = std::vector<TDataPoint>;
using Kind = std::function<void(std::span<const TDataPoint>, int, std::span<TDataPoint>)>;

const Kind windowed[] = {MovingAverages::Simple, MovingAverages::Linear, MovingAverages::Triangular,
                         MovingAverages::SineWeighted};

Points Series(std::initializer_list<double> values)
{
    Points points;
    for (const double y : values)
        points.push_back({10.0 * static_cast<double>(points.size()), y});
    return points;
}

Points Average(const Kind& kind, const Points& points, int span)
{
    Points result(points.size());
    kind(points, span, result);
    return result;
}

std::vector<double> Ys(const Points& points)
{
    std::vector<double> values;
    for (const TDataPoint& point : points)
        values.push_back(point.fYVal);
    return values;
}
} // namespace

TEST(MovingAverages, OnePointIsCopied)
{
    for (const Kind& kind : windowed)
        EXPECT_EQ(Ys(Average(kind, Series({7.5}), 3)), std::vector<double>{7.5});
    EXPECT_EQ(Ys(Average(MovingAverages::Exponential, Series({7.5}), 3)), std::vector<double>{7.5});
}

TEST(MovingAverages, AnEmptyCurveGivesNothing)
{
    for (const Kind& kind : windowed)
        EXPECT_TRUE(Average(kind, {}, 3).empty());
}

TEST(MovingAverages, KeepTheXValuesOfTheCurve)
{
    const Points average = Average(MovingAverages::Triangular, Series({1, 2, 3}), 2);
    EXPECT_EQ(average[0].fXVal, 0.0);
    EXPECT_EQ(average[1].fXVal, 10.0);
    EXPECT_EQ(average[2].fXVal, 20.0);
}

TEST(MovingAverages, SpanOfOneGivesTheCurveItself)
{
    const Points points = Series({3, -1, 4, 1, -5});
    for (const Kind& kind : windowed)
        EXPECT_EQ(Ys(Average(kind, points, 1)), Ys(points));
    EXPECT_EQ(Ys(Average(MovingAverages::Exponential, points, 1)), Ys(points));
}

TEST(MovingAverages, TheFirstPointIsInNoWindow)
{
    EXPECT_EQ(Ys(Average(MovingAverages::Simple, Series({1, 2, 3, 4, 5}), 3)),
              (std::vector<double>{1, 2, 2.5, 3, 4}));
}

TEST(MovingAverages, LinearWeighsTheNewestMost)
{
    EXPECT_EQ(Average(MovingAverages::Linear, Series({1, 2, 3, 4, 5}), 3)[3].fYVal, 20.0 / 6.0);
}

TEST(MovingAverages, TriangularWeighsTheMiddleMost)
{
    // w = 3: centre 2, weights (1 - 1/2) 3, (1 - 0) 3, (1 - 1/2) 3 on 7, 4, 2.
    EXPECT_EQ(Average(MovingAverages::Triangular, Series({9, 2, 4, 7}), 3)[3].fYVal,
              (1.5 * 7 + 3.0 * 4 + 1.5 * 2) / (1.5 + 3.0 + 1.5));
}

TEST(MovingAverages, SineWeightsTakeTheirAngleFromTheSpanWhileTheWindowGrows)
{
    const double b = 3.14159265358979 / 4;
    const Points average = Average(MovingAverages::SineWeighted, Series({9, 2, 4, 7}), 3);
    EXPECT_EQ(average[2].fYVal,
              (std::sin(2 * b) * 4 + std::sin(b) * 2) / (std::sin(b) + std::sin(2 * b)));
    EXPECT_EQ(average[3].fYVal, (std::sin(3 * b) * 7 + std::sin(2 * b) * 4 + std::sin(b) * 2) /
                                    (std::sin(b) + std::sin(2 * b) + std::sin(3 * b)));
}

TEST(MovingAverages, SpanOfZeroIsNotANumberButExponentialExtrapolates)
{
    for (const Kind& kind : windowed)
        for (std::size_t i = 1; i < 3; ++i)
            EXPECT_TRUE(std::isnan(Average(kind, Series({1, 2, 4}), 0)[i].fYVal));
    EXPECT_EQ(Ys(Average(MovingAverages::Exponential, Series({1, 2, 4}), 0)),
              (std::vector<double>{1, 3, 5})); // 2 y - previous
}

TEST(MovingAverages, NegativeSpanDividesEmptySums)
{
    const double simple = Average(MovingAverages::Simple, Series({1, 2, 4}), -2)[1].fYVal;
    EXPECT_EQ(simple, 0.0);
    EXPECT_TRUE(std::signbit(simple));
    for (std::size_t kind = 1; kind < std::size(windowed); ++kind)
        EXPECT_TRUE(std::isnan(Average(windowed[kind], Series({1, 2, 4}), -2)[1].fYVal));
}

TEST(MovingAverages, SpanAboveTheCountGrowsToTheEnd)
{
    const Points average = Average(MovingAverages::Simple, Series({100, 2, 4, 6}), INT_MAX);
    EXPECT_EQ(Ys(average), (std::vector<double>{100, 2, 3, 4}));
    EXPECT_EQ(Ys(Average(MovingAverages::Linear, Series({100, 2, 4, 6}), INT_MAX))[3],
              (3.0 * 6 + 2 * 4 + 2) / 6);
}

TEST(MovingAverages, AFullWindowReusesItsWeightsBitForBit)
{
    Points points;
    for (int i = 0; i < 400; ++i)
        points.push_back({0.25 * i, std::sin(i * 0.7) * 1e3 + i});
    const Points average = Average(MovingAverages::Triangular, points, 17);
    for (int i = 1; i < 400; ++i) {
        const int w = std::min(i, 17);
        const double c = (w + 1) * 0.5;
        double sum = 0.0;
        double weights = 0.0;
        for (int j = 1; j <= w; ++j) {
            const double weight = (1.0 - std::fabs((j - c) / c)) * w;
            sum += weight * points[i - j + 1].fYVal;
            weights += weight;
        }
        ASSERT_EQ(average[i].fYVal, sum / weights) << i;
    }
}

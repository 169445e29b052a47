#include "objects/PointCopy.h"

#include <gtest/gtest.h>

#include "objects/IndexSearch.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace
{

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

// Each fact against the walk that finds it alone, and the copy to the last bit.
void ExpectTheFactsOf(const std::vector<TDataPoint>& points)
{
    std::vector<TDataPoint> copy(points.size());
    const TPointFacts facts = PointCopy::Copy(points, copy.data());
    EXPECT_TRUE(points.empty() ||
                std::memcmp(copy.data(), points.data(), points.size() * sizeof(TDataPoint)) == 0);
    EXPECT_EQ(facts.bAscending, IndexSearch::IsAscending(points));
    for (const TDataExtent& start :
         {DataExtent::Nothing, TDataExtent{-0.0, 0.0, 0.0, -0.0}, TDataExtent{Nan, Nan, 5, -5}}) {
        const TDataExtent widened = DataExtent::Widen(start, facts.extent);
        const TDataExtent expected = DataExtent::WidenPlain(start, points);
        EXPECT_EQ(std::memcmp(&widened, &expected, sizeof widened), 0)
            << widened.fMinX << ' ' << widened.fMaxX << ' ' << widened.fMinY << ' ' << widened.fMaxY
            << " instead of " << expected.fMinX << ' ' << expected.fMaxX << ' ' << expected.fMinY << ' '
            << expected.fMaxY;
    }
}

std::vector<TDataPoint> Rising(int nCount)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < nCount; ++i)
        points.push_back({i / 3.0, std::sin(i)});
    return points;
}

} // namespace

TEST(PointCopy, FindsTheExtentAndTheOrderOfAnyNumberOfPoints)
{
    for (const int nCount : {0, 1, 2, 511, 512, 513, 1024, 1025, 5000})
        ExpectTheFactsOf(Rising(nCount));
}

TEST(PointCopy, SeesAFallAtEachPlaceOfABlock)
{
    for (const std::size_t place : {1u, 2u, 510u, 511u, 512u, 513u, 1023u, 1024u, 1499u}) {
        for (const double value : {-1.0, Nan, Infinity, -Infinity}) {
            std::vector<TDataPoint> points = Rising(1500);
            points[place].fXVal = value;
            ExpectTheFactsOf(points);
            ASSERT_FALSE(HasFailure()) << value << " at " << place;
        }
    }
}

TEST(PointCopy, RandomAndExtremeValuesGiveWhatTheSingleWalksGive)
{
    std::mt19937 random(12);
    const double specials[] = {Nan, Infinity, -Infinity, 0.0, -0.0, 5e-324, 1e308, -1e308};
    for (int round = 0; round < 400; ++round) {
        std::vector<TDataPoint> points(random() % 1600);
        for (TDataPoint& point : points) {
            const auto draw = [&] {
                return random() % 4 == 0 ? specials[random() % 8] : static_cast<int>(random() % 9) - 4.0;
            };
            point = {draw(), draw()};
        }
        ExpectTheFactsOf(points);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

#include "objects/DataExtent.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace
{

constexpr TDataExtent Fresh{DBL_MAX, -DBL_MAX, DBL_MAX, -DBL_MAX};
constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

// Bit for bit, so that the sign of a zero counts.
void ExpectSame(const TDataExtent& actual, const TDataExtent& expected)
{
    EXPECT_EQ(std::memcmp(&actual, &expected, sizeof actual), 0)
        << actual.fMinX << ' ' << actual.fMaxX << ' ' << actual.fMinY << ' ' << actual.fMaxY
        << " instead of " << expected.fMinX << ' ' << expected.fMaxX << ' ' << expected.fMinY << ' '
        << expected.fMaxY;
}

} // namespace

TEST(DataExtent, AFreshExtentTakesTheDatasOwn)
{
    const std::vector<TDataPoint> points{{1, 5}, {3, -2}, {2, 9}};
    ExpectSame(DataExtent::Widen(Fresh, points), {1, 3, -2, 9});
}

TEST(DataExtent, AnExistingExtentOnlyGrows)
{
    const std::vector<TDataPoint> points{{1, 5}, {3, 20}};
    ExpectSame(DataExtent::Widen({0, 2, 0, 10}, points), {0, 3, 0, 20});
}

TEST(DataExtent, NoPointsChangeNothing)
{
    ExpectSame(DataExtent::Widen({1, 2, 3, 4}, std::vector<TDataPoint>()), {1, 2, 3, 4});
}

TEST(DataExtent, ValuesThatAreNoNumberWidenNothing)
{
    const std::vector<TDataPoint> points{{Nan, 1}, {2, Nan}, {Nan, Nan}, {1, 2}, {Nan, 7}};
    ExpectSame(DataExtent::Widen(Fresh, points), {1, 2, 1, 7});
}

TEST(DataExtent, NothingButNanLeavesAFreshExtent)
{
    ExpectSame(DataExtent::Widen(Fresh, std::vector<TDataPoint>(9, {Nan, Nan})), Fresh);
}

TEST(DataExtent, InfinitiesAndDenormalsAreValuesLikeOthers)
{
    const std::vector<TDataPoint> points{{Infinity, -Infinity}, {5e-324, -5e-324}};
    ExpectSame(DataExtent::Widen(Fresh, points), {5e-324, Infinity, -Infinity, -5e-324});
}

TEST(DataExtent, AZeroBoundHasTheSignOfTheFirstZero)
{
    // The first zero is where another lane than the first sees it.
    std::vector<TDataPoint> points(8, {-1, 1});
    points[3] = {-0.0, 0.0};
    points[4] = {0.0, -0.0};
    ExpectSame(DataExtent::Widen(Fresh, points), DataExtent::WidenPlain(Fresh, points));
    EXPECT_TRUE(std::signbit(DataExtent::Widen(Fresh, points).fMaxX));
    EXPECT_FALSE(std::signbit(DataExtent::Widen(Fresh, points).fMinY));
}

TEST(DataExtent, TheFastWalkAgreesWithThePlainOneBitForBit)
{
    std::mt19937 random(7);
    const double specials[] = {Nan, Infinity, -Infinity, 0.0, -0.0, 5e-324, 1e308, -1e308};
    for (int round = 0; round < 2000; ++round) {
        std::vector<TDataPoint> points(random() % 70);
        for (TDataPoint& point : points) {
            auto draw = [&] {
                return random() % 4 == 0 ? specials[random() % 8] : static_cast<int>(random() % 9) - 4.0;
            };
            point = {draw(), draw()};
        }
        const TDataExtent start = random() % 2 ? Fresh : TDataExtent{-0.0, 0.0, 1.0, 1.0};
        ExpectSame(DataExtent::Widen(start, points), DataExtent::WidenPlain(start, points));
    }
}

#include "objects/DateTimeSteps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace
{

using namespace DateTimeSteps;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Second = 1.0 / 86400.0;
const double NaN = std::nan("");

double StepInSeconds(int n, double seconds)
{
    double step = -1;
    CalcDateTimeStep(n, 40000.0, 40000.0 + seconds * Second, step);
    return step * 86400.0;
}

std::pair<double, double> Adjusted(double lower, double upper, double step)
{
    AdjustDateTimeRange(lower, upper, step);
    return {lower, upper};
}

TEST(WholeSeconds, CountsToTheNearestHalf)
{
    EXPECT_EQ(WholeSeconds(40000.0, 40000.0 + 100.4 * Second), 100);
    EXPECT_EQ(WholeSeconds(40000.0, 40000.0 + 99.6 * Second), 100);
    EXPECT_EQ(WholeSeconds(40000.0 + 100 * Second, 40000.0), -100);
}

TEST(WholeSeconds, FoldsDatesBeforeTheOrigin)
{
    // -1.25 is day -1 at six in the morning: a quarter day after -1.
    EXPECT_EQ(WholeSeconds(-1.25, 0), 0.75 * 86400);
    EXPECT_EQ(WholeSeconds(-1.75, -1.25), -0.5 * 86400);
    EXPECT_EQ(WholeSeconds(-2.0, 1.0), 3 * 86400);
}

TEST(CalcDateTimeStep, HundredSecondsOverEightTicksGiveFifteen)
{
    EXPECT_EQ(StepInSeconds(8, 100), 15);
}

TEST(CalcDateTimeStep, TakesTheFirstEntryAtOrAboveTheQuotient)
{
    EXPECT_EQ(StepInSeconds(10, 10), 1);
    EXPECT_EQ(StepInSeconds(10, 3), 1);
    EXPECT_EQ(StepInSeconds(10, 11), 2);
    EXPECT_EQ(StepInSeconds(1, 30), 30);
    EXPECT_EQ(StepInSeconds(1, 31), 60);
    EXPECT_EQ(StepInSeconds(10, 86400.0 * 365), 4838400);
}

TEST(CalcDateTimeStep, OfferedAreTheWholeUnitsOfTheCalendar)
{
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    constexpr int day = 24 * hour;
    constexpr int week = 7 * day;
    constexpr int year = 364 * day; // of 52 weeks
    const int offered[] = {1,         2,         5,          10,         15,          20,
                           30,        minute,    2 * minute, 5 * minute, 10 * minute, 15 * minute,
                           hour / 2,  hour,      2 * hour,   4 * hour,   8 * hour,    10 * hour,
                           12 * hour, day,       2 * day,    4 * day,    week,        2 * week,
                           4 * week,  8 * week,  12 * week,  26 * week,  year,        2 * year,
                           5 * year,  10 * year, 20 * year,  50 * year};
    int previous = 0;
    for (const int step : offered) {
        EXPECT_EQ(StepInSeconds(1, previous + 1), step);
        EXPECT_EQ(StepInSeconds(1, step), step);
        previous = step;
    }
}

TEST(CalcDateTimeStep, BeyondTheTableTheQuotientIsKept)
{
    EXPECT_EQ(StepInSeconds(1, 1572480000), 1572480000);
    EXPECT_DOUBLE_EQ(StepInSeconds(1, 1572480001), 1572480001);
    EXPECT_DOUBLE_EQ(StepInSeconds(2, 4e9), 2e9);
}

TEST(CalcDateTimeStep, NoTicksAndNoSpanGiveNoStep)
{
    EXPECT_EQ(StepInSeconds(0, 100), 0);
    EXPECT_EQ(StepInSeconds(-3, 100), 0);
    EXPECT_EQ(StepInSeconds(8, 0), 0);
    EXPECT_LT(StepInSeconds(8, -100), 0);
}

TEST(CalcDateTimeStep, InfiniteAndUndefinedRangesAreEmpty)
{
    for (const auto& [lower, upper] : {std::pair{-Infinity, Infinity}, std::pair{0.0, Infinity},
                                       std::pair{NaN, 1.0}, std::pair{-1.7e308, 1.7e308}}) {
        double step = 7;
        EXPECT_FALSE(CalcDateTimeStep(5, lower, upper, step));
        EXPECT_EQ(step, 7);
    }
}

TEST(AdjustDateTimeRange, BoundsLandOnWholeStepsSince1970)
{
    const double day = Epoch + 15000;
    const auto [lower, upper] = Adjusted(day + 0.3, day + 2.6, 1.0);
    EXPECT_DOUBLE_EQ(lower, day);
    EXPECT_DOUBLE_EQ(upper, day + 3);
}

TEST(AdjustDateTimeRange, MultiplesStay)
{
    const double day = Epoch + 15000;
    EXPECT_EQ(Adjusted(day, day + 2, 1.0), std::pair(day, day + 2));
}

TEST(AdjustDateTimeRange, ReachesPast2038)
{
    const double day = Epoch + 40000;
    EXPECT_EQ(Adjusted(day + 0.5, day + 2.5, 1.0), std::pair(day, day + 3));
}

TEST(AdjustDateTimeRange, BoundsBefore1970WrapInUnsignedSeconds)
{
    const auto [lower, upper] = Adjusted(Epoch - 1.5, Epoch + 1.5, 1.0);
    const std::uint32_t wrapped = static_cast<std::uint32_t>(-129600) / 86400 * 86400;
    EXPECT_EQ(lower, wrapped / 24.0 / 3600.0 + Epoch);
    EXPECT_EQ(upper, Epoch + 2);
}

TEST(AdjustDateTimeRange, StepsUnderASecondChangeNothing)
{
    for (const double step : {0.0, -1.0, NaN, 0.5 * Second})
        EXPECT_EQ(Adjusted(Epoch + 0.3, Epoch + 0.6, step), std::pair(Epoch + 0.3, Epoch + 0.6)) << step;
}

TEST(AdjustDateTimeRange, StepsBeyond32BitsAreTheSmallestInt)
{
    constexpr double unit = 2147483648.0; // seconds: the smallest int as an unsigned number
    for (const double step :
         {2147483700.0 * Second, 3e9 * Second, 4294967296.0 * Second, 1e300, Infinity}) {
        const auto [lower, upper] = Adjusted(Epoch + 100, Epoch + 30000, step);
        EXPECT_EQ(lower, Epoch) << step;
        EXPECT_EQ(upper, Epoch) << step; // two units wrap to none
    }
    EXPECT_EQ(Adjusted(Epoch + 100, Epoch + 200, 3e9 * Second).second, unit / 24.0 / 3600.0 + Epoch);
    EXPECT_EQ(Adjusted(Epoch, Epoch, 3e9 * Second), std::pair(Epoch, Epoch));
}

TEST(AdjustDateTimeRange, BoundsThatAreNoDatesStay)
{
    const auto [lower, upper] = Adjusted(-Infinity, 1e300, 1.0);
    EXPECT_EQ(lower, -Infinity);
    EXPECT_EQ(upper, 1e300);
    EXPECT_TRUE(std::isnan(Adjusted(NaN, 1, 1).first));
    const double farthest = 0x1p62 / 86400 + 25569; // more seconds than are counted, by one
    EXPECT_EQ(Adjusted(farthest, 1e300, 1).first, farthest);
}

} // namespace

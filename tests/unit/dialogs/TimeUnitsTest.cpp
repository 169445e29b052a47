#include "dialogs/TimeUnits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
void ExpectSplit(double fSeconds, unsigned nCount, int nUnit)
{
    const TimeUnits::TStep step = TimeUnits::Split(fSeconds / 86400.0);
    EXPECT_EQ(step.nCount, nCount) << fSeconds;
    EXPECT_EQ(step.nUnit, nUnit) << fSeconds;
}
} // namespace

TEST(TimeUnits, AStepIsSplitIntoTheLargestUnitThatItIsAboveAndAMultipleOf)
{
    ExpectSplit(1, 1, TimeUnits::Seconds);
    ExpectSplit(60, 60, TimeUnits::Seconds);
    ExpectSplit(61, 61, TimeUnits::Seconds);
    ExpectSplit(120, 2, TimeUnits::Minutes);
    ExpectSplit(1440, 24, TimeUnits::Minutes);
    ExpectSplit(7200, 5, TimeUnits::Hours);
    ExpectSplit(86400, 60, TimeUnits::Hours);
    ExpectSplit(172800, 2, TimeUnits::Days);
    ExpectSplit(90000, 1500, TimeUnits::Minutes);
}

TEST(TimeUnits, HalfASecondRoundsUp)
{
    ExpectSplit(59.4, 59, TimeUnits::Seconds);
    ExpectSplit(59.6, 60, TimeUnits::Seconds);
    ExpectSplit(0, 0, TimeUnits::Seconds);
}

TEST(TimeUnits, AStepThatIsNoneGivesACountBeyondEveryLimit)
{
    constexpr unsigned limit = 22118400;
    for (const double fDays : {-1.0, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN(), 1e300, -1e300})
        EXPECT_GT(TimeUnits::Split(fDays).nCount, limit) << fDays;
}

TEST(TimeUnits, AnHourOfAStepHas3600Seconds)
{
    EXPECT_EQ(TimeUnits::InDays({2, TimeUnits::Hours}), 7200 / 86400.0);
    EXPECT_EQ(TimeUnits::InDays({2, TimeUnits::Minutes}), 120 / 86400.0);
    EXPECT_EQ(TimeUnits::InDays({2, TimeUnits::Days}), 2.0);
    for (const int nUnit : {TimeUnits::Seconds + 0, -1, 4})
        EXPECT_EQ(TimeUnits::InDays({2, nUnit}), 2 / 86400.0) << nUnit;
}

TEST(TimeUnits, TheLargestCountOfDaysStaysExact)
{
    EXPECT_EQ(TimeUnits::InDays({22118400, TimeUnits::Days}), 22118400.0);
}

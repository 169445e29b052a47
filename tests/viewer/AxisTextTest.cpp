#include "viewer/AxisText.h"

#include "viewer/CellValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using Viewer::DateFormatFor;
using Viewer::DateToOle;
using Viewer::GraphRoundsDatesWell;
using Viewer::NumberFormatFor;
using Viewer::RoundDateRange;

namespace
{

TEST(AxisText, ShowsAsManyDecimalsAsTicksNeed)
{
    EXPECT_EQ(u"%.0f", NumberFormatFor(315, 415));
    EXPECT_EQ(u"%.1f", NumberFormatFor(0, 10));
    EXPECT_EQ(u"%.3f", NumberFormatFor(0, 0.1));
    EXPECT_EQ(u"%.0f", NumberFormatFor(0, 45'000));
}

TEST(AxisText, TurnsToExponentsForLargeAndTinyValues)
{
    EXPECT_EQ(u"%.2e", NumberFormatFor(0, 3e7));
    EXPECT_EQ(u"%.2e", NumberFormatFor(0, 1e-12));
    EXPECT_EQ(u"%.14e", NumberFormatFor(1e300, 1e300 + 1e285));
}

TEST(AxisText, AnUndefinedOrEmptySpanHasAPlainFormat)
{
    EXPECT_EQ(u"%g", NumberFormatFor(5, 5));
    EXPECT_EQ(u"%g", NumberFormatFor(-1e308, 1e308));
    EXPECT_EQ(u"%g", NumberFormatFor(0, std::numeric_limits<double>::quiet_NaN()));
}

TEST(AxisText, DatesAreShownByTheirSpan)
{
    const double day = DateToOle({2012, 1, 1});
    EXPECT_EQ(u"%Y", DateFormatFor(day, day + 62 * 365));
    EXPECT_EQ(u"%Y-%m", DateFormatFor(day, day + 1461));
    EXPECT_EQ(u"%Y-%m-%d", DateFormatFor(day, day + 90));
    EXPECT_EQ(u"%m-%d %H:%M", DateFormatFor(day, day + 3));
    EXPECT_EQ(u"%H:%M", DateFormatFor(day, day + 0.5));
    EXPECT_EQ(u"%H:%M:%S", DateFormatFor(day, day + 0.001));
}

TEST(AxisText, TheGraphRoundsSpansOfFewYearsWithinUnsignedSecondsSince1970)
{
    EXPECT_TRUE(GraphRoundsDatesWell(DateToOle({2012, 1, 1}), DateToOle({2015, 12, 31})));
    EXPECT_FALSE(GraphRoundsDatesWell(DateToOle({1958, 3, 1}), DateToOle({2020, 4, 1})));
    EXPECT_FALSE(GraphRoundsDatesWell(DateToOle({2001, 1, 1}), DateToOle({2017, 1, 1})));
    EXPECT_FALSE(GraphRoundsDatesWell(DateToOle({1970, 1, 2}), DateToOle({1972, 1, 1})));
    EXPECT_FALSE(GraphRoundsDatesWell(DateToOle({2104, 1, 1}), DateToOle({2106, 3, 1})));
}

TEST(AxisText, DecadesGetARangeOfWholeYears)
{
    const double low = DateToOle({1958, 3, 1});
    const double high = DateToOle({2020, 4, 1});

    const auto range = RoundDateRange(low, high);

    EXPECT_EQ(DateToOle({1955, 1, 3}), range.low);
    EXPECT_EQ(DateToOle({2025, 1, 3}), range.high);
    for (int tick = 0; tick <= 10; ++tick) {
        EXPECT_EQ(1955 + 7 * tick,
                  Viewer::OleToDate(range.low + (range.high - range.low) / 10 * tick).year);
    }
}

TEST(AxisText, RoundedRangesHoldWhatTheyRound)
{
    for (const double length : {0.0, 0.3, 10.0, 33.0, 700.0, 2900.0, 3000.0, 30'000.0, 900'000.0}) {
        const double low = DateToOle({1901, 7, 9}) + 0.75;
        const auto range = RoundDateRange(low, low + length);
        EXPECT_LE(range.low, low) << length;
        EXPECT_GE(range.high, low + length) << length;
        EXPECT_LT(range.low, range.high);
    }
}

TEST(AxisText, ARangeFromNewYearHoldsItsFirstDay)
{
    const auto range = RoundDateRange(DateToOle({1955, 1, 1}), DateToOle({2020, 1, 1}));
    EXPECT_LE(range.low, DateToOle({1955, 1, 1}));
}

TEST(AxisText, RangesAtTheEndsOfTheCalendarStayInIt)
{
    const auto range = RoundDateRange(DateToOle({100, 1, 1}), DateToOle({9999, 12, 31}));
    EXPECT_GE(Viewer::OleToDate(range.low).year, 100);
    EXPECT_LE(Viewer::OleToDate(range.high).year, 9999);
}

} // namespace

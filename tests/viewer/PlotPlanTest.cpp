#include "viewer/PlotPlan.h"

#include "viewer/ViewerError.h"

#include <gtest/gtest.h>

using Viewer::MakePlan;
using Viewer::Options;
using Viewer::PlotPlan;

namespace
{

PlotPlan Plan(std::u16string_view text, const Options& options = {})
{
    return MakePlan(Viewer::MakeTable(Viewer::SplitCsv(text)), options);
}

std::u16string Refusal(std::u16string_view text, const Options& options = {})
{
    try {
        (void)Plan(text, options);
    } catch (const Viewer::Error& error) {
        EXPECT_EQ(Viewer::ExitCode::BadData, error.exitCode);
        return error.text;
    }
    return u"";
}

constexpr std::u16string_view Weather = u"date,rain,temp,wind,sky\n"
                                        u"2012-01-01,0,12.8,4.7,drizzle\n"
                                        u"2012-01-02,10.9,,4.5,rain\n"
                                        u"2012-01-03,0.8,n/a,2.3,rain\n"
                                        u"2012-01-04,20.3,12.2,4.7,rain\n";

TEST(PlotPlan, PlotsTheFirstColumnAgainstAllNumericOnes)
{
    const PlotPlan plan = Plan(Weather);

    ASSERT_EQ(3u, plan.curves.size());
    EXPECT_EQ(u"rain", plan.curves[0].label);
    EXPECT_EQ(u"temp", plan.curves[1].label);
    EXPECT_EQ(u"wind", plan.curves[2].label);
    EXPECT_EQ(1u, plan.y.size());
    EXPECT_EQ(u"date", plan.x.title);
    EXPECT_TRUE(plan.x.date);
    EXPECT_EQ(40909.0, plan.curves[0].points[0].x);
    EXPECT_EQ(10.9, plan.curves[0].points[1].y);
}

TEST(PlotPlan, SkipsAndCountsRowsThatHoldNoValue)
{
    const PlotPlan plan = Plan(Weather);

    EXPECT_EQ(4u, plan.rows);
    EXPECT_EQ(0u, plan.curves[0].skipped);
    EXPECT_EQ(2u, plan.curves[1].skipped);
    EXPECT_EQ(3u, plan.curves[1].firstSkippedLine);
    EXPECT_EQ(2u, plan.curves[1].points.size());
    EXPECT_EQ(u"w.csv: 4 rows\n"
              u"  rain: 4 points\n"
              u"  temp: 2 points, 2 rows skipped (the first in line 3)\n"
              u"  wind: 4 points\n",
              Viewer::Describe(plan, u"w.csv"));
}

TEST(PlotPlan, PutsColumnsOnASecondAxis)
{
    Options options;
    options.y = {u"temp"};
    options.y2 = {u"rain", u"WIND"};

    const PlotPlan plan = Plan(Weather, options);

    ASSERT_EQ(3u, plan.curves.size());
    ASSERT_EQ(2u, plan.y.size());
    EXPECT_EQ(0, plan.curves[0].yAxis);
    EXPECT_EQ(1, plan.curves[1].yAxis);
    EXPECT_EQ(1, plan.curves[2].yAxis);
    EXPECT_EQ(u"temp", plan.y[0].title);
    EXPECT_EQ(u"rain, wind", plan.y[1].title);
}

TEST(PlotPlan, LeavesColumnsOfTheSecondAxisOutOfTheFirst)
{
    Options options;
    options.y2 = {u"wind"};

    const PlotPlan plan = Plan(Weather, options);

    ASSERT_EQ(3u, plan.curves.size());
    EXPECT_EQ(u"rain", plan.curves[0].label);
    EXPECT_EQ(u"temp", plan.curves[1].label);
    EXPECT_EQ(u"wind", plan.curves[2].label);
    EXPECT_EQ(1, plan.curves[2].yAxis);
}

TEST(PlotPlan, ASecondAxisAloneBecomesTheFirst)
{
    Options options;
    options.y2 = {u"b"};

    const PlotPlan plan = Plan(u"a,b\n1,2\n2,3\n", options);

    ASSERT_EQ(1u, plan.y.size());
    EXPECT_EQ(0, plan.curves[0].yAxis);
}

TEST(PlotPlan, MakesACurveForEachWordOfAGroup)
{
    Options options;
    options.group = u"sky";
    options.y = {u"wind"};

    const PlotPlan plan = Plan(Weather, options);

    ASSERT_EQ(2u, plan.curves.size());
    EXPECT_EQ(u"drizzle", plan.curves[0].label);
    EXPECT_EQ(1u, plan.curves[0].points.size());
    EXPECT_EQ(u"rain", plan.curves[1].label);
    EXPECT_EQ(3u, plan.curves[1].points.size());
}

TEST(PlotPlan, NumbersRowsWhereTheFirstColumnHoldsWords)
{
    const PlotPlan plan = Plan(u"town,n\nOslo,5\nRome,7\n");

    EXPECT_TRUE(plan.rowNumbers);
    EXPECT_EQ(u"row", plan.x.title);
    EXPECT_EQ(2.0, plan.curves[0].points[1].x);
    EXPECT_NE(std::u16string::npos, Viewer::Describe(plan, u"t.csv").find(u"rows are numbered"));
    // Tenths of this range are whole rows.
    EXPECT_FALSE(plan.x.autoScale);
    EXPECT_EQ(1, plan.x.low);
    EXPECT_EQ(11, plan.x.high);
    EXPECT_EQ(u"%.0f", plan.x.format);
}

TEST(PlotPlan, ASingleColumnIsPlottedOverItsRows)
{
    const PlotPlan plan = Plan(u"n\n5\n7\n");

    ASSERT_EQ(1u, plan.curves.size());
    EXPECT_EQ(7.0, plan.curves[0].points[1].y);
}

TEST(PlotPlan, NamesTheColumnsThatExistWhenOneIsMissing)
{
    Options options;
    options.y = {u"pressure"};

    const std::u16string text = Refusal(Weather, options);

    EXPECT_NE(std::u16string::npos, text.find(u"\"pressure\""));
    EXPECT_NE(std::u16string::npos, text.find(u"\"wind\""));
}

TEST(PlotPlan, RefusesWhatCannotBePlotted)
{
    EXPECT_FALSE(Refusal(u"a,b\nx,y\n").empty());
    Options words;
    words.y = {u"sky"};
    EXPECT_FALSE(Refusal(Weather, words).empty());
    Options mixed;
    mixed.x = u"wind";
    mixed.y = {u"rain", u"date"};
    EXPECT_FALSE(Refusal(Weather, mixed).empty());
    Options emptyX;
    emptyX.x = u"e";
    EXPECT_FALSE(Refusal(u"e,b\n,1\n,2\n", emptyX).empty());
}

TEST(PlotPlan, RefusesMoreCurvesThanCanBeTold)
{
    std::u16string text = u"x";
    std::u16string values = u"1";
    for (int column = 0; column < 101; ++column) {
        text += u",c";
        values += u",2";
    }
    EXPECT_FALSE(Refusal(text + u"\n" + values + u"\n").empty());
}

TEST(PlotPlan, DatesBefore1970GetARangeOfTheirOwn)
{
    const PlotPlan plan = Plan(u"date,v\n1958-03-01,1\n2020-04-01,2\n");

    EXPECT_FALSE(plan.x.autoScale);
    EXPECT_LE(plan.x.low, plan.curves[0].points[0].x);
    EXPECT_GE(plan.x.high, plan.curves[0].points[1].x);
    EXPECT_EQ(u"%Y", plan.x.format);
    EXPECT_TRUE(Plan(Weather).x.autoScale);
}

} // namespace

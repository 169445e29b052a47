#include "viewer/CategoryPlan.h"

#include "viewer/ViewerError.h"

#include <gtest/gtest.h>

#include <limits>

using Viewer::CategoryPlan;
using Viewer::MakeCategoryPlan;
using Viewer::Options;

namespace
{

using Names = std::vector<std::u16string>;
using Values = std::vector<double>;

Viewer::Table Read(std::u16string_view text)
{
    return Viewer::MakeTable(Viewer::SplitCsv(text));
}

const char16_t* const power = u"year,source,made\n"
                              u"2001-01-01,Coal,35\n"
                              u"2002-01-01,Coal,36\n"
                              u"2001-01-01,Wind,4\n"
                              u"2002-01-01,Wind,\n"
                              u"2003-01-01,Wind,12\n";

Options Grouped()
{
    Options options;
    options.group = u"source";
    options.chart = Viewer::ChartKind::Bar;
    return options;
}

template <class Action> Viewer::ExitCode Refusal(Action action)
{
    try {
        (void)action();
    } catch (const Viewer::Error& error) {
        EXPECT_FALSE(error.text.empty());
        return error.exitCode;
    }
    return Viewer::ExitCode::Done;
}

TEST(CategoryPlan, GroupsMakeSeriesAndFirstDaysOfYearsMakeYears)
{
    const CategoryPlan plan = MakeCategoryPlan(Read(power), Grouped());

    EXPECT_EQ((Names{u"2001", u"2002", u"2003"}), plan.categories);
    ASSERT_EQ(2u, plan.series.size());
    EXPECT_EQ(u"Coal", plan.series[0].name);
    EXPECT_EQ((Values{35, 36, 0}), plan.series[0].values);
    EXPECT_EQ((Values{4, 0, 12}), plan.series[1].values);
    EXPECT_EQ(1u, plan.skipped);
}

TEST(CategoryPlan, FirstDaysOfMonthsMakeMonthsAndOtherDatesStayWhole)
{
    EXPECT_EQ((Names{u"2001-01", u"2001-02"}),
              MakeCategoryPlan(Read(u"d,v\n2001-01-01,1\n2001-02-01,2\n"), {}).categories);
    EXPECT_EQ((Names{u"2001-01-01", u"2001-02-03"}),
              MakeCategoryPlan(Read(u"d,v\n2001-01-01,1\n2001-02-03,2\n"), {}).categories);
}

TEST(CategoryPlan, ColumnsMakeSeriesAndRowsOfOneCategoryAreSummed)
{
    const CategoryPlan plan = MakeCategoryPlan(Read(u"k,a,b\nx,1,10\ny,2,20\nx,3,30\n"), {});

    EXPECT_EQ((Names{u"x", u"y"}), plan.categories);
    ASSERT_EQ(2u, plan.series.size());
    EXPECT_EQ((Values{4, 2}), plan.series[0].values);
    EXPECT_EQ((Values{40, 20}), plan.series[1].values);
}

TEST(CategoryPlan, SlicesAreSeriesSummedOverAllCategories)
{
    const CategoryPlan plan = MakeCategoryPlan(Read(power), Grouped());

    ASSERT_EQ(2u, plan.slices.size());
    EXPECT_EQ(71, plan.slices[0].value);
    EXPECT_EQ(16, plan.slices[1].value);
    EXPECT_DOUBLE_EQ(100, plan.slices[0].percent + plan.slices[1].percent);
}

TEST(CategoryPlan, APickedCategoryGivesItsOwnSlicesAndDropsEmptyOnes)
{
    Options options = Grouped();
    options.pick = u"2002";

    const CategoryPlan plan = MakeCategoryPlan(Read(power), options);

    ASSERT_EQ(1u, plan.slices.size());
    EXPECT_EQ(u"Coal", plan.slices[0].name);
    EXPECT_EQ(100, plan.slices[0].percent);
    EXPECT_EQ(1u, plan.slicesLeftOut);
    EXPECT_EQ(u"2002", plan.sliceTitle);
}

TEST(CategoryPlan, ASingleSeriesIsCutByItsCategories)
{
    const CategoryPlan plan = MakeCategoryPlan(Read(u"k,v\nx,1\ny,3\nz,-2\n"), {});

    ASSERT_EQ(2u, plan.slices.size());
    EXPECT_EQ(u"y", plan.slices[1].name);
    EXPECT_EQ(75, plan.slices[1].percent);
}

TEST(CategoryPlan, RefusesWhatCannotBeShown)
{
    Options pick = Grouped();
    pick.pick = u"1999";
    EXPECT_EQ(Viewer::ExitCode::BadData, Refusal([&] { return MakeCategoryPlan(Read(power), pick); }));
    Options x;
    x.x = u"nothing";
    EXPECT_EQ(Viewer::ExitCode::BadData, Refusal([&] { return MakeCategoryPlan(Read(power), x); }));
    Options pie;
    pie.chart = Viewer::ChartKind::Pie;
    EXPECT_EQ(Viewer::ExitCode::BadData,
              Refusal([&] { return MakeCategoryPlan(Read(u"k,v\nx,-1\ny,0\n"), pie); }));
    EXPECT_EQ(Viewer::ExitCode::BadData,
              Refusal([&] { return MakeCategoryPlan(Read(u"k,v\nx,a\ny,b\n"), {}); }));
    std::u16string many = u"k,v\n";
    for (char16_t unit = 0; unit < 501; ++unit)
        many += std::u16string(1, static_cast<char16_t>(0x4E00 + unit)) + u",1\n";
    EXPECT_EQ(Viewer::ExitCode::BadData, Refusal([&] { return MakeCategoryPlan(Read(many), {}); }));
}

TEST(CategoryPlan, WholeValuesAreTheNearestThatFit)
{
    EXPECT_EQ(3, Viewer::ToWholeValue(2.5));
    EXPECT_EQ(-3, Viewer::ToWholeValue(-2.6));
    EXPECT_EQ(std::numeric_limits<int>::max(), Viewer::ToWholeValue(1e300));
    EXPECT_EQ(std::numeric_limits<int>::min(), Viewer::ToWholeValue(-1e300));
    EXPECT_EQ(0, Viewer::ToWholeValue(std::numeric_limits<double>::quiet_NaN()));
}

TEST(CategoryPlan, TellsWhatItReadAndLeftOut)
{
    const std::u16string text = Describe(MakeCategoryPlan(Read(power), Grouped()), u"power.csv");

    EXPECT_EQ(u"power.csv: 5 rows, 3 categories\n  Coal\n  Wind\n  1 cell without a number\n", text);
}

} // namespace

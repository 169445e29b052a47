#include "graph/GraphLegendLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>

namespace
{
constexpr TRect Graph{5, 5, 395, 295};

GraphLegendLayout::Extent ExtentOf(std::initializer_list<TSize> texts)
{
    GraphLegendLayout::Extent extent;
    for (const TSize& text : texts)
        extent.Add(text);
    return extent;
}
} // namespace

TEST(GraphLegendLayout, TheWidestTextAndTheSumOfHeightsCount)
{
    const auto extent = ExtentOf({{30, 15}, {50, 31}, {40, 16}});
    EXPECT_EQ(extent.nWidth, 50);
    EXPECT_EQ(extent.nHeight, 62);
    EXPECT_EQ(extent.nRowHeight, 16); // the last row's
}

TEST(GraphLegendLayout, TheRightBoxTakesItsWidthAndTwentyFromTheRight)
{
    TRect graph = Graph;
    const TRect box = GraphLegendLayout::PlaceBox(EAlignment::right, {50, 62, 16}, graph);
    EXPECT_EQ(box, (TRect{395 - 66 - 10, 15, 385, 5 + 62 + 12}));
    EXPECT_EQ(graph, (TRect{5, 5, 395 - 86, 295}));
}

TEST(GraphLegendLayout, TheLeftBoxTakesItsWidthAndTwentyFromTheLeft)
{
    TRect graph = Graph;
    const TRect box = GraphLegendLayout::PlaceBox(EAlignment::left, {50, 62, 16}, graph);
    EXPECT_EQ(box, (TRect{15, 15, 5 + 66 + 10, 79}));
    EXPECT_EQ(graph, (TRect{5 + 86, 5, 395, 295}));
}

TEST(GraphLegendLayout, WithNoVisibleCurveTheBoxIsSixteenByTwo)
{
    TRect graph = Graph;
    const TRect box = GraphLegendLayout::PlaceBox(EAlignment::right, ExtentOf({}), graph);
    EXPECT_EQ(box.Width(), 16);
    EXPECT_EQ(box.Height(), 2);
    EXPECT_EQ(Graph.right - graph.right, 36);
}

TEST(GraphLegendLayout, TopAndBottomAndUnknownSidesHaveNoBox)
{
    EXPECT_TRUE(GraphLegendLayout::HasBox(EAlignment::left));
    EXPECT_TRUE(GraphLegendLayout::HasBox(EAlignment::right));
    EXPECT_FALSE(GraphLegendLayout::HasBox(EAlignment::top));
    EXPECT_FALSE(GraphLegendLayout::HasBox(EAlignment::bottom));
    EXPECT_FALSE(GraphLegendLayout::HasBox(static_cast<EAlignment>(77)));
    EXPECT_FALSE(GraphLegendLayout::HasBox(static_cast<EAlignment>(-1)));
}

TEST(GraphLegendLayout, RowsStackInsideTheInnerBox)
{
    constexpr TRect inner{100, 20, 180, 90};
    const auto row = GraphLegendLayout::PlaceRow(inner, 32, 16);
    EXPECT_EQ(row.text, (TRect{112, 52, 180, 68}));
    EXPECT_EQ(row.entry, (TRect{100, 52, 180, 68}));
    EXPECT_EQ(row.key, (TRect{102, 53, 110, 66}));
}

TEST(GraphLegendLayout, TheBoxGrowsWithItsRowsWhateverTheGraphsHeight)
{
    TRect graph = Graph;
    const TRect box = GraphLegendLayout::PlaceBox(EAlignment::right, {50, 16000, 16}, graph);
    EXPECT_EQ(box.bottom, 16017);
    EXPECT_EQ(graph.bottom, Graph.bottom);
}

TEST(GraphLegendLayout, HugeTextsWrapInsteadOfOverflowing)
{
    TRect graph{INT_MIN, INT_MIN, INT_MIN, INT_MIN};
    const auto extent = ExtentOf({{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}});
    EXPECT_EQ(extent.nHeight, -2);
    const TRect box = GraphLegendLayout::PlaceBox(EAlignment::right, extent, graph);
    EXPECT_EQ(box.right, INT_MAX - 9);
}

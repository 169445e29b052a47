#include "graph/FrameLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

using FrameLayout::XAxis;
using FrameLayout::YAxis;

namespace
{

constexpr TRect Graph{5, 5, 395, 295};
constexpr int Space = 5;

YAxis Axis(EAxisPlacement placement, int nLabelWidth, int nTitleWidth = 0, int nArcSize = 0)
{
    return {placement, true, nLabelWidth, nTitleWidth, nArcSize, -1};
}

std::vector<EAxisPlacement> Placements(const std::vector<YAxis>& axes)
{
    std::vector<EAxisPlacement> placements;
    for (const YAxis& axis : axes)
        placements.push_back(axis.placement);
    return placements;
}

} // namespace

TEST(FrameLayout, MarginsAreTakenFromAllFourSides)
{
    EXPECT_EQ(FrameLayout::GraphRect({0, 0, 400, 300}, {1, 2, 3, 4}), (TRect{1, 2, 397, 296}));
}

TEST(FrameLayout, NegativeMarginsLetTheGraphReachBeyondTheClient)
{
    EXPECT_EQ(FrameLayout::GraphRect({0, 0, 400, 300}, {-1, -2, -3, -4}), (TRect{-1, -2, 403, 304}));
}

TEST(FrameLayout, MarginsOfAnySizeWrapInsteadOfOverflowing)
{
    const TRect graph = FrameLayout::GraphRect({1, 1, -2, -2}, {INT_MAX, INT_MAX, INT_MAX, INT_MAX});
    EXPECT_EQ(graph, (TRect{INT_MIN, INT_MIN, INT_MAX, INT_MAX}));
}

TEST(FrameLayout, WithoutAxesTheInnerRectangleStartsOnePixelRight)
{
    EXPECT_EQ(FrameLayout::Stack(Graph, {}, {}, Space), (TRect{6, 5, 395, 295}));
}

TEST(FrameLayout, AutomaticAxesAlternateFromTheLeft)
{
    std::vector<YAxis> axes(3, Axis(apAutomatic, 10));
    FrameLayout::ResolvePlacement(axes);
    EXPECT_EQ(Placements(axes), (std::vector{apLeft, apRight, apLeft}));
}

TEST(FrameLayout, ExplicitPlacementsAreNoPartOfTheAlternation)
{
    std::vector<YAxis> axes{Axis(apRight, 1), Axis(apAutomatic, 1), Axis(apLeft, 1),
                            Axis(apAutomatic, 1)};
    FrameLayout::ResolvePlacement(axes);
    EXPECT_EQ(Placements(axes), (std::vector{apRight, apLeft, apLeft, apRight}));
}

TEST(FrameLayout, AnAxisAddedLaterStartsItsOwnAlternationAtTheLeft)
{
    std::vector<YAxis> axes{Axis(apAutomatic, 1)};
    FrameLayout::ResolvePlacement(axes);
    axes.push_back(Axis(apAutomatic, 1));
    FrameLayout::ResolvePlacement(axes);
    EXPECT_EQ(Placements(axes), (std::vector{apLeft, apLeft}));
}

TEST(FrameLayout, LeftAxesStackInwardFromTheMargin)
{
    std::vector<YAxis> axes{Axis(apLeft, 40), Axis(apLeft, 30)};
    const TRect inner = FrameLayout::Stack(Graph, axes, {}, Space);
    EXPECT_EQ(axes[0].nOriginX, 5 + 45);
    EXPECT_EQ(axes[1].nOriginX, 5 + 45 + 35);
    EXPECT_EQ(inner, (TRect{86, 5, 395, 295}));
}

TEST(FrameLayout, RightAxesStackInwardFromTheRight)
{
    std::vector<YAxis> axes{Axis(apRight, 40), Axis(apRight, 30)};
    const TRect inner = FrameLayout::Stack(Graph, axes, {}, Space);
    EXPECT_EQ(axes[0].nOriginX, 395 - 45);
    EXPECT_EQ(axes[1].nOriginX, 395 - 45 - 35);
    EXPECT_EQ(inner.right, 395 - 80);
}

TEST(FrameLayout, TheArrowheadWidensALeftAxisOnly)
{
    std::vector<YAxis> axes{Axis(apLeft, 20, 30, 7), Axis(apRight, 20, 30, 7)};
    FrameLayout::Stack(Graph, axes, {}, Space);
    EXPECT_EQ(axes[0].nOriginX, 5 + 37 + Space);
    EXPECT_EQ(axes[1].nOriginX, 395 - 30 - Space);
}

TEST(FrameLayout, AHiddenAxisTakesNoRoomButKeepsAnOrigin)
{
    std::vector<YAxis> axes{Axis(apLeft, 40), Axis(apLeft, 30), Axis(apRight, 20)};
    axes[1].bVisible = false;
    axes[2].bVisible = false;
    const TRect inner = FrameLayout::Stack(Graph, axes, {}, Space);
    EXPECT_EQ(axes[1].nOriginX, 50);
    EXPECT_EQ(axes[2].nOriginX, 395);
    EXPECT_EQ(inner, (TRect{51, 5, 395, 295}));
}

TEST(FrameLayout, TheFirstXAxisStandsLowest)
{
    std::vector<YAxis> yAxes{Axis(apLeft, 40)};
    std::vector<XAxis> xAxes{{true, 20}, {false, 99}, {true, 10}};
    const TRect inner = FrameLayout::Stack(Graph, yAxes, xAxes, Space);
    EXPECT_EQ(xAxes[0].nOriginY, 295 - 25);
    EXPECT_EQ(xAxes[1].nOriginY, 295 - 25);
    EXPECT_EQ(xAxes[2].nOriginY, 295 - 25 - 15);
    EXPECT_EQ(inner.bottom, 255);
    for (const XAxis& axis : xAxes)
        EXPECT_EQ(axis.nOriginX, 50);
}

TEST(FrameLayout, ManyAxesMayEatMoreThanThereIs)
{
    std::vector<YAxis> axes(100, Axis(apLeft, 40));
    const TRect inner = FrameLayout::Stack(Graph, axes, {}, Space);
    EXPECT_EQ(inner.left, 5 + 100 * 45 + 1);
    EXPECT_GT(inner.left, inner.right);
}

TEST(FrameLayout, HugeLabelsWrapInsteadOfOverflowing)
{
    std::vector<YAxis> axes{Axis(apLeft, INT_MAX, INT_MAX, INT_MAX), Axis(apRight, INT_MAX)};
    std::vector<XAxis> xAxes{{true, INT_MAX}};
    FrameLayout::Stack({INT_MIN, 0, INT_MIN, INT_MIN}, axes, xAxes, INT_MAX);
    EXPECT_EQ(axes[0].nOriginX, INT_MAX - 1); // INT_MIN + (INT_MAX + INT_MAX)
}

TEST(FrameLayout, ARubberBandIsNormalisedAndCutToTheFrame)
{
    constexpr TRect frame{10, 10, 100, 80};
    EXPECT_EQ(FrameLayout::Band({60, 70}, {20, 30}, frame), (TRect{20, 30, 60, 70}));
    EXPECT_EQ(FrameLayout::Band({-5, 500}, {400, 20}, frame), (TRect{10, 20, 100, 80}));
}

TEST(FrameLayout, ABandBesideTheFrameTurnsInsideOut)
{
    EXPECT_EQ(FrameLayout::Band({200, 20}, {300, 30}, {10, 10, 100, 80}), (TRect{200, 20, 100, 30}));
}

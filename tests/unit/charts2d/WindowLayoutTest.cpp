#include "charts2d/WindowLayout.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

} // namespace

TEST(WindowLayout, SidesAreRaisedToTwoHundred)
{
    using WindowLayout::AtLeastSmallest;
    EXPECT_EQ(AtLeastSmallest(TRect{5, 6, 105, 106}), (TRect{5, 6, 205, 206}));
    EXPECT_EQ(AtLeastSmallest(TRect{5, 6, 305, 106}), (TRect{5, 6, 305, 206}));
    EXPECT_EQ(AtLeastSmallest(TRect{5, 6, 105, 306}), (TRect{5, 6, 205, 306}));
    EXPECT_EQ(AtLeastSmallest(TRect{100, 100, 0, 0}), (TRect{100, 100, 300, 300}));
    EXPECT_EQ(AtLeastSmallest(TSize{10, 500}), (TSize{200, 500}));
    EXPECT_EQ(AtLeastSmallest(TSize{-10, Lowest}), (TSize{200, 200}));
    EXPECT_EQ(AtLeastSmallest(TRect{Lowest, Lowest, Highest, Highest}).Width(), 200);
}

TEST(WindowLayout, GraphAreasAreSharesOfTheWindow)
{
    using namespace WindowLayout;
    constexpr TSize window{1000, 500};
    EXPECT_EQ(GraphArea(bar, window), (TArea{{50, 175}, {700, 250}}));
    EXPECT_EQ(GraphArea(line, window), (TArea{{50, 175}, {700, 250}}));
    EXPECT_EQ(GraphArea(flatPie, window), (TArea{{50, 175}, {500, 250}}));
}

TEST(WindowLayout, TickClearsLessThanTheBarAndLinePaints)
{
    using namespace WindowLayout;
    constexpr TSize window{1000, 500};
    EXPECT_EQ(ClearRect(bar, window), (TRect{50, 175, 650, 475}));
    EXPECT_EQ(ClearRect(line, window), (TRect{50, 175, 650, 475}));
    EXPECT_EQ(ClearRect(flatPie, window), (TRect{50, 175, 550, 425}));
    EXPECT_EQ(TickClearRect(window), (TRect{50, 175, 550, 425}));
}

TEST(WindowLayout, TitlesStandInTheUpperThird)
{
    using namespace WindowLayout;
    constexpr TSize window{1000, 500};
    EXPECT_EQ(Title(window), (TTextPlace{{50, 12}, {65, 18}, {40, 100}}));
    EXPECT_EQ(Subtitle(window), (TTextPlace{{50, 100}, {60, 104}, {30, 35}}));
}

TEST(WindowLayout, FramesThatNoWindowShowsAreNotMade)
{
    using WindowLayout::HasFrame;
    EXPECT_TRUE(HasFrame({200, 200}));
    EXPECT_TRUE(HasFrame({1, 1}));
    EXPECT_TRUE(HasFrame({32767, 2000}));
    EXPECT_TRUE(HasFrame({2000, 32767}));
    EXPECT_FALSE(HasFrame({32768, 200}));
    EXPECT_FALSE(HasFrame({20000, 20000}));
    EXPECT_FALSE(HasFrame({Highest, Highest}));
    EXPECT_FALSE(HasFrame({200, 32768}));
    EXPECT_FALSE(HasFrame({0, 200}));
    EXPECT_FALSE(HasFrame({200, 0}));
    EXPECT_TRUE(HasFrame({8192, 8192}));
    EXPECT_FALSE(HasFrame({8192, 8193}));
}

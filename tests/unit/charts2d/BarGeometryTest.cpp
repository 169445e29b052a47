#include "charts2d/BarGeometry.h"
#include "charts2d/LegendLayout.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 100}; // A = 120
constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

} // namespace

TEST(BarMeasures, OneSegmentIsLabelledAsTwoAndStartsAtTwoBarGaps)
{
    const auto bars = BarGeometry::Measure(Position, Size, 1, 1);
    EXPECT_EQ(bars.Measures.nGap, 30);         // 120 / 4
    EXPECT_EQ(bars.Measures.nBarGap, 4);       // 30 * 0.125 + 0.5 = 4.25
    EXPECT_EQ(bars.Measures.nLabelHeight, 23); // 120 / 2 * 0.38 + 0.5 = 23.3
    EXPECT_EQ(bars.Measures.ptOrigin, (TPoint{40, 115}));
    EXPECT_EQ(bars.Measures.nStartX, 48);
    EXPECT_EQ(bars.nFixedStartX, 56); // where anything fades, four gaps whatever the count
    EXPECT_EQ(bars.Measures.nGroupWidth, 120);
    EXPECT_EQ(bars.nWidth, 120);
    EXPECT_EQ(bars.nBase, 114);
}

TEST(BarMeasures, GroupsShareTheWidth)
{
    const auto bars = BarGeometry::Measure(Position, Size, 3, 2);
    EXPECT_EQ(bars.Measures.nGap, 10);         // 120 / 12
    EXPECT_EQ(bars.Measures.nBarGap, 1);       // 10 * 0.125 + 0.5 = 1.75
    EXPECT_EQ(bars.Measures.nLabelHeight, 15); // 120 / 3 * 0.38 + 0.5 = 15.7
    EXPECT_EQ(bars.Measures.nGroupWidth, 34);  // (120 - 20 + 1 * 3 * 1) / 3 = 34.3
    EXPECT_EQ(bars.Measures.nStartX, 44);      // 40 + 4
    EXPECT_EQ(bars.nWidth, 16);                // (34 - 1) / 2 = 16.5
    EXPECT_EQ(bars.nPitch, 43);                // 2 * 16 + 1 + 10
    EXPECT_EQ(BarGeometry::Left(bars, 44, 2, 1), 44 + 2 * 43 + 17);
    EXPECT_EQ(ChartMeasures::GroupStep(bars.Measures), 44);
    EXPECT_EQ(ChartMeasures::LabelCentre(bars.Measures, 44, 2), 62); // 44 + (1 * 2 + 34) / 2
    EXPECT_EQ(ChartMeasures::LabelTop(bars.Measures, Size), 116);
}

TEST(BarMeasures, AxesEndAtTheWidthItself)
{
    const auto measures = ChartMeasures::Measure(ChartMeasures::BarFactors, Position, Size, 3, 2);
    const auto lines = ChartMeasures::AxisLines(measures, Position, Size);
    using ChartMeasures::TLine;
    EXPECT_EQ(lines[0], (TLine{{40, 115}, {200, 115}}));
    EXPECT_EQ(lines[1], (TLine{{200, 115}, {196, 113}}));
    EXPECT_EQ(lines[2], (TLine{{200, 115}, {196, 117}}));
    EXPECT_EQ(lines[3], (TLine{{40, 115}, {40, 25}}));
    EXPECT_EQ(lines[4], (TLine{{40, 25}, {37, 28}}));
    EXPECT_EQ(lines[5], (TLine{{40, 25}, {43, 28}}));
}

TEST(BarMeasures, ValueLabelsAreTheMaximumItsHalfAndZero)
{
    const auto measures = ChartMeasures::Measure(ChartMeasures::BarFactors, Position, Size, 3, 2);
    const auto labels = ChartMeasures::ValueLabels(measures, Size, 25);
    using ChartMeasures::TValueLabel;
    EXPECT_EQ(labels[0], (TValueLabel{25, {36, 29}})); // base 114, less 85, 45 and 5
    EXPECT_EQ(labels[1], (TValueLabel{12, {36, 69}}));
    EXPECT_EQ(labels[2], (TValueLabel{0, {36, 109}}));
    EXPECT_EQ(ChartMeasures::ValueLabels(measures, Size, Highest)[1].nValue, 1073741823);
}

TEST(BarHeight, IsTheShareOfFourFifthsTruncated)
{
    const auto bars = BarGeometry::Measure(Position, {200, 99}, 1, 1); // 79.2 high
    EXPECT_EQ(BarGeometry::Height(bars, 3, 3), 79);
    EXPECT_EQ(BarGeometry::Height(bars, 1, 3), 26); // 26.4
    EXPECT_EQ(BarGeometry::Height(bars, -1, 3), -26);
    EXPECT_EQ(BarGeometry::Height(bars, 6, 3), 158); // above the scale
}

TEST(BarHeight, OverAScaleOfNothingIsTheSmallestInt)
{
    const auto bars = BarGeometry::Measure(Position, Size, 1, 1);
    EXPECT_EQ(BarGeometry::Height(bars, 0, 0), Lowest);
    EXPECT_EQ(BarGeometry::Height(bars, 5, 0), Lowest);
    EXPECT_EQ(BarGeometry::Height(bars, -5, 0), Lowest);
    EXPECT_EQ(BarGeometry::Height(bars, Highest, 1), Lowest);

    const TRect bar = BarGeometry::Rectangle(bars, 50, Lowest);
    EXPECT_EQ(bar, (TRect{50, -(1 << 16), 170, 114})); // from far above the window down to the base
}

TEST(BarHeight, GrowsFromTheTruncatedHeight)
{
    EXPECT_EQ(BarGeometry::GrownHeight(79, 50), 39); // 39.5
    EXPECT_EQ(BarGeometry::GrownHeight(79, 0), 0);
    EXPECT_EQ(BarGeometry::GrownHeight(79, 100), 79);
    EXPECT_EQ(BarGeometry::GrownHeight(-79, 50), -39);
    EXPECT_EQ(BarGeometry::GrownHeight(Lowest, 100), Lowest);
}

TEST(BarRectangle, OfANegativeValueHangsBelowTheBase)
{
    const auto bars = BarGeometry::Measure(Position, Size, 1, 1);
    EXPECT_EQ(BarGeometry::Rectangle(bars, 48, -30), (TRect{48, 144, 168, 114}));
}

TEST(BarMeasures, ThousandsOfGroupsInASmallAreaStayDefined)
{
    const auto bars = BarGeometry::Measure(Position, Size, 100000, 50000);
    EXPECT_EQ(bars.Measures.nGap, 0);
    EXPECT_EQ(bars.Measures.nBarGap, 0);
    EXPECT_EQ(bars.nWidth, 0);
    EXPECT_EQ(bars.Measures.nLabelHeight, 0);
    const auto none = BarGeometry::Measure(Position, Size, 0, 1);
    EXPECT_EQ(none.Measures.ptOrigin, (TPoint{40, 115}));
}

TEST(LegendLayout, StandsBesideTheSeries)
{
    const auto legend = LegendLayout::Layout(LegendLayout::SeriesShape, Position, Size, 3, 8);
    // pad = (100 - 24) / 2 = 38
    EXPECT_EQ(legend.rcBox, (TRect{200, 58, 260, 86})); // bottom 3.5 * 8 + 38 + 20
    EXPECT_EQ(legend.nLeft, 204);
    EXPECT_EQ(legend.nTop, 59); // 20 + trunc(1.4) + 38
    EXPECT_EQ(legend.nTextLeft, 216);
    EXPECT_EQ(LegendLayout::Mark(LegendLayout::SeriesShape, legend, Size, 59),
              (TRect{204, 60, 214, 66}));
}

TEST(LegendLayout, StandsFartherOutBesideThePie)
{
    const auto legend = LegendLayout::Layout(LegendLayout::PieShape, Position, Size, 2, 10);
    EXPECT_EQ(legend.rcBox, (TRect{230, 60, 360, 85}));
    EXPECT_EQ(legend.nLeft, 239); // 200 * 1.15 falls just short of 230
    EXPECT_EQ(legend.nTextLeft, 261);
    EXPECT_EQ(LegendLayout::Mark(LegendLayout::PieShape, legend, Size, 61), (TRect{239, 63, 259, 68}));
}

TEST(LegendLayout, MoreRowsThanRoomStartAboveTheArea)
{
    const auto legend = LegendLayout::Layout(LegendLayout::SeriesShape, Position, Size, 15, 9);
    EXPECT_EQ(legend.rcBox.top, 3); // (100 - 135) / 2 = -17, toward zero
}

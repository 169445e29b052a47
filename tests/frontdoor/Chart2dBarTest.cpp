// Bars, their labels, legend and animations, by pixels. One segment of one series has a bar from
// x = 115 to 383; two segments have bars at 115 and 265, 117 wide. The base is y = 328, and the
// scale's maximum is 160 high. Inside its outline a bar keeps one pixel less at each side.

#include "Chart2dHost.h"

class Chart2dBar : public Chart2dTest
{
protected:
    void SetUp() override
    {
        Chart2dTest::SetUp();
        Create(Bar);
        chart->ShowGraphLegend(0);
    }
};

TEST_F(Chart2dBar, OneBarStartsTwoBarGapsFromTheAxis)
{
    FillBars({{100}});
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 250, Red), (POINT{169, 326}));
    EXPECT_EQ(picture.At(114, 250), White);
    EXPECT_EQ(picture.At(115, 250), 0u); // the outline
    EXPECT_EQ(picture.At(116, 250), Red);
    EXPECT_EQ(picture.At(381, 250), Red);
    EXPECT_EQ(picture.At(382, 250), 0u);
    EXPECT_EQ(picture.At(383, 250), White);
}

TEST_F(Chart2dBar, OneSegmentIsLabelledAsIfThereWereTwo)
{
    FillBars({{100}}); // height trunc(268 / 2 * 0.38 + 0.5) = 51, at 115 + (8 + 268) / 2
    EXPECT_EQ(TextDifferences(Redrawn(), {253, 332}, L"s", {51}, TA_CENTER), 0);
}

TEST_F(Chart2dBar, AxesAndValueLabelsStandByTheFactors)
{
    FillBars({{100, 50}});
    const Picture picture = Redrawn();
    EXPECT_EQ(picture.At(99, 200), 0u);
    EXPECT_EQ(picture.At(99, 150), 0u); // top: 140 + 10
    EXPECT_EQ(picture.At(99, 149), White);
    EXPECT_EQ(picture.At(440, 330), 0u);
    EXPECT_EQ(picture.At(448, 330), 0u); // ends at the width itself
    EXPECT_EQ(picture.At(449, 330), White);
    EXPECT_EQ(picture.At(444, 328), 0u); // the arrow
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"100", {20}, TA_RIGHT), 0);
    EXPECT_EQ(TextDifferences(picture, {91, 238}, L"50", {20}, TA_RIGHT), 0);
    EXPECT_EQ(TextDifferences(picture, {91, 318}, L"0", {20}, TA_RIGHT), 0);
}

TEST_F(Chart2dBar, LabelsTakeTheirColour)
{
    FillBars({{100, 50}});
    chart->SetGraphLabelsColor(Blue);
    ULONG color = 0;
    chart->GetGraphLabelsColor(&color);
    EXPECT_EQ(color, static_cast<ULONG>(Blue));
    const Picture picture = Redrawn();
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"100", {20}, TA_RIGHT, Blue), 0);
    EXPECT_EQ(TextDifferences(picture, {115 + (4 + 117) / 2, 332}, L"s", {51}, TA_CENTER, Blue), 0);
}

TEST_F(Chart2dBar, BarOfALaterSegmentRisesAboveTheScaleOfTheFirst)
{
    FillBars({{100, 125}});
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 150, Red), (POINT{169, 326}));
    EXPECT_EQ(Column(picture, 300, Red), (POINT{129, 326})); // 200 high
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"100", {20}, TA_RIGHT), 0);
}

TEST_F(Chart2dBar, ScaleOfNothingSendsTheTopsFarOutside)
{
    FillBars({{0, 50}});
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 150, Red), (POINT{0, 326}));
    EXPECT_EQ(Column(picture, 300, Red), (POINT{0, 326}));
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"0", {20}, TA_RIGHT), 0);
}

TEST_F(Chart2dBar, NegativeValuesHangBelowAndNeverRaiseTheScale)
{
    FillBars({{100, -20}, {-500, 10}});
    const Picture picture = Redrawn(); // two series: bars at 115, 177 and 268, 330, 58 wide
    EXPECT_EQ(Column(picture, 290, Red), (POINT{329, 358}));
    EXPECT_EQ(Column(picture, 140, Red), (POINT{169, 326}));
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"100", {20}, TA_RIGHT), 0);
}

TEST_F(Chart2dBar, SegmentAddedWhileSeriesExistSharesItsValue)
{
    FillBars({{100}, {100}});
    chart->Add2DBarGraphSegment(Text(L"s"));
    chart->Set2DBarGraphValue(2, 1, 60);
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 290, Red), (POINT{233, 326}));
    EXPECT_EQ(Column(picture, 350, Green), (POINT{233, 326}));
}

TEST_F(Chart2dBar, IdThatComesTwiceReachesTheStaleValue)
{
    FillBars({{10, 20, 30}});
    chart->Delete2DBarGraphSegment(1);
    chart->Add2DBarGraphSegment(Text(L"s")); // ids 2, 3, 3
    chart->Set2DBarGraphValue(3, 1, 7);
    const Picture picture = Redrawn(); // bars at 111, 207, 303 over a maximum of 20
    EXPECT_EQ(Column(picture, 150, Red), (POINT{169, 326}));
    EXPECT_EQ(Column(picture, 220, Red), (POINT{273, 326}));
    EXPECT_EQ(Column(picture, 320, Red), (POINT{273, 326}));
}

TEST_F(Chart2dBar, SegmentsWithoutSeriesLeaveTheAxesAlone)
{
    const Picture empty = Redrawn();
    chart->Add2DBarGraphSegment(Text(L"s"));
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
    EXPECT_EQ(empty.At(99, 200), 0u);
    chart->Add2DBarGraphSeries(Text(L"row"), Red);
    chart->Set2DBarGraphValue(1, 1, 5);
    EXPECT_GT(Redrawn().CountDifferences(empty), 1000);
    chart->Detele2DBarGraphSeries(1);
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dBar, LegendHasAMarkAndANameForEachSeries)
{
    FillBars({{1}, {1}});
    chart->ShowGraphLegend(1);
    chart->SetGraphLegendBackgroundColor(0xE0FFFF);
    chart->SetGraphLegendTextColor(Blue);
    const Picture picture = Redrawn();
    const int line = TextHeight({15});
    const int pad = (200 - 2 * line) / 2;
    const int top = 140 + 2 + pad;
    EXPECT_EQ(picture.At(457, 140 + pad), 0u); // the corners of the box
    EXPECT_EQ(picture.At(456, 140 + pad), White);
    EXPECT_EQ(picture.At(591, 140 + pad), 0u);
    EXPECT_EQ(picture.At(592, 140 + pad), White);
    const int bottom = static_cast<int>(2.5 * line + pad) + 140;
    EXPECT_EQ(picture.At(500, bottom - 1), 0u);
    EXPECT_EQ(picture.Count({466, top + 3, 488, top + 15}, Red), 22 * 12);
    EXPECT_EQ(picture.At(465, top + 5), 0xE0FFFFu);
    EXPECT_EQ(picture.At(488, top + 5), 0xE0FFFFu);
    EXPECT_EQ(picture.Count({466, top + line + 3, 488, top + line + 15}, Green), 22 * 12);
    EXPECT_EQ(TextDifferences(picture, {492, top}, L"row", {15}, TA_LEFT, Blue, 0xE0FFFF), 0);
    EXPECT_EQ(TextDifferences(picture, {492, top + line}, L"row", {15}, TA_LEFT, Blue, 0xE0FFFF), 0);
}

TEST_F(Chart2dBar, ANewSizeMakesTheLegendsFontByAnotherFactor)
{
    FillBars({{1}});
    chart->ShowGraphLegend(1);
    const auto textAt = [&](const Picture& picture, int height) {
        const int line = TextHeight({height});
        return TextDifferences(picture, {492, 142 + (200 - line) / 2}, L"row", {height});
    };
    EXPECT_EQ(textAt(Redrawn(), 15), 0);
    chart->SetGraphSize(640, 400);
    EXPECT_EQ(textAt(Redrawn(), 16), 0);
}

TEST_F(Chart2dBar, AllBarsGrowHoldAndStartAgain)
{
    FillBars({{100, 50}});
    const Picture half = AtTick(20, 50);
    EXPECT_EQ(Column(half, 150, Red), (POINT{249, 326}));
    EXPECT_EQ(Column(half, 300, Red), (POINT{289, 326}));
    Tick(50);
    EXPECT_EQ(Column(Picture(Handle()), 150, Red), (POINT{169, 326}));
    Tick(21);
    EXPECT_EQ(Column(Picture(Handle()), 150, Red), (POINT{169, 326}));
    Tick();
    EXPECT_EQ(Column(Picture(Handle()), 150, Red), (POINT{-1, -1}));
}

TEST_F(Chart2dBar, GroupsGrowInTurn)
{
    FillBars({{100, 100}});
    const Picture first = AtTick(21, 25);
    EXPECT_EQ(Column(first, 150, Red), (POINT{249, 326}));
    EXPECT_EQ(Column(first, 300, Red), (POINT{-1, -1}));
    EXPECT_EQ(first.Count({265, 332, 400, 380}, 0), 0); // its label isn't there yet
    Tick(50);
    const Picture second = Picture(Handle());
    EXPECT_EQ(Column(second, 150, Red), (POINT{169, 326}));
    EXPECT_EQ(Column(second, 300, Red), (POINT{249, 326}));
    EXPECT_EQ(TextDifferences(second, {265 + (4 + 117) / 2, 332}, L"s", {51}, TA_CENTER), 0);
}

TEST_F(Chart2dBar, SeriesGrowInTurnUnderAllLabels)
{
    FillBars({{100, 100}, {100, 100}}); // bars at 115, 177 and 268, 330, 58 wide
    const Picture first = AtTick(22, 25);
    EXPECT_EQ(Column(first, 140, Red), (POINT{249, 326}));
    EXPECT_EQ(Column(first, 290, Red), (POINT{249, 326}));
    EXPECT_EQ(first.Count(Green), 0);
    EXPECT_EQ(TextDifferences(first, {115 + 154 + (8 + 121) / 2, 332}, L"s", {51}, TA_CENTER), 0);
    Tick(50);
    const Picture second = Picture(Handle());
    EXPECT_EQ(Column(second, 290, Red), (POINT{169, 326}));
    EXPECT_EQ(Column(second, 350, Green), (POINT{249, 326}));
}

TEST_F(Chart2dBar, GroupsFadeInTurn)
{
    FillBars({{100, 100}});
    const Picture first = AtTick(25, 25);
    EXPECT_TRUE(IsBlend(first.At(150, 250), White, Red, 127));
    EXPECT_EQ(first.At(300, 250), White);
    Tick(50);
    const Picture second = Picture(Handle());
    EXPECT_EQ(second.At(150, 250), Red);
    EXPECT_TRUE(IsBlend(second.At(300, 250), White, Red, 127));
    Tick(51);
    EXPECT_EQ(Picture(Handle()).At(300, 250), White); // it starts again at once
}

TEST_F(Chart2dBar, SeriesFadeInTurnAndEarlierBarsAreBlendedAgain)
{
    FillBars({{100, 100}, {100, 100}});
    const Picture picture = AtTick(26, 75);
    EXPECT_EQ(picture.At(140, 250), Red);
    EXPECT_EQ(picture.At(290, 250), Red);
    EXPECT_TRUE(IsBlend(picture.At(350, 250), White, Green, 127));
    EXPECT_TRUE(IsBlend(picture.At(200, 250), White, Green, 191)); // twice by half
}

TEST_F(Chart2dBar, FadesShowTheGradientThrough)
{
    FillBars({{100, 100}});
    chart->SetGraphGradientColors(0x00FF00, 0x00FF00);
    chart->SetGraphFillType(11);
    EXPECT_TRUE(IsBlend(AtTick(25, 25).At(150, 250), 0x00FF00, Red, 127));
}

TEST_F(Chart2dBar, UnknownAnimationTypeLeavesTheAxesAlone)
{
    FillBars({{100, 100}});
    const Picture picture = AtTick(23, 5);
    EXPECT_EQ(picture.Count(Red), 0);
    EXPECT_EQ(picture.At(99, 200), 0u);
}

// The group of the still picture starts at 115; where series grow or anything fades it starts at
// 131, as among several groups, and its label stays over the still picture's place.
TEST_F(Chart2dBar, OneGroupStandsFartherFromTheAxisWhereSeriesGrowOrFade)
{
    FillBars({{100}});
    const Picture growing = AtTick(22, 25);
    EXPECT_EQ(growing.At(130, 300), White);
    EXPECT_EQ(growing.At(131, 300), 0u);
    EXPECT_EQ(Column(growing, 132, Red), (POINT{249, 326}));
    EXPECT_EQ(Column(growing, 397, Red), (POINT{249, 326}));
    EXPECT_EQ(growing.At(399, 300), White);
    EXPECT_EQ(TextDifferences(growing, {253, 332}, L"s", {51}, TA_CENTER), 0);
    for (const int type : {25, 26}) {
        const Picture fading = AtTick(type, 25);
        EXPECT_EQ(fading.At(130, 250), White) << type;
        EXPECT_TRUE(IsBlend(fading.At(132, 250), White, Red, 127)) << type;
        EXPECT_TRUE(IsBlend(fading.At(397, 250), White, Red, 127)) << type;
        EXPECT_EQ(fading.At(399, 250), White) << type;
        EXPECT_EQ(TextDifferences(fading, {253, 332}, L"s", {51}, TA_CENTER), 0) << type;
    }
}

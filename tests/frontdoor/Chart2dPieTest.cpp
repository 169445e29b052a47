// The flat pie and its animations, by pixels: a box at (32, 140), 320 x 200, centre (192, 240).

#include "Chart2dHost.h"

class Chart2dPie : public Chart2dTest
{
protected:
    static constexpr POINT Middles[] = {
        {260, 200}, {120, 200}, {120, 280}, {260, 280}}; // counterclockwise

    void SetUp() override
    {
        Chart2dTest::SetUp();
        Create(Pie);
        chart->ShowGraphLegend(0);
    }
    void Add(double percent, COLORREF color)
    {
        chart->Add2DPieGraphSegment(percent, color, Text(L"slice"));
    }
    static std::vector<COLORREF> Quarters(const Picture& picture)
    {
        std::vector<COLORREF> colors;
        for (const POINT& quarter : Middles)
            colors.push_back(picture.At(quarter.x, quarter.y));
        return colors;
    }

    using TColors = std::vector<COLORREF>;
};

TEST_F(Chart2dPie, SlicesGoCounterclockwiseAndTheRestStaysUnpainted)
{
    Add(25, Red);
    Add(50, Green);
    const Picture picture = Redrawn();
    EXPECT_EQ(Quarters(picture), (TColors{Red, Green, Green, White}));
    EXPECT_EQ(picture.At(33, 141), White);
    EXPECT_EQ(picture.At(188, 145), Green); // the top of the ellipse, inside its outline
}

TEST_F(Chart2dPie, SecondSegmentIsCutToWhatIsLeftAndAThirdIsRefusedSilently)
{
    Add(50, Red);
    Add(75, Green);
    Add(75, Blue);
    const Picture picture = Redrawn();
    EXPECT_EQ(Quarters(picture), (TColors{Red, Red, Green, Green}));
    EXPECT_EQ(picture.Count(Blue), 0);
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, PercentAboveAHundredFillsTheWholeEllipse)
{
    Add(150, Red);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Red, Red, Red, Red}));
}

TEST_F(Chart2dPie, HundredOnTopOfOthersWrapsPastTheCircle)
{
    Add(25, Red);
    Add(150, Green);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Green, Green, Green, Green}));
}

TEST_F(Chart2dPie, NothingAddsNothing)
{
    const Picture empty = Redrawn();
    Add(0, Red);
    Add(-20, Red);
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dPie, UpdateChangesPercentColourAndName)
{
    Add(25, Red);
    Add(25, Green);
    chart->Update2DPieGraphSegment(1, 50, Blue, Text(L"new"));
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Blue, Blue, Green, White}));
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, DeletionRenumbersSoThatTheFirstIsAlwaysOne)
{
    Add(25, Red);
    Add(25, Green);
    Add(25, Blue);
    chart->Delete2DPieGraphSegment(1);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Green, Blue, White, White}));
    chart->Delete2DPieGraphSegment(1);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Blue, White, White, White}));
    chart->Clear2DPieGraph();
    EXPECT_EQ(Redrawn().Count(Blue), 0);
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, SweepUncoversTheSlicesAndStartsAgain)
{
    Add(50, Red);
    Add(50, Green);
    EXPECT_EQ(Quarters(AtTick(10, 25)), (TColors{Red, White, White, White}));
    Tick(50);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{Red, Red, Green, White}));
    Tick(25);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{Red, Red, Green, Green}));
    Tick(2);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{White, White, White, White}));
}

TEST_F(Chart2dPie, FullCircleIsMissingFromTheEndOfASweep)
{
    Add(100, Red);
    EXPECT_EQ(AtTick(10, 101).Count(Red), 0);
    chart->SetGraphAnimation(VPX_ANIMATE_OFF, VPX_ANIMATION_PIE_SWEEP);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Red, Red, Red, Red}));
}

TEST_F(Chart2dPie, SlicesFadeInTurn)
{
    Add(50, Red);
    Add(50, Green);
    const Picture first = AtTick(11, 25);
    EXPECT_TRUE(IsBlend(first.At(260, 200), White, Red, 127));
    EXPECT_TRUE(IsBlend(first.At(120, 200), White, Red, 127));
    EXPECT_EQ(first.At(260, 280), White);
    Tick(50);
    const Picture second = Picture(Handle());
    EXPECT_EQ(second.At(260, 200), Red);
    EXPECT_TRUE(IsBlend(second.At(260, 280), White, Green, 127));
    Tick(51);
    EXPECT_EQ(Picture(Handle()).At(260, 280), White);
}

TEST_F(Chart2dPie, UpdateStartsTheAnimationOver)
{
    Add(50, Red);
    Add(50, Green);
    AtTick(10, 80);
    chart->Update2DPieGraphSegment(1, 50, Red, Text(L"slice"));
    Tick(1);
    const Picture picture = Picture(Handle());
    EXPECT_EQ(picture.Count(Green), 0);
    EXPECT_EQ(picture.At(120, 200), White);
}

TEST_F(Chart2dPie, AnimationValuesOtherThanOneAreStill)
{
    Add(50, Red);
    chart->SetGraphAnimation(2, 10);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Red, Red, White, White}));
}

TEST_F(Chart2dPie, LegendTellsPercentAndName)
{
    Add(60, Red);
    Add(12.34, Green);
    chart->ShowGraphLegend(1);
    const Picture picture = Redrawn();
    const int line = TextHeight({20});
    const int top = 142 + (200 - 2 * line) / 2;
    // marks at 400, 32 wide; texts 3 farther on
    EXPECT_EQ(picture.Count({400, top + 5, 432, top + 15}, Red), 32 * 10);
    EXPECT_EQ(TextDifferences(picture, {435, top}, L"(60.0%)  slice", {20}), 0);
    EXPECT_EQ(TextDifferences(picture, {435, top + line}, L"(12.3%)  slice", {20}), 0);
}

TEST_F(Chart2dPie, LegendColoursCannotBeReadBackAndLabelsAreNone)
{
    chart->SetGraphLegendTextColor(Red);
    chart->SetGraphLegendBackgroundColor(Green);
    chart->SetGraphLabelsColor(Blue);
    ULONG color = 1;
    EXPECT_EQ(chart->GetGraphLegendTextColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLabelsColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    chart->ShowGraphLegend(1);
    EXPECT_GT(Redrawn().Count(Green), 100);
}

TEST_F(Chart2dPie, StillSliceWithoutWidthIsTheWholeEllipse)
{
    Add(30, Red);
    Add(0.0001, Green);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{Green, Green, Green, Green}));
}

TEST_F(Chart2dPie, FadeWithoutASegmentToFadeShowsNoSlice)
{
    Add(50, Red);
    Add(50, Green);
    AtTick(11, 75);
    chart->Delete2DPieGraphSegment(2);
    EXPECT_EQ(Redrawn().Count(Red), 0);
}

// The flat pie and its animations, by pixels: a box at (32, 140), 320 x 200, centre (192, 240).

#include "Chart2dHost.h"

class Chart2dPie : public Chart2dTest
{
protected:
    static constexpr POINT kQuarters[] = {
        {260, 200}, {120, 200}, {120, 280}, {260, 280}}; // counterclockwise

    void SetUp() override
    {
        Chart2dTest::SetUp();
        Create(kPie);
        chart->ShowGraphLegend(0);
    }
    void Add(double percent, COLORREF color)
    {
        chart->Add2DPieGraphSegment(percent, color, Text(L"slice"));
    }
    static std::vector<COLORREF> Quarters(const Picture& picture)
    {
        std::vector<COLORREF> colors;
        for (const POINT& quarter : kQuarters)
            colors.push_back(picture.At(quarter.x, quarter.y));
        return colors;
    }

    using TColors = std::vector<COLORREF>;
};

TEST_F(Chart2dPie, SlicesGoCounterclockwiseAndTheRestStaysUnpainted)
{
    Add(25, kRed);
    Add(50, kGreen);
    const Picture picture = Redrawn();
    EXPECT_EQ(Quarters(picture), (TColors{kRed, kGreen, kGreen, kWhite}));
    EXPECT_EQ(picture.At(33, 141), kWhite);
    EXPECT_EQ(picture.At(188, 145), kGreen); // the top of the ellipse, inside its outline
}

TEST_F(Chart2dPie, SecondSegmentIsCutToWhatIsLeftAndAThirdIsRefusedSilently)
{
    Add(50, kRed);
    Add(75, kGreen);
    Add(75, kBlue);
    const Picture picture = Redrawn();
    EXPECT_EQ(Quarters(picture), (TColors{kRed, kRed, kGreen, kGreen}));
    EXPECT_EQ(picture.Count(kBlue), 0);
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, PercentAboveAHundredFillsTheWholeEllipse)
{
    Add(150, kRed);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kRed, kRed, kRed, kRed}));
}

TEST_F(Chart2dPie, HundredOnTopOfOthersWrapsPastTheCircle)
{
    Add(25, kRed);
    Add(150, kGreen);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kGreen, kGreen, kGreen, kGreen}));
}

TEST_F(Chart2dPie, NothingAddsNothing)
{
    const Picture empty = Redrawn();
    Add(0, kRed);
    Add(-20, kRed);
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dPie, UpdateChangesPercentColourAndName)
{
    Add(25, kRed);
    Add(25, kGreen);
    chart->Update2DPieGraphSegment(1, 50, kBlue, Text(L"new"));
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kBlue, kBlue, kGreen, kWhite}));
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, DeletionRenumbersSoThatTheFirstIsAlwaysOne)
{
    Add(25, kRed);
    Add(25, kGreen);
    Add(25, kBlue);
    chart->Delete2DPieGraphSegment(1);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kGreen, kBlue, kWhite, kWhite}));
    chart->Delete2DPieGraphSegment(1);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kBlue, kWhite, kWhite, kWhite}));
    chart->Clear2DPieGraph();
    EXPECT_EQ(Redrawn().Count(kBlue), 0);
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dPie, SweepUncoversTheSlicesAndStartsAgain)
{
    Add(50, kRed);
    Add(50, kGreen);
    EXPECT_EQ(Quarters(AtTick(10, 25)), (TColors{kRed, kWhite, kWhite, kWhite}));
    Tick(50);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{kRed, kRed, kGreen, kWhite}));
    Tick(25);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{kRed, kRed, kGreen, kGreen}));
    Tick(2);
    EXPECT_EQ(Quarters(Picture(Handle())), (TColors{kWhite, kWhite, kWhite, kWhite}));
}

TEST_F(Chart2dPie, FullCircleIsMissingFromTheEndOfASweep)
{
    Add(100, kRed);
    EXPECT_EQ(AtTick(10, 101).Count(kRed), 0);
    chart->SetGraphAnimation(0, 10);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kRed, kRed, kRed, kRed}));
}

TEST_F(Chart2dPie, SlicesFadeInTurn)
{
    Add(50, kRed);
    Add(50, kGreen);
    const Picture first = AtTick(11, 25);
    EXPECT_TRUE(IsBlend(first.At(260, 200), kWhite, kRed, 127));
    EXPECT_TRUE(IsBlend(first.At(120, 200), kWhite, kRed, 127));
    EXPECT_EQ(first.At(260, 280), kWhite);
    Tick(50);
    const Picture second = Picture(Handle());
    EXPECT_EQ(second.At(260, 200), kRed);
    EXPECT_TRUE(IsBlend(second.At(260, 280), kWhite, kGreen, 127));
    Tick(51);
    EXPECT_EQ(Picture(Handle()).At(260, 280), kWhite);
}

TEST_F(Chart2dPie, UpdateStartsTheAnimationOver)
{
    Add(50, kRed);
    Add(50, kGreen);
    AtTick(10, 80);
    chart->Update2DPieGraphSegment(1, 50, kRed, Text(L"slice"));
    Tick(1);
    const Picture picture = Picture(Handle());
    EXPECT_EQ(picture.Count(kGreen), 0);
    EXPECT_EQ(picture.At(120, 200), kWhite);
}

TEST_F(Chart2dPie, AnimationValuesOtherThanOneAreStill)
{
    Add(50, kRed);
    chart->SetGraphAnimation(2, 10);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kRed, kRed, kWhite, kWhite}));
}

TEST_F(Chart2dPie, LegendTellsPercentAndName)
{
    Add(60, kRed);
    Add(12.34, kGreen);
    chart->ShowGraphLegend(1);
    const Picture picture = Redrawn();
    const int line = TextHeight({20});
    const int top = 142 + (200 - 2 * line) / 2;
    // marks at 400, 32 wide; texts 3 farther on
    EXPECT_EQ(picture.Count({400, top + 5, 432, top + 15}, kRed), 32 * 10);
    EXPECT_EQ(TextDifferences(picture, {435, top}, L"(60.0%)  slice", {20}), 0);
    EXPECT_EQ(TextDifferences(picture, {435, top + line}, L"(12.3%)  slice", {20}), 0);
}

TEST_F(Chart2dPie, LegendColoursCannotBeReadBackAndLabelsAreNone)
{
    chart->SetGraphLegendTextColor(kRed);
    chart->SetGraphLegendBackgroundColor(kGreen);
    chart->SetGraphLabelsColor(kBlue);
    ULONG color = 1;
    EXPECT_EQ(chart->GetGraphLegendTextColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLabelsColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    chart->ShowGraphLegend(1);
    EXPECT_GT(Redrawn().Count(kGreen), 100);
}

TEST_F(Chart2dPie, StillSliceWithoutWidthIsTheWholeEllipse)
{
    Add(30, kRed);
    Add(0.0001, kGreen);
    EXPECT_EQ(Quarters(Redrawn()), (TColors{kGreen, kGreen, kGreen, kGreen}));
}

TEST_F(Chart2dPie, FadeWithoutASegmentToFadeShowsNoSlice)
{
    Add(50, kRed);
    Add(50, kGreen);
    AtTick(11, 75);
    chart->Delete2DPieGraphSegment(2);
    EXPECT_EQ(Redrawn().Count(kRed), 0);
}

// What the interface of the business chart refuses, and how: message boxes, results, nulls.

#include "Chart2dHost.h"
#include "support/Faults.h"

using Chart2dMessages = Chart2dTest;

namespace
{

using TTexts = std::vector<std::wstring>;

} // namespace

TEST_F(Chart2dMessages, SegmentIsTestedBeforeSeriesWhenAValueIsSet)
{
    Create(Bar);
    FillBars({{100, 50}});
    EXPECT_EQ(chart->Set2DBarGraphValue(0, 1, 5), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Segments index is out of bounds..."}));
    EXPECT_EQ(chart->Set2DBarGraphValue(3, 9, 5), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Segments index is out of bounds..."}));
    EXPECT_EQ(chart->Set2DBarGraphValue(1, 0, 5), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
    EXPECT_EQ(chart->Set2DBarGraphValue(1, 2, 5), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
    EXPECT_EQ(chart->Set2DBarGraphValue(1, 1, 5), S_OK);
    EXPECT_EQ(boxes.Take(), TTexts{});
}

TEST_F(Chart2dMessages, SeriesBeforeAnySegmentIsRefusedAndLeavesTheChartEmpty)
{
    Create(Bar);
    chart->ShowGraphLegend(0);
    const Picture empty = Redrawn();
    EXPECT_EQ(chart->Add2DBarGraphSeries(Text(L"early"), Red), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"No graph segments..."}));
    chart->Add2DBarGraphSegment(Text(L"s"));
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dMessages, DeletionsOutOfBoundsAreTold)
{
    Create(Bar);
    FillBars({{100, 50}});
    const Picture before = Redrawn();
    for (const int index : {-1, 0, 3, 2147483647}) {
        EXPECT_EQ(chart->Delete2DBarGraphSegment(index), S_OK);
        EXPECT_EQ(boxes.Take(), (TTexts{L"Index is out of bounds..."})) << index;
    }
    for (const int index : {-1, 0, 2}) {
        EXPECT_EQ(chart->Detele2DBarGraphSeries(index), S_OK);
        EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."})) << index;
    }
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(Chart2dMessages, IdAboveTheCountIsOutOfBoundsThoughItExists)
{
    Create(Bar);
    FillBars({{10, 20, 30}});
    chart->Delete2DBarGraphSegment(1);
    const Picture before = Redrawn();
    chart->Set2DBarGraphValue(3, 1, 5);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Segments index is out of bounds..."}));
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(Chart2dMessages, IdThatHasLeftTheListIsOutOfBoundsToo)
{
    Create(Bar);
    FillBars({{10, 20, 30}, {10, 20, 30}});
    chart->Delete2DBarGraphSegment(1);
    chart->Detele2DBarGraphSeries(1);
    EXPECT_EQ(boxes.Take(), TTexts{});
    const Picture before = Redrawn();
    chart->Delete2DBarGraphSegment(1);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Index is out of bounds..."}));
    chart->Detele2DBarGraphSeries(1);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
    chart->Set2DBarGraphValue(2, 1, 7);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(Chart2dMessages, LinesTellTheSame)
{
    Create(Line);
    chart->Add2DLineGraphSeries(Text(L"early"), Red);
    EXPECT_EQ(boxes.Take(), (TTexts{L"No graph segments..."}));
    FillLines({{1, 2}});
    chart->Set2DLineGraphValue(3, 1, 1);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Segments index is out of bounds..."}));
    chart->Set2DLineGraphValue(1, 2, 1);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
    chart->Delete2DLineGraphSegment(0);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Index is out of bounds..."}));
    chart->Delete2DLineGraphSeries(0);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Series index is out of bounds..."}));
}

TEST_F(Chart2dMessages, PieTellsIndexBeforePercent)
{
    Create(Pie);
    chart->Add2DPieGraphSegment(50, Red, Text(L"slice"));
    const Picture before = Redrawn();
    EXPECT_EQ(chart->Update2DPieGraphSegment(2, 0, Green, Text(L"x")), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Index is out of bounds..."}));
    EXPECT_EQ(chart->Update2DPieGraphSegment(1, 0, Green, Text(L"x")), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Percent is not valid..."}));
    EXPECT_EQ(chart->Update2DPieGraphSegment(1, -3, Green, Text(L"x")), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Percent is not valid..."}));
    EXPECT_EQ(chart->Delete2DPieGraphSegment(0), S_OK);
    EXPECT_EQ(boxes.Take(), (TTexts{L"Index is out of bounds..."}));
    EXPECT_EQ(Redrawn().CountDifferences(before), 0);
}

TEST_F(Chart2dMessages, GettersWithoutAPlaceForTheAnswerSayFalse)
{
    Create(Bar);
    EXPECT_EQ(chart->GetGraphLegendTextColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphLabelsColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphSubtitleColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphTitleColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphSubtitleShadow(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphTitleShadow(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGradientFillType(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphFillType(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphBackgroundColor(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetGraphAnimation(nullptr), S_FALSE);
    EXPECT_EQ(chart->GetHandle(nullptr), S_FALSE);
}

TEST_F(Chart2dMessages, SettingsComeBackAsTheyWereGiven)
{
    Create(Bar);
    ULONG color = 0;
    long bShadow = 0;
    EXPECT_EQ(chart->SetGraphTitleColor(0x123456), S_OK);
    EXPECT_EQ(chart->GetGraphTitleColor(&color), S_OK);
    EXPECT_EQ(color, 0x123456u);
    EXPECT_EQ(chart->SetGraphSubtitleColor(0x654321), S_OK);
    EXPECT_EQ(chart->GetGraphSubtitleColor(&color), S_OK);
    EXPECT_EQ(color, 0x654321u);
    EXPECT_EQ(chart->SetGraphLegendTextColor(0x111111), S_OK);
    EXPECT_EQ(chart->GetGraphLegendTextColor(&color), S_OK);
    EXPECT_EQ(color, 0x111111u);
    EXPECT_EQ(chart->SetGraphLegendBackgroundColor(0x222222), S_OK);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(&color), S_OK);
    EXPECT_EQ(color, 0x222222u);
    EXPECT_EQ(chart->SetGraphTitleShadow(7), S_OK);
    EXPECT_EQ(chart->GetGraphTitleShadow(&bShadow), S_OK);
    EXPECT_EQ(bShadow, 7);
    EXPECT_EQ(chart->SetGraphSubtitleShadow(-1), S_OK);
    EXPECT_EQ(chart->GetGraphSubtitleShadow(&bShadow), S_OK);
    EXPECT_EQ(bShadow, -1);
    EXPECT_EQ(chart->GetGraphBackgroundColor(&color), S_OK);
    EXPECT_EQ(color, 0xFFFFFFu);
}

TEST_F(Chart2dMessages, NullTextsAreRefusedForTitlesAndEmptyForNames)
{
    Create(Bar);
    EXPECT_EQ(chart->SetGraphTitle(nullptr), S_FALSE);
    EXPECT_EQ(chart->SetGraphSubtitle(nullptr), S_FALSE);
    EXPECT_EQ(chart->Add2DBarGraphSegment(nullptr), S_OK);
    EXPECT_EQ(chart->Add2DBarGraphSeries(nullptr, Red), S_OK);
    EXPECT_EQ(chart->Set2DBarGraphValue(1, 1, 100), S_OK);
    EXPECT_EQ(Redrawn().At(250, 250), Red);
}

TEST_F(Chart2dMessages, NullTextOfANewSliceAddsNothing)
{
    Create(Pie);
    chart->ShowGraphLegend(0);
    EXPECT_EQ(chart->Add2DPieGraphSegment(100, Red, nullptr), S_OK);
    EXPECT_EQ(Redrawn().Count(Red), 0);
    chart->Add2DPieGraphSegment(100, Red, Text(L""));
    EXPECT_EQ(chart->Update2DPieGraphSegment(1, 100, Green, nullptr), S_OK);
    EXPECT_EQ(Redrawn().At(192, 200), Green);
}

TEST_F(Chart2dMessages, SecondCreateAndNullRectangleSayFalse)
{
    EXPECT_EQ(chart->Create(nullptr, WireHandle(host.m_hWnd), 7), S_FALSE);
    Create(Bar);
    const HWND hFirst = Handle();
    RECT rect = {0, 0, 300, 300};
    EXPECT_EQ(chart->Create(&rect, WireHandle(host.m_hWnd), 8), S_FALSE);
    EXPECT_EQ(Handle(), hFirst);
}

TEST_F(Chart2dMessages, CallsBeforeCreateFault)
{
    wireHWND hWnd = nullptr;
    const auto fault = testing::ExitedWithCode(Faults::AccessViolation);
    EXPECT_EXIT((Faults::EndAtOnce(), chart->ShowGraphLegend(1)), fault, "");
    EXPECT_EXIT((Faults::EndAtOnce(), chart->GetHandle(&hWnd)), fault, "");
    EXPECT_EXIT((Faults::EndAtOnce(), chart->CreateGraph(0)), fault, "");
    EXPECT_EXIT((Faults::EndAtOnce(), chart->Add2DBarGraphSegment(nullptr)), fault, "");
}

TEST_F(Chart2dMessages, LastReleaseTakesTheWindowAlong)
{
    Create(Bar);
    const HWND hChart = Handle();
    EXPECT_TRUE(::IsWindow(hChart));
    chart.Release();
    EXPECT_FALSE(::IsWindow(hChart));
}

TEST_F(Chart2dMessages, HostsWindowMayGoFirst)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW);
    host.Destroy();
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(chart->SetGraphSize(300, 300), S_OK);
    EXPECT_EQ(chart->SetGraphTitle(Text(L"gone")), S_OK);
    EXPECT_EQ(chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW), S_OK);
    EXPECT_EQ(chart->Invalidate(1), S_OK);
    EXPECT_EQ(chart->CreateGraph(Line), S_OK);
}

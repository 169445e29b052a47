// Extreme values, counts and texts, calls in the wrong order, and what must be left at the end.

#include "Chart2dHost.h"
#include "support/GdiCount.h"

#include <cmath>
#include <limits>

using Chart2dBadInput = Chart2dTest;

namespace
{

constexpr int kLowest = (-2147483647 - 1);
constexpr int kHighest = 2147483647;

} // namespace

TEST_F(Chart2dBadInput, ValuesAtTheEndsOfTheRangeAreDrawn)
{
    Create(kBar);
    FillBars({{kHighest, kLowest, 0}, {kLowest, kHighest, 1}});
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 130, kRed), (POINT{169, 326}));
    for (const int type : {20, 21, 22, 25, 26})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, LinesAtTheEndsOfTheRangeAreDrawn)
{
    Create(kLine);
    FillLines({{kHighest, kLowest, 1}, {kLowest, kHighest, kLowest}, {1, kLowest, kHighest}});
    EXPECT_GT(Redrawn().Count(kRed), 0);
    for (const int type : {30, 31})
        AtTick(type, 60);
    chart->Set2DLineGraphValue(1, 1, 1); // now the scale ends at 1
    EXPECT_GT(Redrawn().Count(kBlue), 0);
    for (const int type : {30, 31})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, NothingButZerosAndNothingButNegativesAreDrawn)
{
    for (const int value : {0, -1, kLowest}) {
        Holder<IChart2d> other = Server::Shared().Make<Chart2d, IChart2d>();
        std::swap(chart, other);
        Create(kBar);
        FillBars({{value, value}, {value, value}});
        EXPECT_EQ(Column(Redrawn(), 150, kRed).y, 326) << value; // over a scale of nothing
        AtTick(26, 60);
    }
}

TEST_F(Chart2dBadInput, ThousandsOfSegmentsInASmallWindowAreDrawnAndAnimated)
{
    Create(kBar, {0, 0, 200, 200});
    chart->Add2DBarGraphSegment(Text(L"first"));
    for (int series = 1; series <= 3; ++series)
        chart->Add2DBarGraphSeries(Text(L"row"), kRed);
    for (int segment = 2; segment <= 3000; ++segment)
        chart->Add2DBarGraphSegment(Text(L"s"));
    chart->Set2DBarGraphValue(1, 1, 10);
    chart->Set2DBarGraphValue(3000, 3, 10);
    Redrawn();
    for (const int type : {20, 21, 22, 25, 26})
        AtTick(type, 2);
    EXPECT_TRUE(boxes.m_texts.empty());
}

TEST_F(Chart2dBadInput, ThousandsOfPointsAreDrawnAndAnimated)
{
    Create(kLine, {0, 0, 200, 200});
    chart->ShowGraphLegend(0);
    for (int segment = 1; segment <= 2000; ++segment)
        chart->Add2DLineGraphSegment(Text(L"s"));
    for (int series = 1; series <= 2; ++series)
        chart->Add2DLineGraphSeries(Text(L"row"), kRed);
    for (int segment = 1; segment <= 2000; ++segment)
        chart->Set2DLineGraphValue(segment, 1, 100 + segment % 7);
    EXPECT_GT(Redrawn().Count(kRed), 0);
    for (const int type : {30, 31})
        AtTick(type, 10);
}

TEST_F(Chart2dBadInput, ThousandsOfSlicesAreDrawnAndAnimated)
{
    Create(kPie, {0, 0, 200, 200});
    for (int segment = 0; segment < 2000; ++segment)
        chart->Add2DPieGraphSegment(0.05, kRed, Text(L"s"));
    Redrawn();
    for (const int type : {10, 11})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, SliceThinnerThanAPixelIsTheWholeEllipseAsThePlatformDrawsIt)
{
    Create(kPie);
    chart->ShowGraphLegend(0);
    chart->Add2DPieGraphSegment(50, kRed, Text(L"s"));
    chart->Add2DPieGraphSegment(0.001, kGreen, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), kGreen);
    EXPECT_EQ(Redrawn().Count(kRed), 0);
}

TEST_F(Chart2dBadInput, PercentsThatAreNoNumbersAddNothing)
{
    Create(kPie);
    const Picture empty = Redrawn();
    chart->Add2DPieGraphSegment(std::nan(""), kRed, Text(L"s"));
    chart->Add2DPieGraphSegment(-std::numeric_limits<double>::infinity(), kRed, Text(L"s"));
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
    chart->Add2DPieGraphSegment(std::numeric_limits<double>::infinity(), kRed, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), kRed);
    chart->Update2DPieGraphSegment(1, kHighest, kGreen, Text(L"s"));
    Redrawn();
    AtTick(10, 30);
    AtTick(11, 60);
}

TEST_F(Chart2dBadInput, TextsOfAnyLengthAreDrawn)
{
    const std::wstring endless(200000, L'W');
    for (const std::wstring& text :
         {std::wstring(), std::wstring(L"\r\n\t"), std::wstring(L"%s%n%d"), endless}) {
        Holder<IChart2d> other = Server::Shared().Make<Chart2d, IChart2d>();
        std::swap(chart, other);
        Create(kBar);
        const Text bstr(text.c_str());
        chart->Add2DBarGraphSegment(bstr);
        chart->Add2DBarGraphSeries(bstr, kRed);
        chart->Set2DBarGraphValue(1, 1, 5);
        chart->SetGraphTitle(bstr);
        chart->SetGraphSubtitle(bstr);
        EXPECT_GT(Redrawn().Count(kRed), 1000);
    }
}

TEST_F(Chart2dBadInput, CallsThatNeedAChartDoNothingBeforeThereIsOne)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    const Picture empty = Redrawn();
    ULONG color = 1;
    long bAnimation = 1;
    chart->SetGraphLegendTextColor(kRed);
    chart->SetGraphLegendBackgroundColor(kRed);
    chart->SetGraphLabelsColor(kRed);
    EXPECT_EQ(chart->GetGraphLegendTextColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(&(color = 1)), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLabelsColor(&(color = 1)), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->SetGraphAnimation(1, 20), S_OK);
    EXPECT_EQ(chart->GetGraphAnimation(&bAnimation), S_OK);
    EXPECT_EQ(bAnimation, 0);
    EXPECT_FALSE(HasTimer());
    chart->Add2DBarGraphSegment(Text(L"s"));
    chart->Add2DBarGraphSeries(Text(L"s"), kRed);
    chart->Set2DBarGraphValue(1, 1, 1);
    chart->Delete2DBarGraphSegment(9);
    chart->Detele2DBarGraphSeries(9);
    chart->Add2DLineGraphSegment(Text(L"s"));
    chart->Add2DLineGraphSeries(Text(L"s"), kRed);
    chart->Set2DLineGraphValue(1, 1, 1);
    chart->Delete2DLineGraphSegment(9);
    chart->Delete2DLineGraphSeries(9);
    chart->Add2DPieGraphSegment(10, kRed, Text(L"s"));
    chart->Update2DPieGraphSegment(9, 9, kRed, Text(L"s"));
    chart->Delete2DPieGraphSegment(9);
    chart->Clear2DPieGraph();
    Tick(3);
    EXPECT_TRUE(boxes.m_texts.empty());
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dBadInput, DataOfAnotherKindGoNowhere)
{
    Create(kBar);
    const Picture empty = Redrawn();
    chart->Add2DLineGraphSegment(Text(L"s"));
    chart->Add2DPieGraphSegment(10, kRed, Text(L"s"));
    chart->Delete2DPieGraphSegment(1);
    EXPECT_TRUE(boxes.m_texts.empty());
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dBadInput, SecondKindTakesTheFirstsPlaceAndKeepsItsData)
{
    Create(kBar);
    FillBars({{100, 50}});
    chart->CreateGraph(kPie);
    EXPECT_EQ(Redrawn().Count({32, 140, 352, 340}, kRed), 0);
    chart->Set2DBarGraphValue(9, 1, 1); // the bars are there still
    EXPECT_EQ(boxes.Take().size(), 1u);
    chart->Add2DPieGraphSegment(100, kGreen, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), kGreen);
}

TEST_F(Chart2dBadInput, ParentThatIsNoneGivesAChartWithoutAWindow)
{
    RECT rect = {0, 0, 640, 400};
    EXPECT_EQ(chart->Create(&rect, nullptr, 7), S_OK);
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(chart->CreateGraph(kBar), S_OK);
    FillBars({{1, 2}});
    EXPECT_EQ(chart->SetGraphAnimation(1, 20), S_OK);
    EXPECT_EQ(chart->SetGraphSize(300, 300), S_OK);
    EXPECT_EQ(chart->SetGraphPosition(1, 1), S_OK);
    EXPECT_EQ(chart->Invalidate(1), S_OK);
}

TEST(Chart2dEndurance, CyclesLeaveNoHandleBehind)
{
    const HostWindow host;
    const auto cycle = [&](int number) {
        const int kind = number % 3;
        constexpr int animations[3][5] = {
            {20, 21, 22, 25, 26}, {10, 11, 10, 11, 10}, {30, 31, 30, 31, 30}};
        const Holder<IChart2d> chart = Server::Shared().Make<Chart2d, IChart2d>();
        RECT rect = {0, 0, 300, 200};
        chart->Create(&rect, WireHandle(host.m_hWnd), 7);
        chart->CreateGraph(kind);
        const Text name(L"name");
        for (int i = 1; i <= 3; ++i) {
            chart->Add2DBarGraphSegment(name);
            chart->Add2DLineGraphSegment(name);
            chart->Add2DPieGraphSegment(30, 0xFF, name);
        }
        chart->SetGraphFillType(number % 2 ? 10 : 11);
        chart->Add2DBarGraphSeries(name, 0xFF);
        chart->Add2DLineGraphSeries(name, 0xFF);
        chart->SetGraphAnimation(1, animations[kind][number / 3 % 5]);
        chart->Invalidate(1);
        wireHWND hWnd = nullptr;
        chart->GetHandle(&hWnd);
        for (int tick = 0; tick < 3; ++tick) {
            ::SendMessageW(reinterpret_cast<HWND>(hWnd), WM_TIMER, 50000, 0);
            ::UpdateWindow(reinterpret_cast<HWND>(hWnd));
        }
        chart->SetGraphSize(250 + number % 50, 220);
        ::UpdateWindow(reinterpret_cast<HWND>(hWnd));
    };
    for (int number = 0; number < 30; ++number)
        cycle(number);
    HostWindow::Pump();
    const int before = GdiCount::All();
    for (int number = 0; number < 1000; ++number)
        cycle(number);
    HostWindow::Pump();
    EXPECT_EQ(GdiCount::All(), before);
    EXPECT_EQ(::GetWindow(host.m_hWnd, GW_CHILD), nullptr);
}

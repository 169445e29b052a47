// Extreme values, counts and texts, calls in the wrong order, and what must be left at the end.

#include "Chart2dHost.h"
#include "support/GdiCount.h"

#include <cmath>
#include <limits>

using Chart2dBadInput = Chart2dTest;

namespace
{

constexpr int Lowest = (-2147483647 - 1);
constexpr int Highest = 2147483647;

} // namespace

TEST_F(Chart2dBadInput, ValuesAtTheEndsOfTheRangeAreDrawn)
{
    Create(Bar);
    FillBars({{Highest, Lowest, 0}, {Lowest, Highest, 1}});
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 130, Red), (POINT{169, 326}));
    for (const int type : {20, 21, 22, 25, 26})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, LinesAtTheEndsOfTheRangeAreDrawn)
{
    Create(Line);
    FillLines({{Highest, Lowest, 1}, {Lowest, Highest, Lowest}, {1, Lowest, Highest}});
    EXPECT_GT(Redrawn().Count(Red), 0);
    for (const int type : {30, 31})
        AtTick(type, 60);
    chart->Set2DLineGraphValue(1, 1, 1); // now the scale ends at 1
    EXPECT_GT(Redrawn().Count(Blue), 0);
    for (const int type : {30, 31})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, NothingButZerosAndNothingButNegativesAreDrawn)
{
    for (const int value : {0, -1, Lowest}) {
        Holder<IChart2d> other = Server::Shared().Make<Chart2d, IChart2d>();
        std::swap(chart, other);
        Create(Bar);
        FillBars({{value, value}, {value, value}});
        EXPECT_EQ(Column(Redrawn(), 150, Red).y, 326) << value; // over a scale of nothing
        AtTick(26, 60);
    }
}

TEST_F(Chart2dBadInput, ThousandsOfSegmentsInASmallWindowAreDrawnAndAnimated)
{
    Create(Bar, {0, 0, 200, 200});
    chart->Add2DBarGraphSegment(Text(L"first"));
    for (int series = 1; series <= 3; ++series)
        chart->Add2DBarGraphSeries(Text(L"row"), Red);
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
    Create(Line, {0, 0, 200, 200});
    chart->ShowGraphLegend(0);
    for (int segment = 1; segment <= 2000; ++segment)
        chart->Add2DLineGraphSegment(Text(L"s"));
    for (int series = 1; series <= 2; ++series)
        chart->Add2DLineGraphSeries(Text(L"row"), Red);
    for (int segment = 1; segment <= 2000; ++segment)
        chart->Set2DLineGraphValue(segment, 1, 100 + segment % 7);
    EXPECT_GT(Redrawn().Count(Red), 0);
    for (const int type : {30, 31})
        AtTick(type, 10);
}

TEST_F(Chart2dBadInput, ThousandsOfSlicesAreDrawnAndAnimated)
{
    Create(Pie, {0, 0, 200, 200});
    for (int segment = 0; segment < 2000; ++segment)
        chart->Add2DPieGraphSegment(0.05, Red, Text(L"s"));
    Redrawn();
    for (const int type : {10, 11})
        AtTick(type, 60);
}

TEST_F(Chart2dBadInput, SliceThinnerThanAPixelIsTheWholeEllipseAsThePlatformDrawsIt)
{
    Create(Pie);
    chart->ShowGraphLegend(0);
    chart->Add2DPieGraphSegment(50, Red, Text(L"s"));
    chart->Add2DPieGraphSegment(0.001, Green, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), Green);
    EXPECT_EQ(Redrawn().Count(Red), 0);
}

TEST_F(Chart2dBadInput, PercentsThatAreNoNumbersAddNothing)
{
    Create(Pie);
    const Picture empty = Redrawn();
    chart->Add2DPieGraphSegment(std::nan(""), Red, Text(L"s"));
    chart->Add2DPieGraphSegment(-std::numeric_limits<double>::infinity(), Red, Text(L"s"));
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
    chart->Add2DPieGraphSegment(std::numeric_limits<double>::infinity(), Red, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), Red);
    chart->Update2DPieGraphSegment(1, Highest, Green, Text(L"s"));
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
        Create(Bar);
        const Text bstr(text.c_str());
        chart->Add2DBarGraphSegment(bstr);
        chart->Add2DBarGraphSeries(bstr, Red);
        chart->Set2DBarGraphValue(1, 1, 5);
        chart->SetGraphTitle(bstr);
        chart->SetGraphSubtitle(bstr);
        EXPECT_GT(Redrawn().Count(Red), 1000);
    }
}

TEST_F(Chart2dBadInput, CallsThatNeedAChartDoNothingBeforeThereIsOne)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    const Picture empty = Redrawn();
    ULONG color = 1;
    long bAnimation = 1;
    chart->SetGraphLegendTextColor(Red);
    chart->SetGraphLegendBackgroundColor(Red);
    chart->SetGraphLabelsColor(Red);
    EXPECT_EQ(chart->GetGraphLegendTextColor(&color), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLegendBackgroundColor(&(color = 1)), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->GetGraphLabelsColor(&(color = 1)), S_OK);
    EXPECT_EQ(color, 0u);
    EXPECT_EQ(chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW), S_OK);
    EXPECT_EQ(chart->GetGraphAnimation(&bAnimation), S_OK);
    EXPECT_EQ(bAnimation, 0);
    EXPECT_FALSE(HasTimer());
    chart->Add2DBarGraphSegment(Text(L"s"));
    chart->Add2DBarGraphSeries(Text(L"s"), Red);
    chart->Set2DBarGraphValue(1, 1, 1);
    chart->Delete2DBarGraphSegment(9);
    chart->Detele2DBarGraphSeries(9);
    chart->Add2DLineGraphSegment(Text(L"s"));
    chart->Add2DLineGraphSeries(Text(L"s"), Red);
    chart->Set2DLineGraphValue(1, 1, 1);
    chart->Delete2DLineGraphSegment(9);
    chart->Delete2DLineGraphSeries(9);
    chart->Add2DPieGraphSegment(10, Red, Text(L"s"));
    chart->Update2DPieGraphSegment(9, 9, Red, Text(L"s"));
    chart->Delete2DPieGraphSegment(9);
    chart->Clear2DPieGraph();
    Tick(3);
    EXPECT_TRUE(boxes.m_texts.empty());
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dBadInput, DataOfAnotherKindGoNowhere)
{
    Create(Bar);
    const Picture empty = Redrawn();
    chart->Add2DLineGraphSegment(Text(L"s"));
    chart->Add2DPieGraphSegment(10, Red, Text(L"s"));
    chart->Delete2DPieGraphSegment(1);
    EXPECT_TRUE(boxes.m_texts.empty());
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dBadInput, SecondKindTakesTheFirstsPlaceAndKeepsItsData)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->CreateGraph(Pie);
    EXPECT_EQ(Redrawn().Count({32, 140, 352, 340}, Red), 0);
    chart->Set2DBarGraphValue(9, 1, 1); // the bars are there still
    EXPECT_EQ(boxes.Take().size(), 1u);
    chart->Add2DPieGraphSegment(100, Green, Text(L"s"));
    EXPECT_EQ(Redrawn().At(192, 200), Green);
}

TEST_F(Chart2dBadInput, ParentThatIsNoneGivesAChartWithoutAWindow)
{
    RECT rect = {0, 0, 640, 400};
    EXPECT_EQ(chart->Create(&rect, nullptr, 7), S_OK);
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(chart->CreateGraph(Bar), S_OK);
    FillBars({{1, 2}});
    EXPECT_EQ(chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW), S_OK);
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

// The owners of vantoplex.hpp, with the DLL beside the test program and without registration.

#include <vantoplex.hpp>

#include "support/HostWindow.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace std::string_literals;

namespace
{

std::wstring FolderOfTests()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1);
}

class ComfortTest : public testing::Test
{
protected:
    ComfortTest() : m_library(FolderOfTests() + L"Vantoplex.dll") {}

    vantoplex::Graph MakeGraph() const { return vantoplex::Graph(m_parent, nullptr, 1, &m_library); }
    // Values at two pixels of an axis show its visible range.
    static double ValueAt(const vantoplex::Pointer<ISGraphAxis>& axis, int pixel)
    {
        double value = std::nan("");
        axis->GetValueForPos(pixel, &value);
        return value;
    }
    static void Paint(const vantoplex::Graph& graph)
    {
        graph.Repaint();
        UpdateWindow(graph.Window());
    }

    const HostWindow m_host{500, 400};
    const HWND m_parent = m_host.m_hWnd;
    vantoplex::Library m_library;
    const std::vector<TDataPoint> m_points = {{0, 1}, {1, 2}, {2, 3}, {3, 4}};
};

TEST_F(ComfortTest, AChartInThreeCalls)
{
    vantoplex::Graph graph = MakeGraph();
    EXPECT_EQ(graph.Plot(m_points, L"line"), 0);
    graph.Fit();

    RECT client{};
    GetClientRect(m_parent, &client);
    RECT window{};
    GetWindowRect(graph.Window(), &window);
    EXPECT_EQ(window.right - window.left, client.right);
    EXPECT_EQ(graph.CurveCount(), 1);
    vantoplex::Text name;
    graph.Curve(0)->GetLabel(name.Receive());
    EXPECT_EQ(name.View(), L"line");
}

TEST_F(ComfortTest, TheGraphsWindowGoesWithIt)
{
    HWND window = nullptr;
    {
        const vantoplex::Graph graph = MakeGraph();
        window = graph.Window();
        EXPECT_TRUE(IsWindow(window));
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ComfortTest, WrongIndicesGiveNothingAndEndNothing)
{
    vantoplex::Graph graph = MakeGraph();
    EXPECT_FALSE(graph.Curve(0));
    EXPECT_FALSE(graph.XAxis(-1));
    EXPECT_EQ(graph.Plot(m_points, L"", {1, 0}), -1);
    EXPECT_EQ(graph.Plot({}, L""), -1);
    EXPECT_FALSE(graph.Delete(0));
    EXPECT_FALSE(graph.Replace(0, m_points));
    EXPECT_EQ(graph.AddTrend(0, vantoplex::Trend::Linear), -1);
    EXPECT_FALSE(graph.Send(VPX_COMMAND_LINEAR_TREND));
}

TEST_F(ComfortTest, AnAxisMadeWithARangeKeepsItUnderDataThatLeaveIt)
{
    vantoplex::Graph graph = MakeGraph();
    ASSERT_TRUE(graph.WidenX(0, -5, 5));
    ASSERT_TRUE(graph.WidenY(0, 0, 10));
    EXPECT_EQ(graph.CurveCount(), 0);
    const std::vector<TDataPoint> distant = {{-100, -100}, {100, 100}};
    ASSERT_EQ(graph.PlotKeepingRanges(distant), 0);
    graph.XAxis(0)->SetAutoScale(0);
    graph.YAxis(0)->SetAutoScale(0);
    Paint(graph);

    // The axis's origin pixel holds the lower bound.
    long count = 0;
    graph.Curve(0)->GetCount(&count);
    EXPECT_EQ(count, 2);
    RECT line{};
    graph.XAxis(0)->GetRect(&line);
    EXPECT_NEAR(ValueAt(graph.XAxis(0), line.left + 1), -5, 0.1);
    graph.YAxis(0)->GetRect(&line);
    EXPECT_NEAR(ValueAt(graph.YAxis(0), line.bottom), 0, 0.1);
}

TEST_F(ComfortTest, ReplacedPointsAreCopiedAndTheCurveKeepsItsLooks)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points, L"kept");
    for (int i = 0; i < 3; ++i) {
        std::vector<TDataPoint> other(10 + static_cast<std::size_t>(i), TDataPoint{1.0 * i, 2});
        ASSERT_TRUE(graph.Replace(0, other));
    }
    Paint(graph);
    long count = 0;
    graph.Curve(0)->GetCount(&count);
    EXPECT_EQ(count, 12);
    vantoplex::Text name;
    graph.Curve(0)->GetLabel(name.Receive());
    EXPECT_EQ(name.View(), L"kept");
}

TEST_F(ComfortTest, ATrendIsACurveOfItsOwn)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points, L"data");
    const int trend = graph.AddTrend(0, vantoplex::Trend::Linear, 0, 2);
    ASSERT_EQ(trend, 1);
    long count = 0;
    graph.Curve(trend)->GetCount(&count);
    EXPECT_EQ(count, 6);
    vantoplex::Text name;
    graph.Curve(trend)->GetLabel(name.Receive());
    EXPECT_EQ(name.View(), L"data trend");
    EXPECT_EQ(graph.AddTrend(0, vantoplex::Trend::Polynomial, 22), -1);
}

TEST_F(ComfortTest, DeletingACurveTakesItsMeasuresAndSnapAlong)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points);
    graph.Plot(m_points);
    graph->ForceSnap(1);
    ASSERT_TRUE(graph.Send(VPX_COMMAND_CURSOR));
    ASSERT_TRUE(graph.Delete(1));
    Paint(graph);
    EXPECT_EQ(graph.CurveCount(), 1);
}

TEST_F(ComfortTest, TheLastXAxisTakesAnExactRangeAndKeepsItsSettings)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points, L"data");
    const auto before = graph.XAxis(0);
    before->SetLabel(vantoplex::Text(L"seconds").Get());
    before->SetDisplayFmt(vantoplex::Text(L"%.3f").Get());
    before->SetColor(RGB(1, 2, 3));
    before->SetGridColor(RGB(4, 5, 6));
    before->SetTickSize(7);
    before->SetShowGrid(FALSE);
    Paint(graph);
    ASSERT_TRUE(graph.ShowX(1.25, 2.5));
    Paint(graph);

    const auto axis = graph.XAxis(0);
    RECT line{};
    axis->GetRect(&line);
    EXPECT_NEAR(ValueAt(axis, line.left), 1.25, 0.02);
    vantoplex::Text label;
    vantoplex::Text format;
    axis->GetLabel(label.Receive());
    axis->GetDisplayFmt(format.Receive());
    EXPECT_EQ(label.View(), L"seconds");
    EXPECT_EQ(format.View(), L"%.3f");
    unsigned long color = 0;
    unsigned long gridColor = 0;
    int tick = 0;
    long grid = TRUE;
    axis->GetColor(&color);
    axis->GetGridColor(&gridColor);
    axis->GetTickSize(&tick);
    axis->GetShowGrid(&grid);
    EXPECT_EQ(color, RGB(1, 2, 3));
    EXPECT_EQ(gridColor, RGB(4, 5, 6));
    EXPECT_EQ(tick, 7);
    EXPECT_EQ(grid, FALSE);
    EXPECT_EQ(graph.CurveCount(), 1);
    EXPECT_FALSE(graph.ShowX(2, 2));
}

TEST_F(ComfortTest, PointsAreReadBackAndFoundAtTheirPixels)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points);
    Paint(graph);
    const std::vector<TDataPoint> points = graph.PointsOf(0);
    ASSERT_EQ(points.size(), m_points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_EQ(points[i].fXVal, m_points[i].fXVal);
        EXPECT_EQ(points[i].fYVal, m_points[i].fYVal);
        const POINT place = graph.PixelOf(0, points[i]);
        EXPECT_NEAR(ValueAt(graph.XAxis(0), place.x), points[i].fXVal, 0.02);
        EXPECT_NEAR(ValueAt(graph.YAxis(0), place.y), points[i].fYVal, 0.02);
    }
    EXPECT_TRUE(graph.PointsOf(1).empty());
}

TEST_F(ComfortTest, AChosenCurveIsOneThatTheTrendCommandsAccept)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points, L"chosen");
    graph.Plot(std::vector<TDataPoint>{{0, 4}, {3, 1}}, L"other");
    graph.YAxis(0)->SetSelected(TRUE);
    ASSERT_TRUE(graph.SendTrend(0, vantoplex::Trend::Linear));
    EXPECT_EQ(graph.CurveCount(), 3);
    long markers = -1;
    graph.YAxis(0)->GetAxisMarkerCount(&markers);
    EXPECT_EQ(markers, 0);
    EXPECT_FALSE(graph.SendTrend(7, vantoplex::Trend::Linear));
    graph.Curve(1)->SetVisible(FALSE);
    EXPECT_FALSE(graph.SendTrend(1, vantoplex::Trend::Cubic));
    EXPECT_EQ(graph.CurveCount(), 3);
}

TEST_F(ComfortTest, AVisibleChartIsWrittenAsAPngFile)
{
    vantoplex::Graph graph = MakeGraph();
    graph.Plot(m_points);
    const std::wstring file = FolderOfTests() + L"comfort-test.png";
    DeleteFileW(file.c_str());
    ASSERT_TRUE(graph.SavePng(file));
    const HANDLE read = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    BYTE head[24] = {};
    DWORD count = 0;
    ReadFile(read, head, sizeof head, &count, nullptr);
    CloseHandle(read);
    DeleteFileW(file.c_str());
    RECT client{};
    GetClientRect(graph.Window(), &client);
    EXPECT_EQ(std::string(head + 1, head + 4), "PNG");
    EXPECT_EQ(head[18] * 256 + head[19], client.right);
    EXPECT_EQ(head[22] * 256 + head[23], client.bottom);

    ShowWindow(m_parent, SW_HIDE);
    EXPECT_FALSE(graph.SavePng(file));
    EXPECT_EQ(GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ComfortTest, TheBusinessChartRefusesNumbersOutsideItsLists)
{
    vantoplex::BusinessChart chart(m_parent, VPX_CHART_BAR, nullptr, 2, &m_library);
    EXPECT_EQ(chart.AddSeries(L"early", 0), 0);
    EXPECT_EQ(chart.AddSegment(L"a"), 1);
    EXPECT_EQ(chart.AddSegment(L"b"), 2);
    EXPECT_EQ(chart.AddSeries(L"s", RGB(255, 0, 0)), 1);
    EXPECT_EQ(chart.AddSegment(L"late"), 0);
    EXPECT_TRUE(chart.SetValue(2, 1, 5));
    EXPECT_FALSE(chart.SetValue(3, 1, 5));
    EXPECT_FALSE(chart.SetValue(1, 0, 5));
    EXPECT_FALSE(chart.AddSlice(L"x", 10, 0));
    EXPECT_FALSE(chart.Animate(VPX_ANIMATION_PIE_FADE));
    EXPECT_TRUE(chart.Animate(VPX_ANIMATION_BARS_GROW));
    long running = 0;
    chart->GetGraphAnimation(&running);
    EXPECT_EQ(running, VPX_ANIMATE_ON);
    chart.Still();
}

TEST_F(ComfortTest, ThePiesItemsAreKeysOfTheirOwn)
{
    vantoplex::Pie pie(m_parent, L"title", nullptr, 3, &m_library);
    const auto item = pie.Insert(L"key", L"label", 2.5, RGB(0, 128, 0));
    ASSERT_TRUE(item);
    EXPECT_EQ(pie.NameOf(item), L"key");
    EXPECT_FALSE(pie.Insert(L"key", L"again", 1, 0));
    EXPECT_FALSE(pie.Insert(L"", L"nameless", 1, 0));
    EXPECT_FALSE(pie.SetValue(item, 0));
    EXPECT_TRUE(pie.SetValue(item, 4));
    EXPECT_FALSE(pie.SetValue(pie.Find(L"unknown"), 1));
    EXPECT_FALSE(pie.Selected());
    pie.Remove(L"key");
    EXPECT_FALSE(pie.Find(L"key"));
}

TEST_F(ComfortTest, AMissingLibraryIsNamedInOneSentence)
{
    vantoplex::Status status;
    const auto library = vantoplex::Library::Load(L"Z:\\nowhere\\Vantoplex.dll", status);
    EXPECT_FALSE(status);
    EXPECT_NE(status.text.find(L"was not found"), std::wstring::npos);
    EXPECT_THROW(vantoplex::Library(L"Z:\\nowhere\\Vantoplex.dll"), vantoplex::Error);
}

TEST_F(ComfortTest, AnotherLibraryIsRefused)
{
    vantoplex::Status status;
    const auto library = vantoplex::Library::Load(L"C:\\windows\\system32\\version.dll", status);
    EXPECT_FALSE(status);
    EXPECT_NE(status.text.find(L"is not Vantoplex.dll"), std::wstring::npos);
}

TEST_F(ComfortTest, AParentThatIsNoWindowIsRefused)
{
    vantoplex::Status status;
    const auto graph =
        vantoplex::Graph::Make(reinterpret_cast<HWND>(0x7FF1), status, nullptr, 1, &m_library);
    EXPECT_FALSE(status);
    EXPECT_FALSE(graph);
}

} // namespace

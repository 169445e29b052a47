// The owners of vantoplex.hpp, with the DLL beside the test program and without registration.

#include <vantoplex.hpp>

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
    ComfortTest()
        : m_parent(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 500,
                                   400, nullptr, nullptr, nullptr, nullptr)),
          m_library(FolderOfTests() + L"Vantoplex.dll")
    {
    }
    ~ComfortTest() override { DestroyWindow(m_parent); }

    vantoplex::Graph MakeGraph() const { return vantoplex::Graph(m_parent, nullptr, 1, &m_library); }
    // Values at two pixels of an axis tell its visible range.
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

    HWND m_parent;
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

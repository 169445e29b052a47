// Nothing is left behind: objects of the drawing system, windows and memory stay where they
// were, however long a graph lives and however many there were.

#include "NativeGraph.h"
#include "support/GdiCount.h"

#include <psapi.h>

namespace
{

using GraphEndurance = GraphTest;

// Bytes that the process has asked for.
SIZE_T PrivateBytes()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

int CountWindows()
{
    int nCount = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND hWnd, LPARAM lParam) -> BOOL {
            auto count = [](HWND, LPARAM lInner) -> BOOL {
                ++*reinterpret_cast<int*>(lInner);
                return TRUE;
            };
            count(hWnd, lParam);
            ::EnumChildWindows(hWnd, count, lParam);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

constexpr SIZE_T Megabyte = 1 << 20;

} // namespace

TEST_F(GraphEndurance, TwoThousandRepaintsLeaveNothing)
{
    AddLine();
    AddLine(0, 1);
    graph.InsertLabel(CRect(60, 60, 120, 80), L"label");
    for (int i = 0; i < 10; ++i)
        Paint();
    const int nObjects = GdiCount::All();
    const int nWindows = CountWindows();
    const SIZE_T nBytes = PrivateBytes();
    for (int i = 0; i < 2000; ++i)
        Paint();
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_EQ(CountWindows(), nWindows);
    EXPECT_LT(PrivateBytes(), nBytes + Megabyte);
}

TEST_F(GraphEndurance, FiveHundredReplacedCurvesLeaveNothing)
{
    // A leaked copy would be 160,000 bytes each time.
    auto points = Line(10000);
    const auto nCount = static_cast<long>(points.size());
    auto replace = [&] {
        graph.m_Curves.clear();
        graph.SetData(points.data(), nCount, 0, 0, 0, true); // a private copy
        graph.SetData(points.data(), nCount, 0, 0, 0, false);
        Paint();
    };
    replace();
    const int nObjects = GdiCount::All();
    const SIZE_T nBytes = PrivateBytes();
    for (int i = 0; i < 500; ++i)
        replace();
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_LT(PrivateBytes(), nBytes + 4 * Megabyte);
}

TEST_F(GraphEndurance, FiveHundredResizesLeaveNothing)
{
    AddLine();
    auto resize = [&](int i) {
        ::SetWindowPos(graph.m_hWnd, nullptr, 0, 0, 50 + i % 250, 40 + (i * 7) % 200, SWP_NOZORDER);
        graph.UpdateWindow();
    };
    for (int i = 0; i < 300; ++i)
        resize(i);
    const int nObjects = GdiCount::All();
    const SIZE_T nBytes = PrivateBytes();
    for (int i = 0; i < 500; ++i)
        resize(i);
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_LT(PrivateBytes(), nBytes + 2 * Megabyte);
}

TEST_F(GraphEndurance, AHundredGraphsComeAndGo)
{
    auto cycle = [&] {
        auto pGraph = std::make_unique<CXGraph>();
        pGraph->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 150),
                       CWnd::FromHandle(host.m_hWnd), 9);
        auto points = Line();
        pGraph->SetData(points.data(), 11, 0, 0, 0, true);
        pGraph->UpdateWindow();
        ::DestroyWindow(pGraph->m_hWnd);
    };
    cycle();
    const int nObjects = GdiCount::All();
    const int nWindows = CountWindows();
    for (int i = 0; i < 100; ++i)
        cycle();
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_EQ(CountWindows(), nWindows);
}

TEST_F(GraphEndurance, APrivateCopyIsFreedWithTheCurve)
{
    auto points = Line(100000);
    auto cycle = [&] {
        graph.SetData(points.data(), 100000, 0, 0, 0, true);
        graph.DeleteCurve(0);
    };
    cycle();
    const SIZE_T nBytes = PrivateBytes();
    for (int i = 0; i < 100; ++i)
        cycle();
    EXPECT_LT(PrivateBytes(), nBytes + 4 * Megabyte);
}

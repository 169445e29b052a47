// The class, its window and its life.

#include "NativeGraph.h"
#include "framework/windowing/ModuleState.h"

namespace
{
using GraphWindow = GraphTest;

class CountedGraph : public CXGraph
{
public:
    explicit CountedGraph(int& nFreed) : m_nFreed(nFreed) {}
    ~CountedGraph() override { ++m_nFreed; }

private:
    int& m_nFreed;
};
} // namespace

TEST_F(GraphWindow, ItIsASerialClassWithACreator)
{
    const CRuntimeClass* pClass = graph.GetRuntimeClass();
    EXPECT_STREQ(pClass->m_lpszClassName, "CXGraph");
    EXPECT_EQ(pClass->m_wSchema, 1u);
    EXPECT_TRUE(graph.IsKindOf(RUNTIME_CLASS(CWnd)));
    const std::unique_ptr<CObject> made(pClass->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), pClass);
}

TEST_F(GraphWindow, DefaultsAreThoseOfAFreshGraph)
{
    CXGraph fresh;
    EXPECT_EQ(fresh.m_crBackColor, 0xFFFFFFu);
    EXPECT_EQ(fresh.m_crGraphColor, 0xFFFFFFu);
    EXPECT_EQ(fresh.m_crInnerColor, 0xF0F0F0u);
    EXPECT_TRUE(fresh.m_bDoubleBuffer && fresh.m_bShowLegend && fresh.m_bInteraction &&
                fresh.m_bSnapCursor);
    EXPECT_EQ(fresh.m_nLegendAlignment, EAlignment::right);
    EXPECT_EQ(fresh.m_nSnapRange, 10);
    EXPECT_EQ(fresh.m_nCursorFlags, 7u);
    EXPECT_EQ(fresh.m_opOperation, opNone);
    EXPECT_EQ(fresh.m_nLeftMargin, 5);
    EXPECT_EQ(fresh.m_nTopMargin, 5);
    EXPECT_EQ(fresh.m_nRightMargin, 5);
    EXPECT_EQ(fresh.m_nBottomMargin, 5);
    EXPECT_EQ(fresh.m_nAxisSpace, 5);
    EXPECT_EQ(fresh.m_nForcedSnapCurve, -1);
    EXPECT_EQ(fresh.m_nSelectedCurve, -1);
}

TEST_F(GraphWindow, TheCursorsLabelHeadsTheObjects)
{
    ASSERT_EQ(graph.m_Objects.GetCount(), 1);
    EXPECT_EQ(ObjectAt(graph, 0), &graph.m_CursorLabel);
    EXPECT_EQ(graph.m_CursorLabel.m_rcObject, CRect(100, 100, 200, 175));
    EXPECT_FALSE(graph.m_CursorLabel.m_bVisible);
    EXPECT_FALSE(graph.m_CursorLabel.m_bCanEdit);
    EXPECT_TRUE(graph.m_CursorLabel.m_bBorder);
}

TEST_F(GraphWindow, TheClassServesHostsThatPlaceTheControlByName)
{
    WNDCLASSW wndclass = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), L"XGraph", &wndclass));
    EXPECT_EQ(wndclass.style, 11u);
    EXPECT_EQ(wndclass.hbrBackground, reinterpret_cast<HBRUSH>(16));
    EXPECT_EQ(wndclass.hCursor, ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
    EXPECT_EQ(wndclass.cbWndExtra, 0);
    EXPECT_EQ(wndclass.lpszMenuName, nullptr);
    const HWND hWnd = ::CreateWindowExW(0, L"XGraph", L"", WS_CHILD, 0, 0, 10, 10, host.m_hWnd, nullptr,
                                        AfxGetInstanceHandle(), nullptr);
    EXPECT_NE(hWnd, nullptr);
    ::DestroyWindow(hWnd);
}

TEST_F(GraphWindow, TheMarkersStandInTheirOrder)
{
    const CXGraph::PFNMARKER expected[] = {DrawSquare,        DrawCircle,       DrawCross,
                                           DrawDiamond,       DrawTriangleLeft, DrawTriangleUp,
                                           DrawTriangleRight, DrawTriangleDown};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(graph.m_pfnMarker[i], expected[i]) << i;
}

TEST_F(GraphWindow, MarginsAreStoredWithoutARepaint)
{
    Paint();
    graph.SetGraphMargins(1, 2, 3, 4);
    EXPECT_EQ(graph.m_nLeftMargin, 1);
    EXPECT_EQ(graph.m_nTopMargin, 2);
    EXPECT_EQ(graph.m_nRightMargin, 3);
    EXPECT_EQ(graph.m_nBottomMargin, 4);
    EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
}

TEST_F(GraphWindow, ALabelIsAppendedWithoutARepaint)
{
    Paint();
    CXGraphLabel* pLabel = graph.InsertLabel(CRect(1, 2, 30, 40), L"text");
    EXPECT_EQ(ObjectAt(graph, 1), pLabel);
    EXPECT_EQ(pLabel->m_rcObject, CRect(1, 2, 30, 40));
    EXPECT_EQ(pLabel->m_cText, L"text");
    EXPECT_EQ(pLabel->m_pGraph, &graph);
    EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
}

TEST_F(GraphWindow, ACentredLabelLiesAroundTheMiddleOfThePlot)
{
    graph.m_rcInner = CRect(11, 20, 100, 80);
    CXGraphLabel* pLabel = graph.InsertCenteredLabel(L"mid");
    EXPECT_EQ(pLabel->m_rcObject, CRect(5, 0, 105, 100)); // (11 + 100) / 2 is 55
    EXPECT_EQ(pLabel->m_cText, L"mid");
}

TEST_F(GraphWindow, ErasingIsLeftToTheFrame)
{
    EXPECT_EQ(graph.SendMessage(WM_ERASEBKGND, 0, 0), 1);
}

TEST_F(GraphWindow, ANewSizeRepaintsEverything)
{
    Paint();
    ::SetWindowPos(graph.m_hWnd, nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOREDRAW);
    RECT update = {};
    ASSERT_TRUE(::GetUpdateRect(graph.m_hWnd, &update, FALSE));
    EXPECT_EQ(CRect(update), CRect(0, 0, 300, 200));
}

TEST_F(GraphWindow, AGraphOutlivesItsWindowUntilItIsFreed)
{
    int nFreed = 0;
    auto* pGraph = new CountedGraph(nFreed);
    pGraph->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50),
                   CWnd::FromHandle(host.m_hWnd), 8);
    ::DestroyWindow(pGraph->m_hWnd);
    EXPECT_EQ(pGraph->m_hWnd, nullptr);
    EXPECT_EQ(nFreed, 0);
    delete pGraph;
    EXPECT_EQ(nFreed, 1);
}

TEST(GraphAccount, FreeAllDestroysWhatIsLeftWithItsWindow)
{
    HostWindow host;
    int nFreed = 0;
    auto* pGraph = new CountedGraph(nFreed);
    pGraph->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50),
                   CWnd::FromHandle(host.m_hWnd), 8);
    new CountedGraph(nFreed); // never had a window
    const HWND hWnd = pGraph->m_hWnd;
    CXGraph::FreeAll();
    EXPECT_EQ(nFreed, 2);
    EXPECT_FALSE(::IsWindow(hWnd));
}

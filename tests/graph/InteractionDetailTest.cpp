// Fine points of the mouse, the keys, zoom and pan that only the native graph shows.

#include "NativeGraph.h"
#include "automation/Interfaces.h"
#include "graph/DragState.h"

#include <cmath>
#include <vector>

namespace
{

class InteractionDetail : public GraphTest
{
protected:
    void SetUp() override
    {
        graph.m_bShowLegend = false;
        AddLine();
        graph.Pan(); // no rounding of the ranges
        graph.NoOp();
        Paint();
        Heard();
    }
    void Mouse(UINT message, CPoint at, WPARAM nFlags = 0)
    {
        ::SendMessageW(graph.m_hWnd, message, nFlags, MAKELPARAM(at.x, at.y));
    }
    void Key(WPARAM nKey) { ::SendMessageW(graph.m_hWnd, WM_KEYUP, nKey, 0); }
    int Column(double x) { return graph.m_XAxes[0].GetPointForValue({x, 0}).x; }
    int Row(double y) { return graph.m_YAxes[0].GetPointForValue({0, y}).y; }
    // The messages that wait for the parent.
    std::vector<UINT> Heard()
    {
        std::vector<UINT> heard;
        MSG message;
        while (::PeekMessageW(&message, host.m_hWnd, WM_USER, 0xBFFF, PM_REMOVE))
            heard.push_back(message.message);
        return heard;
    }
    bool IsDirty() { return ::GetUpdateRect(graph.m_hWnd, nullptr, FALSE) != FALSE; }
    void Clean() { ::ValidateRect(graph.m_hWnd, nullptr); }
    static void ExpectRange(const CXGraphAxis& axis, double fMin, double fMax)
    {
        EXPECT_DOUBLE_EQ(axis.m_fCurMin, fMin);
        EXPECT_DOUBLE_EQ(axis.m_fCurMax, fMax);
    }
};

} // namespace

TEST_F(InteractionDetail, AKeyMovesByATenthOfTheSpanThatTheAxisMappedLast)
{
    CXGraphAxis& xAxis = graph.m_XAxes[0];
    CXGraphAxis& yAxis = graph.m_YAxes[0];
    struct TMove {
        WPARAM nKey;
        double xLow, xHigh, yLow, yHigh;
    };
    // The spans that are kept differ from the ranges that are seen, which are 0 to 10.
    for (const TMove& move :
         {TMove{VK_LEFT, 5, 15, 0, 10}, TMove{VK_RIGHT, -5, 5, 0, 10}, TMove{VK_UP, 0, 10, -3, 7},
          TMove{VK_DOWN, 0, 10, 3, 13}, TMove{VK_SUBTRACT, -5, 15, -3, 13}}) {
        xAxis.SetCurrentRange(0, 10, 1.0);
        yAxis.SetCurrentRange(0, 10, 1.0);
        xAxis.m_fRange = 50;
        yAxis.m_fRange = 30;
        Key(move.nKey);
        ExpectRange(xAxis, move.xLow, move.xHigh);
        ExpectRange(yAxis, move.yLow, move.yHigh);
    }
}

TEST_F(InteractionDetail, APointIsGrabbedHalfAMarkerLeftOfTheMouse)
{
    CXGraphDataSerie& curve = graph.m_Curves[0];
    graph.Edit();
    // A little right of the fifth point. The point taken is the first one past the value there.
    const CPoint at(Column(5) + 6, Row(5.2));
    for (const auto& [nSize, nPoint] : {std::pair{0, 6}, std::pair{8, 6}, std::pair{20, 5}}) {
        curve.m_nMarkerSize = nSize;
        Paint();
        Mouse(WM_MOUSEMOVE, CPoint(0, 0)); // lets go
        Mouse(WM_MOUSEMOVE, at);
        EXPECT_EQ(DragState().nCurve, 0);
        EXPECT_EQ(DragState().nPoint, nPoint) << nSize;
    }
    Mouse(WM_MOUSEMOVE, CPoint(0, 0));
}

TEST_F(InteractionDetail, ARightReleaseForgetsTheCursorInItsOperationAlone)
{
    graph.m_CursorTool.m_ptLastCursor = CPoint(40, 50);
    Clean();
    Mouse(WM_RBUTTONUP, CPoint(100, 100));
    EXPECT_EQ(graph.m_CursorTool.m_ptLastCursor, CPoint(40, 50));
    EXPECT_FALSE(IsDirty());
    graph.Cursor();
    graph.m_CursorTool.m_ptLastCursor = CPoint(40, 50);
    Clean();
    Mouse(WM_RBUTTONUP, CPoint(100, 100));
    EXPECT_EQ(graph.m_CursorTool.m_ptLastCursor, CPoint(-1, -1));
    EXPECT_TRUE(IsDirty());
    EXPECT_EQ(Heard().back(), static_cast<UINT>(XG_RBUTTONUP));
}

TEST_F(InteractionDetail, APressTakesAHiddenObjectThatAClickDoesNotSelect)
{
    CXGraphLabel* label = graph.InsertLabel(CRect(100, 80, 180, 130), L"hidden");
    label->m_bVisible = false;
    const CPoint at(120, 90);
    Mouse(WM_MOUSEMOVE, at);
    EXPECT_FALSE(graph.m_bOverObject);
    Mouse(WM_LBUTTONDOWN, at, MK_LBUTTON);
    EXPECT_EQ(graph.m_ObjectTracker.m_pCurrentObject, label);
    Mouse(WM_LBUTTONUP, at);
    EXPECT_FALSE(label->m_bSelected);
    EXPECT_FALSE(label->m_bSizing);
}

TEST_F(InteractionDetail, ResettingTheZoomHidesTheBoxKeepsTheHistoriesAndTellsNobody)
{
    CXGraphAxis& xAxis = graph.m_XAxes[0];
    CXGraphAxis& yAxis = graph.m_YAxes[0];
    xAxis.m_ZoomHistory.push_back({2, 4});
    yAxis.m_ZoomHistory.push_back({3, 5});
    for (const bool byKey : {false, true}) {
        xAxis.SetCurrentRange(6, 7, 0.0);
        yAxis.SetCurrentRange(6, 7, 0.0);
        graph.m_CursorLabel.m_bVisible = true;
        Clean();
        byKey ? Key(VK_HOME) : graph.ResetZoom();
        EXPECT_EQ(graph.m_CursorLabel.m_bVisible, byKey); // the key leaves the box alone
        ExpectRange(xAxis, 0, 10);
        ExpectRange(yAxis, 0, 10);
        EXPECT_TRUE(IsDirty());
        EXPECT_EQ(graph.GetZoomDepth(), 1);
    }
    EXPECT_TRUE(Heard().empty());
    graph.ZoomBack();
    ExpectRange(xAxis, 2, 4);
    ExpectRange(yAxis, 3, 5);
    EXPECT_EQ(Heard(), std::vector<UINT>{XG_ZOOMCHANGE});
}

TEST_F(InteractionDetail, APanOfALogAxisMovesByADifferenceOfValues)
{
    CXGraphAxis& axis = graph.m_XAxes[0];
    axis.m_AxisType = atLog;
    axis.SetRange(1, 1000);
    Paint();
    const CPoint from(graph.m_rcInner.left + 200, 100);
    const CPoint to(graph.m_rcInner.left + 180, 100);
    const double distance = axis.GetValueForPos(to.x) - axis.GetValueForPos(from.x);
    ASSERT_LT(distance, -1);
    const double low = axis.m_fCurMin - distance;
    const double high = axis.m_fCurMax - distance;
    graph.Pan();
    Mouse(WM_MOUSEMOVE, from, MK_LBUTTON);
    Mouse(WM_MOUSEMOVE, to, MK_LBUTTON);
    ExpectRange(axis, low, high);
    ExpectRange(graph.m_YAxes[0], 0, 10);
}

TEST_F(InteractionDetail, TrendsTakeTheNextColoursAndResetTheRangesToWhatTheySpan)
{
    constexpr COLORREF next[] = {0x0000FF, 0x008080}; // of the table of twelve
    CXGraphAxis& xAxis = graph.m_XAxes[0];
    graph.m_nSelectedCurve = 0;
    for (const UINT nCommand : {40009u, 40010u}) {
        xAxis.SetRange(4, 5); // narrower than the curve
        xAxis.SetCurrentRange(4.5, 4.75, 0.0);
        Clean();
        ::SendMessageW(graph.m_hWnd, WM_COMMAND, nCommand, 0);
        const CXGraphDataSerie& trend = graph.m_Curves.back();
        EXPECT_EQ(trend.m_crColor, next[nCommand - VPX_COMMAND_LINEAR_TREND]);
        EXPECT_EQ(trend.m_nCount, 11);
        EXPECT_TRUE(trend.m_bAutoDelete);
        ExpectRange(xAxis, 0, 10);
        EXPECT_EQ(xAxis.m_fMin, 0);
        EXPECT_EQ(xAxis.m_fMax, 10);
        EXPECT_TRUE(IsDirty());
    }
    EXPECT_EQ(graph.m_Curves.size(), 3u);
    EXPECT_EQ(graph.m_XAxes.size(), 1u);
    EXPECT_TRUE(Heard().empty());
}

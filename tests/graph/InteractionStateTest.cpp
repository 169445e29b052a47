// What only the native graph shows of the work of mouse and keys.

#include "NativeGraph.h"
#include "automation/Interfaces.h"
#include "graph/DragState.h"
#include "objects/XGraphDataNotation.h"

#include <cmath>
#include <cstdint>

namespace
{

constexpr unsigned InvalidParameter = 0xC0000417;

class InteractionState : public GraphTest
{
protected:
    void SetUp() override
    {
        graph.m_bShowLegend = false;
        AddLine();
        ShowAsTold();
        Paint();
        Heard();
    }
    void ShowAsTold()
    {
        for (CXGraphAxis& axis : graph.m_XAxes)
            axis.m_bAutoScale = false;
        for (CXGraphAxis& axis : graph.m_YAxes)
            axis.m_bAutoScale = false;
    }
    void Mouse(UINT message, CPoint at, WPARAM nFlags = 0)
    {
        ::SendMessageW(graph.m_hWnd, message, nFlags, MAKELPARAM(at.x, at.y));
    }
    void Hover(CPoint at) { Mouse(WM_MOUSEMOVE, at); }
    void Press(CPoint at) { Mouse(WM_LBUTTONDOWN, at, MK_LBUTTON); }
    void DragTo(CPoint at) { Mouse(WM_MOUSEMOVE, at, MK_LBUTTON); }
    void Release(CPoint at) { Mouse(WM_LBUTTONUP, at); }
    void Click(CPoint at)
    {
        Hover(at);
        Press(at);
        Release(at);
    }
    void Send(WPARAM nCommand) { ::SendMessageW(graph.m_hWnd, WM_COMMAND, nCommand, 0); }
    CPoint At(double x, double y)
    {
        return {graph.m_XAxes[0].GetPointForValue({x, y}).x,
                graph.m_YAxes[0].GetPointForValue({x, y}).y};
    }
    // What waits for the parent.
    std::vector<MSG> Heard()
    {
        std::vector<MSG> heard;
        MSG message;
        while (::PeekMessageW(&message, host.m_hWnd, WM_USER, 0xBFFF, PM_REMOVE))
            heard.push_back(message);
        return heard;
    }
    static LPARAM Low(const void* pointer)
    {
        return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(pointer));
    }
};

} // namespace

TEST_F(InteractionState, NotificationsCarryTheLowHalfOfTheGraphsAddress)
{
    Send(VPX_COMMAND_PASS_ON);
    Send(VPX_COMMAND_ZOOM_BACK);
    const auto heard = Heard();
    ASSERT_EQ(heard.size(), 2u);
    EXPECT_EQ(heard[0].lParam, Low(&graph));
    EXPECT_EQ(heard[1].message, static_cast<UINT>(XG_ZOOMCHANGE));
    EXPECT_EQ(heard[1].lParam, Low(&graph));
}

TEST_F(InteractionState, AGraphWithoutAWindowTellsNobody)
{
    graph.DestroyWindow();
    Heard();
    graph.ZoomBack();
    graph.m_ZoomBand.ApplyZoomRect();
    graph.Cursor();
    graph.PanBy(CPoint(10, 10));
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, reinterpret_cast<HWND>(-1), WM_USER, 0xBFFF, PM_REMOVE))
        << "a message of the thread's own";
}

TEST_F(InteractionState, EnteringTheCursorsStatePlacesItsBoxAndHidesIt)
{
    graph.m_nForcedSnapCurve = 0;
    graph.m_CursorLabel.m_bVisible = true;
    graph.m_CursorTool.m_ptLastCursor = CPoint(5, 5);
    Send(VPX_COMMAND_CURSOR);
    const CRect inner = graph.m_rcInner;
    EXPECT_EQ(graph.m_CursorLabel.m_rcObject,
              CRect(inner.left + 1, inner.top, inner.left + 150, inner.top + 50));
    EXPECT_FALSE(graph.m_CursorLabel.m_bVisible);
    EXPECT_EQ(graph.m_CursorTool.m_ptLastCursor, CPoint(-1, -1));
    EXPECT_EQ(graph.m_nCursorCurve, 0);
    graph.m_CursorLabel.m_rcObject = CRect(1, 2, 3, 4);
    graph.m_nCursorFlags = XGC_HORIZ;
    Send(VPX_COMMAND_CURSOR);
    EXPECT_EQ(graph.m_CursorLabel.m_rcObject, CRect(1, 2, 3, 4)) << "without a box to show";
}

TEST_F(InteractionState, TheCursorsBoxIsHiddenByNoOpZoomPanAndResetAlone)
{
    const struct {
        WPARAM command;
        bool bShown;
    } rows[] = {{VPX_COMMAND_SELECT, false},     {VPX_COMMAND_ZOOM, false}, {VPX_COMMAND_PAN, false},
                {VPX_COMMAND_RESET_ZOOM, false}, {VPX_COMMAND_EDIT, true},  {VPX_COMMAND_MEASURE, true}};
    for (const auto& row : rows) {
        graph.m_CursorLabel.m_bVisible = true;
        Send(row.command);
        EXPECT_EQ(graph.m_CursorLabel.m_bVisible, row.bShown) << row.command;
    }
}

TEST_F(InteractionState, ZoomAndMeasureEmptyTheirRectangles)
{
    graph.m_ZoomBand.m_rcZoom = graph.m_MeasureTool.m_rcMeasure = CRect(1, 2, 30, 40);
    Send(VPX_COMMAND_ZOOM);
    EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, CRect(0, 0, 0, 0));
    EXPECT_EQ(graph.m_MeasureTool.m_rcMeasure, CRect(1, 2, 30, 40));
    Send(VPX_COMMAND_MEASURE);
    EXPECT_EQ(graph.m_MeasureTool.m_rcMeasure, CRect(0, 0, 0, 0));
}

TEST_F(InteractionState, ABandThatIsTooSmallStaysAndOneThatZoomsIsEmptied)
{
    Send(VPX_COMMAND_ZOOM);
    const CPoint from = At(3, 8);
    for (CSize size : {CSize(14, 100), CSize(100, 100)}) {
        Press(from);
        DragTo(from + size);
        Paint();
        EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, CRect(from, size));
        Release(from + size);
        EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, size.cx == 14 ? CRect(from, size) : CRect(0, 0, 0, 0));
    }
}

TEST_F(InteractionState, ZoomWritesTheBoundsOfTheBandAndKeepsThoseBefore)
{
    CXGraphAxis& x = graph.m_XAxes[0];
    CXGraphAxis& y = graph.m_YAxes[0];
    Send(VPX_COMMAND_ZOOM);
    const CPoint from = At(2, 8), to = At(6, 3);
    const double bounds[] = {x.GetValueForPos(from.x), x.GetValueForPos(to.x), y.GetValueForPos(to.y),
                             y.GetValueForPos(from.y)};
    Press(from);
    DragTo(to);
    Release(to);
    EXPECT_EQ(x.m_fCurMin, bounds[0]);
    EXPECT_EQ(x.m_fCurMax, bounds[1]);
    EXPECT_EQ(y.m_fCurMin, bounds[2]);
    EXPECT_EQ(y.m_fCurMax, bounds[3]);
    ASSERT_EQ(x.m_ZoomHistory.size(), 1u);
    EXPECT_EQ(x.m_ZoomHistory[0].fMin, 0);
    EXPECT_EQ(x.m_ZoomHistory[0].fMax, 10);
    EXPECT_EQ(x.m_fMax, 10) << "the whole range stays";
}

TEST_F(InteractionState, AnAxisThatShowsNoSpanKeepsItsHistoryShort)
{
    AddLine(0, 1);
    CXGraphAxis& flat = graph.m_YAxes[1];
    flat.m_bAutoScale = false;
    Paint();
    flat.m_fCurMin = flat.m_fCurMax = 5;
    graph.m_ZoomBand.m_rcZoom = CRect(At(2, 8), At(6, 3));
    graph.m_ZoomBand.ApplyZoomRect();
    EXPECT_TRUE(flat.m_ZoomHistory.empty());
    EXPECT_EQ(graph.m_YAxes[0].m_ZoomHistory.size(), 1u);
    graph.ZoomBack();
    EXPECT_EQ(flat.m_fCurMin, 5);
    EXPECT_EQ(graph.m_YAxes[0].m_fCurMax, 10);
}

TEST_F(InteractionState, AnAxisBeyondNumbersIsNotZoomed)
{
    CXGraphAxis& x = graph.m_XAxes[0];
    x.m_fCurMin = -1.7e308;
    x.m_fCurMax = 1.7e308;
    graph.m_ZoomBand.m_rcZoom = CRect(100, 50, 200, 150);
    graph.m_ZoomBand.ApplyZoomRect();
    EXPECT_TRUE(std::isfinite(x.m_fCurMin) && std::isfinite(x.m_fCurMax));
}

TEST_F(InteractionState, AMarkerTakesTheValueUnderTheMouseToTheBit)
{
    CXGraphAxis& y = graph.m_YAxes[0];
    CXGraphAxis& x = graph.m_XAxes[0];
    y.SetAxisMarker(0, 8, 0, 0);
    x.SetAxisMarker(0, 8, 0, 0);
    Hover(At(2, 8));
    Press(At(2, 8));
    DragTo(At(2, 8));
    EXPECT_EQ(DragState().nYMarker, 0);
    DragTo(At(2, 5));
    EXPECT_EQ(y.m_AxisMarkers[0].fValue, y.GetValueForPos(At(2, 5).y));
    Release(At(2, 5));
    EXPECT_EQ(DragState().nYMarker, -1);
    Press(At(8, 2));
    DragTo(At(8, 2));
    EXPECT_EQ(DragState().nXMarker, 0);
    DragTo(At(4, 2));
    EXPECT_EQ(x.m_AxisMarkers[0].fValue, x.GetValueForPos(At(4, 2).x));
    Release(At(4, 2));
    EXPECT_EQ(DragState().nXMarker, -1);
}

TEST_F(InteractionState, AMarkerSetByAClickIsBlackSolidAndLast)
{
    CXGraphAxis& y = graph.m_YAxes[0];
    y.SetAxisMarker(0, 1, 0x123456, 2);
    y.m_bSelected = true;
    Click(At(3, 7));
    ASSERT_EQ(y.m_AxisMarkers.size(), 2u);
    EXPECT_EQ(y.m_AxisMarkers[1].fValue, y.GetValueForPos(At(3, 7).y));
    EXPECT_EQ(y.m_AxisMarkers[1].crColor, 0u);
    EXPECT_EQ(y.m_AxisMarkers[1].nStyle, 0u);
}

TEST_F(InteractionState, ADragOfMarkersEndsWhereAnAxisHasFewer)
{
    AddLine(0, 1);
    graph.m_YAxes[0].SetAxisMarker(0, 1, 0, 0);
    graph.m_YAxes[0].SetAxisMarker(1, 9, 0, 0);
    graph.m_YAxes[1].SetAxisMarker(0, 5, 0, 0);
    Paint();
    const auto drag = [&] {
        Press(At(2, 9));
        DragTo(At(2, 9));
        DragTo(At(2, 8));
    };
    EXPECT_EXIT(drag(), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(InteractionState, TrendCommandsWithoutASelectedCurveEndTheProcess)
{
    ASSERT_EQ(graph.m_nSelectedCurve, -1);
    EXPECT_EXIT(Send(VPX_COMMAND_LINEAR_TREND), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(Send(VPX_COMMAND_CUBIC_TREND), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(InteractionState, APlainClickInTheMeasuresStateStoresASpan)
{
    Send(VPX_COMMAND_MEASURE);
    const CPoint at = At(4.5, 8);
    Click(at);
    ASSERT_EQ(graph.m_Measures.size(), 1u);
    EXPECT_EQ(graph.m_ptLButtonDown.x, at.x);
    EXPECT_EQ(graph.m_ptLButtonDown.y, At(5, 5).y) << "on the curve";
    EXPECT_EQ(graph.m_Measures[0].nIndex1, 5);
}

TEST_F(InteractionState, ADragInTheMeasuresStateSpansTwoPoints)
{
    for (bool bBuffered : {true, false}) {
        graph.m_bDoubleBuffer = bBuffered;
        graph.m_Measures.clear();
        Send(VPX_COMMAND_MEASURE);
        Press(At(1.5, 8));
        DragTo(At(7.5, 2));
        EXPECT_EQ(graph.m_ptCurrent.y, At(8, 8).y);
        Paint();
        Release(At(7.5, 2));
        ASSERT_EQ(graph.m_Measures.size(), 1u);
        EXPECT_EQ(graph.m_Measures[0].nIndex1, 2);
        EXPECT_EQ(graph.m_Measures[0].nIndex2, 8);
    }
}

TEST_F(InteractionState, ANoteIsFramedAndKeepsItsPlace)
{
    graph.InsertDataNotation(0, 5);
    auto* note = LastObject<CXGraphDataNotation>(graph);
    Paint();
    const CRect place = note->m_rcObject;
    const CPoint at = place.CenterPoint();
    Click(at);
    EXPECT_TRUE(note->m_bSizing);
    EXPECT_EQ(graph.m_ObjectTracker.m_pTracker, &note->m_Tracker);
    ::PostMessageW(graph.m_hWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x + 30, at.y + 20));
    ::PostMessageW(graph.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(at.x + 30, at.y + 20));
    Press(at);
    EXPECT_EQ(note->m_rcObject, place);
    Hover(at);
}

TEST_F(InteractionState, TheObjectPressedLastIsTheLastOneUnderTheMouse)
{
    CXGraphLabel* below = graph.InsertLabel(CRect(80, 40, 180, 110), L"below");
    CXGraphLabel* above = graph.InsertLabel(CRect(100, 50, 160, 90), L"above");
    Press(CPoint(120, 60));
    EXPECT_EQ(graph.m_ObjectTracker.m_pCurrentObject, above);
    Press(CPoint(90, 45));
    EXPECT_EQ(graph.m_ObjectTracker.m_pCurrentObject, below);
    Press(CPoint(300, 200));
    EXPECT_EQ(graph.m_ObjectTracker.m_pCurrentObject, nullptr);
    Release(CPoint(300, 200));
}

TEST_F(InteractionState, ADoubleClickDropsTheFrameForTheEditor)
{
    CXGraphLabel* label = graph.InsertLabel(CRect(80, 40, 180, 110), L"text");
    Click(CPoint(120, 60));
    EXPECT_EQ(graph.m_ObjectTracker.m_pTracker, &label->m_Tracker);
    Mouse(WM_LBUTTONDBLCLK, CPoint(120, 60), MK_LBUTTON);
    EXPECT_EQ(graph.m_ObjectTracker.m_pTracker, nullptr);
    EXPECT_TRUE(label->m_bEditing);
    EXPECT_FALSE(label->m_bSizing);
    Click(CPoint(300, 200));
    EXPECT_FALSE(label->m_bEditing);
}

TEST_F(InteractionState, AnObjectThatCantBeEditedIsFramedByADoubleClick)
{
    CXGraphLabel* label = graph.InsertLabel(CRect(80, 40, 180, 110), L"text");
    label->m_bCanEdit = false;
    Hover(CPoint(120, 60));
    Mouse(WM_LBUTTONDBLCLK, CPoint(120, 60), MK_LBUTTON);
    EXPECT_FALSE(label->m_bEditing);
    EXPECT_TRUE(label->m_bSizing);
}

TEST_F(InteractionState, TheRecordOfAPointDragLiesBelowTwoGigabytes)
{
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(&PointChange()), std::uintptr_t{0x80000000});
}

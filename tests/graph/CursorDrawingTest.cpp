// The crosshair: what it snaps to, what it draws, and that a move leaves nothing behind.

#include "NativeGraph.h"
#include "support/GdiCount.h"

#include <cfloat>

namespace
{

constexpr int InvalidParameter = static_cast<int>(0xC0000417);

// Two level curves, at 2 and at 8, in a plot from 0 to 10.
class CursorDrawing : public GraphTest
{
protected:
    CursorDrawing()
    {
        graph.m_bShowLegend = false;
        AddLevel(2);
        AddLevel(8);
        graph.GetYAxis(0)->SetRange(0, 10);
        graph.Pan(); // no rounding of the ranges
        Paint();
    }
    void AddLevel(double fLevel)
    {
        TDataPoint points[] = {{0, fLevel}, {5, fLevel}, {10, fLevel}};
        graph.SetData(points, 3, static_cast<int>(graph.m_Curves.size()), 0, 0, true);
    }
    void EnterCursor(UINT nFlags = XGC_HORIZ | XGC_VERT)
    {
        graph.m_nCursorFlags = nFlags;
        graph.Cursor();
    }
    void Move(int x, int y) { graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
    void Click(int x, int y)
    {
        graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    int Row(double fValue) { return graph.GetYAxis(0)->GetPointForValue({0, fValue}).y; }
    int Middle() { return graph.m_rcInner.CenterPoint().x; }

    // Inside the plot and with nothing above it, a picture after moves is that of a frame.
    void ExpectMovesToLookLikeFrames()
    {
        const CRect plot = graph.m_rcInner;
        const CPoint places[] = {{plot.left + 40, plot.top + 30},
                                 {150, 110},
                                 {160, 115},
                                 {plot.left + 9, plot.top + 9},
                                 {Middle(), Row(2) + 3}};
        // The last frame's cursor is erased where no frame drew it, too, if it lay outside.
        Move(plot.left + 20, plot.top + 20);
        Paint();
        for (const CPoint& place : places) {
            Move(place.x, place.y);
            const Picture moved(graph.m_hWnd);
            EXPECT_EQ(Shoot().CountDifferences(moved), 0) << place.x << ", " << place.y;
        }
    }
};

int Differences(const Picture& one, const Picture& other, const RECT& rect)
{
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x)
            count += one.At(x, y) != other.At(x, y) ? 1 : 0;
    }
    return count;
}

using CursorDrawingDeathTest = CursorDrawing;

} // namespace

TEST_F(CursorDrawing, ADistanceOfTheSnapRangeDoesNotSnapOnePixelLessDoes)
{
    EnterCursor();
    Move(Middle(), Row(2) - 10);
    EXPECT_EQ(graph.m_nCursorCurve, -1);
    EXPECT_EQ(graph.m_ptCurrent.y, Row(2) - 10);
    Move(Middle(), Row(2) - 9);
    EXPECT_EQ(graph.m_nCursorCurve, 0);
    EXPECT_EQ(graph.m_ptCurrent.y, Row(2));
    EXPECT_EQ(graph.m_ptCurrent.x, Middle()); // x stays the mouse's
    Move(Middle(), Row(8) + 9);
    EXPECT_EQ(graph.m_nCursorCurve, 1);
    graph.m_nSnapRange = 0;
    Move(Middle(), Row(8));
    EXPECT_EQ(graph.m_nCursorCurve, -1);
}

TEST_F(CursorDrawing, TheEarlierOfTwoCurvesAtOnePixelWins)
{
    AddLevel(2);
    graph.GetYAxis(0)->SetRange(0, 10);
    EnterCursor();
    Move(Middle(), Row(2) + 1);
    EXPECT_EQ(graph.m_nCursorCurve, 0);
}

TEST_F(CursorDrawing, HiddenCurvesSnapToo)
{
    graph.m_Curves[0].m_bVisible = false;
    EnterCursor();
    Move(Middle(), Row(2) + 1);
    EXPECT_EQ(graph.m_nCursorCurve, 0);
}

TEST_F(CursorDrawing, WithoutAWinnerTheValuesOfTheLastCurveStay)
{
    EnterCursor();
    Move(Middle(), Row(5));
    EXPECT_EQ(graph.m_nCursorCurve, -1);
    EXPECT_EQ(graph.m_CursorTool.m_fCursorY, 8);
    EXPECT_EQ(graph.m_CursorTool.m_fCursorX, graph.GetXAxis(0)->GetValueForPos(Middle()));
}

TEST_F(CursorDrawing, WithoutSnappingThereIsNoCurveNoLineForItAndNoNote)
{
    graph.m_bSnapCursor = false;
    EnterCursor(XGC_LEGEND);
    Move(Middle(), Row(2));
    EXPECT_EQ(graph.m_nCursorCurve, -1);
    EXPECT_EQ(graph.m_CursorLabel.m_cText.Find(L"[01] : ", 12),
              graph.m_CursorLabel.m_cText.Find(L"Y[01]") + 1);
    Click(Middle(), Row(2));
    EXPECT_EQ(graph.m_Objects.GetCount(), 1);
    graph.m_bSnapCursor = true;
    Move(Middle(), Row(2));
    Click(Middle(), Row(2));
    EXPECT_EQ(graph.m_Objects.GetCount(), 2);
}

TEST_F(CursorDrawing, AForcedSnapIgnoresFlagAndDistance)
{
    graph.m_bSnapCursor = false;
    graph.m_nForcedSnapCurve = 1;
    EnterCursor();
    EXPECT_EQ(graph.m_nCursorCurve, 1); // from the start
    Move(Middle(), Row(2));
    EXPECT_EQ(graph.m_nCursorCurve, 1);
    EXPECT_EQ(graph.m_ptCurrent.y, Row(8));
    EXPECT_EQ(graph.m_CursorTool.m_fCursorY, 8);
    graph.m_nForcedSnapCurve = -1;
    Move(Middle(), Row(2));
    EXPECT_EQ(graph.m_nCursorCurve, -1);
}

TEST_F(CursorDrawingDeathTest, AForcedSnapPastTheEndEndsTheProcess)
{
    EnterCursor();
    graph.m_nForcedSnapCurve = 2;
    EXPECT_EXIT(Move(Middle(), Row(5)), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(CursorDrawing, EveryFlagAddsItsLineToTheBox)
{
    const CRect plot = graph.m_rcInner;
    const Picture without = Shoot();
    const int box = 40; // 11 by 11 pixels
    Move(Middle(), Row(5));
    EnterCursor(0);
    EXPECT_EQ(Shoot().CountDifferences(without), box);
    // What is drawn twice is as before: a line crosses the box at two pixels.
    EnterCursor(XGC_HORIZ);
    EXPECT_EQ(Shoot().CountDifferences(without), plot.Width() + box - 4);
    EnterCursor(XGC_VERT);
    EXPECT_EQ(Shoot().CountDifferences(without), plot.Height() + box - 4);
    EnterCursor(XGC_HORIZ | XGC_VERT);
    EXPECT_EQ(Shoot().CountDifferences(without), plot.Width() + plot.Height() - 2 + box - 8);
    graph.m_nSnapRange = 21;
    EnterCursor(0);
    EXPECT_EQ(Shoot().CountDifferences(without), 80); // 21 by 21
}

TEST_F(CursorDrawing, AMoveLooksLikeAFrame)
{
    EnterCursor();
    Paint();
    ExpectMovesToLookLikeFrames();
}

TEST_F(CursorDrawing, AMoveLooksLikeAFrameWithTheTextBox)
{
    EnterCursor(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    Paint();
    ExpectMovesToLookLikeFrames();
}

TEST_F(CursorDrawing, AMoveLooksLikeAFrameWithoutABuffer)
{
    graph.m_bDoubleBuffer = false;
    EnterCursor(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    Paint();
    ExpectMovesToLookLikeFrames();
}

TEST_F(CursorDrawing, AMoveDrawsOverLabelsAndAFrameBelowThem)
{
    graph.InsertLabel(CRect(120, 90, 180, 130), L"")->m_crFillColor = 0xFFFFFF;
    EnterCursor();
    Paint();
    Move(150, 60);
    const Picture moved(graph.m_hWnd);
    EXPECT_EQ(moved.At(150, 110), 0x000000u); // black by XOR on white leaves black
    EXPECT_EQ(moved.At(152, 110), 0xFFFFFFu);
    EXPECT_EQ(Shoot().At(150, 110), 0xFFFFFFu);
}

TEST_F(CursorDrawing, AMoveDrawsBesideThePlotToo)
{
    EnterCursor();
    Move(5, 5);
    Paint();
    const CRect plot = graph.m_rcInner;
    const int x = plot.left - 3;
    const int y = plot.bottom + 2;
    const RECT column = {x, plot.top + 1, x + 1, plot.bottom - 10};
    const RECT row = {plot.left + 10, y, plot.right, y + 1};
    const Picture before(graph.m_hWnd);
    Move(x, y);
    const Picture moved(graph.m_hWnd);
    EXPECT_EQ(Differences(moved, before, column), column.bottom - column.top);
    EXPECT_EQ(Differences(moved, before, row), row.right - row.left);
    const Picture frame = Shoot();
    EXPECT_EQ(Differences(frame, before, column), 0); // a frame is clipped to the plot
    EXPECT_EQ(Differences(frame, before, row), 0);
}

TEST_F(CursorDrawing, ALookThatChangesBetweenTwoMovesErasesWithTheNewOne)
{
    EnterCursor(XGC_VERT);
    Paint();
    Move(100, 100);
    const RECT line = {100, graph.m_rcInner.top, 101, graph.m_rcInner.bottom};
    const Picture first(graph.m_hWnd);
    graph.m_nCursorFlags = 0;
    Move(130, 120);
    const Picture second(graph.m_hWnd);
    EXPECT_EQ(Differences(second, first, line), 2); // of the old figure the box alone
    EXPECT_EQ(Differences(second, Shoot(), line), line.bottom - line.top);
}

TEST_F(CursorDrawing, AtAPointWithoutAPixelOnlyTheVerticalLineIsSeen)
{
    TDataPoint distant[] = {{0, 1e300}, {10, -1e300}};
    graph.SetData(distant, 2, 2, 0, 0, true);
    graph.GetYAxis(0)->SetRange(0, 10);
    graph.Pan();
    Move(Middle(), Row(5));
    const Picture without = Shoot();
    graph.m_nForcedSnapCurve = 2;
    EnterCursor();
    EXPECT_EQ(Shoot().CountDifferences(without), graph.m_rcInner.Height());
    for (const int nRange : {INT_MAX, INT_MIN, -7}) {
        graph.m_nSnapRange = nRange;
        EXPECT_EQ(Shoot().CountDifferences(without), graph.m_rcInner.Height()) << nRange;
    }
}

TEST_F(CursorDrawing, TheTextBoxShowsUntilAnotherOperation)
{
    const CRect plot = graph.m_rcInner;
    EnterCursor(XGC_LEGEND);
    EXPECT_EQ(graph.m_CursorLabel.m_rcObject,
              CRect(plot.left + 1, plot.top, plot.left + 150, plot.top + 50));
    EXPECT_FALSE(graph.m_CursorLabel.m_bVisible);
    Move(Middle(), Row(5));
    EXPECT_TRUE(graph.m_CursorLabel.m_bVisible);
    graph.Edit();
    graph.Measure();
    EXPECT_TRUE(graph.m_CursorLabel.m_bVisible);
    graph.NoOp();
    EXPECT_FALSE(graph.m_CursorLabel.m_bVisible);
}

TEST_F(CursorDrawing, TheAbsolutePositionIsTheMousesXAndTheCurvesY)
{
    Move(Middle(), Row(5));
    const TDataPoint point = graph.GetCursorAbsolute(1);
    EXPECT_EQ(point.fXVal, graph.GetXAxis(0)->GetValueForPos(Middle()));
    EXPECT_EQ(point.fYVal, 8);
}

TEST_F(CursorDrawing, SettingThePositionScrollsOnlyToWhatIsOutOfView)
{
    CXGraphAxis& xAxis = *graph.GetXAxis(0);
    CXGraphAxis& yAxis = *graph.GetYAxis(0);
    xAxis.SetCurrentRange(2, 4, 0.0);
    const int nExpected = xAxis.GetPointForValue({3.5, 0}).x;
    graph.SetCursorAbsolute(0, {3.5, 99}, true);
    EXPECT_EQ(graph.m_ptCurrent.x, nExpected);
    EXPECT_EQ(xAxis.m_fCurMin, 2);
    EXPECT_EQ(yAxis.m_fCurMax, 10);
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    graph.SetCursorAbsolute(0, {8, 0}, false); // nobody asked to see it
    EXPECT_EQ(xAxis.m_fCurMin, 2);
    graph.SetCursorAbsolute(0, {8, 0}, true);
    EXPECT_EQ(xAxis.m_fCurMin, 7);
    EXPECT_EQ(xAxis.m_fCurMax, 9);
    yAxis.SetCurrentRange(4, 6, 0.0);
    graph.SetCursorAbsolute(0, {8, 0}, true); // the curve's own y, not the point's
    EXPECT_EQ(yAxis.m_fCurMin, 1);
    EXPECT_EQ(yAxis.m_fCurMax, 3);
}

TEST_F(CursorDrawing, SettingThePositionSmoothlyKeepsItInTheMiddle)
{
    graph.m_nCursorFlags |= XGC_ADJUSTSMOOTH;
    CXGraphAxis& xAxis = *graph.GetXAxis(0);
    xAxis.SetCurrentRange(2, 4, 0.0);
    graph.SetCursorAbsolute(0, {3.5, 0}, false);
    EXPECT_EQ(xAxis.m_fCurMin, 2);
    graph.SetCursorAbsolute(0, {3.5, 0}, true);
    EXPECT_EQ(xAxis.m_fCurMin, 2.5);
    EXPECT_EQ(xAxis.m_fCurMax, 4.5);
    EXPECT_EQ(graph.GetYAxis(0)->m_fCurMin, -3);
    EXPECT_EQ(graph.GetYAxis(0)->m_fCurMax, 7);
    graph.SetCursorAbsolute(0, {std::nan(""), 0}, true); // no place to scroll to
    EXPECT_EQ(xAxis.m_fCurMin, 2.5);
}

TEST_F(CursorDrawing, WithoutCurvesOrPointsItMovesFreely)
{
    graph.ResetAll();
    EnterCursor(7);
    Move(100, 100);
    EXPECT_EQ(graph.m_nCursorCurve, -1);
    EXPECT_EQ(graph.m_CursorLabel.m_cText, L"");
    AddLevel(3);
    graph.m_Curves[0].ReplaceData(nullptr, 0, false);
    Move(101, 101);
    EXPECT_EQ(graph.GetCursorAbsolute(0).fYVal, 0);
    Paint();
}

TEST_F(CursorDrawing, MovesNotesAndEditsLeaveNoDrawingObjects)
{
    CXGraphLabel* label = graph.InsertLabel(CRect(120, 90, 180, 130), L"label");
    EnterCursor(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    auto cycle = [&] {
        for (int x = 60; x < 300; x += 20)
            Move(x, Row(2));
        label->BeginEdit();
        Paint();
        label->EndEdit();
        graph.m_Measures.push_back({0, 0, 1, 2});
        graph.m_nCursorCurve = 0;
        Paint();
        graph.m_Measures.clear();
    };
    cycle();
    const int nBefore = GdiCount::All();
    cycle();
    EXPECT_EQ(GdiCount::All(), nBefore);
}

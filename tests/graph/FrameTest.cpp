// The frame as it is in the window.

#include "FrameRecording.h"
#include "NativeGraph.h"

namespace
{

class Frame : public GraphTest
{
protected:
    Frame() { graph.m_bShowLegend = false; }
};

constexpr COLORREF Back = 0x102030;
constexpr COLORREF Area = 0x405060;
constexpr COLORREF InnerColour = 0x708090;

} // namespace

TEST_F(Frame, WithoutAxesItShowsBackgroundAreaAndInnerRectangle)
{
    const Picture picture = Shoot();
    EXPECT_EQ(graph.m_rcInner, CRect(6, 5, 395, 295));
    EXPECT_EQ(picture.Count(InnerColour), 389 * 290);
    EXPECT_EQ(picture.Count({5, 5, 6, 295}, Area), 290); // the inner rectangle starts one further right
    EXPECT_EQ(picture.Count(Area), 290);
    EXPECT_EQ(picture.Count(Back), Width * Height - 390 * 290);
}

TEST_F(Frame, MarginsApplyToAllSides)
{
    graph.SetGraphMargins(10, 20, 30, 40);
    Paint();
    EXPECT_EQ(graph.m_rcInner, CRect(11, 20, Width - 30, Height - 40));
}

TEST_F(Frame, MarginsBeyondTheWindowLeaveItPaintable)
{
    graph.SetGraphMargins(1000, 1000, 1000, 1000);
    AddLine();
    Paint();
    graph.SetGraphMargins(INT_MAX, INT_MIN, INT_MAX, INT_MIN);
    Paint();
    EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
}

TEST_F(Frame, HidingAYAxisGivesItsRoomToTheCurvesButKeepsAnOrigin)
{
    AddLine();
    Paint();
    const int nShown = graph.m_rcInner.left;
    graph.GetYAxis(0)->m_bVisible = false;
    Paint();
    EXPECT_EQ(graph.m_rcInner.left, 6);
    EXPECT_LT(graph.m_rcInner.left, nShown);
    EXPECT_EQ(graph.GetYAxis(0)->m_nOriginX, 5);
    EXPECT_EQ(graph.GetYAxis(0)->m_nOriginY, graph.m_rcInner.bottom);
}

TEST_F(Frame, ThreeAutomaticAxesEndLeftRightLeft)
{
    for (int i = 0; i < 3; ++i)
        AddLine(0, i);
    Paint();
    EXPECT_EQ(graph.GetYAxis(0)->m_Placement, apLeft);
    EXPECT_EQ(graph.GetYAxis(1)->m_Placement, apRight);
    EXPECT_EQ(graph.GetYAxis(2)->m_Placement, apLeft);
    EXPECT_LT(graph.GetYAxis(0)->m_nOriginX, graph.GetYAxis(2)->m_nOriginX);
    EXPECT_EQ(graph.GetYAxis(1)->m_nOriginX, graph.m_rcInner.right);
}

TEST_F(Frame, AxesTakeTheRoomOfTheirLabelsAndTitles)
{
    AddLine();
    graph.GetYAxis(0)->m_cLabel = L"A title that is wider than the labels";
    // Measured as the frame measures: before it rounds the visible range.
    CClientDC dcClient(&graph);
    CDCEx dc;
    dc.Attach(dcClient.GetSafeHdc());
    const int nTitle = graph.GetYAxis(0)->GetTitleSize(&dc).cx;
    const int nLabel = graph.GetXAxis(0)->GetLabelHeight(&dc);
    dc.Detach();
    Paint();
    EXPECT_EQ(graph.GetYAxis(0)->m_nOriginX, 5 + nTitle + graph.GetYAxis(0)->m_nArcSize + 5);
    EXPECT_EQ(graph.m_rcInner.left, graph.GetYAxis(0)->m_nOriginX + 1);
    EXPECT_EQ(graph.m_rcInner.bottom, 295 - nLabel - 5);
    EXPECT_EQ(graph.GetXAxis(0)->m_nOriginY, graph.m_rcInner.bottom);
    EXPECT_EQ(graph.GetXAxis(0)->m_nOriginX, graph.GetYAxis(0)->m_nOriginX);
    EXPECT_EQ(graph.GetXAxis(0)->m_rcArea, CRect(5, 5, 395, 295));
    EXPECT_EQ(graph.GetYAxis(0)->m_rcArea, CRect(5, 5, 395, 295));
}

TEST_F(Frame, TheCurveIsDrawnInsideTheInnerRectangleOnly)
{
    AddLine()->m_crColor = 0x0000FE;
    graph.GetXAxis(0)->m_bAutoScale = false;
    graph.GetYAxis(0)->m_bAutoScale = false;
    Paint();
    graph.GetYAxis(0)->SetCurrentRange(4, 6, 1);
    graph.GetXAxis(0)->m_bShowMarker = false;
    graph.GetYAxis(0)->m_bShowMarker = false;
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count(graph.m_rcInner, 0x0000FE), 20);
    EXPECT_EQ(picture.Count(0x0000FE), picture.Count(graph.m_rcInner, 0x0000FE));
}

TEST_F(Frame, HiddenCurvesAreNotDrawn)
{
    AddLine()->m_crColor = 0x0000FE;
    graph.GetCurve(0)->m_bVisible = false;
    EXPECT_EQ(Shoot().Count(0x0000FE), 0);
}

TEST_F(Frame, BufferedAndUnbufferedFramesAreTheSame)
{
    AddLine();
    AddLine(0, 1);
    graph.m_bShowLegend = true;
    Paint(); // placements are settled now
    const Picture buffered = Shoot();
    graph.m_bDoubleBuffer = false;
    EXPECT_EQ(Shoot().CountDifferences(buffered), 0);
}

TEST_F(Frame, APartialRepaintGivesThePictureOfTheWholeFrame)
{
    AddLine();
    Paint();
    const Picture whole = Shoot();
    const CRect rcPart(120, 90, 260, 170);
    const HDC hDC = ::GetDC(graph.m_hWnd);
    ::FillRect(hDC, &rcPart, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::ReleaseDC(graph.m_hWnd, hDC);
    ASSERT_GT(Picture(graph.m_hWnd).CountDifferences(whole), 0);
    graph.InvalidateRect(&rcPart, FALSE);
    graph.UpdateWindow();
    EXPECT_EQ(Picture(graph.m_hWnd).CountDifferences(whole), 0);
}

TEST_F(Frame, ALabelOutsideTheInnerRectangleIsNotSeen)
{
    AddLine();
    Paint();
    const Picture without = Shoot();
    CXGraphLabel* pLabel = graph.InsertLabel(CRect(0, 0, 4, 4), L"out");
    pLabel->m_crFillColor = 0x00FF00;
    EXPECT_EQ(Shoot().CountDifferences(without), 0);
    pLabel->m_rcObject = CRect(graph.m_rcInner.left + 5, 20, graph.m_rcInner.left + 60, 40);
    EXPECT_GT(Shoot().Count(0x00FF00), 200);
}

TEST_F(Frame, LaterObjectsLieOnTop)
{
    graph.InsertLabel(CRect(100, 100, 200, 150), L"")->m_crFillColor = 0x0000FF;
    graph.InsertLabel(CRect(150, 100, 250, 150), L"")->m_crFillColor = 0x00FF00;
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(120, 130), 0x0000FFu);
    EXPECT_EQ(picture.At(175, 130), 0x00FF00u);
}

TEST_F(Frame, TheUnbufferedRubberBandLeavesNoTrace)
{
    AddLine();
    graph.m_bDoubleBuffer = false;
    Paint();
    const Picture before = Shoot();
    graph.m_ptLButtonDown = CPoint(150, 100);
    graph.m_ptCurrent = CPoint(250, 180);
    {
        CClientDC dcClient(&graph);
        CDCEx dc;
        dc.Attach(dcClient.GetSafeHdc());
        graph.m_ZoomBand.DrawZoomRect(&dc);
        EXPECT_GT(Picture(graph.m_hWnd).CountDifferences(before), 0);
        EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, CRect(150, 100, 250, 180));
        graph.m_ptCurrent = CPoint(200, 150);
        graph.m_ZoomBand.DrawZoomRect(&dc); // erases the former one
        dc.Detach();
    }
    EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, CRect(150, 100, 200, 150));
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(Frame, TheBufferedRubberBandTintsThePlot)
{
    Paint();
    graph.m_opOperation = opZoom;
    graph.m_bLButtonDown = true;
    graph.m_ptLButtonDown = CPoint(250, 180);
    graph.m_ptCurrent = CPoint(150, 900);
    const Picture picture = Shoot();
    EXPECT_EQ(graph.m_ZoomBand.m_rcZoom, CRect(150, 180, 250, graph.m_rcInner.bottom));
    // Combined by "not xor" with what lies beneath.
    const COLORREF tinted = ~(0xFF9696u ^ InnerColour) & 0xFFFFFFu;
    EXPECT_EQ(picture.At(200, 200), tinted);
    EXPECT_EQ(picture.At(100, 200), InnerColour);
    graph.m_bLButtonDown = false;
    EXPECT_EQ(Shoot().At(200, 200), InnerColour);
}

TEST_F(Frame, TheValueOfADraggedPointStandsBesideThePointer)
{
    graph.m_PointDrag.m_bPointDragged = true;
    graph.m_PointDrag.m_fEditValue = 1.006;
    graph.m_ptCurrent = CPoint(120, 90);
    FrameRecording recording(graph);
    const auto texts = recording.Texts();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, L"1.01");
    EXPECT_EQ(texts[0].reference, CPoint(130, 90));
}

TEST_F(Frame, TheFrameForgetsTheCursorThatItWipes)
{
    graph.m_CursorTool.m_ptLastCursor = CPoint(9, 9);
    Paint();
    EXPECT_EQ(graph.m_CursorTool.m_ptLastCursor, CPoint(-1, -1));
}

TEST_F(Frame, AGivenTargetIsUsedAsItIs)
{
    FrameRecording recording(graph, [](CDCEx& dc) { dc.m_bMono = true; });
    // On a mono target all areas are white.
    const auto fills = recording.FilledColors();
    ASSERT_GE(fills.size(), 3u);
    for (const COLORREF color : fills)
        EXPECT_EQ(color, 0xFFFFFFu);
}

TEST_F(Frame, AScalingTargetGetsThePageAndAScaledClip)
{
    graph.m_rcPrint = CRect(0, 0, 200, 100);
    FrameRecording recording(graph, [](CDCEx& dc) {
        dc.m_bScaleReady = true;
        dc.m_bScaling = true;
        dc.m_fScaleX = 2.0f;
        dc.m_fScaleY = 3.0f;
    });
    EXPECT_EQ(graph.m_rcInner, CRect(6, 5, 195, 95));
    EXPECT_EQ(recording.ClipRegion(), CRect(12, 15, 390, 285));
}

TEST_F(Frame, AnUnscaledClipStaysUnscaled)
{
    graph.m_rcPrint = CRect(0, 0, 200, 100);
    FrameRecording recording(graph, [](CDCEx& dc) {
        dc.m_bScaleReady = true;
        dc.m_bScaling = true;
        dc.m_bClipScaled = true;
        dc.m_fScaleX = 2.0f;
        dc.m_fScaleY = 3.0f;
    });
    EXPECT_EQ(recording.ClipRegion(), CRect(6, 5, 195, 95));
}

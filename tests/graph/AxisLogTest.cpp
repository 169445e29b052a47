// Logarithmic axes: the mode of the plain axis, and the class of its own.

#include "AxisLines.h"
#include "NativeGraph.h"
#include "objects/XGraphLogAxis.h"

namespace
{

using Texts = std::vector<std::wstring>;

class LogAxis : public GraphTest
{
protected:
    LogAxis()
    {
        AddLine();
        graph.m_bShowLegend = false;
        graph.m_Curves[0].m_bVisible = false;
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bShowMarker = false;
            pAxis->m_AxisType = atLog;
            pAxis->SetRange(1, 1000);
        }
        X().m_cDisplayFmt = L"X%g";
        Y().m_cDisplayFmt = L"Y%g";
    }
    CXGraphAxis& X() { return *graph.GetXAxis(0); }
    CXGraphAxis& Y() { return *graph.GetYAxis(0); }

    // A true log axis in the place of the graph's Y axis, as it was laid out last.
    void Place(CXGraphLogAxis& axis)
    {
        Paint();
        axis.m_pGraph = &graph;
        axis.m_AxisKind = akYAxis;
        axis.m_Placement = apLeft;
        axis.m_nOriginX = Y().m_nOriginX;
        axis.m_nOriginY = Y().m_nOriginY;
        axis.m_rcArea = Y().m_rcArea;
        axis.m_cDisplayFmt = L"L%g";
        axis.m_cLabel = CString();
    }
};

} // namespace

TEST_F(LogAxis, OneToAThousandHasTwentySevenTicksAndThreeLabels)
{
    const FrameRecording frame(graph);
    EXPECT_EQ(TextsOf(frame, L"Y"), (Texts{L"1", L"10", L"100"}));
    EXPECT_EQ(TextsOf(frame, L"X"), (Texts{L"1", L"10", L"100"}));
    int nRows = 0;
    int nColumns = 0;
    for (const TLine& line : LinesOf(frame)) {
        nRows += line.ptFrom.x == Y().m_nOriginX - 5 ? 1 : 0;
        nColumns += line.ptFrom.y == X().m_nOriginY + 5 ? 1 : 0;
    }
    EXPECT_EQ(nRows, 27);
    EXPECT_EQ(nColumns, 27);
}

TEST_F(LogAxis, TheStepStaysZero)
{
    Paint();
    EXPECT_EQ(X().m_fStep, 0);
    EXPECT_EQ(Y().m_fStep, 0);
}

TEST_F(LogAxis, DecadesAreEvenlySpacedAndMapBack)
{
    Paint();
    const int nFirst = X().GetPointForValue({1, 0}).x;
    const int nSecond = X().GetPointForValue({10, 0}).x;
    const int nThird = X().GetPointForValue({100, 0}).x;
    EXPECT_NEAR(nThird - nSecond, nSecond - nFirst, 1);
    EXPECT_NEAR(X().GetValueForPos(nSecond), 10, 0.5);
    EXPECT_EQ(X().GetPointForValue({10, 99}).y, 0);
}

TEST_F(LogAxis, AutomaticScaleTakesWholeDecades)
{
    Y().SetRange(3, 350);
    Paint();
    EXPECT_DOUBLE_EQ(Y().m_fCurMin, 1);
    EXPECT_DOUBLE_EQ(Y().m_fCurMax, 1000);
    EXPECT_EQ(Y().m_fMin, 3);
}

TEST_F(LogAxis, ALowerBoundOfZeroHasNoTicks)
{
    Y().m_bAutoScale = false;
    Y().m_fCurMin = 0;
    EXPECT_TRUE(TextsOf(FrameRecording(graph), L"Y").empty());
}

TEST_F(LogAxis, ATitleOnALogAxisIsDrawnAndCountsTwice)
{
    Y().m_cLabel = L"#level";
    const FrameRecording frame(graph);
    EXPECT_EQ(TextsOf(frame, L"#"), (Texts{L"level"}));
    CClientDC window(&graph);
    CDCEx dc;
    dc.Attach(window.GetSafeHdc());
    EXPECT_EQ(Y().m_fEndMargin, 2 * Y().m_nArcSize + 2 * Y().GetTitleSize(&dc).cy);
    dc.Detach();
}

TEST(LogAxisClass, TakesFallingBoundsAsTheyAre)
{
    CXGraphLogAxis axis;
    EXPECT_TRUE(axis.SetRange(10, 1));
    EXPECT_EQ(axis.m_fMin, 10);
    EXPECT_EQ(axis.m_fCurMax, 1);
    EXPECT_EQ(axis.m_fStep, 0);
}

TEST(LogAxisClass, ZerosBecomeTheFloorsAndTheFormatStays)
{
    CXGraphLogAxis axis;
    EXPECT_TRUE(axis.SetRange(0, 0));
    EXPECT_EQ(axis.m_fMin, 1e-16);
    EXPECT_EQ(axis.m_fMax, 1e-15);
    EXPECT_TRUE(axis.SetRange(5, 5));
    EXPECT_EQ(axis.m_fMin, 0.5);
    EXPECT_EQ(axis.m_fMax, 50);
    EXPECT_TRUE(axis.SetRange(1, 1e9));
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.1f");
}

TEST(LogAxisClass, OfLinearTypeActsAsThePlainAxis)
{
    CXGraphLogAxis axis;
    axis.m_LogType = atLinear;
    EXPECT_FALSE(axis.SetRange(10, 1));
    EXPECT_TRUE(axis.SetRange(5, 5));
    EXPECT_EQ(axis.m_fMin, 4);
    EXPECT_EQ(axis.m_AxisType, atLinear);
}

TEST_F(LogAxis, TheClassScalesToStepsAlone)
{
    CXGraphLogAxis axis;
    axis.SetRange(350, 35000);
    axis.AutoScale(nullptr);
    EXPECT_NEAR(axis.m_fCurMin, 300, 1e-9);
    EXPECT_NEAR(axis.m_fCurMax, 40000, 1e-6);
}

TEST_F(LogAxis, TheClassDrawsDecadesButNoMarkers)
{
    CXGraphLogAxis axis;
    Place(axis);
    axis.SetRange(1, 1000);
    axis.SetAxisMarker(0, 50, 0xFF, PS_SOLID);
    axis.SetMaskerLabel(0, L"marker");
    axis.m_bAutoScale = false;
    const Recording recording = Recorded([&](CDCEx& dc) { axis.Draw(&dc); });
    EXPECT_EQ(TextsOf(recording, L"L"), (Texts{L"1", L"10", L"100"}));
    EXPECT_EQ(recording.Texts().size(), 3u);
}

TEST_F(LogAxis, TheClassMapsByLogarithmsWhateverItsType)
{
    CXGraphLogAxis axis;
    Place(axis);
    axis.SetRange(1, 1000);
    axis.m_bAutoScale = false;
    Recorded([&](CDCEx& dc) { axis.Draw(&dc); });
    const int nTen = axis.GetPointForValue({0, 10}).y;
    const int nHundred = axis.GetPointForValue({0, 100}).y;
    EXPECT_NEAR(nTen - nHundred, axis.m_nLength / 3, 1);
    EXPECT_NEAR(axis.GetValueForPos(nTen), 10, 0.5);
    EXPECT_EQ(axis.m_AxisType, atLinear);
}

TEST_F(LogAxis, AMarkerOfThePlainLogAxisIsDrawn)
{
    Y().SetAxisMarker(0, 50, 0xFF, PS_SOLID);
    Y().SetMaskerLabel(0, L"#marker");
    EXPECT_EQ(TextsOf(FrameRecording(graph), L"#"), (Texts{L"marker"}));
}

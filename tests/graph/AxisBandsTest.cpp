// Colour ranges, axis markers, curve keys and arrowheads.

#include "AxisLines.h"
#include "NativeGraph.h"
#include "draw/Canvas.h"

namespace
{

constexpr COLORREF Green = 0x00FF00;
constexpr COLORREF Blue = 0xFF0000;

class AxisBands : public GraphTest
{
protected:
    AxisBands()
    {
        AddLine();
        graph.m_bShowLegend = false;
        graph.m_Curves[0].m_bVisible = false;
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bAutoScale = false;
            pAxis->m_bShowGrid = false;
            pAxis->SetCurrentRange(0, 10, 2);
        }
    }
    CXGraphAxis& X() { return *graph.GetXAxis(0); }
    CXGraphAxis& Y() { return *graph.GetYAxis(0); }
    int KeyRoom(CXGraphAxis& axis)
    {
        Canvas canvas(50, 50);
        return axis.DrawCurveKeys(&canvas.dc, false);
    }
};

std::vector<TLine> ArrowLines(int nDirection, int nSize)
{
    return LinesOf(Recorded(
        [&](CDCEx& dc) { CXGraphAxis().DrawAxisArrow(&dc, CPoint(100, 200), nDirection, nSize); }));
}

} // namespace

TEST_F(AxisBands, ASolidRangeOfOneColourFillsItsBand)
{
    Y().SetColorRange(0, 2, 4, Green, Green, L"", 6);
    const Picture picture = Shoot();
    const int nHeight = Y().GetPointForValue({0, 2}).y - Y().GetPointForValue({0, 4}).y;
    // The axis line covers one column at the edge, tick labels none.
    EXPECT_NEAR(picture.Count(Green), nHeight * graph.m_rcInner.Width(), nHeight);
    EXPECT_EQ(picture.At(graph.m_rcInner.left + 50, Y().GetPointForValue({0, 3}).y), Green);
}

TEST_F(AxisBands, AnXRangeTakesThePlotsWholeHeight)
{
    X().SetColorRange(0, 2, 4, Green, Green, L"", 6);
    const Picture picture = Shoot();
    const int nColumn = X().GetPointForValue({3, 0}).x;
    EXPECT_EQ(picture.At(nColumn, graph.m_rcInner.top + 1), Green);
    EXPECT_EQ(picture.At(nColumn, graph.m_rcInner.bottom - 2), Green);
}

TEST_F(AxisBands, TwoColoursHaveNoDrawnForm)
{
    Y().SetColorRange(0, 2, 4, Green, Blue, L"", 6);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count(Green), 0);
    EXPECT_EQ(picture.Count(Blue), 0);
}

TEST_F(AxisBands, AHatchedRangeHasAFrameAndGaps)
{
    Y().SetColorRange(0, 2, 8, Green, Blue, L"", HS_CROSS);
    const Picture picture = Shoot();
    const int nBand =
        (Y().GetPointForValue({0, 2}).y - Y().GetPointForValue({0, 8}).y) * graph.m_rcInner.Width();
    EXPECT_GT(picture.Count(Green), nBand / 20);
    EXPECT_LT(picture.Count(Green), nBand * 3 / 4);
    EXPECT_EQ(picture.At(graph.m_rcInner.left + 60, Y().GetPointForValue({0, 8}).y), Green);
}

TEST_F(AxisBands, AnUnknownPatternPaintsNothing)
{
    Y().SetColorRange(0, 2, 8, Green, Green, L"", 12);
    Y().SetColorRange(1, 2, 8, Green, Green, L"", 0xFFFFFFFF);
    EXPECT_EQ(Shoot().Count(Green), 0);
}

TEST_F(AxisBands, ThePlatformsFurtherPatternsAreDrawn)
{
    for (UINT nStyle = 7; nStyle < 12; ++nStyle) {
        Y().SetColorRange(0, 2, 8, Green, Blue, L"", nStyle);
        const Picture picture = Shoot();
        EXPECT_GT(picture.Count(Green), 2 * (graph.m_rcInner.Width() - 2)) << nStyle; // the frame
        EXPECT_EQ(picture.Count(Blue), 0) << nStyle;
    }
}

TEST_F(AxisBands, RangesOutsideThePlotEndAtItsEdge)
{
    Y().SetColorRange(0, 50, 60, Green, Green, L"far", 6);
    Y().SetColorRange(1, 8, 1e300, Blue, Blue, L"", 6);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count(Green), 0);
    EXPECT_EQ(picture.At(graph.m_rcInner.left + 50, Y().GetPointForValue({0, 9}).y), Blue);
}

TEST_F(AxisBands, ARangesLabelStandsInIt)
{
    Y().SetColorRange(0, 2, 8, Green, Green, L"!good", 6);
    const FrameRecording frame(graph);
    EXPECT_EQ(TextsOf(frame, L"!").size(), 1u);
}

TEST_F(AxisBands, AMarkerCrossesThePlotWithItsValue)
{
    X().m_cDisplayFmt = L"X%g";
    Y().m_cDisplayFmt = L"Y%g";
    X().SetAxisMarker(0, 3.5, Blue, PS_SOLID);
    Y().SetAxisMarker(0, 4.5, Green, PS_SOLID);
    X().SetMaskerLabel(0, L"!up");
    Y().SetMaskerLabel(0, L"!right");
    const FrameRecording frame(graph);
    const auto lines = LinesOf(frame);
    const CRect plot = graph.m_rcInner;
    const LONG nColumn = X().GetPointForValue({3.5, 0}).x;
    const LONG nRow = Y().GetPointForValue({0, 4.5}).y;
    EXPECT_NE(std::find(lines.begin(), lines.end(), TLine{{nColumn, plot.bottom}, {nColumn, plot.top}}),
              lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), TLine{{plot.left, nRow}, {plot.right, nRow}}),
              lines.end());
    EXPECT_EQ(TextsOf(frame, L"!"), (std::vector<std::wstring>{L"right", L"up"}));
    const auto texts = TextsOf(frame, L"X");
    EXPECT_NE(std::find(texts.begin(), texts.end(), L"3.5"), texts.end());
}

TEST_F(AxisBands, AMarkerOutsideThePlotIsSkippedWithItsText)
{
    X().m_cDisplayFmt = L"X%g";
    X().SetAxisMarker(0, 30.5, Blue, PS_SOLID);
    X().SetMaskerLabel(0, L"!up");
    const FrameRecording frame(graph);
    EXPECT_TRUE(TextsOf(frame, L"!").empty());
    const auto texts = TextsOf(frame, L"X");
    EXPECT_EQ(std::find(texts.begin(), texts.end(), L"30.5"), texts.end());
}

TEST_F(AxisBands, KeysTakeTwoToAColumnOfAnXAxis)
{
    const int nSize = X().m_nMarkerSize;
    EXPECT_EQ(KeyRoom(X()), nSize); // no visible curve yet
    for (const int nRoom : {2, 2, 3, 3}) {
        AddLine();
        EXPECT_EQ(KeyRoom(X()), nRoom * nSize);
    }
    X().m_bShowMarker = false;
    EXPECT_EQ(KeyRoom(X()), 0);
}

TEST_F(AxisBands, KeysTakeThreeToARowOfAYAxis)
{
    const int nSize = Y().m_nMarkerSize;
    EXPECT_EQ(KeyRoom(Y()), 0);
    for (const int nRoom : {1, 1, 1, 2}) {
        AddLine();
        EXPECT_EQ(KeyRoom(Y()), nRoom * nSize);
    }
}

TEST_F(AxisBands, CurvesOfOtherAxesHaveNoKey)
{
    AddLine(1, 1);
    EXPECT_EQ(KeyRoom(Y()), 0);
    EXPECT_EQ(KeyRoom(*graph.GetYAxis(1)), 10);
}

TEST_F(AxisBands, KeysStandAlongTheirAxis)
{
    graph.m_Curves[0].m_bVisible = true;
    graph.m_Curves[0].m_crColor = Green;
    const Picture picture = Shoot();
    const CPoint xCorner(graph.m_rcInner.right - 10, X().m_nOriginY - 5);
    const CPoint yCorner(Y().m_nOriginX - 5, Y().m_rcArea.top);
    // Their corners, clear of the number and of the axis's line.
    EXPECT_EQ(picture.At(xCorner.x, xCorner.y), Green);
    EXPECT_EQ(picture.At(xCorner.x + 9, xCorner.y), Green);
    EXPECT_EQ(picture.At(yCorner.x, yCorner.y), Green);
    EXPECT_EQ(picture.At(yCorner.x, yCorner.y + 9), Green);
}

TEST_F(AxisBands, AKeyIsAFilledSquareWithItsNumber)
{
    Canvas canvas(60, 60);
    X().DrawCurveKey(&canvas.dc, CPoint(10, 10), 7, 30, 0x0000A0, false);
    EXPECT_EQ(canvas.At(10, 10), 0x0000A0u);
    EXPECT_EQ(canvas.At(39, 39), 0x0000A0u);
    EXPECT_EQ(canvas.At(40, 40), 0xFFFFFFu);
    EXPECT_EQ(canvas.dc.GetTextColor(), 0u);
}

TEST_F(AxisBands, DarkKeysHaveWhiteNumbersAndBlueCountsHalf)
{
    const auto whites = [&](COLORREF color) {
        Canvas canvas(60, 60);
        X().DrawCurveKey(&canvas.dc, CPoint(10, 10), 7, 30, color, false);
        int nCount = 0;
        for (int y = 10; y < 40; ++y) {
            for (int x = 10; x < 40; ++x)
                nCount += canvas.At(x, y) == 0xFFFFFF ? 1 : 0;
        }
        return nCount;
    };
    EXPECT_GT(whites(0x000080), 0);
    EXPECT_GT(whites(0xFF0000), 0); // blue alone is dark
    EXPECT_EQ(whites(0x000081), 0);
    EXPECT_EQ(whites(0x00FF00), 0);
}

TEST_F(AxisBands, AMonoKeyIsBlackWithAWhiteNumber)
{
    Canvas canvas(60, 60);
    canvas.dc.m_bMono = true;
    X().DrawCurveKey(&canvas.dc, CPoint(10, 10), 7, 30, Green, false);
    EXPECT_EQ(canvas.At(10, 10), 0u);
}

TEST_F(AxisBands, ASymbolKeyIsDrawnByItsPainter)
{
    Canvas canvas(60, 60);
    X().DrawCurveKey(&canvas.dc, CPoint(10, 10), 3, 20, Green, true);
    EXPECT_EQ(canvas.At(20, 20), Green);
    EXPECT_EQ(canvas.At(11, 11), 0xFFFFFFu); // a diamond leaves the corners
}

TEST_F(AxisBands, AnUnknownSymbolDrawsNothing)
{
    Canvas canvas(60, 60);
    for (const int nKey : {-1, 8, INT_MAX, INT_MIN})
        X().DrawCurveKey(&canvas.dc, CPoint(10, 10), nKey, 20, Green, true);
    EXPECT_EQ(canvas.At(20, 20), 0xFFFFFFu);
}

TEST(AxisArrow, LinesGrowFromTheTipOrShrinkToIt)
{
    EXPECT_EQ(ArrowLines(0, 2),
              (std::vector<TLine>{{{100, 200}, {100, 200}}, {{101, 199}, {101, 201}}}));
    EXPECT_EQ(ArrowLines(1, 2), (std::vector<TLine>{{{100, 200}, {100, 200}}, {{99, 201}, {101, 201}}}));
    EXPECT_EQ(ArrowLines(2, 2), (std::vector<TLine>{{{98, 198}, {98, 202}}, {{99, 199}, {99, 201}}}));
    EXPECT_EQ(ArrowLines(3, 2), (std::vector<TLine>{{{98, 200}, {102, 200}}, {{99, 201}, {101, 201}}}));
    EXPECT_TRUE(ArrowLines(1, 0).empty());
    EXPECT_TRUE(ArrowLines(1, -5).empty());
}

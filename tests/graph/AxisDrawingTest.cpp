// The painting of linear axes: margins, ticks, labels, grid, title, line.

#include "AxisLines.h"
#include "NativeGraph.h"

#include <cmath>

namespace
{

using Texts = std::vector<std::wstring>;

class AxisDrawing : public GraphTest
{
protected:
    AxisDrawing() : x(*NewAxis()), y(*graph.GetYAxis(0))
    {
        for (CXGraphAxis* pAxis : {&x, &y}) {
            pAxis->m_bShowMarker = false;
            pAxis->m_bAutoScale = false;
            pAxis->m_cLabel = CString();
            pAxis->SetCurrentRange(0, 10, 2);
        }
        x.m_cDisplayFmt = L"X%g";
        y.m_cDisplayFmt = L"Y%g";
        graph.m_bShowLegend = false;
        graph.m_Curves[0].m_bVisible = false;
    }

    CXGraphAxis& x;
    CXGraphAxis& y;

    // Whether the last frame has exactly this line.
    static bool Has(const FrameRecording& recording, const TLine& line)
    {
        const auto lines = LinesOf(recording);
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
    int Red() { return Shoot().Count(0x0000FF); }

private:
    CXGraphAxis* NewAxis()
    {
        AddLine();
        return graph.GetXAxis(0);
    }
};

} // namespace

TEST_F(AxisDrawing, AYAxisHasATickAtItsUpperBoundAndAnXAxisNone)
{
    const FrameRecording frame(graph);
    EXPECT_EQ(TextsOf(frame, L"Y"), (Texts{L"0", L"2", L"4", L"6", L"8", L"10"}));
    EXPECT_EQ(TextsOf(frame, L"X"), (Texts{L"0", L"2", L"4", L"6", L"8"}));
}

TEST_F(AxisDrawing, TicksStandWhereTheirValuesMap)
{
    const FrameRecording frame(graph);
    const CRect plot = graph.m_rcInner;
    for (const double fValue : {2.0, 4.0, 8.0}) {
        const int nRow = y.GetPointForValue({0, fValue}).y;
        const int nColumn = x.GetPointForValue({fValue, 0}).x;
        bool bRow = false;
        bool bColumn = false;
        for (const TLine& line : LinesOf(frame)) {
            bRow = bRow || (line.ptFrom.x == y.m_nOriginX - 5 && line.ptTo.x == plot.right &&
                            std::abs(line.ptFrom.y - nRow) <= 1);
            bColumn = bColumn || (line.ptFrom.y == x.m_nOriginY + 5 && line.ptTo.y == x.m_rcArea.top &&
                                  std::abs(line.ptFrom.x - nColumn) <= 1);
        }
        EXPECT_TRUE(bRow) << fValue;
        EXPECT_TRUE(bColumn) << fValue;
    }
}

TEST_F(AxisDrawing, TheTickAtTheOriginHasNoGridLine)
{
    const FrameRecording frame(graph);
    EXPECT_TRUE(Has(frame, {{y.m_nOriginX - 5, y.m_nOriginY}, {y.m_nOriginX, y.m_nOriginY}}));
    EXPECT_TRUE(Has(frame, {{x.m_nOriginX, x.m_nOriginY + 5}, {x.m_nOriginX, x.m_nOriginY}}));
}

TEST_F(AxisDrawing, WithoutGridAllLinesAreTicks)
{
    x.m_bShowGrid = false;
    y.m_bShowGrid = false;
    const FrameRecording frame(graph);
    for (const TLine& line : LinesOf(frame)) {
        EXPECT_FALSE(line.ptFrom.x == y.m_nOriginX - 5 && line.ptTo.x != y.m_nOriginX);
        EXPECT_FALSE(line.ptFrom.y == x.m_nOriginY + 5 && line.ptTo.y != x.m_nOriginY);
    }
}

TEST_F(AxisDrawing, ARightAxisDrawsToTheLeft)
{
    y.m_Placement = apRight;
    const FrameRecording frame(graph);
    const auto lines = LinesOf(frame);
    const auto tick = std::find_if(lines.begin(), lines.end(), [&](const TLine& line) {
        return line.ptFrom.x == y.m_nOriginX + 5 && line.ptTo.x == graph.m_rcInner.left;
    });
    EXPECT_NE(tick, lines.end());
    EXPECT_EQ(TextsOf(frame, L"Y").size(), 6u);
}

TEST_F(AxisDrawing, AnEmptyTitleTakesNoRoom)
{
    Paint();
    EXPECT_EQ(y.m_fEndMargin, 2 * y.m_nArcSize);
    EXPECT_EQ(x.m_fEndMargin, 4 * x.m_nArcSize);
}

TEST_F(AxisDrawing, ABlankTitleIsMeasuredAndAddedTwice)
{
    x.m_cLabel = L" ";
    y.m_cLabel = L" ";
    Paint();
    CClientDC window(&graph);
    CDCEx dc;
    dc.Attach(window.GetSafeHdc());
    EXPECT_GT(y.GetTitleSize(&dc).cy, 0);
    EXPECT_EQ(y.m_fEndMargin, 2 * y.m_nArcSize + 2 * y.GetTitleSize(&dc).cy);
    EXPECT_EQ(x.m_fEndMargin, 4 * x.m_nArcSize + 2 * x.GetTitleSize(&dc).cx);
    // The length has used the title's size once.
    EXPECT_EQ(y.m_nLength, graph.m_rcInner.Height() - 2 * y.m_nArcSize - y.GetTitleSize(&dc).cy);
    dc.Detach();
}

TEST_F(AxisDrawing, TitlesAreDrawn)
{
    x.m_cLabel = L"#time";
    y.m_cLabel = L"#volts";
    EXPECT_EQ(TextsOf(FrameRecording(graph), L"#"), (Texts{L"volts", L"time"}));
}

TEST_F(AxisDrawing, AHiddenAxisComputesAsAVisibleOneAndShowsNothing)
{
    x.m_crColor = 0x0000FF;
    x.m_crGridColor = 0x0000FF;
    x.m_bAutoScale = true;
    EXPECT_GT(Red(), 0);
    const int nLength = x.m_nLength;
    const double fStep = x.m_fStep;
    x.m_nLength = 1;
    x.m_fStep = 0.1;
    x.m_bVisible = false;
    EXPECT_EQ(Red(), 0);
    EXPECT_EQ(x.m_nLength, nLength);
    EXPECT_EQ(x.m_fStep, fStep);
    EXPECT_TRUE(TextsOf(FrameRecording(graph), L"X").empty());
}

TEST_F(AxisDrawing, AutomaticScaleRoundsTheVisibleRangeToWholeSteps)
{
    x.SetRange(0.3, 9.7);
    x.m_bAutoScale = true;
    Paint();
    EXPECT_NEAR(x.m_fCurMin, 0, 1e-9);
    EXPECT_EQ(x.m_fMin, 0.3);
    EXPECT_GE(x.m_fCurMax, 9.7);
    EXPECT_NEAR(std::remainder(x.m_fCurMax, x.m_fStep), 0, 1e-9);
}

TEST_F(AxisDrawing, DateAxesStepByCalendarUnits)
{
    x.m_bDateTime = true;
    x.m_cDisplayFmt = L"X%H:%M:%S";
    x.m_bAutoScale = true;
    x.SetRange(40000.0 + 7 / 86400.0, 40000.0 + 107 / 86400.0);
    const auto texts = TextsOf(FrameRecording(graph), L"X");
    ASSERT_GE(texts.size(), 2u);
    EXPECT_TRUE(texts[0] == L"00:00:00") << texts[0].size();
    const double fSeconds = x.m_fStep * 86400;
    EXPECT_NEAR(fSeconds, std::round(fSeconds), 1e-6);
}

TEST_F(AxisDrawing, TheAxisLineEndsInAnArrow)
{
    const FrameRecording frame(graph);
    EXPECT_TRUE(Has(frame, {{y.m_nOriginX, y.m_nOriginY}, {y.m_nOriginX, y.m_rcArea.top}}));
    EXPECT_TRUE(Has(frame, {{x.m_nOriginX, x.m_nOriginY}, {graph.m_rcInner.right, x.m_nOriginY}}));
    const CPoint top(y.m_nOriginX, y.m_rcArea.top);
    EXPECT_TRUE(Has(frame, {{top.x - 3, top.y + 3}, {top.x + 3, top.y + 3}}));
    const CPoint right(graph.m_rcInner.right, x.m_nOriginY);
    EXPECT_TRUE(Has(frame, {{right.x - 5 + 1, right.y - 4}, {right.x - 5 + 1, right.y + 4}}));
}

TEST_F(AxisDrawing, TheRectangleIsAStripAroundTheLine)
{
    Paint();
    EXPECT_EQ(y.m_rcObject, CRect(y.m_nOriginX - 5, y.m_rcArea.top, y.m_nOriginX + 5, y.m_nOriginY));
    EXPECT_EQ(x.m_rcObject,
              CRect(x.m_nOriginX, x.m_nOriginY - 5, graph.m_rcInner.right, x.m_nOriginY + 5));
}

TEST_F(AxisDrawing, ASelectedAxisHasAFocusFrame)
{
    const Picture before = Shoot();
    y.m_bSelected = true;
    EXPECT_GT(Shoot().CountDifferences(before), 10);
}

TEST_F(AxisDrawing, APrinterGetsEveryLineScaled)
{
    graph.m_rcPrint = CRect(0, 0, Width, Height);
    const auto plain = LinesOf(FrameRecording(graph));
    const int nLength = x.m_nLength;
    const auto scaled = LinesOf(FrameRecording(graph, [](CDCEx& dc) {
        dc.m_bScaleReady = true;
        dc.m_bScaling = true;
        dc.m_fScaleX = 2.0f;
        dc.m_fScaleY = 3.0f;
    }));
    ASSERT_EQ(scaled.size(), plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        EXPECT_EQ(scaled[i].ptFrom, CPoint(2 * plain[i].ptFrom.x, 3 * plain[i].ptFrom.y));
        EXPECT_EQ(scaled[i].ptTo, CPoint(2 * plain[i].ptTo.x, 3 * plain[i].ptTo.y));
    }
    EXPECT_EQ(x.m_nLength, nLength); // in screen units all the same
}

TEST_F(AxisDrawing, HugeSettingsStayBounded)
{
    for (const int nSize : {INT_MAX, INT_MIN, 100000000}) {
        x.m_nArcSize = y.m_nArcSize = nSize;
        x.m_nTickSize = y.m_nTickSize = nSize;
        x.m_nMarkerSize = y.m_nMarkerSize = nSize;
        x.m_nGridStyle = y.m_nGridStyle = 4711;
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    }
}

TEST_F(AxisDrawing, MeasuresAreThoseOfTheLabels)
{
    CClientDC window(&graph);
    CDCEx dc;
    dc.Attach(window.GetSafeHdc());
    const HGDIOBJ hOld = ::SelectObject(dc, x.m_LabelFont);
    const CSize lower = dc.GetTextExtent(L"X0");
    const CSize upper = dc.GetTextExtent(L"X10");
    ::SelectObject(dc, hOld);
    EXPECT_EQ(x.GetMaxLabelWidth(&dc), std::max(lower.cx, upper.cx) + 5);
    EXPECT_EQ(x.GetLabelHeight(&dc), lower.cy + 5);
    // The height is that of the whole range's bound.
    x.m_bDateTime = true;
    x.m_cDisplayFmt = L"%d%n%m";
    x.m_fMin = std::nan("");
    EXPECT_EQ(x.GetLabelHeight(&dc), lower.cy + 5);
    x.m_fMin = 40000;
    EXPECT_GT(x.GetLabelHeight(&dc), lower.cy + 5);
    dc.Detach();
}

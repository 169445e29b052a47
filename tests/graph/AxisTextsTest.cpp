// Where the texts of an axis are, and how they are written.

#include "AxisLines.h"
#include "NativeGraph.h"
#include "WatchedCanvas.h"
#include "base/Trunc.h"

namespace
{

constexpr COLORREF Green = 0x00FF00;

class AxisTexts : public GraphTest
{
protected:
    AxisTexts() : canvas(Width, Height)
    {
        AddLine();
        graph.m_bShowLegend = false;
        graph.m_Curves[0].m_bVisible = false;
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bAutoScale = false;
            pAxis->m_cLabel = CString();
            pAxis->SetCurrentRange(0, 10, 2);
        }
        X().m_cDisplayFmt = L"X%g";
        Y().m_cDisplayFmt = L"Y%g";
    }
    CXGraphAxis& X() { return *graph.GetXAxis(0); }
    CXGraphAxis& Y() { return *graph.GetYAxis(0); }

    // Draws a frame on the canvas and returns its texts that begin with the mark.
    std::vector<WatchedDC::Text> Texts(std::wstring_view mark)
    {
        graph.m_pDrawDC = &canvas.dc;
        canvas.dc.texts.clear();
        Paint();
        graph.m_pDrawDC = nullptr;
        return canvas.dc.Marked(mark);
    }
    CSize SizeOf(const CString& text, CFont& font)
    {
        const HGDIOBJ hOld = ::SelectObject(canvas.dc, font);
        const CSize size = canvas.dc.GetTextExtent(text);
        ::SelectObject(canvas.dc, hOld);
        return size;
    }
    // Pixels between the ticks of the last frame.
    double StepX()
    {
        return (graph.m_rcInner.right - X().m_fKeySpace - X().m_nOriginX - X().m_fEndMargin) / 5;
    }
    double StepY()
    {
        return (Y().m_nOriginY - Y().m_rcArea.top - Y().m_fKeySpace - Y().m_fEndMargin) / 5;
    }

    WatchedCanvas canvas;
};

} // namespace

TEST_F(AxisTexts, LabelsOfALeftAxisEndATickLeftOfIt)
{
    Y().m_bShowMarker = false;
    const auto texts = Texts(L"Y");
    ASSERT_EQ(texts.size(), 6u);
    for (int i = 0; i < 6; ++i) {
        const CSize size = SizeOf(texts[i].text.c_str(), Y().m_LabelFont);
        const double fPlace = Y().m_nOriginY - i * StepY();
        const int nNear = Y().m_nOriginX - Y().m_nTickSize;
        EXPECT_EQ(texts[i].rect, CRect(nNear - size.cx, Trunc(fPlace - size.cy / 2), nNear,
                                       Trunc(fPlace + size.cy / 2)));
        EXPECT_EQ(texts[i].format, static_cast<UINT>(DT_RIGHT));
        EXPECT_EQ(texts[i].font.lfHeight, 13);
        EXPECT_EQ(texts[i].backMode, OPAQUE);
    }
}

TEST_F(AxisTexts, LabelsOfARightAxisBeginATickRightOfIt)
{
    Y().m_Placement = apRight;
    Y().m_bShowMarker = false;
    const auto texts = Texts(L"Y");
    ASSERT_EQ(texts.size(), 6u);
    for (int i = 0; i < 6; ++i) {
        const CSize size = SizeOf(texts[i].text.c_str(), Y().m_LabelFont);
        const double fPlace = Y().m_nOriginY - i * StepY();
        const int nNear = Y().m_nOriginX + Y().m_nTickSize;
        EXPECT_EQ(texts[i].rect, CRect(nNear, Trunc(fPlace - size.cy / 2), nNear + size.cx,
                                       Trunc(fPlace + size.cy / 2)));
        EXPECT_EQ(texts[i].format, static_cast<UINT>(DT_LEFT));
    }
}

TEST_F(AxisTexts, LabelsOfAnXAxisAreCentredUnderTheirTicks)
{
    X().m_bShowMarker = false;
    const auto texts = Texts(L"X");
    ASSERT_EQ(texts.size(), 5u);
    for (int i = 0; i < 5; ++i) {
        const CSize size = SizeOf(texts[i].text.c_str(), X().m_LabelFont);
        const double fPlace = X().m_nOriginX + i * StepX();
        const int nTop = X().m_nTickSize + X().m_nOriginY;
        EXPECT_EQ(texts[i].rect,
                  CRect(Trunc(fPlace - size.cx / 2), nTop, Trunc(fPlace + size.cx / 2), nTop + size.cy));
        EXPECT_EQ(texts[i].format, static_cast<UINT>(DT_CENTER));
    }
}

TEST_F(AxisTexts, TitlesStandAtTheFarEndATickBesideTheLine)
{
    X().m_cLabel = Y().m_cLabel = L"#title";
    X().m_nTickSize = Y().m_nTickSize = 7;
    const CSize size = SizeOf(L"#title", X().m_TitleFont);
    for (const EAxisPlacement placement : {apLeft, apRight}) {
        Y().m_Placement = placement;
        const auto texts = Texts(L"#title");
        ASSERT_EQ(texts.size(), 2u);
        const int nTop = Trunc(Y().m_rcArea.top + Y().m_fKeySpace);
        const int nNear = placement == apLeft ? Y().m_nOriginX - 7 : Y().m_nOriginX + 7;
        EXPECT_EQ(texts[0].rect, placement == apLeft
                                     ? CRect(nNear - size.cx, nTop, nNear, nTop + size.cy)
                                     : CRect(nNear, nTop, nNear + size.cx, nTop + size.cy));
        EXPECT_EQ(texts[0].format, static_cast<UINT>(placement == apLeft ? DT_RIGHT : DT_LEFT));
        EXPECT_EQ(texts[0].font.lfWeight, FW_BOLD);
        const int nRight = Trunc(graph.m_rcInner.right - X().m_fKeySpace);
        EXPECT_EQ(texts[1].rect,
                  CRect(nRight - size.cx, 7 + X().m_nOriginY, nRight, 7 + X().m_nOriginY + size.cy));
        EXPECT_EQ(texts[1].format, static_cast<UINT>(DT_LEFT));
        EXPECT_EQ(texts[1].font.lfHeight, 14);
    }
}

TEST_F(AxisTexts, ARangesLabelStandsTwoPixelsInsideItsBand)
{
    Y().SetColorRange(0, 2, 8, Green, Green, L"!good", 6);
    const auto texts = Texts(L"!good");
    ASSERT_EQ(texts.size(), 1u);
    const CRect plot = graph.m_rcInner;
    EXPECT_EQ(texts[0].rect, CRect(plot.left + 2, Y().GetPointForValue({0, 8}).y + 2, plot.right - 2,
                                   Y().GetPointForValue({0, 2}).y - 2));
    EXPECT_EQ(texts[0].format, static_cast<UINT>(DT_LEFT));
    EXPECT_EQ(texts[0].backMode, TRANSPARENT);
    EXPECT_STREQ(texts[0].font.lfFaceName, L"Arial");
    EXPECT_EQ(texts[0].font.lfHeight, 12);
    EXPECT_EQ(texts[0].font.lfWeight, FW_BOLD);
}

TEST_F(AxisTexts, AMarkerOfAnXAxisWritesUpwardFromTheBottom)
{
    X().SetAxisMarker(0, 3.5, Green, PS_SOLID);
    X().SetMaskerLabel(0, L"!up");
    const auto values = Texts(L"X3.5");
    const auto labels = canvas.dc.Marked(L"!up");
    ASSERT_EQ(values.size(), 1u);
    ASSERT_EQ(labels.size(), 1u);
    CFont turned;
    turned.CreateFontIndirect(&X().m_AxisMarkers[0].lfFont);
    const CSize unit = SizeOf(L"W", turned);
    const int nColumn = X().GetPointForValue({3.5, 0}).x;
    EXPECT_EQ(values[0].rect.TopLeft(), CPoint(nColumn, graph.m_rcInner.bottom));
    EXPECT_EQ(labels[0].rect.TopLeft(),
              CPoint(nColumn - unit.cy, graph.m_rcInner.top + unit.cy + unit.cx));
    EXPECT_EQ(labels[0].font.lfEscapement, 900);
    EXPECT_EQ(labels[0].backMode, TRANSPARENT);
}

TEST_F(AxisTexts, AMarkerOfAYAxisWritesItsLabelOverTheRightEnd)
{
    Y().SetAxisMarker(0, 4.5, Green, PS_SOLID);
    Y().SetMaskerLabel(0, L"!right");
    const auto values = Texts(L"Y4.5");
    const auto labels = canvas.dc.Marked(L"!right");
    ASSERT_EQ(values.size(), 1u);
    ASSERT_EQ(labels.size(), 1u);
    const CRect plot = graph.m_rcInner;
    const int nRow = Y().GetPointForValue({0, 4.5}).y;
    EXPECT_EQ(values[0].rect.TopLeft(), CPoint(plot.left, nRow));
    EXPECT_EQ(labels[0].rect,
              CRect(plot.left, nRow - SizeOf(L"W", Y().m_LabelFont).cy, plot.right, nRow));
    EXPECT_EQ(labels[0].format, 34u);
    EXPECT_EQ(labels[0].font.lfEscapement, 0);
}

TEST_F(AxisTexts, AMarkersTextsScaleWithThePage)
{
    canvas.dc.m_bScaleReady = canvas.dc.m_bScaling = true;
    canvas.dc.m_fScaleX = 2.0f;
    canvas.dc.m_fScaleY = 3.0f;
    graph.m_rcPrint = CRect(0, 0, Width, Height);
    Y().SetAxisMarker(0, 4.5, Green, PS_SOLID);
    Y().SetMaskerLabel(0, L"!right");
    Paint(); // the layout
    canvas.dc.texts.clear();
    Y().DrawAxisMarkers(&canvas.dc);
    const auto values = canvas.dc.Marked(L"Y4.5");
    const auto labels = canvas.dc.Marked(L"!right");
    ASSERT_EQ(values.size(), 1u);
    ASSERT_EQ(labels.size(), 1u);
    const CRect plot = graph.m_rcInner;
    const int nRow = Y().GetPointForValue({0, 4.5}).y;
    EXPECT_EQ(values[0].rect.TopLeft(), CPoint(2 * plot.left, 3 * nRow));
    EXPECT_EQ(values[0].font.lfHeight, 36); // one less than 13, three times
    EXPECT_EQ(labels[0].rect.left, 2 * plot.left);
    EXPECT_EQ(labels[0].rect.right, 2 * plot.right);
    EXPECT_EQ(labels[0].rect.bottom, 3 * nRow);
}

TEST_F(AxisTexts, KeysOfAnXAxisStandInColumnsOfTwoFromTheRight)
{
    Y().m_bShowMarker = false;
    for (int i = 0; i < 4; ++i)
        AddLine();
    X().m_nMarkerSize = 12;
    Paint();
    canvas.dc.texts.clear();
    X().DrawCurveKeys(&canvas.dc, true);
    ASSERT_EQ(canvas.dc.texts.size(), 4u);
    const CPoint first(graph.m_rcInner.right - 12, X().m_nOriginY - 6);
    const CPoint offsets[] = {{0, 0}, {0, 12}, {-12, 0}, {-12, 12}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(canvas.dc.texts[i].rect, CRect(first + offsets[i], CSize(12, 12))) << i;
        EXPECT_EQ(canvas.dc.texts[i].text, std::to_wstring(i + 2)) << i;
        EXPECT_EQ(canvas.dc.texts[i].format, static_cast<UINT>(DT_CENTER));
    }
}

TEST_F(AxisTexts, KeysOfAYAxisStandInRowsOfThreeFromTheTop)
{
    for (int i = 0; i < 4; ++i)
        AddLine();
    Y().m_nMarkerSize = 12;
    for (const EAxisPlacement placement : {apLeft, apRight}) {
        Y().m_Placement = placement;
        Paint();
        canvas.dc.texts.clear();
        Y().DrawCurveKeys(&canvas.dc, true);
        ASSERT_EQ(canvas.dc.texts.size(), 4u);
        const CPoint first(Y().m_nOriginX - 6, Y().m_rcArea.top);
        const int nSign = placement == apRight ? 1 : -1; // away from the axis
        const CPoint offsets[] = {{0, 0}, {nSign * 12, 0}, {nSign * 24, 0}, {0, 12}};
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(canvas.dc.texts[i].rect, CRect(first + offsets[i], CSize(12, 12))) << i;
    }
}

TEST_F(AxisTexts, AKeysNumberIsTheCurvesPositionOrItsMarker)
{
    X().m_bShowMarker = false;
    for (const int nType : {0, 2, 1}) {
        CXGraphDataSerie& curve = *AddLine();
        curve.m_nMarkerType = nType;
        curve.m_nMarker = 6;
    }
    Paint();
    canvas.dc.texts.clear();
    Y().DrawCurveKeys(&canvas.dc, true);
    ASSERT_EQ(canvas.dc.texts.size(), 2u); // the third is a symbol
    EXPECT_EQ(canvas.dc.texts[0].text, L"2");
    EXPECT_EQ(canvas.dc.texts[1].text, L"7");
    EXPECT_EQ(canvas.dc.texts[0].font.lfHeight, Y().m_nMarkerSize);
    EXPECT_EQ(canvas.dc.texts[0].font.lfWeight, FW_THIN);
}

TEST_F(AxisTexts, GapsOfALinearGridAreClearAndThoseOfALogarithmicOneAreFilled)
{
    const auto gaps = [&](EAxisType type) {
        Y().m_AxisType = type;
        Y().SetCurrentRange(1, 1000, 100);
        Y().m_crGridColor = 0x0000FF;
        Y().m_nGridStyle = PS_DOT;
        X().m_bShowGrid = false;
        const Picture picture = Shoot();
        return std::pair(picture.Count(graph.m_rcInner, 0x0000FF),
                         picture.Count(graph.m_rcInner, graph.m_crGraphColor));
    };
    const auto linear = gaps(atLinear);
    EXPECT_GT(linear.first, 100);
    EXPECT_EQ(linear.second, 0);
    const auto logarithmic = gaps(atLog);
    EXPECT_GT(logarithmic.first, 100);
    EXPECT_GT(logarithmic.second, logarithmic.first / 4);
}

TEST_F(AxisTexts, TheLengthOfAnXAxisEndsAtItsTitleAndArrow)
{
    X().m_cLabel = L"#title";
    for (const double fStep : {2.0, 3.0, 0.7}) {
        X().SetCurrentRange(0, 10, fStep);
        Paint();
        const int nRight = Trunc(graph.m_rcInner.right - X().m_fKeySpace);
        const double fMargin = 4 * X().m_nArcSize + SizeOf(L"#title", X().m_TitleFont).cx;
        const double fTicks = 10 / fStep;
        EXPECT_EQ(X().m_nLength, Trunc((nRight - X().m_nOriginX - fMargin) / fTicks * fTicks));
    }
}

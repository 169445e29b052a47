// Ranges, steps, markers and colour ranges of an axis.

#include "NativeGraph.h"
#include "objects/TickSteps.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace
{

constexpr int InvalidParameter = static_cast<int>(0xC0000417);
const double NaN = std::numeric_limits<double>::quiet_NaN();

struct TRanges {
    double fMin, fMax, fCurMin, fCurMax, fStep;
    CString cFormat;

    explicit TRanges(const CXGraphAxis& axis)
        : fMin(axis.m_fMin), fMax(axis.m_fMax), fCurMin(axis.m_fCurMin), fCurMax(axis.m_fCurMax),
          fStep(axis.m_fStep), cFormat(axis.m_cDisplayFmt)
    {
    }
};

void ExpectSame(const TRanges& actual, const TRanges& expected)
{
    EXPECT_EQ(actual.fMin, expected.fMin);
    EXPECT_EQ(actual.fMax, expected.fMax);
    EXPECT_EQ(actual.fCurMin, expected.fCurMin);
    EXPECT_EQ(actual.fCurMax, expected.fCurMax);
    EXPECT_EQ(actual.fStep, expected.fStep);
    EXPECT_TRUE(actual.cFormat == expected.cFormat);
}

class AxisOnScreen : public GraphTest
{
protected:
    AxisOnScreen()
    {
        AddLine();
        Paint();
    }
};

using AxisBoundsDeathTest = AxisOnScreen;

} // namespace

TEST(AxisRange, AFreshAxisIsInverted)
{
    const CXGraphAxis axis;
    EXPECT_EQ(axis.m_fMin, DBL_MAX);
    EXPECT_EQ(axis.m_fCurMax, -DBL_MAX);
    EXPECT_EQ(axis.m_fStep, 0.1);
    EXPECT_TRUE(axis.m_cLabel == L" ");
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.1f");
}

TEST(AxisRange, WholeAndVisibleRangeAreSet)
{
    CXGraphAxis axis;
    EXPECT_TRUE(axis.SetRange(2, 12));
    EXPECT_EQ(axis.m_fMin, 2);
    EXPECT_EQ(axis.m_fMax, 12);
    EXPECT_EQ(axis.m_fCurMin, 2);
    EXPECT_EQ(axis.m_fCurMax, 12);
    EXPECT_EQ(axis.m_fStep, 1);
}

TEST(AxisRange, EqualBoundsWidenByOne)
{
    CXGraphAxis axis;
    EXPECT_TRUE(axis.SetRange(5, 5));
    EXPECT_EQ(axis.m_fMin, 4);
    EXPECT_EQ(axis.m_fCurMax, 6);
}

TEST(AxisRange, EqualLogarithmicBoundsWidenByADecade)
{
    CXGraphAxis axis;
    axis.m_AxisType = atLog;
    EXPECT_TRUE(axis.SetRange(5, 5));
    EXPECT_EQ(axis.m_fMin, 0.5);
    EXPECT_EQ(axis.m_fCurMax, 50);
    EXPECT_EQ(axis.m_fStep, 0);
}

TEST(AxisRange, LogarithmicBoundsHaveAFloor)
{
    CXGraphAxis axis;
    axis.m_AxisType = atLog;
    EXPECT_TRUE(axis.SetRange(-7, 0));
    EXPECT_EQ(axis.m_fMin, 1e-16);
    EXPECT_EQ(axis.m_fMax, 1e-15);
}

TEST(AxisRange, FallingAndUndefinedBoundsAreRefused)
{
    for (const EAxisType type : {atLinear, atLog}) {
        CXGraphAxis axis;
        axis.m_AxisType = type;
        axis.SetRange(1, 2);
        const TRanges before(axis);
        EXPECT_FALSE(axis.SetRange(3, 1));
        EXPECT_FALSE(axis.SetCurrentRange(3, 1, 0.5));
        EXPECT_FALSE(axis.SetRange(NaN, 1));
        EXPECT_FALSE(axis.SetCurrentRange(1, NaN, 0.5));
        ExpectSame(TRanges(axis), before);
    }
}

TEST(AxisRange, LargeBoundsTurnTheFormatExponentialForGood)
{
    CXGraphAxis axis;
    axis.SetRange(0, 1e6);
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.1f");
    axis.SetRange(0, 2e6);
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.2e");
    axis.SetRange(0, 1);
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.2e");
    CXGraphAxis negative;
    negative.SetRange(-2e6, 0);
    EXPECT_TRUE(negative.m_cDisplayFmt == L"%5.2e");
}

TEST(AxisRange, ADateAxisKeepsItsFormat)
{
    CXGraphAxis axis;
    axis.m_bDateTime = true;
    axis.SetRange(0, 2e6);
    EXPECT_TRUE(axis.m_cDisplayFmt == L"%5.1f");
}

TEST(AxisRange, TheVisibleRangeTakesTheStepGiven)
{
    CXGraphAxis axis;
    axis.SetRange(0, 100);
    EXPECT_TRUE(axis.SetCurrentRange(10, 20, 2.5));
    EXPECT_EQ(axis.m_fMax, 100);
    EXPECT_EQ(axis.m_fCurMin, 10);
    EXPECT_EQ(axis.m_fStep, 2.5);
    EXPECT_TRUE(axis.SetCurrentRange(10, 20, 0));
    EXPECT_EQ(axis.m_fStep, 1);
    EXPECT_TRUE(axis.SetCurrentRange(7, 7, 3));
    EXPECT_EQ(axis.m_fCurMin, 6);
    EXPECT_EQ(axis.m_fCurMax, 8);
}

TEST(AxisRange, TheVisibleLogarithmicRangeHasNoStep)
{
    CXGraphAxis axis;
    axis.m_AxisType = atLog;
    EXPECT_TRUE(axis.SetCurrentRange(-1, 100, 5));
    EXPECT_EQ(axis.m_fStep, 0);
    EXPECT_EQ(axis.m_fCurMin, 1e-16);
    EXPECT_EQ(axis.m_fMin, DBL_MAX);
}

TEST(AxisRange, ResetShowsTheWholeRange)
{
    CXGraphAxis axis;
    axis.SetRange(0, 100);
    axis.SetCurrentRange(10, 20, 2);
    axis.ResetRange();
    double fMin = 0;
    double fMax = 0;
    double fStep = 0;
    axis.GetRange(fMin, fMax, fStep);
    EXPECT_EQ(fMin, 0);
    EXPECT_EQ(fMax, 100);
    EXPECT_EQ(fStep, 10);
}

TEST(AxisRange, ACopyHasAllFieldsAndFontsOfItsOwn)
{
    CXGraphAxis axis;
    axis.SetRange(1, 2);
    axis.m_ZoomHistory.push_back({3, 4});
    axis.m_rcArea = CRect(1, 2, 3, 4);
    axis.m_cLabel = L"title";
    axis.m_bSelected = true;
    axis.SetColorRange(0, 1, 2, 3, 4, L"range", 5);
    axis.SetAxisMarker(0, 7, 8, 1);
    axis.SetMaskerLabel(0, L"marker");
    LOGFONTW look = {};
    axis.m_LabelFont.GetLogFont(&look);
    look.lfHeight = 31;
    axis.SetLabelFont(look);

    const CXGraphAxis copy(axis);
    EXPECT_EQ(copy.m_fCurMax, 2);
    EXPECT_EQ(copy.m_ZoomHistory.size(), 1u);
    EXPECT_EQ(copy.m_rcArea, CRect());
    EXPECT_TRUE(copy.m_cLabel == L"title");
    EXPECT_TRUE(copy.m_bSelected);
    EXPECT_TRUE(copy.m_AxisMarkers[0].cLabel == L"marker");
    EXPECT_EQ(copy.m_ColorRanges[0].nStyle, 5u);
    LOGFONTW copied = {};
    copy.m_LabelFont.GetLogFont(&copied);
    EXPECT_EQ(copied.lfHeight, 31);
    EXPECT_NE(copy.m_LabelFont.m_hObject, axis.m_LabelFont.m_hObject);
}

TEST(AxisRange, FontsAreArial)
{
    const CXGraphAxis axis;
    LOGFONTW label = {};
    LOGFONTW title = {};
    axis.m_LabelFont.GetLogFont(&label);
    axis.m_TitleFont.GetLogFont(&title);
    EXPECT_STREQ(label.lfFaceName, L"Arial");
    EXPECT_EQ(label.lfHeight, 13);
    EXPECT_EQ(label.lfWeight, 400);
    EXPECT_EQ(label.lfCharSet, 1);
    EXPECT_EQ(label.lfClipPrecision, 1);
    EXPECT_EQ(label.lfQuality, 4);
    EXPECT_EQ(title.lfHeight, 14);
    EXPECT_EQ(title.lfWeight, 700);
}

TEST_F(AxisOnScreen, AVisibleGraphSpacesTicksByALabel)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    axis.SetRange(0, 50);
    CClientDC window(&graph);
    CDCEx dc;
    dc.Attach(window.GetSafeHdc());
    const int nSize = axis.GetMaxLabelWidth(&dc);
    dc.Detach();
    const int nLength = static_cast<int>(graph.m_rcInner.right - axis.m_fEndMargin - axis.m_fKeySpace) -
                        static_cast<int>(graph.m_rcInner.left);
    EXPECT_EQ(axis.m_fStep, 50.0 / nLength * nSize);
}

TEST_F(AxisOnScreen, AutoScaleRoundsByTheLabelsThatFitThePlot)
{
    CClientDC window(&graph);
    CDCEx dc;
    dc.Attach(window.GetSafeHdc());
    for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
        CXGraphAxis& axis = *pAxis;
        axis.SetRange(0.37, 7.93);
        axis.AutoScale(&dc);
        const CRect plot = graph.m_rcInner;
        EXPECT_EQ(axis.m_fEndMargin, (axis.IsVertical() ? 2 : 4) * axis.m_nArcSize);
        EXPECT_EQ(axis.m_fKeySpace, axis.DrawCurveKeys(&dc, false));
        axis.SetRange(0.37, 7.93); // the label sizes are those of the range before
        const double fRoom = axis.IsVertical() ? plot.Height() - axis.m_fEndMargin - axis.m_fKeySpace
                                               : plot.Width() - axis.m_fEndMargin - axis.m_fKeySpace;
        const int nSize = axis.IsVertical() ? axis.GetLabelHeight(&dc) : axis.GetMaxLabelWidth(&dc);
        double fLower = 0.37;
        double fUpper = 7.93;
        double fStep = 0;
        ASSERT_TRUE(TickSteps::CalcNiceStep(std::max(static_cast<int>(fRoom / nSize), 2), fLower, fUpper,
                                            fStep));
        TickSteps::AdjustRange(fLower, fUpper, fStep);
        axis.AutoScale(&dc);
        EXPECT_EQ(axis.m_fStep, fStep);
        EXPECT_EQ(axis.m_fCurMin, fLower);
        EXPECT_EQ(axis.m_fCurMax, fUpper);
        EXPECT_EQ(axis.m_fMin, 0.37);
    }
    dc.Detach();
}

TEST_F(AxisOnScreen, AHiddenGraphSpacesTicksByATenth)
{
    graph.ShowWindow(SW_HIDE);
    graph.GetXAxis(0)->SetRange(0, 50);
    EXPECT_EQ(graph.GetXAxis(0)->m_fStep, 5);
}

TEST_F(AxisOnScreen, APlotAsWideAsTheMarginsCountsAsOnePixel)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    axis.m_fKeySpace = 0;
    axis.m_fEndMargin = graph.m_rcInner.Width();
    axis.SetRange(0, 1);
    const double fWhole = axis.m_fStep;
    EXPECT_GT(fWhole, 0);
    axis.m_fEndMargin = graph.m_rcInner.Width() + 2;
    axis.RecalcStep();
    EXPECT_DOUBLE_EQ(axis.m_fStep, fWhole / -2);
}

TEST_F(AxisOnScreen, PixelsAndValuesOfTheLastFrameAgree)
{
    for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
        for (const int nPixel : {100, 150, 222}) {
            const double fValue = pAxis->GetValueForPos(nPixel);
            const CPoint point = pAxis->GetPointForValue({fValue, fValue});
            EXPECT_NEAR(pAxis->IsVertical() ? point.y : point.x, nPixel, 1);
        }
    }
    EXPECT_EQ(graph.GetXAxis(0)->GetPointForValue({0, 0}).x, graph.m_rcInner.left);
    EXPECT_EQ(graph.GetYAxis(0)->GetPointForValue({0, 0}).y, graph.m_rcInner.bottom);
}

TEST_F(AxisOnScreen, MarkersAreAppendedAndReplacedAndRepaint)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    axis.SetAxisMarker(0, 1, 0xFF, PS_DASH);
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    axis.SetAxisMarker(1, 2, 0xFF00, PS_DOT);
    axis.SetMaskerLabel(0, L"gone");
    axis.SetAxisMarker(0, 3, 0xFF0000, PS_SOLID);
    ASSERT_EQ(axis.GetAxisMarkerCount(), 2);
    const TAxisMarker& marker = axis.m_AxisMarkers[0];
    EXPECT_EQ(marker.fValue, 3);
    EXPECT_EQ(marker.crColor, 0xFF0000u);
    EXPECT_TRUE(marker.cLabel.IsEmpty());
    EXPECT_TRUE(marker.bVisible);
    EXPECT_TRUE(marker.bShowValue);
    EXPECT_EQ(marker.nSize, 1);
    EXPECT_EQ(marker.lfFont.lfEscapement, 900);
    EXPECT_EQ(marker.lfFont.lfOrientation, 900);
    EXPECT_EQ(marker.lfFont.lfClipPrecision, 16);
    graph.GetYAxis(0)->SetAxisMarker(0, 1, 0, 0);
    EXPECT_EQ(graph.GetYAxis(0)->m_AxisMarkers[0].lfFont.lfEscapement, 0);
}

TEST_F(AxisOnScreen, RemovingAMarkerOutsideTheListIsIgnored)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    axis.SetAxisMarker(0, 1, 0xFF, PS_DASH);
    axis.DeleteAxisMarker(1);
    axis.DeleteAxisMarker(-1);
    EXPECT_EQ(axis.GetAxisMarkerCount(), 1);
    axis.DeleteAxisMarker(0);
    EXPECT_EQ(axis.GetAxisMarkerCount(), 0);
}

TEST_F(AxisOnScreen, ColourRangesAreAppendedReplacedAndRemoved)
{
    CXGraphAxis& axis = *graph.GetYAxis(0);
    axis.SetColorRange(0, 1, 2, 0x11, 0x22, L"first", 3);
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    axis.SetColorRange(1, 3, 4, 0x33, 0x44, nullptr, 6);
    axis.SetColorRange(0, 5, 6, 0x55, 0x66, L"again", 4);
    ASSERT_EQ(axis.m_ColorRanges.size(), 2u);
    EXPECT_EQ(axis.m_ColorRanges[0].fMin, 5);
    EXPECT_EQ(axis.m_ColorRanges[0].crMaxColor, 0x66u);
    EXPECT_STREQ(axis.m_ColorRanges[0].szLabel, L"again");
    EXPECT_STREQ(axis.m_ColorRanges[1].szLabel, L"");
    axis.DeleteColorRange(2);
    axis.DeleteColorRange(-1);
    EXPECT_EQ(axis.m_ColorRanges.size(), 2u);
    axis.DeleteColorRange(0);
    EXPECT_EQ(axis.m_ColorRanges[0].fMin, 3);
    axis.DeleteAllColorRanges();
    EXPECT_TRUE(axis.m_ColorRanges.empty());
}

TEST_F(AxisOnScreen, AColourRangesLabelIsCutAtTheRecordsLength)
{
    const std::wstring text(5000, L'x');
    graph.GetYAxis(0)->SetColorRange(0, 1, 2, 0, 0, text.c_str(), 6);
    EXPECT_EQ(std::wstring(graph.GetYAxis(0)->m_ColorRanges[0].szLabel), std::wstring(261, L'x'));
}

TEST_F(AxisOnScreen, DatesThatAreNoneSaySo)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    axis.m_bDateTime = true;
    axis.m_cDisplayFmt = L"%Y-%m-%d %H:%M";
    EXPECT_TRUE(axis.FormatValue(40000.25) == L"2009-07-06 06:00");
    EXPECT_TRUE(axis.FormatValue(-1.25) == L"1899-12-29 06:00");
    EXPECT_TRUE(axis.FormatValue(1e10) == L"Invalid DateTime");
    EXPECT_TRUE(axis.FormatValue(NaN) == L"Invalid DateTime");
}

TEST_F(AxisOnScreen, AnIndexIsFoundByX)
{
    int nIndex = -1;
    graph.GetXAxis(0)->FindIndexForX(nIndex, 4.5, 0);
    EXPECT_EQ(nIndex, 5);
    graph.GetXAxis(0)->FindIndexForX(nIndex, 10, 0);
    EXPECT_EQ(nIndex, 11);
}

TEST_F(AxisBoundsDeathTest, MarkersAndRangesPastTheEndEndTheProcess)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    EXPECT_EXIT(axis.SetAxisMarker(1, 0, 0, 0), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(axis.SetMaskerLabel(0, L"x"), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(axis.SetColorRange(1, 0, 0, 0, 0, L"", 0), testing::ExitedWithCode(InvalidParameter),
                "");
}

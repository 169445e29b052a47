// Tick labels: what is left out shows nowhere, and what is left out costs nothing.

#include "NativeGraph.h"
#include "WatchedCanvas.h"
#include "base/Trunc.h"
#include "draw/Selectors.h"
#include "objects/TickWalk.h"

#include <chrono>
#include <functional>

namespace
{

class TickLabels : public GraphTest
{
protected:
    TickLabels()
    {
        AddLine();
        graph.m_bShowLegend = false;
        graph.m_Curves[0].m_bVisible = false;
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bAutoScale = pAxis->m_bShowMarker = false;
            pAxis->m_cLabel = CString();
            pAxis->SetCurrentRange(0, 10, 2);
        }
        Paint();
    }
    CXGraphAxis& X() { return *graph.GetXAxis(0); }
    CXGraphAxis& Y() { return *graph.GetYAxis(0); }

    // The rule word for word: each label, then its grid line, then the axis's line.
    void DrawPlainly(CXGraphAxis& axis, CDCEx& dc)
    {
        dc.SetBkColor(graph.m_crGraphColor);
        dc.SetBkMode(OPAQUE);
        const bool bVertical = axis.IsVertical();
        const CRect plot = graph.m_rcInner;
        const int nFarEnd =
            bVertical ? static_cast<int>(axis.m_rcArea.top) : static_cast<int>(plot.right);
        const int nLine = bVertical ? axis.m_nOriginY - nFarEnd : nFarEnd - axis.m_nOriginX;
        const double fTicks = (axis.m_fCurMax - axis.m_fCurMin) / axis.m_fStep;
        const double fPlaceStep = (nLine - (bVertical ? 2.0 : 4.0) * axis.m_nArcSize) / fTicks;
        TickWalk::Walk({axis.m_fCurMin, axis.m_fCurMax, axis.m_fStep,
                        static_cast<double>(bVertical ? axis.m_nOriginY : axis.m_nOriginX),
                        bVertical ? -fPlaceStep : fPlaceStep, bVertical},
                       [&](double fValue, double fPlace) { DrawTickPlainly(axis, dc, fValue, fPlace); });
        const CPoint ptEnd =
            bVertical ? CPoint(axis.m_nOriginX, nFarEnd) : CPoint(nFarEnd, axis.m_nOriginY);
        const CPenSelector pen(axis.m_crColor, 1, &dc, PS_SOLID);
        dc.MoveTo(axis.m_nOriginX, axis.m_nOriginY);
        dc.LineTo(ptEnd);
        axis.DrawAxisArrow(&dc, ptEnd, bVertical ? 1 : 2, axis.m_nArcSize);
    }

    void DrawTickPlainly(CXGraphAxis& axis, CDCEx& dc, double fValue, double fPlace)
    {
        const CString text = axis.FormatValue(fValue).Left(1024);
        CSize size;
        {
            const CFontSelector font(&axis.m_LabelFont, &dc, false);
            size = dc.GetTextExtent(text);
        }
        const CFontSelector font(&axis.m_LabelFont, &dc, true);
        const bool bLeft = axis.m_Placement == apLeft;
        const int nPlace = Trunc(fPlace);
        const CPenSelector pen(axis.m_crGridColor, 1, &dc, static_cast<int>(axis.m_nGridStyle));
        if (axis.IsVertical()) {
            const int nHalf = size.cy / 2;
            const int nNear = axis.m_nOriginX + (bLeft ? -axis.m_nTickSize : axis.m_nTickSize);
            CRect rect(bLeft ? nNear - size.cx : nNear, Trunc(fPlace - nHalf),
                       bLeft ? nNear : nNear + size.cx, Trunc(fPlace + nHalf));
            dc.DrawText(text, &rect, bLeft ? DT_RIGHT : DT_LEFT);
            dc.SetBkMode(TRANSPARENT);
            dc.MoveTo(nNear, nPlace);
            dc.LineTo(nPlace == axis.m_nOriginY ? axis.m_nOriginX
                      : bLeft                   ? graph.m_rcInner.right
                                                : graph.m_rcInner.left,
                      nPlace);
        } else {
            const int nHalf = size.cx / 2;
            const int nTop = axis.m_nOriginY + axis.m_nTickSize;
            CRect rect(Trunc(fPlace - nHalf), nTop, Trunc(fPlace + nHalf), nTop + size.cy);
            dc.DrawText(text, &rect, DT_CENTER);
            dc.SetBkMode(TRANSPARENT);
            dc.MoveTo(nPlace, nTop);
            dc.LineTo(nPlace, nPlace == axis.m_nOriginX ? axis.m_nOriginY : axis.m_rcArea.top);
        }
        dc.SetBkMode(OPAQUE);
    }

    void ExpectSamePixels(CXGraphAxis& axis, const char* pszWhat)
    {
        WatchedCanvas fast(Width, Height);
        WatchedCanvas plain(Width, Height);
        axis.Draw(&fast.dc);
        DrawPlainly(axis, plain.dc);
        EXPECT_TRUE(fast.Pixels() == plain.Pixels()) << pszWhat << " by " << axis.m_fStep;
        EXPECT_LE(fast.dc.texts.size(), plain.dc.texts.size());
    }

    // The number of labels that a drawing of the axis puts on the canvas.
    std::size_t LabelsOf(CXGraphAxis& axis)
    {
        WatchedCanvas canvas(Width, Height);
        axis.Draw(&canvas.dc);
        return canvas.dc.texts.size();
    }

    static double Milliseconds(const std::function<void()>& run)
    {
        const auto start = std::chrono::steady_clock::now();
        run();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
            .count();
    }
};

LOGFONTW Turned(int nAngle)
{
    LOGFONTW look = {};
    look.lfHeight = 13;
    look.lfEscapement = look.lfOrientation = nAngle;
    look.lfUnderline = nAngle != 0;
    ::lstrcpyW(look.lfFaceName, L"Arial");
    return look;
}

} // namespace

TEST_F(TickLabels, CrowdedTicksShowAsThePlainRuleDrawsThem)
{
    constexpr const wchar_t* formats[] = {L"%5.1f",        L"%g",   L"%.9f", L"a&b%.3f",
                                          L"%.2f\nsecond", L"%.0f", L"",     L"%-12.6g text"};
    for (const wchar_t* pszFormat : formats) {
        for (const double fStep : {2.0, 0.37, 0.017}) {
            for (CXGraphAxis* pAxis : {&X(), &Y()}) {
                pAxis->m_cDisplayFmt = pszFormat;
                pAxis->m_fStep = fStep;
                ExpectSamePixels(*pAxis, pAxis->IsVertical() ? "Y" : "X");
            }
        }
    }
}

TEST_F(TickLabels, CrowdedTicksOfOtherFontsShowAsThePlainRuleDrawsThem)
{
    LOGFONTW slanted = Turned(0);
    slanted.lfItalic = TRUE;
    slanted.lfHeight = 22;
    for (const LOGFONTW& look : {Turned(450), Turned(900), slanted}) {
        for (CXGraphAxis* pAxis : {&X(), &Y()}) {
            pAxis->SetLabelFont(look);
            for (const double fStep : {2.0, 0.11, 0.013}) {
                pAxis->m_fStep = fStep;
                ExpectSamePixels(*pAxis, "font");
            }
        }
    }
}

TEST_F(TickLabels, ARightAxisShowsAsThePlainRuleDrawsIt)
{
    Y().m_Placement = apRight;
    Paint();
    for (const double fStep : {2.0, 0.05, 0.004}) {
        Y().m_fStep = fStep;
        ExpectSamePixels(Y(), "right");
    }
}

TEST_F(TickLabels, OfAHundredThousandOnlyThoseThatShowAreDrawn)
{
    for (CXGraphAxis* pAxis : {&X(), &Y()}) {
        pAxis->m_cDisplayFmt = L"%.3f";
        pAxis->m_fStep = 1e-4;
        const auto pixels = static_cast<std::size_t>(std::max(Width, Height));
        EXPECT_LE(LabelsOf(*pAxis), 2 * pixels);
        pAxis->m_cDisplayFmt = CString(L"%.3f") + CString(std::wstring(3000, L'x'));
        EXPECT_LE(LabelsOf(*pAxis), 2 * pixels);
    }
}

TEST_F(TickLabels, TextsAreCutBeyondWhatAnyScreenShows)
{
    X().m_cDisplayFmt = CString(L"%.0f") + CString(std::wstring(3000, L'x'));
    WatchedCanvas canvas(Width, Height);
    X().Draw(&canvas.dc);
    ASSERT_FALSE(canvas.dc.texts.empty());
    EXPECT_EQ(canvas.dc.texts[0].text, L"0" + std::wstring(1023, L'x'));
    const CFontSelector font(&X().m_LabelFont, &canvas.dc, false);
    EXPECT_EQ(X().GetMaxLabelWidth(&canvas.dc),
              canvas.dc.GetTextExtent(CString(L"10") + CString(std::wstring(1022, L'x'))).cx +
                  X().m_nTickSize);
    EXPECT_EQ(X().FormatValue(0).GetLength(), 3001); // what isn't a tick's label stays whole
}

TEST_F(TickLabels, OneThatLiesOffTheCanvasIsNotDrawn)
{
    for (CXGraphAxis* pAxis : {&X(), &Y()}) {
        EXPECT_GT(LabelsOf(*pAxis), 4u);
        for (const int nSize : {INT_MIN, INT_MAX, 1 << 30, 5000}) {
            pAxis->m_nTickSize = nSize;
            EXPECT_EQ(LabelsOf(*pAxis), 0u) << nSize;
        }
        pAxis->m_nTickSize = 5;
        pAxis->m_nArcSize = 1 << 30; // ticks far beyond the end of the line
        EXPECT_LE(LabelsOf(*pAxis), 1u);
        pAxis->m_nArcSize = 5;
    }
}

TEST_F(TickLabels, AHundredThousandOffTheCanvasCostLessThanAHundredOnIt)
{
    WatchedCanvas canvas(Width, Height);
    Y().m_cDisplayFmt = L"%.3f";
    const auto frames = [&](int nCount) {
        return Milliseconds([&] {
            for (int i = 0; i < nCount; ++i)
                Y().Draw(&canvas.dc);
        });
    };
    Y().m_fStep = 0.1;
    frames(1);
    const double fOnIt = frames(100);
    Y().m_fStep = 1e-4;
    Y().m_nTickSize = INT_MIN;
    EXPECT_LT(frames(1), fOnIt);
    Y().m_nTickSize = 5;
    Y().m_nArcSize = 1 << 30;
    EXPECT_LT(frames(1), fOnIt);
}

TEST_F(TickLabels, OnAPageTheyAreMeasuredUnscaled)
{
    WatchedCanvas canvas(Width, Height);
    canvas.dc.m_bScaleReady = canvas.dc.m_bScaling = true;
    canvas.dc.m_fScaleX = canvas.dc.m_fScaleY = 2.0f;
    X().m_cDisplayFmt = L"%.1f";
    const CSize size = [&] {
        const CFontSelector font(&X().m_LabelFont, &canvas.dc, false);
        return canvas.dc.GetTextExtent(L"2.0");
    }();
    X().m_nOriginY = 50;
    X().Draw(&canvas.dc);
    ASSERT_GE(canvas.dc.texts.size(), 2u);
    EXPECT_EQ(canvas.dc.texts[1].text, L"2.0");
    EXPECT_EQ(canvas.dc.texts[1].rect.Size(), CSize(2 * (size.cx / 2 * 2), 2 * size.cy));
    EXPECT_EQ(canvas.dc.texts[1].font.lfHeight, 24);
}

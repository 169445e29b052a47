// What lies on or along an axis: colour ranges, axis markers, curve keys, the arrowhead.

#include "objects/XGraphAxis.h"

#include "base/Colors.h"
#include "draw/CurveKey.h"
#include "draw/DCEx.h"
#include "draw/KeptFonts.h"
#include "draw/Selectors.h"
#include "objects/AxisTicks.h"
#include "objects/PlotHost.h"
#include "objects/XGraphDataSerie.h"

#include <algorithm>
#include <cstdint>

namespace
{

constexpr UINT SolidFill = 6;

// The background mode, put back at the end.
class CModeKeeper
{
public:
    CModeKeeper(CDCEx* pDC, int nMode) : m_pDC(pDC), m_nOldMode(pDC->SetBkMode(nMode)) {}
    CModeKeeper(const CModeKeeper&) = delete;
    CModeKeeper& operator=(const CModeKeeper&) = delete;
    ~CModeKeeper() { m_pDC->SetBkMode(m_nOldMode); }

private:
    CDCEx* m_pDC;
    int m_nOldMode;
};

void FillRange(CDCEx* pDC, const TColorRange& range, const CRect& rect)
{
    if (range.nStyle == SolidFill) {
        if (range.crMinColor != range.crMaxColor)
            return; // two colours have no drawn form
        CBrush brush(range.crMinColor);
        pDC->FillRect(&rect, &brush);
        return;
    }
    const auto nHatch = static_cast<int>(range.nStyle);
    if (!CBrushSelector::IsHatch(nHatch))
        return;
    const CPenSelector pen(range.crMinColor, 1, pDC, PS_SOLID);
    const CBrushSelector brush(nHatch, range.crMinColor, pDC);
    pDC->Rectangle(&rect);
}

} // namespace

void CXGraphAxis::DrawColorRanges(CDCEx* pDC)
{
    if (m_ColorRanges.empty())
        return;
    const CArialSelector font(12, FW_BOLD, pDC, true);
    const CModeKeeper mode(pDC, TRANSPARENT);
    for (const TColorRange& range : m_ColorRanges) {
        CRect rect = PlotRect();
        const int nLower = PixelOf(range.fMin);
        const int nUpper = PixelOf(range.fMax);
        const auto clamp = [](LONG nPixel, LONG nLow, LONG nHigh) {
            return std::max(nLow, std::min(nPixel, nHigh));
        };
        if (IsVertical())
            rect.SetRect(rect.left, clamp(nUpper, rect.top, rect.bottom), rect.right,
                         clamp(nLower, rect.top, rect.bottom));
        else
            rect.SetRect(clamp(nLower, rect.left, rect.right), rect.top,
                         clamp(nUpper, rect.left, rect.right), rect.bottom);
        FillRange(pDC, range, rect);
        if (range.szLabel[0] != 0) {
            rect.DeflateRect(2, 2);
            pDC->DrawText(CString(range.szLabel), &rect, DT_LEFT);
        }
    }
}

void CXGraphAxis::DrawAxisMarkers(CDCEx* pDC)
{
    if (m_AxisMarkers.empty())
        return;
    const CModeKeeper mode(pDC, TRANSPARENT);
    const CRect plot = PlotRect();
    const LONG nLow = IsVertical() ? plot.top : plot.left;
    const LONG nHigh = IsVertical() ? plot.bottom : plot.right;
    for (const TAxisMarker& marker : m_AxisMarkers) {
        const LONG nPixel = PixelOf(marker.fValue);
        if (nPixel >= nLow && nPixel <= nHigh)
            DrawAxisMarker(pDC, marker, nPixel);
    }
}

void CXGraphAxis::DrawAxisMarker(CDCEx* pDC, const TAxisMarker& marker, int nPixel)
{
    const CRect plot = PlotRect();
    const CPenSelector pen(marker.crColor, marker.nSize, pDC, AxisPainting::PenStyle(marker.nStyle));
    pDC->MoveTo(IsVertical() ? CPoint(plot.left, nPixel) : CPoint(nPixel, plot.bottom));
    pDC->LineTo(IsVertical() ? CPoint(plot.right, nPixel) : CPoint(nPixel, plot.top));

    CFont textFont;
    textFont.CreateFontIndirect(&marker.lfFont);
    const CFontSelector font(&textFont, pDC, true);
    if (marker.bShowValue) {
        CPoint anchor = IsVertical() ? CPoint(plot.left, nPixel) : CPoint(nPixel, plot.bottom);
        if (pDC->m_bScaling)
            pDC->ScalePoint(anchor);
        pDC->TextOut(anchor.x, anchor.y, LabelText(marker.fValue));
    }
    if (marker.cLabel.IsEmpty())
        return;
    // From here on in the device's units, which the operations below don't scale.
    const CSize unit = pDC->GetTextExtent(L"W");
    CRect rect = IsVertical() ? CRect(plot.left, nPixel, plot.right, Wrap::Subtract(nPixel, unit.cy))
                              : CRect(nPixel, Wrap::Add(plot.top, unit.cy), Wrap::Add(nPixel, unit.cx),
                                      plot.bottom);
    rect.NormalizeRect();
    if (pDC->m_bScaling)
        pDC->ScaleRect(rect);
    if (IsVertical())
        pDC->DrawText(marker.cLabel, marker.cLabel.GetLength(), &rect, DT_RIGHT | DT_SINGLELINE);
    else
        pDC->TextOut(Wrap::Subtract(rect.left, unit.cy), Wrap::Add(rect.top, unit.cx), marker.cLabel);
}

int CXGraphAxis::DrawCurveKeys(CDCEx* pDC, bool bDraw)
{
    if (!m_bShowMarker || !m_pGraph)
        return 0;
    const CRect plot = PlotRect();
    const int nAxis = PlotHost::AxisIndex(*m_pGraph, *this);
    // Keys in a row across the axis's direction: two in a column of an X axis, three in a row
    // of a Y axis. The first column of an X axis is one key inside the plot.
    const int nPerLine = IsVertical() ? 3 : 2;
    const int nSize = m_nMarkerSize;
    int nAlong = IsVertical() ? 0 : nSize;
    int nAcross = 0;
    int nKeys = 0;
    CCurveKeys keys(pDC, nSize);
    const int nCurves = PlotHost::CurveCount(*m_pGraph);
    for (int i = 0; i < nCurves; ++i) {
        const CXGraphDataSerie& curve = PlotHost::Curve(*m_pGraph, i);
        if (!curve.m_bVisible || nAxis < 0 || (IsVertical() ? curve.m_nYAxis : curve.m_nXAxis) != nAxis)
            continue;
        if (bDraw) {
            CPoint corner;
            if (!IsVertical())
                corner.SetPoint(Wrap::Subtract(plot.right, nAlong),
                                Wrap::Add(Wrap::Subtract(m_nOriginY, nSize / 2), nAcross));
            else
                corner.SetPoint(m_Placement == apRight
                                    ? Wrap::Add(Wrap::Subtract(m_nOriginX, nSize / 2), nAcross)
                                    : Wrap::Subtract(Wrap::Subtract(m_nOriginX, nSize / 2), nAcross),
                                Wrap::Add(m_rcArea.top, nAlong));
            const int nKey = curve.m_nMarkerType != 0 ? curve.m_nMarker : i;
            keys.Draw(corner, nKey, curve.m_crColor, curve.m_nMarkerType == 1);
        }
        nAcross = Wrap::Add(nAcross, nSize);
        if (++nKeys % nPerLine == 0) {
            nAlong = Wrap::Add(nAlong, nSize);
            nAcross = 0;
        }
    }
    return nKeys % nPerLine == 0 ? nAlong : Wrap::Add(nAlong, nSize);
}

void CXGraphAxis::DrawCurveKey(CDCEx* pDC, CPoint point, int nKey, int nSize, COLORREF crColor,
                               bool bSymbol)
{
    CCurveKeys(pDC, nSize).Draw(point, nKey, crColor, bSymbol);
}

void CXGraphAxis::DrawAxisArrow(CDCEx* pDC, CPoint point, int nDirection, int nSize)
{
    // No canvas shows more of an arrowhead than this; a size from outside may be any.
    constexpr std::int64_t nFarthest = 32767;
    const std::int64_t x = point.x;
    const std::int64_t y = point.y;
    const std::int64_t s = nSize;
    const bool bColumns = nDirection == 0 || nDirection == 2;
    const std::int64_t nBase = nDirection == 0 ? x : nDirection == 2 ? x - s : y;
    const std::int64_t nFirst = std::max<std::int64_t>(0, -nFarthest - nBase);
    const std::int64_t nEnd = std::min(s, nFarthest - nBase);
    for (std::int64_t i = nFirst; i < nEnd; ++i) {
        // Half the length of the line: growing away from the tip, or shrinking toward it.
        const std::int64_t nHalf = nDirection <= 1 ? i : s - i;
        const auto nLine = static_cast<int>(nBase + i);
        const auto nFrom =
            static_cast<int>(std::clamp((bColumns ? y : x) - nHalf, -nFarthest, nFarthest));
        const auto nTo = static_cast<int>(std::clamp((bColumns ? y : x) + nHalf, -nFarthest, nFarthest));
        pDC->MoveTo(bColumns ? CPoint(nLine, nFrom) : CPoint(nFrom, nLine));
        pDC->LineTo(bColumns ? CPoint(nLine, nTo) : CPoint(nTo, nLine));
    }
}

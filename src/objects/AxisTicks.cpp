#include "objects/AxisTicks.h"

#include "base/Colors.h"
#include "base/Trunc.h"
#include "draw/Selectors.h"
#include "objects/FrameRoom.h"
#include "objects/PlotHost.h"
#include "objects/TickLabels.h"

namespace
{

constexpr double LineRoom = 2; // more than half a line's width
constexpr int HalfStrip = 5;   // of an axis's rectangle to each side of its line

} // namespace

int AxisPainting::PenStyle(UINT nStyle) noexcept
{
    return nStyle <= PS_INSIDEFRAME ? static_cast<int>(nStyle) : PS_SOLID;
}

CAxisCanvas::CAxisCanvas(const CXGraphAxis& axis, CDCEx* pDC) : m_pDC(pDC)
{
    if (!axis.m_bVisible) {
        m_hidden.emplace();
        m_hidden->CreateCompatibleDC(pDC);
    }
}

CAxisTicks::CAxisTicks(CXGraphAxis& axis, CDCEx* pDC)
    : m_axis(axis), m_pDC(pDC), m_rcPlot(axis.PlotRect()), m_visible(pDC->Visible())
{
}

void CAxisTicks::MeasureMargins()
{
    const bool bVertical = m_axis.IsVertical();
    m_axis.m_fEndMargin = (bVertical ? 2.0 : 4.0) * m_axis.m_nArcSize;
    m_axis.m_fKeySpace = m_axis.DrawCurveKeys(m_pDC, false);
    if (!m_axis.m_cLabel.IsEmpty()) {
        const CSize title = m_axis.GetTitleSize(m_pDC);
        m_axis.m_fEndMargin += bVertical ? title.cy : title.cx;
    }
    m_nFarEnd = bVertical ? Trunc(m_axis.m_rcArea.top + m_axis.m_fKeySpace)
                          : Trunc(m_rcPlot.right - m_axis.m_fKeySpace);
}

void CAxisTicks::DrawBackground(bool bMarkers)
{
    m_axis.DrawColorRanges(m_pDC);
    if (bMarkers)
        m_axis.DrawAxisMarkers(m_pDC);
    m_axis.m_fKeySpace = m_axis.DrawCurveKeys(m_pDC, true);
    m_pDC->SetBkColor(m_pDC->m_bMono || !m_axis.m_pGraph ? White
                                                         : PlotHost::GraphColor(*m_axis.m_pGraph));
    m_pDC->SetBkMode(OPAQUE);
}

void CAxisTicks::DrawTitle()
{
    if (m_axis.m_cLabel.IsEmpty())
        return;
    const CSize size = m_axis.GetTitleSize(m_pDC);
    const CFontSelector font(&m_axis.m_TitleFont, m_pDC, true, true);
    const int nTick = m_axis.m_nTickSize;
    if (!m_axis.IsVertical()) {
        m_axis.m_fEndMargin += size.cx;
        const int nTop = Wrap::Add(nTick, m_axis.m_nOriginY);
        CRect rcTitle(Wrap::Subtract(m_nFarEnd, size.cx), nTop, m_nFarEnd, Wrap::Add(nTop, size.cy));
        m_pDC->DrawText(m_axis.m_cLabel, &rcTitle, DT_LEFT);
        return;
    }
    m_axis.m_fEndMargin += size.cy;
    const bool bLeft = m_axis.m_Placement == apLeft;
    const int nNear =
        bLeft ? Wrap::Subtract(m_axis.m_nOriginX, nTick) : Wrap::Add(nTick, m_axis.m_nOriginX);
    CRect rcTitle(nNear, m_nFarEnd, nNear, Wrap::Add(m_nFarEnd, size.cy));
    if (bLeft)
        rcTitle.left = Wrap::Subtract(nNear, size.cx);
    else
        rcTitle.right = Wrap::Add(nNear, size.cx);
    m_pDC->DrawText(m_axis.m_cLabel, &rcTitle, bLeft ? DT_RIGHT : DT_LEFT);
}

// A side that painting hasn't settled draws no ticks.
bool CAxisTicks::HasTicks() const
{
    return !m_axis.IsVertical() || m_axis.m_Placement == apLeft || m_axis.m_Placement == apRight;
}

void CAxisTicks::DrawTicks(const std::vector<TTick>& ticks, bool bClearGaps)
{
    if (!HasTicks())
        return;
    CRoomyList pile(m_axis.m_pGraph, &TFrameRoom::pile);
    CRoomyList shapes(m_axis.m_pGraph, &TFrameRoom::shapes);
    CTickLabels labels(m_axis, m_pDC, LabelFormat(), *pile, *shapes);
    const CPenSelector pen(m_axis.m_crGridColor, 1, m_pDC, AxisPainting::PenStyle(m_axis.m_nGridStyle));
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const TTick& tick = ticks[i];
        if (tick.bLabel)
            labels.Pile(tick.fValue, [&](CSize size) { return LabelRect(tick.fPlace, size); });
        // Ticks on one pixel have one grid line, over all their labels.
        if (i + 1 < ticks.size() && Trunc(ticks[i + 1].fPlace) == Trunc(tick.fPlace))
            continue;
        labels.Draw();
        const int nOldMode = bClearGaps ? m_pDC->SetBkMode(TRANSPARENT) : 0;
        DrawGridLine(Trunc(tick.fPlace));
        if (bClearGaps)
            m_pDC->SetBkMode(nOldMode);
    }
}

UINT CAxisTicks::LabelFormat() const
{
    if (!m_axis.IsVertical())
        return DT_CENTER;
    return m_axis.m_Placement == apLeft ? DT_RIGHT : DT_LEFT;
}

// Of a label of a size at a tick.
CRect CAxisTicks::LabelRect(double fPlace, CSize size) const
{
    const int nTick = m_axis.m_nTickSize;
    if (!m_axis.IsVertical()) {
        const int nHalf = size.cx / 2;
        const int nTop = Wrap::Add(nTick, m_axis.m_nOriginY);
        return CRect(Trunc(fPlace - nHalf), nTop, Trunc(fPlace + nHalf), Wrap::Add(nTop, size.cy));
    }
    const int nHalf = size.cy / 2;
    const bool bLeft = m_axis.m_Placement == apLeft;
    const int nNear =
        bLeft ? Wrap::Subtract(m_axis.m_nOriginX, nTick) : Wrap::Add(m_axis.m_nOriginX, nTick);
    CRect rect(nNear, Trunc(fPlace - nHalf), nNear, Trunc(fPlace + nHalf));
    if (bLeft)
        rect.left = Wrap::Subtract(nNear, size.cx);
    else
        rect.right = Wrap::Add(nNear, size.cx);
    return rect;
}

void CAxisTicks::DrawGridLine(int nPlace)
{
    const int nTick = m_axis.m_nTickSize;
    CPoint ptFrom;
    CPoint ptTo;
    if (!m_axis.IsVertical()) {
        const bool bTickOnly = !m_axis.m_bShowGrid || nPlace == m_axis.m_nOriginX;
        ptFrom.SetPoint(nPlace, Wrap::Add(m_axis.m_nOriginY, nTick));
        ptTo.SetPoint(nPlace, bTickOnly ? m_axis.m_nOriginY : m_axis.m_rcArea.top);
    } else {
        const bool bLeft = m_axis.m_Placement == apLeft;
        const bool bTickOnly = !m_axis.m_bShowGrid || nPlace == m_axis.m_nOriginY;
        ptFrom.SetPoint(bLeft ? Wrap::Subtract(m_axis.m_nOriginX, nTick)
                              : Wrap::Add(m_axis.m_nOriginX, nTick),
                        nPlace);
        ptTo.SetPoint(bTickOnly ? m_axis.m_nOriginX : bLeft ? m_rcPlot.right : m_rcPlot.left, nPlace);
    }
    if (!m_visible.Meets(CRect(ptFrom, ptTo), LineRoom))
        return;
    m_pDC->MoveTo(ptFrom);
    m_pDC->LineTo(ptTo);
}

void CAxisTicks::DrawLine()
{
    const bool bVertical = m_axis.IsVertical();
    const CPoint ptOrigin(m_axis.m_nOriginX, m_axis.m_nOriginY);
    const CPoint ptEnd = bVertical ? CPoint(ptOrigin.x, m_nFarEnd) : CPoint(m_nFarEnd, ptOrigin.y);
    {
        const CPenSelector pen(m_axis.m_crColor, 1, m_pDC, PS_SOLID);
        m_pDC->MoveTo(ptOrigin);
        m_pDC->LineTo(ptEnd);
        m_axis.DrawAxisArrow(m_pDC, ptEnd, bVertical ? 1 : 2, m_axis.m_nArcSize);
    }
    m_axis.m_rcObject = bVertical ? CRect(ptEnd, ptOrigin) : CRect(ptOrigin, ptEnd);
    m_axis.m_rcObject.InflateRect(bVertical ? HalfStrip : 0, bVertical ? 0 : HalfStrip);
    if (m_axis.m_bSelected)
        m_pDC->DrawFocusRect(&m_axis.m_rcObject);
}

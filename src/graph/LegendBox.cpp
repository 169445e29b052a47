#include "graph/LegendBox.h"

#include "base/Colors.h"
#include "draw/Selectors.h"
#include "graph/XGraph.h"

CLegendBox::CLegendBox(CXGraph& graph, CDCEx* pDC, CRect& rcGraph)
    : m_graph(graph), m_pDC(pDC), m_font(L"Arial", 13, FW_NORMAL)
{
    if (!GraphLegendLayout::HasBox(graph.m_nLegendAlignment))
        return;
    FindRows();
    std::vector<TSize> sizes;
    sizes.reserve(m_rows.size());
    {
        const CFontSelector selectFont(&m_font, pDC, false);
        for (const TRow& row : m_rows)
            sizes.push_back(pDC->GetTextExtent(row.strText));
    }
    m_extent = GraphLegendLayout::Measure(sizes);
    TRect rest = rcGraph;
    m_rcBox = GraphLegendLayout::PlaceBox(graph.m_nLegendAlignment, m_extent, rest);
    rcGraph = rest;
}

// Positions count hidden curves too, so the numbers may have gaps.
void CLegendBox::FindRows()
{
    m_rows.reserve(m_graph.m_Curves.size());
    for (std::size_t i = 0; i < m_graph.m_Curves.size(); ++i) {
        CXGraphDataSerie& curve = m_graph.m_Curves[i];
        if (!curve.m_bVisible)
            continue;
        CString strText;
        strText.Format(L"%02d ", static_cast<int>(i) + 1);
        m_rows.push_back({&curve, strText + curve.m_cLabel});
    }
}

void CLegendBox::Draw()
{
    m_graph.m_LegendEntries.clear();
    if (!GraphLegendLayout::HasBox(m_graph.m_nLegendAlignment))
        return;
    const COLORREF crWindow = m_pDC->m_bMono ? White : ::GetSysColor(COLOR_WINDOW);
    const CFontSelector selectFont(&m_font, m_pDC, true);
    const CPenSelector selectPen(Black, 1, m_pDC, PS_SOLID);
    const CBrushSelector selectBrush(crWindow, m_pDC);
    m_pDC->Rectangle(&m_rcBox);

    CRect rcRows = m_rcBox;
    rcRows.DeflateRect(1, 1);
    int nOffset = 0;
    for (const TRow& row : m_rows) {
        const GraphLegendLayout::Row place =
            GraphLegendLayout::PlaceRow(rcRows, nOffset, m_extent.nRowHeight);
        nOffset += m_extent.nRowHeight;
        m_graph.m_LegendEntries.push_back({place.entry, row.pCurve});
        CRect rcText = place.text;
        m_pDC->SetBkColor(crWindow);
        m_pDC->DrawText(row.strText, &rcText, 0);
        if (row.pCurve->m_bSelected)
            m_pDC->DrawFocusRect(&m_graph.m_LegendEntries.back().rcRow);
        DrawKey(*row.pCurve, place.key);
    }
}

void CLegendBox::DrawKey(const CXGraphDataSerie& curve, const CRect& rcKey)
{
    const COLORREF color = m_pDC->m_bMono ? Black : curve.m_crColor;
    if (curve.m_nMarkerType == 0) {
        m_pDC->FillSolidRect(&rcKey, color);
        return;
    }
    // By the first Y axis, as its keys are: without one the process ends.
    m_graph.GetYAxis(0)->DrawCurveKey(m_pDC, CPoint(rcKey.left - 1, rcKey.top + 1), curve.m_nMarker,
                                      GraphLegendLayout::KeySize, color, true);
}

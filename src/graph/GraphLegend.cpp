// The legend: a box beside the graph area with one row per visible curve.

#include "draw/QuickFont.h"
#include "draw/Selectors.h"
#include "graph/GraphLegendLayout.h"
#include "graph/XGraph.h"

#include <vector>

namespace
{

constexpr COLORREF kBlack = 0x000000;
constexpr COLORREF kWhite = 0xFFFFFF;

struct TLegendRow {
    CXGraphDataSerie* pCurve;
    CString strText;
};

// Positions count hidden curves too, so the numbers may have gaps.
std::vector<TLegendRow> VisibleRows(CCheckedVector<CXGraphDataSerie>& curves)
{
    std::vector<TLegendRow> rows;
    rows.reserve(curves.size());
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (!curves[i].m_bVisible)
            continue;
        CString strText;
        strText.Format(L"%02d ", static_cast<int>(i) + 1);
        rows.push_back({&curves[i], strText + curves[i].m_cLabel});
    }
    return rows;
}

GraphLegendLayout::Extent MeasureRows(CDCEx* pDC, CFont& font, const std::vector<TLegendRow>& rows)
{
    const CFontSelector selectFont(&font, pDC, false);
    std::vector<TSize> sizes;
    sizes.reserve(rows.size());
    for (const TLegendRow& row : rows)
        sizes.push_back(pDC->GetTextExtent(row.strText));
    return GraphLegendLayout::Measure(sizes);
}

void DrawKey(CDCEx* pDC, CXGraph* pGraph, const CXGraphDataSerie& curve, const CRect& rcKey)
{
    const COLORREF color = pDC->m_bMono ? kBlack : curve.m_crColor;
    if (curve.m_nMarkerType != 0) {
        pGraph->GetYAxis(0)->DrawCurveKey(pDC, CPoint(rcKey.left - 1, rcKey.top + 1), curve.m_nMarker,
                                          GraphLegendLayout::kKeySize, color, true);
    } else {
        pDC->FillSolidRect(&rcKey, color);
    }
}

} // namespace

void CXGraph::DrawLegend(CDCEx* pDC, CRect& rc)
{
    if (!GraphLegendLayout::HasBox(m_nLegendAlignment)) {
        m_LegendEntries.clear();
        return;
    }
    CQuickFont font(L"Arial", 13, FW_NORMAL);
    const std::vector<TLegendRow> rows = VisibleRows(m_Curves);
    const GraphLegendLayout::Extent extent = MeasureRows(pDC, font, rows);
    TRect graph = rc;
    CRect rcBox = GraphLegendLayout::PlaceBox(m_nLegendAlignment, extent, graph);
    rc = graph;

    const COLORREF crWindow = pDC->m_bMono ? kWhite : ::GetSysColor(COLOR_WINDOW);
    const CFontSelector selectFont(&font, pDC, true);
    const CPenSelector selectPen(kBlack, 1, pDC, PS_SOLID);
    const CBrushSelector selectBrush(crWindow, pDC);
    pDC->Rectangle(&rcBox);

    rcBox.DeflateRect(1, 1);
    m_LegendEntries.clear();
    int nOffset = 0;
    for (const TLegendRow& row : rows) {
        const GraphLegendLayout::Row place =
            GraphLegendLayout::PlaceRow(rcBox, nOffset, extent.nRowHeight);
        nOffset += extent.nRowHeight;
        m_LegendEntries.push_back({place.entry, row.pCurve});
        CRect rcText = place.text;
        pDC->SetBkColor(crWindow);
        pDC->DrawText(row.strText, &rcText, 0);
        if (row.pCurve->m_bSelected)
            pDC->DrawFocusRect(&m_LegendEntries.back().rcRow);
        DrawKey(pDC, this, *row.pCurve, place.key);
    }
}

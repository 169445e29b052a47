#include "graph/LegendBox.h"

#include "base/Colors.h"
#include "draw/Selectors.h"
#include "graph/XGraph.h"

#include <utility>

namespace
{
constexpr int FontHeight = 13;
} // namespace

CLegendBox::CLegendBox(CXGraph& graph, CDCEx* pDC, std::vector<TLegendRow>& rows, CRect& rcGraph)
    : m_graph(graph), m_pDC(pDC), m_rows(rows)
{
    if (!GraphLegendLayout::HasBox(graph.m_nLegendAlignment))
        return;
    FindRows();
    MeasureRows();
    TRect rest = rcGraph;
    m_rcBox = GraphLegendLayout::PlaceBox(graph.m_nLegendAlignment, m_extent, rest);
    rcGraph = rest;
}

// Positions count hidden curves too, so the numbers may have gaps.
void CLegendBox::FindRows()
{
    std::size_t nRows = 0;
    for (std::size_t i = 0; i < m_graph.m_Curves.size(); ++i) {
        const CXGraphDataSerie& curve = m_graph.m_Curves[i];
        if (!curve.m_bVisible)
            continue;
        if (nRows == m_rows.size())
            m_rows.emplace_back();
        TLegendRow& row = m_rows[nRows++];
        if (!row.strText.IsEmpty() && row.nCurve == i && row.cLabel.View() == curve.m_cLabel.View())
            continue;
        // Not made until it is whole: memory may run out on the way.
        row.strText = CString();
        row.size.reset();
        row.nCurve = i;
        row.cLabel = curve.m_cLabel;
        CString strText;
        strText.Format(L"%02d ", static_cast<int>(i) + 1);
        strText += curve.m_cLabel;
        row.strText = std::move(strText);
    }
    m_rows.resize(nRows);
}

void CLegendBox::MeasureRows()
{
    const CArialSelector font(FontHeight, FW_NORMAL, m_pDC, false);
    const bool bKeep = m_pDC->IsScreen() && font.IsMade();
    for (TLegendRow& row : m_rows) {
        if (!bKeep || !row.size)
            row.size = m_pDC->MeasureText(row.strText);
        m_extent.Add(row.size.value_or(CSize()));
        if (!bKeep)
            row.size.reset();
    }
}

void CLegendBox::Draw()
{
    m_graph.m_LegendEntries.clear();
    if (!GraphLegendLayout::HasBox(m_graph.m_nLegendAlignment))
        return;
    const COLORREF crWindow = m_pDC->m_bMono ? White : ::GetSysColor(COLOR_WINDOW);
    const CArialSelector font(FontHeight, FW_NORMAL, m_pDC, true);
    const CPenSelector selectPen(Black, 1, m_pDC, PS_SOLID);
    const CBrushSelector selectBrush(crWindow, m_pDC);
    m_pDC->Rectangle(&m_rcBox);

    const TVisibleArea visible = m_pDC->Visible();
    CRect rcRows = m_rcBox;
    rcRows.DeflateRect(1, 1);
    int nOffset = 0;
    for (const TLegendRow& row : m_rows) {
        CXGraphDataSerie& curve = m_graph.m_Curves[row.nCurve];
        const GraphLegendLayout::Row place =
            GraphLegendLayout::PlaceRow(rcRows, nOffset, m_extent.nRowHeight);
        nOffset += m_extent.nRowHeight;
        m_graph.m_LegendEntries.push_back({place.entry, &curve});
        // A list may run far past the window. A key is at most a row high.
        if (!visible.Meets(place.entry, m_extent.nRowHeight + GraphLegendLayout::KeySize))
            continue;
        CRect rcText = place.text;
        m_pDC->SetBkColor(crWindow);
        m_pDC->DrawText(row.strText, &rcText, 0);
        if (curve.m_bSelected)
            m_pDC->DrawFocusRect(&m_graph.m_LegendEntries.back().rcRow);
        DrawKey(curve, place.key);
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

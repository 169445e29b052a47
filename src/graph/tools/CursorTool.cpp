#include "graph/tools/CursorTool.h"

#include "base/Wrap.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "draw/WindowCanvas.h"
#include "graph/CursorText.h"
#include "graph/PointSearch.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <cstdlib>

namespace
{
const CPoint Nowhere(-1, -1);

// A forced snap may put the cursor at any pixel that a value maps to; from here on nothing of its
// box could be seen, and sums of pixels stay sums.
constexpr int FarthestPixel = 1 << 24;
constexpr int LargestHalf = 1 << 20;

void DrawBox(CDCEx* pDC, CPoint point, int half)
{
    const int x = std::clamp<int>(point.x, -FarthestPixel, FarthestPixel);
    const int y = std::clamp<int>(point.y, -FarthestPixel, FarthestPixel);
    half = std::clamp(half, -LargestHalf, LargestHalf);
    pDC->Rectangle(x - half, y - half, x + half + 1, y + half + 1);
}

} // namespace

void CCursorTool::Enter()
{
    Forget();
    m_Graph.m_nCursorCurve = m_Graph.m_nForcedSnapCurve;
    if ((m_Graph.m_nCursorFlags & XGC_LEGEND) != 0) {
        const CRect& rcInner = m_Graph.m_rcInner;
        m_Graph.m_CursorLabel.m_rcObject.SetRect(Wrap::Add(rcInner.left, 1), rcInner.top,
                                                 Wrap::Add(rcInner.left, 150),
                                                 Wrap::Add(rcInner.top, 50));
    }
}

void CCursorTool::Forget()
{
    m_ptLastCursor = Nowhere;
}

void CCursorTool::Move()
{
    m_bTmpDC = true;
    {
        CWindowCanvas canvas(m_Graph.m_hWnd, m_Graph.IsKnownScreen());
        DrawCursor(canvas.Get());
    }
    m_bTmpDC = false;
    m_Graph.NotifyOfWindow(XG_CURSORMOVED);
}

void CCursorTool::DrawCursor(CDCEx* pDC)
{
    SnapCursor();
    CPenSelector pen(0, 1, pDC, PS_SOLID);
    // Drawn twice, the same figure leaves nothing.
    const int mode = pDC->SetROP2(R2_NOTXORPEN);
    if (m_ptLastCursor != Nowhere)
        DrawCursorFigure(pDC, m_ptLastCursor);
    DrawCursorFigure(pDC, m_Graph.m_ptCurrent);
    m_ptLastCursor = m_Graph.m_ptCurrent;
    pDC->SetROP2(mode);
    if ((m_Graph.m_nCursorFlags & XGC_LEGEND) != 0)
        DrawCursorLegend(pDC);
}

void CCursorTool::SnapCursor()
{
    m_Graph.m_nCursorCurve = -1;
    if (m_Graph.m_nForcedSnapCurve != -1) {
        m_Graph.m_nCursorCurve = m_Graph.m_nForcedSnapCurve;
        m_Graph.m_ptCurrent.y = ReadCursor(m_Graph.m_nForcedSnapCurve);
        return;
    }
    if (!m_Graph.m_bSnapCursor)
        return;
    const int count = static_cast<int>(m_Graph.m_Curves.size());
    for (int nCurve = 0; nCurve < count; ++nCurve) {
        const int y = ReadCursor(nCurve);
        // In 64 bits, since a value far outside the plot may have any pixel.
        if (std::llabs(static_cast<long long>(m_Graph.m_ptCurrent.y) - y) < m_Graph.m_nSnapRange) {
            m_Graph.m_nCursorCurve = nCurve;
            m_Graph.m_ptCurrent.y = y;
            return;
        }
    }
}

int CCursorTool::ReadCursor(int nCurve)
{
    CXGraphDataSerie& curve = m_Graph.CurveAt(nCurve);
    m_fCursorX = PointSearch::ValueAtColumn(m_Graph, nCurve, m_Graph.m_ptCurrent.x);
    m_fCursorY = PointSearch::Y(m_Graph, nCurve, m_fCursorX);
    return m_Graph.YAxisOf(curve).GetPointForValue(TDataPoint{m_fCursorX, m_fCursorY}).y;
}

void CCursorTool::DrawCursorFigure(CDCEx* pDC, CPoint point)
{
    if ((m_Graph.m_nCursorFlags & XGC_VERT) != 0) {
        pDC->MoveTo(point.x, m_Graph.m_rcInner.top);
        pDC->LineTo(point.x, m_Graph.m_rcInner.bottom);
    }
    if ((m_Graph.m_nCursorFlags & XGC_HORIZ) != 0) {
        pDC->MoveTo(m_Graph.m_rcInner.left, point.y);
        pDC->LineTo(m_Graph.m_rcInner.right, point.y);
    }
    DrawBox(pDC, point, m_Graph.m_nSnapRange / 2);
}

void CCursorTool::DrawCursorLegend(CDCEx* pDC)
{
    m_Graph.m_CursorLabel.m_bVisible = true;
    CString text;
    int number = 0;
    for (CXGraphAxis& axis : m_Graph.m_XAxes)
        text += CursorText::XAxisLine(++number, axis, axis.GetValueForPos(m_Graph.m_ptCurrent.x));
    number = 0;
    for (CXGraphAxis& axis : m_Graph.m_YAxes)
        text += CursorText::YAxisLine(++number, axis, axis.GetValueForPos(m_Graph.m_ptCurrent.y));
    if (m_Graph.m_nCursorCurve != -1) {
        const CXGraphDataSerie& curve = m_Graph.CurveAt(m_Graph.m_nCursorCurve);
        text += CursorText::CurveLine(curve.m_cLabel, m_Graph.m_nCursorCurve + 1, m_Graph.XAxisOf(curve),
                                      m_fCursorX, m_Graph.YAxisOf(curve), m_fCursorY);
    }
    m_Graph.m_CursorLabel.m_cText = text;
    m_Graph.m_CursorLabel.Draw(pDC);
}

void CCursorTool::Pin()
{
    if (m_Graph.m_nCursorCurve == -1)
        return;
    m_Graph.InsertDataNotation(m_Graph.m_nCursorCurve,
                               PointSearch::Index(m_Graph, m_Graph.m_nCursorCurve, m_fCursorX));
}

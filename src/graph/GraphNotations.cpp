// Notes pinned to data points.

#include "graph/PointSearch.h"
#include "graph/XGraph.h"
#include "objects/XGraphDataNotation.h"

#include <memory>

void CXGraph::InsertDataNotation(int nCurve, int nIndex)
{
    CXGraphDataSerie& curve = CurveAt(nCurve);
    if (nIndex < 0 || nIndex >= curve.m_nCount)
        return; // there is no such point to pin a note to
    const TDataPoint point = curve.m_pData[nIndex];
    const CXGraphAxis& xAxis = XAxisOf(curve);
    const CXGraphAxis& yAxis = YAxisOf(curve);

    auto notation = std::make_unique<CXGraphDataNotation>();
    notation->m_fXVal = point.fXVal;
    notation->m_fYVal = point.fYVal;
    CString number;
    number.Format(L"[%d] : ", nIndex + 1);
    notation->m_cText = number + xAxis.FormatValue(point.fXVal) + xAxis.m_cLabel + L"," +
                        yAxis.FormatValue(point.fYVal) + yAxis.m_cLabel;
    notation->m_nCurve = nCurve;
    notation->m_nIndex = nIndex;
    notation->m_pGraph = this;
    m_Objects.AddTail(notation.get());
    notation.release();
    Invalidate();
}

void CXGraph::PinNotation()
{
    if (m_nCursorCurve == -1)
        return;
    InsertDataNotation(m_nCursorCurve, PointSearch::Index(*this, m_nCursorCurve, m_fCursorX));
}

// The free objects: labels, pictures, notes pinned to data points.

#include "graph/PointSearch.h"
#include "graph/XGraph.h"
#include "objects/XGraphDataNotation.h"

#include <memory>
#include <vector>

CXGraphLabel* CXGraph::InsertLabel(const CRect& rcRect, const CString& strText)
{
    auto label = std::make_unique<CXGraphLabel>();
    label->m_rcObject = rcRect;
    label->m_cText = strText;
    label->m_pGraph = this;
    m_Objects.AddTail(label.get());
    return label.release();
}

CXGraphLabel* CXGraph::InsertCenteredLabel(const CString& strText)
{
    constexpr int halfSide = 50;
    CRect rcLabel(m_rcInner.CenterPoint(), CSize());
    rcLabel.InflateRect(halfSide, halfSide);
    return InsertLabel(rcLabel, strText);
}

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
    static_cast<void>(notation.release()); // the list has it now
    Invalidate();
}

std::vector<TObjectRef> CXGraph::ListObjects() const
{
    std::vector<TObjectRef> objects;
    for (POSITION place = m_Objects.GetHeadPosition(); place != nullptr;)
        objects.emplace_back(static_cast<CXGraphObject*>(m_Objects.GetNext(place)));
    return objects;
}

bool CXGraph::Owns(const TObjectRef& entry) const
{
    return m_Objects.Find(entry.pObject) && entry.pObject->m_nIdentity == entry.nIdentity;
}

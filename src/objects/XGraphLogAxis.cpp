#include "objects/XGraphLogAxis.h"

#include "objects/AxisTicks.h"
#include "objects/LogDecades.h"

IMPLEMENT_SERIAL(CXGraphLogAxis, CXGraphAxis, 1)

CXGraphLogAxis::~CXGraphLogAxis() = default;

bool CXGraphLogAxis::SetRange(double fMin, double fMax)
{
    if (m_LogType == atLinear)
        return CXGraphAxis::SetRange(fMin, fMax);
    LogDecades::FloorBounds(fMin, fMax);
    m_fStep = 0;
    m_fMin = m_fCurMin = fMin;
    m_fMax = m_fCurMax = fMax;
    return true;
}

void CXGraphLogAxis::AutoScale(CDCEx* pDC)
{
    if (m_LogType == atLinear)
        CXGraphAxis::AutoScale(pDC);
    else
        LogDecades::WalkBounds(m_fCurMin, m_fCurMax, true);
}

double CXGraphLogAxis::GetValueForPos(int nPos)
{
    return m_LogType == atLinear ? CXGraphAxis::GetValueForPos(nPos)
                                 : AxisMapping::ToValue(GetScale(true), nPos);
}

CPoint CXGraphLogAxis::GetPointForValue(const TDataPoint& point)
{
    return m_LogType == atLinear ? CXGraphAxis::GetPointForValue(point) : MapPoint(point, true);
}

void CXGraphLogAxis::Draw(CDCEx* pDC)
{
    if (m_LogType == atLinear) {
        CXGraphAxis::Draw(pDC);
        return;
    }
    CAxisCanvas canvas(*this, pDC);
    if (m_bAutoScale)
        AutoScale(canvas.Get());
    AxisPainting::DrawLogarithmic(*this, canvas.Get(), false);
}

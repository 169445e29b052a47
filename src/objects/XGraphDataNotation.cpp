#include "objects/XGraphDataNotation.h"

#include "base/Colors.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "framework/windowing/Archive.h"
#include "objects/ObjectFont.h"
#include "objects/PlotHost.h"
#include "objects/XGraphAxis.h"
#include "objects/XGraphDataSerie.h"

#include <algorithm>

IMPLEMENT_SERIAL(CXGraphDataNotation, CXGraphObject, 1)

namespace
{
constexpr int BoxAbove = 20;            // pixels from the box's top down to the point
constexpr LONG FarthestPixel = 1 << 26; // nothing beyond it is seen, and sums stay sums
} // namespace

CXGraphDataNotation::CXGraphDataNotation()
{
    m_bCanEdit = false;
    const LOGFONTW font = ObjectFont::Arial(12, FW_NORMAL);
    m_Font.CreateFontIndirect(&font);
}

void CXGraphDataNotation::Serialize(CArchive& ar)
{
    CXGraphObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_fXVal << m_fYVal << m_nCurve << m_nIndex << m_cText;
    else
        ar >> m_fXVal >> m_fYVal >> m_nCurve >> m_nIndex >> m_cText;
}

void CXGraphDataNotation::Draw(CDCEx* pDC)
{
    if (!m_bVisible)
        return;
    if (m_bSizing)
        m_Tracker.Draw(pDC);
    const CFontSelector selectFont(&m_Font, pDC, true);
    CXGraphDataSerie& curve = PlotHost::Curve(*m_pGraph, m_nCurve);
    const TDataPoint value{m_fXVal, m_fYVal};
    const LONG x = PlotHost::XAxis(*m_pGraph, curve.m_nXAxis).GetPointForValue(value).x;
    const LONG y = PlotHost::YAxis(*m_pGraph, curve.m_nYAxis).GetPointForValue(value).y;
    const CPoint point(std::clamp(x, -FarthestPixel, FarthestPixel),
                       std::clamp(y, -FarthestPixel, FarthestPixel));
    PlaceBox(pDC, point);

    m_rcObject.InflateRect(1, 1);
    pDC->FillSolidRect(&m_rcObject, Black);
    m_rcObject.DeflateRect(1, 1);
    pDC->FillSolidRect(&m_rcObject, White);
    pDC->DrawText(m_cText, &m_rcObject, DT_CENTER);
    pDC->FillSolidRect(point.x - 1, point.y - 1, 3, 3, Black);
    pDC->MoveTo(point);
    pDC->LineTo(point.x, m_rcObject.bottom);
}

void CXGraphDataNotation::PlaceBox(CDCEx* pDC, CPoint point)
{
    if (!m_bPositioned) {
        m_rcObject.SetRect(point.x, point.y - BoxAbove, point.x + 1, point.y);
        pDC->DrawText(m_cText, &m_rcObject, DT_CALCRECT | DT_CENTER);
        m_bPositioned = true;
    }
    m_rcObject.OffsetRect(point.x - m_rcObject.left, point.y - BoxAbove - m_rcObject.top);
}

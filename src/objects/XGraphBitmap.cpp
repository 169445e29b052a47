#include "objects/XGraphBitmap.h"

#include "base/Colors.h"
#include "draw/BitmapEx.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "framework/windowing/Archive.h"

IMPLEMENT_SERIAL(CXGraphBitmap, CXGraphObject, 1)

CXGraphBitmap::CXGraphBitmap()
{
    m_bCanResize = true;
    m_bCanMove = true;
}

CXGraphBitmap::~CXGraphBitmap()
{
    if (m_bOwnsBitmap)
        delete m_pBitmap;
}

void CXGraphBitmap::Serialize(CArchive& ar)
{
    CXGraphObject::Serialize(ar);
    if (ar.IsStoring()) {
        ar << m_bBorder;
        CBitmapEx none;
        (m_pBitmap ? *m_pBitmap : none).Serialize(ar);
    } else {
        ar >> m_bBorder;
        if (!m_pBitmap) {
            m_pBitmap = new CBitmapEx;
            m_bOwnsBitmap = true;
        }
        m_pBitmap->Serialize(ar);
    }
}

void CXGraphBitmap::Draw(CDCEx* pDC)
{
    if (!m_bVisible)
        return;
    CRect rcTarget = m_rcObject;
    if (m_bBorder) {
        const CPenSelector selectPen(Black, 1, pDC, PS_SOLID);
        pDC->Rectangle(&rcTarget);
        rcTarget.DeflateRect(1, 1);
    }
    if (pDC->m_bScaling)
        pDC->ScaleRect(rcTarget);
    DrawPicture(pDC, rcTarget);
    if (m_bSizing)
        DrawTracker(pDC);
}

// In the device's own units: the canvas doesn't scale stretched copies.
void CXGraphBitmap::DrawPicture(CDCEx* pDC, const CRect& rcTarget) const
{
    BITMAP record = {};
    if (!m_pBitmap || m_pBitmap->GetBitmap(&record) == 0)
        return;
    CDC dcMemory;
    dcMemory.CreateCompatibleDC(pDC);
    CBitmap* pOldBitmap = dcMemory.SelectObject(m_pBitmap);
    pDC->StretchBlt(rcTarget.left, rcTarget.top, rcTarget.Width(), rcTarget.Height(), &dcMemory, 0, 0,
                    record.bmWidth, record.bmHeight, SRCCOPY);
    dcMemory.SelectObject(pOldBitmap);
}

void CXGraphBitmap::DrawTracker(CDCEx* pDC)
{
    const CRect rcTracker = m_Tracker.m_rect;
    if (pDC->m_bScaling)
        pDC->ScaleRect(m_Tracker.m_rect);
    m_Tracker.Draw(pDC);
    m_Tracker.m_rect = rcTracker;
}

#include "draw/MemDC.h"

CMemDC::CMemDC(CDC* pDC, int nTrim, bool bFill) : m_pDC(pDC), m_bMemDC(!pDC->IsPrinting())
{
    m_pDC->GetClipBox(m_rcArea);
    if (m_bMemDC) {
        CreateCompatibleDC(m_pDC);
        m_Bitmap.CreateCompatibleBitmap(m_pDC, Wrap::Subtract(m_rcArea.Width(), nTrim),
                                        m_rcArea.Height());
        m_hOldBitmap = ::SelectObject(m_hDC, m_Bitmap);
        SetWindowOrg(m_rcArea.TopLeft());
    } else {
        m_bPrinting = m_pDC->m_bPrinting;
        SetOutputDC(m_pDC->m_hDC);
        SetAttribDC(m_pDC->m_hAttribDC);
    }
    if (bFill || !m_bMemDC)
        FillSolidRect(m_rcArea, m_pDC->GetBkColor());
}

CMemDC::~CMemDC()
{
    if (m_bMemDC) {
        const CRect& copied = m_rcBlit.IsRectEmpty() ? m_rcArea : m_rcBlit;
        m_pDC->BitBlt(copied.left, copied.top, copied.Width(), copied.Height(), this, copied.left,
                      copied.top, SRCCOPY);
        ::SelectObject(m_hDC, m_hOldBitmap);
        m_Bitmap.DeleteObject();
    } else {
        ReleaseOutputDC();
        ReleaseAttribDC();
    }
}

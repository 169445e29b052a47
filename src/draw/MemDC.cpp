#include "draw/MemDC.h"

CMemDC::CMemDC(CDC* pDC, int nTrim) : m_pDC(pDC), m_bMemDC(!pDC->IsPrinting())
{
    m_pDC->GetClipBox(m_rcArea);
    if (m_bMemDC) {
        CreateCompatibleDC(m_pDC);
        m_Bitmap.CreateCompatibleBitmap(m_pDC, Wrap::Subtract(m_rcArea.Width(), nTrim),
                                        m_rcArea.Height());
        m_pOldBitmap = SelectObject(&m_Bitmap);
        SetWindowOrg(m_rcArea.TopLeft());
    } else {
        m_bPrinting = m_pDC->m_bPrinting;
        SetOutputDC(m_pDC->m_hDC);
        SetAttribDC(m_pDC->m_hAttribDC);
    }
    FillSolidRect(m_rcArea, m_pDC->GetBkColor());
}

CMemDC::~CMemDC()
{
    if (m_bMemDC) {
        const CRect& copied = m_rcBlit.IsRectEmpty() ? m_rcArea : m_rcBlit;
        m_pDC->BitBlt(copied.left, copied.top, copied.Width(), copied.Height(), this, copied.left,
                      copied.top, SRCCOPY);
        SelectObject(m_pOldBitmap);
        m_Bitmap.DeleteObject();
    } else {
        ReleaseOutputDC();
        ReleaseAttribDC();
    }
}

COLORREF CMemDC::SetBkColor(COLORREF crColor)
{
    return CDC::SetBkColor(crColor);
}

COLORREF CMemDC::SetTextColor(COLORREF crColor)
{
    return CDC::SetTextColor(crColor);
}

BOOL CMemDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CMemDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

BOOL CMemDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CMemDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                        LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

CSize CMemDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                            LPINT lpnTabStopPositions, int nTabOrigin)
{
    const LONG size =
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin);
    return CSize(LOWORD(size), HIWORD(size));
}

int CMemDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    // Hosts choose format flags; the one that would write into the text is not for them.
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat & ~DT_MODIFYSTRING);
}

int CMemDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                       LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

BOOL CMemDC::GrayString(CBrush* pBrush, GRAYSTRINGPROC lpfnOutput, LPARAM lpData, int nCount, int x,
                        int y, int nWidth, int nHeight)
{
    const HBRUSH brush = pBrush ? static_cast<HBRUSH>(*pBrush) : nullptr;
    return ::GrayString(m_hDC, brush, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

int CMemDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

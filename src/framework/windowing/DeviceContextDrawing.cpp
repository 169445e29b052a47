// Lines, shapes, pictures, text and print jobs of CDC.

#include "framework/windowing/DeviceContexts.h"

CPoint CDC::GetCurrentPosition() const noexcept
{
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint old;
    if (m_hDC && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hDC, x, y, &old);
    if (m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, &old);
    return old;
}

BOOL CDC::LineTo(int x, int y)
{
    // The attribute context follows the position without drawing.
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, *pBrush);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF crColor)
{
    // An opaque text without text is the cheapest solid fill: no brush is made.
    ::SetBkColor(m_hDC, crColor);
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::SetBkColor(m_hAttribDC, crColor);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor)
{
    const CRect rect(CPoint(x, y), CSize(cx, cy));
    CDC::FillSolidRect(&rect, crColor);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc,
                        nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    const LONG size =
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin);
    return CSize(LOWORD(size), HIWORD(size));
}

UINT SafeTextFormat(UINT nFormat)
{
    nFormat &= ~DT_MODIFYSTRING;
    if (nFormat & DT_PATH_ELLIPSIS)
        nFormat &= ~(DT_END_ELLIPSIS | DT_WORD_ELLIPSIS);
    return nFormat;
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, SafeTextFormat(nFormat));
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

BOOL CDC::GrayString(CBrush* pBrush, GRAYSTRINGPROC lpfnOutput, LPARAM lpData, int nCount, int x, int y,
                     int nWidth, int nHeight)
{
    const HBRUSH brush = pBrush ? static_cast<HBRUSH>(*pBrush) : nullptr;
    return ::GrayString(m_hDC, brush, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const noexcept
{
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

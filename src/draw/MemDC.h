#pragma once
// A double buffer: draws into a bitmap of the target's clip box, in the target's
// coordinates, and copies it to the target when it is destroyed. Over a printing context
// it draws straight through, with no bitmap. The target must outlive it.

#include "framework/windowing/DeviceContexts.h"

class CMemDC : public CDC
{
public:
    // The bitmap is nTrim pixels narrower than the clip box. The area is filled with the
    // target's background colour.
    explicit CMemDC(CDC* pDC, int nTrim = 0);
    ~CMemDC() override;

    CBitmap m_Bitmap;
    CBitmap* m_pOldBitmap = nullptr;
    CDC* m_pDC;
    CRect m_rcArea; // what is buffered
    CRect m_rcBlit; // what the final copy is narrowed to, if not empty
    bool m_bMemDC;  // buffering is on

    COLORREF SetBkColor(COLORREF crColor) override;
    COLORREF SetTextColor(COLORREF crColor) override;

    // These nine go to the drawing handle directly; no attribute context is involved.
    using CDC::PtVisible;
    BOOL PtVisible(int x, int y) const override;
    BOOL RectVisible(LPCRECT lpRect) const override;
    using CDC::TextOut;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override;
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                    LPINT lpDxWidths) override;
    CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                        LPINT lpnTabStopPositions, int nTabOrigin) override;
    using CDC::DrawText;
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) override;
    int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                   LPDRAWTEXTPARAMS lpDTParams) override;
    BOOL GrayString(CBrush* pBrush, GRAYSTRINGPROC lpfnOutput, LPARAM lpData, int nCount, int x, int y,
                    int nWidth, int nHeight) override;
    int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) override;
};

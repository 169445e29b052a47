#pragma once
// Device contexts. A CDC holds two handles: m_hDC, on which it draws, and m_hAttribDC,
// which it asks for measures and attributes; they are the same unless somebody set them
// apart. What changes the state goes to both. A CDC that owns its handle deletes it when
// it is destroyed; CPaintDC, CClientDC and CWindowDC return theirs to the window.
// The virtual operations are those that a recording or scaling context replaces.

#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"

class CWnd;

// A DrawText format without what does harm: DT_MODIFYSTRING writes into the caller's text, past its
// end, and Wine ends the process where DT_PATH_ELLIPSIS comes with another kind of ellipsis.
UINT SafeTextFormat(UINT nFormat);

class CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)

public:
    CDC() noexcept = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    ~CDC() override;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    // The context is that of a printer's page: set by Attach from the device's
    // technology, and by code that renders a page into something else.
    BOOL m_bPrinting = FALSE;

    operator HDC() const noexcept { return m_hDC; }
    [[nodiscard]] HDC GetSafeHdc() const noexcept { return m_hDC; }
    [[nodiscard]] BOOL IsPrinting() const noexcept { return m_bPrinting; }
    // The CDC attached to the handle last, else a temporary one that owns nothing.
    static CDC* FromHandle(HDC hDC);

    // Both handles become hDC. FALSE for null, with nothing changed.
    BOOL Attach(HDC hDC);
    // The caller owns the result; both handles are null then.
    HDC Detach() noexcept;
    // A memory context like pDC, or like the screen for null.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC() noexcept;

    void SetAttribDC(HDC hDC) noexcept;
    virtual void SetOutputDC(HDC hDC) noexcept;
    void ReleaseAttribDC() noexcept;
    virtual void ReleaseOutputDC() noexcept;

    [[nodiscard]] int GetDeviceCaps(int nIndex) const noexcept;
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);

    // Selecting. The result is what was selected before; null for a null argument.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    // The region's complexity: NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR.
    int SelectObject(CRgn* pRgn);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette();
    // A pen, brush, font or region by its handle, for callers that have no use for the old one's object.
    HGDIOBJ SelectHandle(HGDIOBJ hObject) const noexcept;
    [[nodiscard]] CFont* GetCurrentFont() const;

    // Attributes. Setters return the value before.
    [[nodiscard]] COLORREF GetBkColor() const noexcept;
    [[nodiscard]] int GetBkMode() const noexcept;
    [[nodiscard]] COLORREF GetTextColor() const noexcept;
    virtual COLORREF SetBkColor(COLORREF crColor);
    virtual COLORREF SetTextColor(COLORREF crColor);
    int SetBkMode(int nBkMode) noexcept;
    int SetROP2(int nDrawMode) noexcept;
    int SetPolyFillMode(int nPolyFillMode) noexcept;

    // Coordinates.
    virtual CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const noexcept;
    void LPtoDP(LPRECT lpRect) const noexcept;

    // Clipping.
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const;

    // Lines and shapes.
    [[nodiscard]] CPoint GetCurrentPosition() const noexcept;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount);
    BOOL Polygon(const POINT* lpPoints, int nCount);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect)
    {
        return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect)
    {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }

    // Fills and frames. FillSolidRect leaves crColor as the background colour.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FillSolidRect(LPCRECT lpRect, COLORREF crColor);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor);
    void DrawFocusRect(LPCRECT lpRect);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);

    // Pictures.
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);

    // Text.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    // SafeTextFormat(nFormat) is used.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
    {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    // The DT_MODIFYSTRING flag needs room in the buffer, as the platform documents.
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);
    virtual BOOL GrayString(CBrush* pBrush, GRAYSTRINGPROC lpfnOutput, LPARAM lpData, int nCount, int x,
                            int y, int nWidth, int nHeight);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const noexcept;
    CSize GetTextExtent(const CString& str) const noexcept
    {
        return GetTextExtent(str, str.GetLength());
    }

    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);

private:
    friend class HandleTable<CDC>;
    HandleTableLink<CDC> m_Link;
};

// The client area of a window inside WM_PAINT, from BeginPaint to EndPaint.
// All three throw CResourceException where the window has no context to give.
class CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd;
};

// The client area of a window, or the whole screen for null.
class CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// The whole area of a window with its frame, or the whole screen for null.
class CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

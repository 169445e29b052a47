#pragma once
// The canvas of the XY graph: a device context that can multiply all coordinates, so that
// one paint routine serves the screen and a printer of another resolution and colour depth.
// Callers pass screen pixels. With m_bScaling set the operations below multiply them by
// m_fScaleX and m_fScaleY, in float, truncated toward zero; what CDC itself offers beyond
// them (BitBlt, StretchBlt, TextOut ...) takes the device's own units.
// Lines and polygons that reach beyond +-2^26 are cut along their own lines first
// (LongLines.h), so callers may pass any pixel that a value maps to. Except in a recording,
// polygons beyond +-2^20 and lines of wide pens beyond +-2^15 are cut closer, to the clip box
// with some room around it: the platform's cost grows with the rows that they cover. Text far
// outside the clip box isn't drawn, for the same reason.

#include "draw/LongLines.h"
#include "draw/VisibleArea.h"
#include "framework/windowing/DeviceContexts.h"

#include <optional>

class CKeptFonts;

class CDCEx : public CDC
{
public:
    CDCEx() noexcept = default;

    bool m_bScaleReady = false; // InitScale has run
    bool m_bMono = false;       // fewer than 256 colours: all is drawn in black and white
    bool m_bScaling = false;    // the operations multiply coordinates
    bool m_bClipScaled = false; // the painter then leaves its clip rectangle unscaled
    float m_fScaleX = 1.0f;
    float m_fScaleY = 1.0f;

    // Takes the factors between the screen of the thread's main window (of the desktop, if
    // there is none) and the target, and m_bMono from the target.
    void InitScale(HDC hTarget);
    // What InitScale finds for a buffer of the screen of more than 256 colours, without asking: the
    // answers cost as much as a hundred lines. Any other buffer is asked each time. The fonts
    // are those that the buffer's owner keeps from frame to frame.
    void TakeScreen(const CBitmap& buffer, CKeptFonts* pFonts = nullptr);
    // What InitScale finds for a window of such a screen.
    void TakeScreenScale() noexcept;
    // Whether TakeScreen knew the buffer and nothing scales: text then has its size on the screen.
    [[nodiscard]] bool IsScreen() const noexcept { return m_bScreen && !m_bScaling; }
    // The fonts that outlive the frame; null on a canvas that keeps none.
    [[nodiscard]] CKeptFonts* KeptFonts() const noexcept { return IsScreen() ? m_pFonts : nullptr; }
    // Sets the font of the texts that follow and returns the one before. A buffer of the screen
    // selects it when the first text wants it: selecting can cost more than the text.
    HGDIOBJ WantFont(HGDIOBJ hFont);
    // For code that draws or measures text without this class.
    void SelectWantedFont();
    // InitScale on the own handle, unless it has run.
    void NeedScale();
    void ScalePoint(int& x, int& y);
    void ScalePoint(POINT& point);
    void ScaleRect(RECT& rect);

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void DrawFocusRect(LPCRECT lpRect);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect)
    {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    // As MoveTo and LineTo along the points; the pen stays where it was.
    BOOL Polyline(const POINT* lpPoints, int nCount);
    // Allocates only when scaling, for points beyond the limit, and for what has so many steep
    // edges that its rows are better found here (PolygonRows.h).
    BOOL Polygon(const POINT* lpPoints, int nCount);
    // The text's height. While scaling a copy of the rectangle is scaled; with DT_CALCRECT
    // the rectangle itself, which then holds the device's units.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    void FillSolidRect(LPCRECT lpRect, COLORREF crColor);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor);
    // Measures all lines of a text with line feeds. Nothing where the platform refuses to.
    [[nodiscard]] std::optional<CSize> MeasureText(const CString& str);
    // Likewise, but 0 by 0 where the platform refuses to.
    CSize GetTextExtent(const CString& str);

    // In the callers' units.
    [[nodiscard]] TVisibleArea Visible() const;

    using CDC::TextOut;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override;
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) override;

private:
    BOOL FarLineTo(CPoint from, CPoint unscaledTo, CPoint to);
    BOOL LargeEllipse(const CRect& rect);
    BOOL HugeEllipse(const CRect& rect, const CRect& visible, const LOGPEN& pen);
    BOOL LongLineTo(CPoint from, CPoint unscaledTo, CPoint to, const LongLines::TArea& area);
    [[nodiscard]] std::vector<LongLines::TVertex> Vertices(const POINT* lpPoints, int nCount);
    BOOL LongPolygon(std::span<const LongLines::TVertex> vertices, const LongLines::TArea& area);
    BOOL FillRows(std::span<const LongLines::TVertex> vertices, const CRect& visible);
    [[nodiscard]] bool IsOutOfSight(LPCTSTR lpszString, int nCount, const CRect& rect,
                                    UINT nFormat) const;
    [[nodiscard]] LongLines::TVertex Vertex(CPoint unscaled, CPoint scaled) const noexcept;

    bool m_bScreen = false;
    CKeptFonts* m_pFonts = nullptr;
    HGDIOBJ m_hWantedFont = nullptr; // of the screen's buffer
    HGDIOBJ m_hSelectedFont = nullptr;
    // Where MoveTo or LineTo left the pen, before scaling: a product may not fit the device.
    CPoint m_ptUnscaledPen;
};

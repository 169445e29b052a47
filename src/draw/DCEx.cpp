#include "draw/DCEx.h"

#include "draw/CanvasReach.h"
#include "draw/DeviceScale.h"
#include "framework/windowing/App.h"
#include "framework/windowing/Window.h"

#include <algorithm>
#include <cmath>
#include <utility>

using CanvasReach::IsRecording;
using CanvasReach::Within;

namespace
{
// A screen context of the main window, or of the desktop.
class CScreenDC
{
public:
    CScreenDC()
    {
        const CWnd* mainWindow = AfxGetMainWnd();
        m_hWnd = mainWindow ? mainWindow->m_hWnd : nullptr;
        m_hDC = ::GetDC(m_hWnd);
    }
    ~CScreenDC()
    {
        if (m_hDC)
            ::ReleaseDC(m_hWnd, m_hDC);
    }
    CScreenDC(const CScreenDC&) = delete;
    CScreenDC& operator=(const CScreenDC&) = delete;
    operator HDC() const noexcept { return m_hDC; }

private:
    HWND m_hWnd;
    HDC m_hDC;
};

// Of the selected pen, in pixels; 0 for one that has no simple width.
int PenWidth(HDC hDC) noexcept
{
    LOGPEN pen{};
    ::GetObject(::GetCurrentObject(hDC, OBJ_PEN), sizeof pen, &pen);
    return pen.lopnWidth.x;
}

LongLines::TArea VisibleArea(HDC hDC, int room) noexcept
{
    CRect visible;
    return ::GetClipBox(hDC, &visible) == ERROR ? LongLines::TArea{}
                                                : LongLines::AreaAround(visible, room);
}

// Beside what is visible of a line.
constexpr int WideLineRoom = 1 << 10;

// Without limits in a recording: it keeps what any player of it may show.
TVisibleArea VisibleOf(HDC hDC) noexcept
{
    CRect visible;
    if (IsRecording(hDC) || ::GetClipBox(hDC, &visible) == ERROR)
        return {};
    return {static_cast<double>(visible.left), static_cast<double>(visible.top),
            static_cast<double>(visible.right), static_cast<double>(visible.bottom)};
}

// Text nearer than this is left to the platform's own clipping.
constexpr LONG NearText = 1 << 15;

double Distance(LONG from, LONG to) noexcept
{
    return std::fabs(static_cast<double>(to) - from);
}

LongLines::TVertex ToVertex(CPoint point) noexcept
{
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}
} // namespace

void CDCEx::InitScale(HDC hTarget)
{
    const CScreenDC screen;
    m_fScaleX =
        DeviceScale::Factor(::GetDeviceCaps(screen, LOGPIXELSX), ::GetDeviceCaps(hTarget, LOGPIXELSX));
    m_fScaleY =
        DeviceScale::Factor(::GetDeviceCaps(screen, LOGPIXELSY), ::GetDeviceCaps(hTarget, LOGPIXELSY));
    m_bMono = DeviceScale::IsMono(::GetDeviceCaps(hTarget, NUMCOLORS));
    m_bScaleReady = true;
}

void CDCEx::TakeScreen(const CBitmap& buffer, CKeptFonts* pFonts)
{
    BITMAP look = {};
    ::GetObject(buffer.GetSafeHandle(), sizeof look, &look);
    if (look.bmBitsPixel <= 8)
        return;
    TakeScreenScale();
    m_bScreen = true;
    m_pFonts = pFonts;
    m_hWantedFont = m_hSelectedFont = ::GetCurrentObject(m_hDC, OBJ_FONT);
}

void CDCEx::TakeScreenScale() noexcept
{
    m_fScaleX = m_fScaleY = 1.0f;
    m_bMono = false;
    m_bScaleReady = true;
}

HGDIOBJ CDCEx::WantFont(HGDIOBJ hFont)
{
    if (!m_bScreen)
        return SelectHandle(hFont);
    return hFont ? std::exchange(m_hWantedFont, hFont) : nullptr;
}

void CDCEx::SelectWantedFont()
{
    if (m_hSelectedFont == m_hWantedFont)
        return;
    if (SelectHandle(m_hWantedFont))
        m_hSelectedFont = m_hWantedFont;
}

void CDCEx::NeedScale()
{
    if (!m_bScaleReady)
        InitScale(m_hDC);
}

void CDCEx::ScalePoint(int& x, int& y)
{
    NeedScale();
    x = DeviceScale::Scaled(x, m_fScaleX);
    y = DeviceScale::Scaled(y, m_fScaleY);
}

void CDCEx::ScalePoint(POINT& point)
{
    NeedScale();
    point = CPoint(DeviceScale::Scaled(CPoint(point), m_fScaleX, m_fScaleY));
}

void CDCEx::ScaleRect(RECT& rect)
{
    NeedScale();
    rect = CRect(DeviceScale::Scaled(CRect(rect), m_fScaleX, m_fScaleY));
}

CPoint CDCEx::MoveTo(int x, int y)
{
    m_ptUnscaledPen = CPoint(x, y);
    if (m_bScaling)
        ScalePoint(x, y);
    return CDC::MoveTo(x, y);
}

BOOL CDCEx::LineTo(int x, int y)
{
    const CPoint unscaled(x, y);
    CPoint to = unscaled;
    if (m_bScaling)
        ScalePoint(to);

    const CPoint from = GetCurrentPosition();
    if (!Within(from, LongLines::TallWideLine) || !Within(to, LongLines::TallWideLine))
        return FarLineTo(from, unscaled, to);

    m_ptUnscaledPen = unscaled;
    return CDC::LineTo(to.x, to.y);
}

BOOL CDCEx::FarLineTo(CPoint from, CPoint unscaledTo, CPoint to)
{
    const int width = IsRecording(m_hDC) ? 0 : PenWidth(m_hDC);
    if (width > 1)
        return LongLineTo(from, unscaledTo, to, VisibleArea(m_hDC, WideLineRoom + width));
    if (!LongLines::IsShort(from) || !LongLines::IsShort(to))
        return LongLineTo(from, unscaledTo, to, {});

    m_ptUnscaledPen = unscaledTo;
    return CDC::LineTo(to.x, to.y);
}

LongLines::TVertex CDCEx::Vertex(CPoint unscaled, CPoint scaled) const noexcept
{
    // The pixel that drawing would use, unless the product left the range of exact pixels.
    if (!m_bScaling || LongLines::IsShort(scaled))
        return ToVertex(scaled);
    return {static_cast<double>(unscaled.x) * m_fScaleX, static_cast<double>(unscaled.y) * m_fScaleY};
}

BOOL CDCEx::LongLineTo(CPoint from, CPoint unscaledTo, CPoint to, const LongLines::TArea& area)
{
    // The unscaled start counts only if nobody has moved the pen past this class since.
    CPoint pen = m_ptUnscaledPen;
    if (m_bScaling)
        ScalePoint(pen);
    LongLines::TVertex start = pen == from ? Vertex(m_ptUnscaledPen, from) : ToVertex(from);
    LongLines::TVertex end = Vertex(unscaledTo, to);

    BOOL drawn = TRUE;
    if (LongLines::CutSegment(start, end, area)) {
        const CPoint cutFrom = LongLines::ToPixel(start);
        const CPoint cutTo = LongLines::ToPixel(end);
        CDC::MoveTo(cutFrom.x, cutFrom.y);
        drawn = CDC::LineTo(cutTo.x, cutTo.y);
    }
    CDC::MoveTo(to.x, to.y);
    m_ptUnscaledPen = unscaledTo;
    return drawn;
}

void CDCEx::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    CRect rect(lpRect);
    if (m_bScaling)
        ScaleRect(rect);
    CDC::FillRect(&rect, pBrush);
}

void CDCEx::DrawFocusRect(LPCRECT lpRect)
{
    CRect rect(lpRect);
    if (m_bScaling)
        ScaleRect(rect);
    CDC::DrawFocusRect(&rect);
}

BOOL CDCEx::Rectangle(int x1, int y1, int x2, int y2)
{
    CRect rect(x1, y1, x2, y2);
    if (m_bScaling)
        ScaleRect(rect);
    return CDC::Rectangle(&rect);
}

BOOL CDCEx::Polyline(const POINT* lpPoints, int nCount)
{
    if (!lpPoints || nCount < 2)
        return FALSE;
    const auto isNear = [](const POINT& point) { return Within(point, LongLines::TallWideLine); };
    if (!m_bScaling && std::all_of(lpPoints, lpPoints + nCount, isNear))
        return CDC::Polyline(lpPoints, nCount);

    const CPoint position = GetCurrentPosition();
    const CPoint unscaledPen = m_ptUnscaledPen;
    MoveTo(lpPoints[0]);
    BOOL drawn = TRUE;
    for (int i = 1; i < nCount; ++i)
        drawn = LineTo(lpPoints[i]) && drawn;
    CDC::MoveTo(position.x, position.y);
    m_ptUnscaledPen = unscaledPen;
    return drawn;
}

int CDCEx::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    if (m_bScaling && (nFormat & DT_CALCRECT) == 0) {
        CRect rect(*lpRect);
        ScaleRect(rect);
        return DrawText(str, str.GetLength(), &rect, nFormat);
    }
    if (m_bScaling)
        ScaleRect(*lpRect);
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

void CDCEx::FillSolidRect(LPCRECT lpRect, COLORREF crColor)
{
    CRect rect(lpRect);
    if (m_bScaling)
        ScaleRect(rect);
    CDC::FillSolidRect(&rect, crColor);
}

void CDCEx::FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor)
{
    if (m_bScaling) {
        ScalePoint(x, y);
        ScalePoint(cx, cy);
    }
    CDC::FillSolidRect(x, y, cx, cy, crColor);
}

std::optional<CSize> CDCEx::MeasureText(const CString& str)
{
    SelectWantedFont();
    if (str.Find(L'\n') < 0) {
        CSize size;
        if (!::GetTextExtentPoint32(m_hDC, str, str.GetLength(), &size))
            return std::nullopt;
        return size;
    }
    TEXTMETRIC metric{};
    if (!::GetTextMetrics(m_hDC, &metric))
        return std::nullopt; // Wine's DrawText returns a height even so
    CRect rect;
    const int height = DrawText(str, &rect, DT_CALCRECT | DT_VCENTER | DT_CENTER);
    return CSize(rect.Width(), height);
}

CSize CDCEx::GetTextExtent(const CString& str)
{
    return MeasureText(str).value_or(CSize());
}

TVisibleArea CDCEx::Visible() const
{
    TVisibleArea visible = VisibleOf(m_hDC);
    if (m_bScaling) {
        visible.left /= m_fScaleX;
        visible.right /= m_fScaleX;
        visible.top /= m_fScaleY;
        visible.bottom /= m_fScaleY;
    }
    return visible;
}

// Whether nothing can be seen of a text that is drawn into the rectangle, in the device's units.
bool CDCEx::IsOutOfSight(LPCTSTR lpszString, int nCount, const CRect& rect, UINT nFormat) const
{
    if (Within(rect.TopLeft(), NearText) && Within(rect.BottomRight(), NearText))
        return false;
    CRect size(rect);
    ::DrawText(m_hDC, lpszString, nCount, &size, nFormat | DT_CALCRECT);
    // A turned text leaves its place to any side.
    const double reach = Distance(size.left, size.right) + Distance(size.top, size.bottom);
    const TVisibleArea visible = VisibleOf(m_hDC);
    if ((nFormat & DT_NOCLIP) == 0 && !visible.Meets(rect, reach))
        return true;
    const CPoint center = rect.CenterPoint();
    CPoint anchor = rect.TopLeft();
    if (nFormat & DT_CENTER)
        anchor.x = center.x;
    else if (nFormat & DT_RIGHT)
        anchor.x = rect.right;
    if ((nFormat & DT_SINGLELINE) && (nFormat & DT_VCENTER))
        anchor.y = center.y;
    else if ((nFormat & DT_SINGLELINE) && (nFormat & DT_BOTTOM))
        anchor.y = rect.bottom;
    return !visible.Meets(anchor, reach);
}

BOOL CDCEx::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    SelectWantedFont();
    if (!Within(CPoint(x, y), NearText)) {
        CSize size;
        ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
        if (!VisibleOf(m_hDC).Meets(CPoint(x, y), Distance(0, size.cx) + Distance(0, size.cy)))
            return TRUE;
    }
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

int CDCEx::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    SelectWantedFont();
    nFormat = SafeTextFormat(nFormat); // hosts and files choose flags
    if ((nFormat & DT_CALCRECT) == 0 && IsOutOfSight(lpszString, nCount, CRect(*lpRect), nFormat)) {
        CRect size(*lpRect);
        return ::DrawText(m_hDC, lpszString, nCount, &size, nFormat | DT_CALCRECT);
    }
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

// Attributes, coordinates and clipping of CDC.

#include "framework/windowing/DeviceContexts.h"

namespace
{
// Runs one operation on the drawing handle and, where it is another one, on the attribute
// handle too. The result is the attribute handle's where there is one.
template <class TResult, class TOperation>
TResult OnBoth(const CDC& dc, TResult nothing, TOperation operation)
{
    TResult result = nothing;
    if (dc.m_hDC && dc.m_hDC != dc.m_hAttribDC)
        result = operation(dc.m_hDC);
    if (dc.m_hAttribDC)
        result = operation(dc.m_hAttribDC);
    return result;
}
} // namespace

COLORREF CDC::GetBkColor() const noexcept
{
    return ::GetBkColor(m_hAttribDC);
}

int CDC::GetBkMode() const noexcept
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::GetROP2() const noexcept
{
    return ::GetROP2(m_hAttribDC);
}

COLORREF CDC::GetTextColor() const noexcept
{
    return ::GetTextColor(m_hAttribDC);
}

UINT CDC::GetTextAlign() const noexcept
{
    return ::GetTextAlign(m_hAttribDC);
}

int CDC::GetPolyFillMode() const noexcept
{
    return ::GetPolyFillMode(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth<COLORREF>(*this, CLR_INVALID, [=](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth<COLORREF>(*this, CLR_INVALID, [=](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

int CDC::SetBkMode(int nBkMode) noexcept
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::SetROP2(int nDrawMode) noexcept
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode) noexcept
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetPolyFillMode(hDC, nPolyFillMode); });
}

int CDC::SetStretchBltMode(int nStretchMode) noexcept
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetStretchBltMode(hDC, nStretchMode); });
}

UINT CDC::SetTextAlign(UINT nFlags) noexcept
{
    return OnBoth<UINT>(*this, GDI_ERROR, [=](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const noexcept
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

CPoint CDC::SetBrushOrg(int x, int y) noexcept
{
    CPoint old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetWindowOrg() const noexcept
{
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::GetViewportOrg() const noexcept
{
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return OnBoth(*this, CPoint(), [=](HDC hDC) {
        CPoint old;
        ::SetWindowOrgEx(hDC, x, y, &old);
        return old;
    });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return OnBoth(*this, CPoint(), [=](HDC hDC) {
        CPoint old;
        ::SetViewportOrgEx(hDC, x, y, &old);
        return old;
    });
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const noexcept
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const noexcept
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const noexcept
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const noexcept
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hAttribDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    const HRGN region = pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::SelectClipRgn(hDC, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    const HRGN region = pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::ExtSelectClipRgn(hDC, region, nMode); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    const CRect rect(lpRect);
    return OnBoth(*this, ERROR, [&](HDC hDC) {
        return ::ExcludeClipRect(hDC, rect.left, rect.top, rect.right, rect.bottom);
    });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    const CRect rect(lpRect);
    return OnBoth(*this, ERROR, [&](HDC hDC) {
        return ::IntersectClipRect(hDC, rect.left, rect.top, rect.right, rect.bottom);
    });
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

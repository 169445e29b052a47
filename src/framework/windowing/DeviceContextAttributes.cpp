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

COLORREF CDC::GetTextColor() const noexcept
{
    return ::GetTextColor(m_hAttribDC);
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

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

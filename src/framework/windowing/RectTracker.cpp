#include "framework/windowing/RectTracker.h"

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Window.h"

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr int HandleCount = 8;
constexpr int DefaultHandleSize = 4;

enum class Side { none, low, high }; // which edge of one direction a handle moves

struct TSides {
    Side x;
    Side y;
};

// In the order of the hit codes.
constexpr TSides HandleSides[HandleCount] = {{Side::low, Side::low},   {Side::high, Side::low},
                                             {Side::high, Side::high}, {Side::low, Side::high},
                                             {Side::none, Side::low},  {Side::high, Side::none},
                                             {Side::none, Side::high}, {Side::low, Side::none}};

constexpr Side Opposite(Side side)
{
    switch (side) {
    case Side::low:
        return Side::high;
    case Side::high:
        return Side::low;
    default:
        return Side::none;
    }
}

bool IsHandle(int nHandle)
{
    return nHandle >= 0 && nHandle < HandleCount;
}

// The size of the border of an object that is edited in place is what the user chose for
// such handles; it is a profile setting of the system. Read once: trackers are made in masses.
int SystemHandleSize()
{
    static const int size =
        static_cast<int>(::GetProfileInt(L"windows", L"oleinplaceborderwidth", DefaultHandleSize));
    return size > 0 && size < 100 ? size : DefaultHandleSize;
}

int HandleStart(Side side, int low, int high, int size)
{
    switch (side) {
    case Side::low:
        return low;
    case Side::high:
        return Wrap::Subtract(high, size);
    default:
        return Wrap::Add(low, Wrap::Subtract(Wrap::Subtract(high, low), size) / 2);
    }
}

// Moves one edge away from the opposite one until `minimum` lies between them.
void KeepExtent(LONG& low, LONG& high, Side moved, LONG minimum, bool allowInvert)
{
    if (moved == Side::none)
        return;
    const LONG extent = Wrap::Subtract(high, low);
    const bool inverted = allowInvert && extent < 0;
    if ((inverted ? Wrap::Subtract(0, extent) : extent) >= minimum)
        return;
    const LONG kept = inverted ? Wrap::Subtract(0, minimum) : minimum;
    if (moved == Side::low)
        low = Wrap::Subtract(high, kept);
    else
        high = Wrap::Add(low, kept);
}
} // namespace

CRectTracker::CRectTracker() : m_nHandleSize(SystemHandleSize())
{
    m_sizeMin = CSize(m_nHandleSize * 2, m_nHandleSize * 2);
}

CRectTracker::CRectTracker(LPCRECT lpSrcRect, UINT nStyle) : CRectTracker()
{
    m_rect.CopyRect(lpSrcRect);
    m_nStyle = nStyle;
}

int CRectTracker::GetHandleSize(LPCRECT lpRect) const
{
    if (m_nStyle & resizeOutside)
        return m_nHandleSize;
    CRect rect(lpRect ? *lpRect : static_cast<const RECT&>(m_rect));
    rect.NormalizeRect();
    return std::max(1, std::min({m_nHandleSize, rect.Width() / 2, rect.Height() / 2}));
}

UINT CRectTracker::GetHandleMask() const
{
    constexpr UINT corners = 0x0F;
    constexpr UINT topAndBottom = 1u << hitTop | 1u << hitBottom;
    constexpr UINT leftAndRight = 1u << hitLeft | 1u << hitRight;

    // A side that is too short for three handles has none in its middle.
    CRect rect(m_rect);
    rect.NormalizeRect();
    const std::int64_t room = std::int64_t{3} * m_nHandleSize + 4;
    UINT mask = corners;
    if (rect.Width() > room)
        mask |= topAndBottom;
    if (rect.Height() > room)
        mask |= leftAndRight;
    return mask;
}

void CRectTracker::GetTrueRect(LPRECT lpTrueRect) const
{
    CRect rect(m_rect);
    rect.NormalizeRect();
    int growth = 0;
    if (m_nStyle & (solidLine | dottedLine))
        growth = 1;
    if (m_nStyle & (hatchedBorder | resizeOutside))
        growth = std::max<int>(growth, Wrap::Subtract(GetHandleSize(), 1));
    rect.InflateRect(growth, growth);
    *lpTrueRect = rect;
}

void CRectTracker::GetHandleRect(int nHandle, CRect* pHandleRect) const
{
    const int size = GetHandleSize();
    CRect rect(m_rect);
    rect.NormalizeRect();
    if (m_nStyle & (solidLine | dottedLine))
        rect.InflateRect(1, 1);
    if (m_nStyle & (hatchedBorder | resizeOutside))
        GetTrueRect(&rect);

    const TSides sides = HandleSides[NormalizeHit(nHandle)];
    const CPoint corner(HandleStart(sides.x, rect.left, rect.right, size),
                        HandleStart(sides.y, rect.top, rect.bottom, size));
    *pHandleRect = CRect(corner, CSize(size, size));
}

int CRectTracker::NormalizeHit(int nHandle) const
{
    if (!IsHandle(nHandle))
        return nHandle;
    TSides sides = HandleSides[nHandle];
    if (m_rect.Width() < 0)
        sides.x = Opposite(sides.x);
    if (m_rect.Height() < 0)
        sides.y = Opposite(sides.y);
    const TSides* found = std::find_if(HandleSides, HandleSides + HandleCount, [&](const TSides& one) {
        return one.x == sides.x && one.y == sides.y;
    });
    return static_cast<int>(found - HandleSides);
}

int CRectTracker::HitTest(CPoint point) const
{
    CRect trueRect;
    GetTrueRect(&trueRect);
    if (!trueRect.PtInRect(point))
        return hitNothing;
    if (m_nStyle & (resizeInside | resizeOutside))
        return HitTestHandles(point);
    return hitMiddle;
}

int CRectTracker::HitTestHandles(CPoint point) const
{
    CRect rect;
    GetTrueRect(&rect);
    if (!rect.PtInRect(point))
        return hitNothing;

    const UINT mask = GetHandleMask();
    for (int handle = 0; handle < HandleCount; ++handle) {
        if ((mask & 1u << handle) == 0)
            continue;
        GetHandleRect(handle, &rect);
        if (rect.PtInRect(point))
            return handle;
    }

    // Between outer handles there is nothing to grip, unless a border fills the gaps.
    if ((m_nStyle & hatchedBorder) == 0) {
        rect = m_rect;
        rect.NormalizeRect();
        if (m_nStyle & (solidLine | dottedLine))
            rect.InflateRect(1, 1);
        if (!rect.PtInRect(point))
            return hitNothing;
    }
    return hitMiddle;
}

BOOL CRectTracker::SetCursor(CWnd* pWnd, UINT nHitTest) const
{
    if (nHitTest != HTCLIENT)
        return FALSE;
    CPoint point;
    ::GetCursorPos(&point);
    pWnd->ScreenToClient(&point);
    const int hit = HitTest(point);
    if (hit < 0)
        return FALSE;

    static const LPCTSTR pointers[] = {IDC_SIZENWSE, IDC_SIZENESW, IDC_SIZENWSE,
                                       IDC_SIZENESW, IDC_SIZENS,   IDC_SIZEWE,
                                       IDC_SIZENS,   IDC_SIZEWE,   IDC_SIZEALL};
    ::SetCursor(::LoadCursor(nullptr, pointers[NormalizeHit(hit)]));
    return TRUE;
}

void CRectTracker::AdjustRect(int nHandle, LPRECT lpRect)
{
    if (!IsHandle(nHandle))
        return;
    const TSides sides = HandleSides[nHandle];
    KeepExtent(lpRect->left, lpRect->right, sides.x, m_sizeMin.cx, m_bAllowInvert != FALSE);
    KeepExtent(lpRect->top, lpRect->bottom, sides.y, m_sizeMin.cy, m_bAllowInvert != FALSE);
}

void CRectTracker::OnChangedRect(const CRect&) {}

void CRectTracker::MoveHandle(int nHandle, CPoint offset)
{
    const bool whole = !IsHandle(nHandle);
    const TSides sides = whole ? TSides{Side::none, Side::none} : HandleSides[nHandle];
    if (whole || sides.x == Side::low)
        m_rect.left = Wrap::Add(m_rect.left, offset.x);
    if (whole || sides.x == Side::high)
        m_rect.right = Wrap::Add(m_rect.right, offset.x);
    if (whole || sides.y == Side::low)
        m_rect.top = Wrap::Add(m_rect.top, offset.y);
    if (whole || sides.y == Side::high)
        m_rect.bottom = Wrap::Add(m_rect.bottom, offset.y);
}

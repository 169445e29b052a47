#include "framework/windowing/ScrollBar.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(L"SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollLimit() const
{
    SCROLLINFO info{};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

BOOL CScrollBar::GetScrollInfo(SCROLLINFO* lpScrollInfo, UINT nMask) const
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

BOOL CScrollBar::SetScrollInfo(SCROLLINFO* lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

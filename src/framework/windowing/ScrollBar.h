#pragma once
// CScrollBar: a scroll bar control. Positions are in the units of its range.

#include "framework/windowing/Window.h"

class CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
public:
    using CWnd::Create;
    // dwStyle: WS_... and SBS_...; the bar is a child window.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    [[nodiscard]] int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    // The position is kept within the range; the result is the former one.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
    }
    // The largest position that a page of the set size leaves.
    [[nodiscard]] int GetScrollLimit() const;
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    // nMask says what is asked for, instead of the record's own mask.
    BOOL GetScrollInfo(SCROLLINFO* lpScrollInfo, UINT nMask = SIF_ALL) const;
    BOOL SetScrollInfo(SCROLLINFO* lpScrollInfo, BOOL bRedraw = TRUE);
};

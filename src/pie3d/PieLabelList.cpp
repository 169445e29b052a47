// The label list's scroll bar and its messages.

#include "pie3d/PieChartWnd.h"

#include <optional>

namespace
{

PieScroll::EStep StepOf(UINT code) noexcept
{
    switch (code) {
    case SB_LINEUP:
        return PieScroll::EStep::lineUp;
    case SB_LINEDOWN:
        return PieScroll::EStep::lineDown;
    case SB_PAGEUP:
        return PieScroll::EStep::pageUp;
    case SB_PAGEDOWN:
        return PieScroll::EStep::pageDown;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return PieScroll::EStep::thumb;
    default:
        return PieScroll::EStep::none;
    }
}

std::optional<std::int32_t> TrackPosition(CScrollBar& bar)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    if (!bar.GetScrollInfo(&info, SIF_TRACKPOS))
        return std::nullopt;
    return info.nTrackPos;
}

} // namespace

void CPieChartWnd::RecalcLabelExtent() noexcept
{
    m_nLabelsHeight = PieLabels::HeightOfRows(m_nElements, m_nRowHeight, m_nRowGap);
    m_nVisibleHeight = PieLabels::HeightThatFits(m_nElements, m_nRowHeight, m_nRowGap,
                                                 GetPieRect().Height(), m_nVisibleHeight);
}

void CPieChartWnd::UpdateScrollBar()
{
    const std::int32_t pieHeight = GetPieRect().Height();
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMin = 0;
    info.nMax = m_nLabelsHeight;
    info.nPage = static_cast<UINT>(pieHeight);
    // Redrawn with the window's next painting: at once would cost more than all the rest of an
    // insertion.
    m_wndScrollBar.SetScrollInfo(&info, FALSE);
    if (m_wndScrollBar.m_hWnd)
        m_wndScrollBar.Invalidate();
    m_wndScrollBar.ShowScrollBar(m_nLabelsHeight > pieHeight);
}

PieScroll::TList CPieChartWnd::ScrollList() const
{
    return {m_nElements,
            m_nRowHeight,
            m_nRowGap,
            GetPieRect().Height(),
            m_wndScrollBar.GetScrollLimit(),
            m_wndScrollBar.GetScrollPos(),
            m_nFirstLabel};
}

std::int32_t CPieChartWnd::SyncFirstLabel(std::int32_t nPos, BOOL bTrack)
{
    Settle();
    const PieScroll::TList list = ScrollList();
    const PieScroll::TSynced synced = PieScroll::SyncFirstLabel(list, nPos, bTrack != FALSE);
    m_nFirstLabel = synced.nFirst;
    if (synced.bToLimit)
        m_wndScrollBar.SetScrollPos(list.nLimit);
    return m_nFirstLabel;
}

void CPieChartWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    Settle();
    const PieScroll::TList list = ScrollList();
    const PieScroll::EStep step = StepOf(nSBCode);
    std::optional<std::int32_t> trackPos;
    if (step == PieScroll::EStep::thumb)
        trackPos = TrackPosition(m_wndScrollBar);
    const PieScroll::TScrolled scrolled =
        PieScroll::Scroll(list, step, trackPos, static_cast<std::int32_t>(nPos));
    m_nFirstLabel = scrolled.nFirst;
    if (scrolled.bToLimit)
        m_wndScrollBar.SetScrollPos(list.nLimit);
    Invalidate(TRUE);
    m_wndScrollBar.SetScrollPos(scrolled.nPos, TRUE);
    CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
}

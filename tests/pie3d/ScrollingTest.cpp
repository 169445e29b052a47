// The layout that follows a change of size, and the scrolling label list.

#include "PieWindow.h"

using PieScrolling = PieWindow;

namespace
{

CRect BarRect(const CPieChartWnd& pie)
{
    CRect rect;
    pie.m_wndScrollBar.GetWindowRect(&rect);
    pie.ScreenToClient(&rect);
    return rect;
}

} // namespace

TEST_F(PieScrolling, ASizeLaysOutThePieTheRowsAndTheBar)
{
    EXPECT_EQ(pie.m_nPieLimit, 533);
    EXPECT_EQ(pie.m_nScrollBarInset, 40);
    EXPECT_EQ(pie.m_nRowHeight, 25);
    EXPECT_EQ(pie.m_nMarkWidth, 46);
    EXPECT_EQ(pie.m_nRowGap, 18);
    EXPECT_EQ(pie.GetPieRect(), (TRect{30, 100, 500, 570}));
    EXPECT_EQ(BarRect(pie), CRect(760, 100, 780, 570));
    EXPECT_EQ(pie.m_wndScrollBar.GetDlgCtrlID(), 1);
    pie.MoveWindow(0, 0, 600, 600);
    EXPECT_EQ(pie.GetPieRect(), (TRect{30, 100, 400, 470}));
    EXPECT_EQ(BarRect(pie), CRect(570, 100, 590, 470));
}

TEST_F(PieScrolling, AWindowNarrowerThan270KeepsItsPieLimit)
{
    for (const int width : {269, 100, 1, 0}) {
        pie.MoveWindow(0, 0, width, 400);
        EXPECT_EQ(pie.m_nPieLimit, 180) << width;
    }
}

TEST_F(PieScrolling, FewRowsHideTheBar)
{
    Fill({1, 2, 3});
    EXPECT_FALSE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(pie.m_nLabelsHeight, 111);
    EXPECT_EQ(pie.m_nVisibleHeight, 111);
    EXPECT_EQ(pie.m_wndScrollBar.GetScrollLimit(), 0);
}

TEST_F(PieScrolling, MoreRowsThanFitShowTheBarAndFewerHideItAgain)
{
    for (int i = 0; i < 11; ++i)
        Fill({1});
    EXPECT_EQ(pie.m_nLabelsHeight, 455);
    EXPECT_FALSE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
    Fill({1});
    EXPECT_EQ(pie.m_nLabelsHeight, 498);
    EXPECT_EQ(pie.m_nVisibleHeight, 455);
    EXPECT_TRUE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(pie.m_wndScrollBar.GetScrollLimit(), 29); // 498 - 470 + 1
    pie.RemoveItemByIndex(0);
    EXPECT_FALSE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
}

TEST_F(PieScrolling, RowsExactlyAsHighAsThePieHideTheBar)
{
    pie.MoveWindow(0, 0, 663, 600);
    ASSERT_EQ(pie.GetPieRect(), (TRect{30, 100, 442, 512}));
    for (int i = 0; i < 10; ++i)
        Fill({1});
    EXPECT_EQ(pie.m_nLabelsHeight, 412);
    EXPECT_FALSE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
    Fill({1});
    EXPECT_TRUE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
}

TEST_F(PieScrolling, NoElementsLeaveTheHeightOfAGapBelowNothing)
{
    Fill({1});
    pie.RemoveItemByIndex(0);
    EXPECT_EQ(pie.m_nLabelsHeight, -18);
    EXPECT_FALSE(pie.m_wndScrollBar.GetStyle() & WS_VISIBLE);
}

class PieLongList : public PieWindow
{
protected:
    // 842 high in 470: the limit is 373, and row 9 the first of the end.
    PieLongList()
    {
        for (int i = 0; i < 20; ++i)
            Fill({1});
    }
    void ExpectAt(int first, int position)
    {
        EXPECT_EQ(pie.m_nFirstLabel, first);
        EXPECT_EQ(pie.m_wndScrollBar.GetScrollPos(), position);
    }
};

TEST_F(PieLongList, LinesGoRowByRowToBothEnds)
{
    Scroll(SB_LINEDOWN);
    ExpectAt(1, 43);
    for (int i = 0; i < 7; ++i)
        Scroll(SB_LINEDOWN);
    ExpectAt(8, 344);
    Scroll(SB_LINEDOWN);
    ExpectAt(9, 373);
    Scroll(SB_LINEDOWN);
    ExpectAt(9, 373);
    Scroll(SB_LINEUP);
    ExpectAt(8, 330);
    for (int i = 0; i < 8; ++i)
        Scroll(SB_LINEUP);
    ExpectAt(0, 0);
    Scroll(SB_LINEUP);
    ExpectAt(0, 0);
}

TEST_F(PieLongList, PagesGoAPieHigh)
{
    Scroll(SB_PAGEDOWN);
    ExpectAt(8, 373);
    Scroll(SB_PAGEUP);
    ExpectAt(0, 0);
}

TEST_F(PieLongList, TheThumbGoesWhereTheBarSaysAndNotWhereTheMessageSays)
{
    pie.m_wndScrollBar.SetScrollPos(100);
    Scroll(SB_THUMBTRACK, 300); // the bar's own track position is 100
    ExpectAt(2, 100);
    pie.m_wndScrollBar.SetScrollPos(0);
    Scroll(SB_THUMBPOSITION, 300);
    ExpectAt(0, 0);
}

TEST_F(PieLongList, TheThumbNearTheEndShowsTheLastRows)
{
    pie.m_wndScrollBar.SetScrollPos(348); // a row before the limit is not near yet
    Scroll(SB_THUMBTRACK);
    ExpectAt(8, 348);
    pie.m_wndScrollBar.SetScrollPos(349);
    Scroll(SB_THUMBTRACK);
    ExpectAt(9, 349);
    pie.m_wndScrollBar.SetScrollPos(349);
    pie.SyncFirstLabel(10, TRUE); // the bar's position counts, not the one that is given
    ExpectAt(9, 373);
}

TEST_F(PieLongList, OtherCodesKeepThePlaceAndRepaint)
{
    Scroll(SB_LINEDOWN);
    for (const int code : {SB_TOP, SB_BOTTOM, SB_ENDSCROLL, 99}) {
        ::ValidateRect(pie.m_hWnd, nullptr);
        Scroll(code);
        ExpectAt(1, 43);
        EXPECT_TRUE(NeedsPaint());
    }
}

TEST_F(PieLongList, ARemovalKeepsTheFirstRowInStep)
{
    pie.m_wndScrollBar.SetScrollPos(100);
    pie.RemoveItemByIndex(19);
    EXPECT_EQ(pie.m_nFirstLabel, 2);
}

TEST_F(PieLongList, ARemovalAtTheEndTakesTheFirstRowFromThePositionBeforeIt)
{
    for (int i = 0; i < 9; ++i)
        Scroll(SB_LINEDOWN);
    ExpectAt(9, 373);
    pie.RemoveItemByIndex(19);
    ExpectAt(8, 330); // 373 / 43, and then the bar's new limit
}

TEST_F(PieLongList, AFirstRowBeyondTheElementsShowsNoLabelUntilTheNextScroll)
{
    Plain();
    Scroll(SB_PAGEDOWN);
    ASSERT_EQ(pie.m_nFirstLabel, 8);
    pie.RemoveAllItem();
    Fill({1, 2});
    Plain();
    const RECT list = {520, 80, 755, 590};
    EXPECT_EQ(Shoot().Count(list, Ref(Red)), 0);
    Scroll(SB_LINEUP);
    EXPECT_EQ(pie.m_nFirstLabel, 7);
    pie.SendMessage(WM_SIZE, 0, 0);
    EXPECT_EQ(pie.m_nFirstLabel, 0);
    pie.Invalidate();
    EXPECT_GT(Shoot().Count(list, Ref(Red)), 500);
}

TEST_F(PieLongList, TheRowsThatShowAreThoseFromTheFirst)
{
    Plain();
    pie.m_wndScrollBar.ShowWindow(SW_HIDE);
    Scroll(SB_LINEDOWN);
    const Picture picture = Shoot();
    const PieColors::Argb colors[] = {Green, Blue, Red};
    for (int row = 0; row < 11; ++row)
        EXPECT_EQ(picture.At(570, 112 + 43 * row), Ref(colors[row % 3])) << row;
    EXPECT_EQ(picture.At(570, 112 + 43 * 11), RGB(255, 255, 255));
}

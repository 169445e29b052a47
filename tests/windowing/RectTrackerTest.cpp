#include "framework/windowing/RectTracker.h"
#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Window.h"
#include "support/GdiCount.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF Grey = RGB(200, 200, 200);
constexpr UINT SizingFrame = CRectTracker::hatchedBorder | CRectTracker::resizeOutside;

CRectTracker Tracker(UINT style, const CRect& rect = CRect(20, 30, 80, 70))
{
    CRectTracker tracker(&rect, style);
    tracker.m_nHandleSize = 4;
    return tracker;
}

// What a tracker looks like on grey ground of 100 by 100.
class Look
{
public:
    explicit Look(const CRectTracker& tracker)
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 100, -100, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* memory = nullptr;
        m_Bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0));
        m_DC.CreateCompatibleDC(nullptr);
        m_Old = m_DC.SelectObject(&m_Bitmap);
        m_DC.FillSolidRect(0, 0, 100, 100, Grey);
        tracker.Draw(&m_DC);
    }
    ~Look() { m_DC.SelectObject(m_Old); }

    COLORREF At(int x, int y) const { return ::GetPixel(m_DC, x, y); }

    // Whether both black and another colour, or the only colour, are in the rectangle.
    bool Is(const CRect& rect, COLORREF colour) const
    {
        return Count(rect, colour) == rect.Width() * rect.Height();
    }
    int Count(const CRect& rect, COLORREF colour) const
    {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                count += At(x, y) == colour ? 1 : 0;
        return count;
    }

private:
    CBitmap m_Bitmap;
    CDC m_DC;
    CBitmap* m_Old;
};
} // namespace

TEST(RectTracker, StartsEmptyWithoutStyle)
{
    const CRectTracker tracker;

    EXPECT_EQ(tracker.m_rect, CRect());
    EXPECT_EQ(tracker.m_nStyle, 0u);
    EXPECT_GT(tracker.m_nHandleSize, 0);
    EXPECT_EQ(tracker.m_sizeMin, CSize(2 * tracker.m_nHandleSize, 2 * tracker.m_nHandleSize));
    EXPECT_EQ(CRectTracker().HitTest(CPoint(0, 0)), CRectTracker::hitNothing);
}

TEST(RectTracker, TrueRectangleHoldsBorderAndOuterHandles)
{
    CRect rect;
    Tracker(0).GetTrueRect(&rect);
    EXPECT_EQ(rect, CRect(20, 30, 80, 70));
    Tracker(CRectTracker::solidLine | CRectTracker::resizeInside).GetTrueRect(&rect);
    EXPECT_EQ(rect, CRect(19, 29, 81, 71));
    Tracker(SizingFrame).GetTrueRect(&rect);
    EXPECT_EQ(rect, CRect(17, 27, 83, 73));
    Tracker(SizingFrame, CRect(80, 70, 20, 30)).GetTrueRect(&rect);
    EXPECT_EQ(rect, CRect(17, 27, 83, 73)) << "also inside out";
}

TEST(RectTracker, EachHandleIsHitWhereItStands)
{
    const CRectTracker tracker = Tracker(SizingFrame);

    EXPECT_EQ(tracker.HitTest(CPoint(17, 27)), CRectTracker::hitTopLeft);
    EXPECT_EQ(tracker.HitTest(CPoint(82, 27)), CRectTracker::hitTopRight);
    EXPECT_EQ(tracker.HitTest(CPoint(82, 72)), CRectTracker::hitBottomRight);
    EXPECT_EQ(tracker.HitTest(CPoint(17, 72)), CRectTracker::hitBottomLeft);
    EXPECT_EQ(tracker.HitTest(CPoint(50, 28)), CRectTracker::hitTop);
    EXPECT_EQ(tracker.HitTest(CPoint(81, 50)), CRectTracker::hitRight);
    EXPECT_EQ(tracker.HitTest(CPoint(50, 71)), CRectTracker::hitBottom);
    EXPECT_EQ(tracker.HitTest(CPoint(18, 50)), CRectTracker::hitLeft);
    EXPECT_EQ(tracker.HitTest(CPoint(50, 50)), CRectTracker::hitMiddle);
    EXPECT_EQ(tracker.HitTest(CPoint(83, 50)), CRectTracker::hitNothing);
    EXPECT_EQ(tracker.HitTest(CPoint(50, 26)), CRectTracker::hitNothing);
}

TEST(RectTracker, AHatchedBorderGripsBetweenTheHandles)
{
    EXPECT_EQ(Tracker(SizingFrame).HitTest(CPoint(30, 28)), CRectTracker::hitMiddle);
    EXPECT_EQ(Tracker(CRectTracker::resizeOutside).HitTest(CPoint(30, 28)), CRectTracker::hitNothing);
}

TEST(RectTracker, WithoutHandlesAllOfItIsTheMiddle)
{
    const CRectTracker tracker = Tracker(CRectTracker::solidLine);

    EXPECT_EQ(tracker.HitTest(CPoint(20, 30)), CRectTracker::hitMiddle);
    EXPECT_EQ(tracker.HitTest(CPoint(80, 70)), CRectTracker::hitMiddle) << "the line itself";
    EXPECT_EQ(tracker.HitTest(CPoint(81, 70)), CRectTracker::hitNothing);
}

TEST(RectTracker, ShortSidesHaveNoHandleInTheirMiddle)
{
    const CRectTracker narrow = Tracker(SizingFrame, CRect(20, 20, 30, 80));

    EXPECT_EQ(narrow.HitTest(CPoint(25, 18)), CRectTracker::hitMiddle) << "no top handle";
    EXPECT_EQ(narrow.HitTest(CPoint(18, 50)), CRectTracker::hitLeft);
}

TEST(RectTracker, InnerHandlesShrinkWithTheRectangle)
{
    const CRectTracker tiny = Tracker(CRectTracker::resizeInside, CRect(20, 20, 24, 24));

    EXPECT_EQ(tiny.HitTest(CPoint(20, 20)), CRectTracker::hitTopLeft);
    EXPECT_EQ(tiny.HitTest(CPoint(23, 20)), CRectTracker::hitTopRight);
    EXPECT_EQ(tiny.HitTest(CPoint(23, 23)), CRectTracker::hitBottomRight);
}

TEST(RectTracker, HandlesOfAnInvertedRectangleAreNormalised)
{
    CRectTracker tracker = Tracker(SizingFrame, CRect(80, 30, 20, 70)); // left and right swapped

    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitTopLeft), CRectTracker::hitTopRight);
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitLeft), CRectTracker::hitRight);
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitTop), CRectTracker::hitTop);
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitMiddle), CRectTracker::hitMiddle);
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitNothing), CRectTracker::hitNothing);
    EXPECT_EQ(tracker.HitTest(CPoint(17, 27)), CRectTracker::hitTopRight)
        << "it moves the field `right`";

    tracker.m_rect = CRect(80, 70, 20, 30);
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitTopLeft), CRectTracker::hitBottomRight);
}

TEST(RectTracker, SolidLineRunsOnePixelOutside)
{
    const Look look(Tracker(CRectTracker::solidLine));

    EXPECT_TRUE(look.Is(CRect(19, 29, 81, 30), Black));
    EXPECT_TRUE(look.Is(CRect(19, 70, 81, 71), Black));
    EXPECT_TRUE(look.Is(CRect(19, 29, 20, 71), Black));
    EXPECT_TRUE(look.Is(CRect(80, 29, 81, 71), Black));
    EXPECT_TRUE(look.Is(CRect(20, 30, 80, 70), Grey)) << "the inside stays";
    EXPECT_TRUE(look.Is(CRect(0, 0, 100, 29), Grey));
}

TEST(RectTracker, DottedLineHasGaps)
{
    const Look look(Tracker(CRectTracker::dottedLine));
    const CRect top(19, 29, 81, 30);

    EXPECT_GT(look.Count(top, Black), 10);
    EXPECT_LT(look.Count(top, Black), top.Width());
    EXPECT_TRUE(look.Is(CRect(20, 30, 80, 70), Grey));
}

TEST(RectTracker, SizingFrameIsAHatchedBorderWithEightBlackHandles)
{
    const Look look(Tracker(SizingFrame));

    const CPoint handles[] = {{17, 27}, {79, 27}, {79, 69}, {17, 69},
                              {48, 27}, {79, 48}, {48, 69}, {17, 48}};
    for (const CPoint& corner : handles)
        EXPECT_TRUE(look.Is(CRect(corner, CSize(4, 4)), Black)) << corner.x << "," << corner.y;
    const CRect between(21, 27, 45, 30); // three rows of the border, one diagonal in four pixels
    EXPECT_EQ(look.Count(between, Black), 24 * 3 / 4);
    EXPECT_EQ(look.Count(between, Grey), 0) << "the gaps are white";
    EXPECT_TRUE(look.Is(CRect(21, 31, 79, 69), Grey)) << "the inside stays";
    EXPECT_TRUE(look.Is(CRect(0, 0, 17, 100), Grey));
}

TEST(RectTracker, InnerHatchLeavesTheGroundBetweenItsLines)
{
    const Look look(Tracker(CRectTracker::hatchInside));

    EXPECT_EQ(look.Count(CRect(20, 30, 80, 70), Black), 60 * 40 / 4);
    EXPECT_EQ(look.Count(CRect(20, 30, 80, 70), Grey), 60 * 40 * 3 / 4);
    EXPECT_TRUE(look.Is(CRect(0, 0, 20, 100), Grey));
}

TEST(RectTracker, DrawingLeavesNoObjectsBehindAndTheContextAsItWas)
{
    constexpr UINT all = CRectTracker::dottedLine | SizingFrame | CRectTracker::hatchInside;
    const CRectTracker tracker = Tracker(all);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SetBkColor(Grey);
    tracker.Draw(&dc);
    const int before = GdiCount::All();
    const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);

    for (int round = 0; round < 20; ++round)
        tracker.Draw(&dc);

    EXPECT_EQ(GdiCount::All(), before);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(dc.GetBkColor(), Grey);
}

TEST(RectTracker, AdjustingKeepsTheSmallestSizeAtTheMovedEdges)
{
    CRectTracker tracker = Tracker(SizingFrame);
    tracker.m_sizeMin = CSize(8, 10);

    CRect rect(78, 30, 80, 70);
    tracker.AdjustRect(CRectTracker::hitLeft, &rect);
    EXPECT_EQ(rect, CRect(72, 30, 80, 70));

    rect = CRect(20, 30, 10, 31); // dragged through the opposite corner
    tracker.AdjustRect(CRectTracker::hitBottomRight, &rect);
    EXPECT_EQ(rect, CRect(20, 30, 28, 40));

    rect = CRect(20, 30, 22, 31);
    tracker.AdjustRect(CRectTracker::hitMiddle, &rect);
    EXPECT_EQ(rect, CRect(20, 30, 22, 31)) << "moving keeps the size";
}

// The places of the handles are the class's own affair.
struct COpenTracker : CRectTracker {
    using CRectTracker::GetHandleRect;
};

TEST(RectTracker, HandlesLargerThanAnySideLeaveItsMiddleFree)
{
    COpenTracker tracker;
    tracker.m_rect = Tracker(CRectTracker::resizeInside).m_rect;
    tracker.m_nStyle = CRectTracker::resizeInside;
    for (const int size : {INT_MAX, INT_MAX / 2, 1 << 30}) {
        tracker.m_nHandleSize = size;
        EXPECT_EQ(tracker.GetHandleMask(), 0x0Fu) << size;
        CRect handle;
        tracker.GetHandleRect(CRectTracker::hitTopLeft, &handle);
        EXPECT_EQ(handle.TopLeft(), CPoint(20, 30));
    }
}

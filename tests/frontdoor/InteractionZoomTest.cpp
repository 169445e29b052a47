// The rubber band, the histories of the axes, and the ways back.

#include "InteractionHost.h"

namespace
{

class InteractionZoom : public FrontDoorInteraction
{
protected:
    void ZoomInto(POINT from, POINT to)
    {
        graph->Zoom();
        DragAcross(from, to);
    }
    // What both axes show at two fixed pixels, in the frame that the range leads to.
    std::vector<double> View()
    {
        Frame();
        return {XAt(100), XAt(300), YAt(50), YAt(200)};
    }
    static void ExpectNear(const std::vector<double>& a, const std::vector<double>& b)
    {
        for (std::size_t i = 0; i < a.size(); ++i)
            EXPECT_NEAR(a[i], b[i], 1e-9) << i;
    }
};

} // namespace

TEST_F(InteractionZoom, ABandBecomesTheVisibleRangeOfAllAxesAndIsTold)
{
    AddLine(1, 1, 1);
    ShowAsTold();
    Frame();
    const POINT from = At(2, 8), to = At(6, 3);
    const double x1 = XAt(from.x), x2 = XAt(to.x), y1 = YAt(to.y), y2 = YAt(from.y);
    const RECT inner = Inner();
    const POINT end = At(10, 10); // the pixels of the upper bounds
    graph->Zoom();
    Press(from);
    DragTo(to);
    Frame();
    Release(to); // before the next frame, whose plot may be another
    for (int axis = 0; axis < 2; ++axis) {
        EXPECT_NEAR(XAt(inner.left, axis), x1, (x2 - x1) / 50);
        EXPECT_NEAR(XAt(end.x, axis), x2, (x2 - x1) / 50);
        EXPECT_NEAR(YAt(inner.bottom, axis), y1, (y2 - y1) / 50);
        EXPECT_NEAR(YAt(end.y, axis), y2, (y2 - y1) / 50);
    }
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_ZOOMCHANGE)});
    EXPECT_EQ(ZoomDepth(), 1);
    EXPECT_EQ(Operation(), opZoom) << "the next band may follow at once";
}

TEST_F(InteractionZoom, ABandMayBeDrawnInAnyDirectionAndPastThePlot)
{
    const auto whole = View();
    ZoomInto(At(6, 3), At(2, 8));
    const auto backward = View();
    EXPECT_EQ(ZoomDepth(), 1);
    EXPECT_NE(backward, whole);
    Send(Command::zoomBack);
    ExpectNear(View(), whole);
    Frame();
    const RECT inner = Inner();
    const double left = XAt(inner.left), bottom = YAt(inner.bottom);
    graph->Zoom();
    Press(At(5, 5));
    DragTo({-200, 2000}); // cut at the plot's corner
    Release({-200, 2000});
    EXPECT_EQ(ZoomDepth(), 1);
    EXPECT_NEAR(XAt(inner.left), left, 0.1);
    EXPECT_NEAR(YAt(inner.bottom), bottom, 0.1);
}

TEST_F(InteractionZoom, ABandOf14PixelsEitherWayChangesNothingAndOneOf15Does)
{
    const auto whole = View();
    const POINT from = {At(3, 0).x, At(0, 9).y};
    ZoomInto(from, {from.x + 14, from.y + 150});
    ZoomInto(from, {from.x + 150, from.y + 14});
    ExpectNear(View(), whole);
    EXPECT_EQ(ZoomDepth(), 0);
    EXPECT_TRUE(Heards().empty());
    ZoomInto(from, {from.x + 15, from.y + 15});
    EXPECT_NE(View(), whole);
    EXPECT_EQ(ZoomDepth(), 1);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_ZOOMCHANGE)});
}

TEST_F(InteractionZoom, AClickInTheZoomStateIsNoZoom)
{
    graph->Zoom();
    Click(At(3, 3));
    EXPECT_EQ(ZoomDepth(), 0);
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionZoom, AReleaseBeforeTheNextFrameZoomsAsWell)
{
    for (long bBuffered : {1L, 0L}) {
        graph->SetDoubleBuffer(bBuffered);
        graph->Zoom();
        Frame();
        const POINT from = At(2, 8), to = At(6, 3);
        const int nDepth = ZoomDepth();
        Press(from);
        DragTo(to);
        Release(to);
        EXPECT_EQ(ZoomDepth(), nDepth + 1) << bBuffered;
        Send(Command::zoomBack);
        Frame();
    }
}

TEST_F(InteractionZoom, EachStepBackShowsTheRangeBefore)
{
    const auto whole = View();
    ZoomInto(At(2, 8), At(8, 2));
    const auto once = View();
    ZoomInto(At(4, 6), At(6, 4));
    EXPECT_EQ(ZoomDepth(), 2);
    Heards();
    Clean();
    Send(Command::zoomBack);
    EXPECT_TRUE(IsDirty());
    ExpectNear(View(), once);
    EXPECT_EQ(ZoomDepth(), 1);
    Send(Command::zoomBack);
    ExpectNear(View(), whole);
    EXPECT_EQ(ZoomDepth(), 0);
    const std::vector<Heard> expected{FromGraph(XG_ZOOMCHANGE), FromGraph(XG_ZOOMCHANGE)};
    EXPECT_EQ(Heards(), expected);
}

TEST_F(InteractionZoom, AStepBackWithoutHistoryIsToldAllTheSame)
{
    const auto whole = View();
    Send(Command::zoomBack);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_ZOOMCHANGE)});
    ExpectNear(View(), whole);
}

TEST_F(InteractionZoom, ResetShowsTheWholeRangeTellsNothingAndKeepsTheHistory)
{
    const auto whole = View();
    ZoomInto(At(2, 8), At(8, 2));
    const auto once = View();
    ZoomInto(At(4, 6), At(6, 4));
    Heards();
    for (bool bCommand : {false, true}) {
        bCommand ? void(Send(Command::resetZoom)) : void(graph->ResetZoom());
        ExpectNear(View(), whole);
        EXPECT_EQ(ZoomDepth(), 2);
        EXPECT_TRUE(Heards().empty());
    }
    Send(Command::zoomBack);
    ExpectNear(View(), once); // what was shown before the second zoom
}

TEST_F(InteractionZoom, TheDepthIsThatOfTheFirstXAxisAndZeroWithoutOne)
{
    ZoomInto(At(2, 8), At(8, 2));
    AddLine(1, 1, 1); // an axis without history
    ZoomInto(At(4, 6), At(6, 4));
    EXPECT_EQ(ZoomDepth(), 2);
    graph->DeleteXAxis(0);
    EXPECT_EQ(ZoomDepth(), 1);
    graph->ResetAll();
    EXPECT_EQ(ZoomDepth(), 0);
}

TEST_F(InteractionZoom, NewDataShowTheWholeRangeAndKeepTheHistory)
{
    const auto whole = View();
    ZoomInto(At(2, 8), At(8, 2));
    graph->Autoscale(0, 0, 0);
    ExpectNear(View(), whole);
    EXPECT_EQ(ZoomDepth(), 1);
}

TEST_F(InteractionZoom, AnAxisThatRoundsWidensTheZoomAtTheNextFrame)
{
    XAxis()->SetAutoScale(1);
    Frame();
    const POINT from = At(2.3, 8), to = At(6.7, 3);
    const RECT inner = Inner();
    const double left = XAt(from.x);
    ZoomInto(from, to);
    EXPECT_LT(XAt(inner.left), left - 0.05);
}

TEST_F(InteractionZoom, TheBandIsTintedWithABufferAndAFrameAloneWithoutOne)
{
    for (long bBuffered : {1L, 0L}) {
        graph->SetDoubleBuffer(bBuffered);
        graph->Zoom();
        const Picture before = Shoot();
        const POINT from = At(2, 9), to = At(4, 6), inside = At(3, 8);
        Press(from);
        DragTo({to.x - 30, to.y - 20});
        DragTo(to);
        if (bBuffered != 0)
            ::UpdateWindow(Handle());
        const Picture during(Handle());
        EXPECT_EQ(during.At(inside.x, inside.y) != before.At(inside.x, inside.y), bBuffered != 0);
        int nBorder = 0;
        for (int x = from.x; x < to.x; ++x)
            nBorder += during.At(x, from.y) != before.At(x, from.y) ? 1 : 0;
        EXPECT_GE(nBorder, (to.x - from.x) / 3) << bBuffered;
        // The band of the earlier move is gone.
        int nOld = 0;
        for (int y = from.y + 3; y < to.y - 23; ++y)
            nOld += during.At(to.x - 31, y) != during.At(to.x - 28, y) ? 1 : 0;
        EXPECT_LE(nOld, 4) << bBuffered;
        DragTo({from.x + 5, from.y + 5});
        Release({from.x + 5, from.y + 5});
        EXPECT_EQ(Shoot().CountDifferences(before), 0) << "a dropped band leaves no trace";
    }
}

TEST_F(InteractionZoom, AnEqualSpanOnOneAxisSkipsThatAxisAlone)
{
    // The range of this axis is too fine for two pixels to differ.
    AddLine(1, 0, 1);
    auto fine = YAxis(1);
    std::vector<TDataPoint> points{{0, 1e16}, {10, 1e16 + 2}};
    graph->SetData(nullptr, points.data(), 2, 2, 0, 2, 1);
    ShowAsTold();
    Frame();
    const auto whole = YAt(100, 2);
    ZoomInto(At(3, 6), At(6, 5));
    EXPECT_EQ(ZoomDepth(), 1);
    EXPECT_NEAR(YAt(100, 2), whole, 4);
    Send(Command::zoomBack);
    EXPECT_EQ(ZoomDepth(), 0);
}

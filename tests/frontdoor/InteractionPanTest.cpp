// Panning by drag, wheel and keys.

#include "InteractionHost.h"

namespace
{

class InteractionPan : public FrontDoorInteraction
{
protected:
    // Left, right, bottom and top of what is shown, up to a fixed offset, and the spans.
    double X() { return XAt(200); }
    double Y() { return YAt(150); }
    double SpanX() { return XAt(1200) - XAt(200); } // of 1000 pixels
    double SpanY() { return YAt(-850) - YAt(150); }
    LRESULT Wheel(int zDelta, WORD nKeys = 0)
    {
        return ::SendMessageW(Handle(), WM_MOUSEWHEEL, MAKEWPARAM(nKeys, static_cast<WORD>(zDelta)), 0);
    }
    // The visible span is 10 on both axes at the start.
    static constexpr double Tenth = 1.0;
};

} // namespace

TEST_F(InteractionPan, ADragMovesTheRangesWithTheHand)
{
    graph->Pan();
    const POINT from = At(3, 3), next = At(4, 5), last = At(6, 4);
    const double x = X(), y = Y();
    const double dx = XAt(last.x) - XAt(from.x), dy = YAt(last.y) - YAt(from.y);
    Press(from);
    DragTo(from); // only takes hold
    EXPECT_EQ(X(), x);
    Clean();
    DragTo(next);
    EXPECT_TRUE(IsDirty());
    DragTo(last);
    EXPECT_NEAR(X(), x - dx, 1e-9);
    EXPECT_NEAR(Y(), y - dy, 1e-9);
    Release(last);
    Hover(from);
    EXPECT_NEAR(X(), x - dx, 1e-9) << "nothing moves with the button up";
    Press(next);
    DragTo(next); // a new anchor
    EXPECT_NEAR(X(), x - dx, 1e-9);
    Release(next);
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionPan, MovesOutsideThePlotAreIgnoredAndKeepTheAnchor)
{
    graph->Pan();
    const POINT from = At(3, 3), last = At(5, 3);
    const double x = X(), dx = XAt(last.x) - XAt(from.x);
    Press(from);
    DragTo(from);
    DragTo({from.x, -50});
    DragTo({-50, from.y});
    EXPECT_EQ(X(), x);
    DragTo(last);
    EXPECT_NEAR(X(), x - dx, 1e-9);
    Release(last);
}

TEST_F(InteractionPan, TheRightButtonPansInTheCursorsStateAndKeepsItsAnchor)
{
    Send(Command::cursor);
    const POINT from = At(3, 3), last = At(5, 3);
    const double x = X(), dx = XAt(last.x) - XAt(from.x);
    Mouse(WM_RBUTTONDOWN, from, MK_RBUTTON);
    Mouse(WM_MOUSEMOVE, from, MK_RBUTTON);
    Mouse(WM_MOUSEMOVE, last, MK_RBUTTON);
    EXPECT_NEAR(X(), x - dx, 1e-9);
    Mouse(WM_RBUTTONUP, last);
    Mouse(WM_RBUTTONDOWN, from, MK_RBUTTON);
    Mouse(WM_MOUSEMOVE, from, MK_RBUTTON);
    EXPECT_NEAR(X(), x, 1e-9) << "the second drag jumps by the way between";
    Mouse(WM_RBUTTONUP, from);
}

TEST_F(InteractionPan, TheOtherButtonDoesNotPan)
{
    const double x = X();
    graph->Pan();
    Mouse(WM_RBUTTONDOWN, At(3, 3), MK_RBUTTON);
    Mouse(WM_MOUSEMOVE, At(3, 3), MK_RBUTTON);
    Mouse(WM_MOUSEMOVE, At(5, 3), MK_RBUTTON);
    Mouse(WM_RBUTTONUP, At(5, 3));
    Send(Command::cursor);
    Press(At(3, 3));
    DragTo(At(3, 3));
    DragTo(At(5, 3));
    EXPECT_EQ(X(), x);
    Release(At(5, 3));
}

TEST_F(InteractionPan, AWheelMessageMovesXByATenthWhateverItsSize)
{
    const double x = X(), y = Y();
    EXPECT_EQ(Wheel(120), 1);
    EXPECT_NEAR(X(), x + Tenth, 1e-9);
    Wheel(1200);
    EXPECT_NEAR(X(), x + 2 * Tenth, 1e-9);
    Wheel(0);
    EXPECT_NEAR(X(), x + 3 * Tenth, 1e-9) << "nothing counts as forward";
    Wheel(-1);
    Wheel(-120);
    EXPECT_NEAR(X(), x + Tenth, 1e-9);
    EXPECT_EQ(Y(), y);
}

TEST_F(InteractionPan, WithShiftTheWheelMovesYAndOnlyMovedAxesStopRounding)
{
    AddLine(1, 1, 1);
    for (int axis = 0; axis < 2; ++axis) {
        XAxis(axis)->SetAutoScale(1);
        YAxis(axis)->SetAutoScale(1);
    }
    const double x = X(), y = Y(), second = YAt(150, 1);
    Clean();
    EXPECT_EQ(Wheel(120, MK_SHIFT), 1);
    EXPECT_TRUE(IsDirty());
    EXPECT_NEAR(Y(), y + Tenth, 1e-9);
    EXPECT_NEAR(YAt(150, 1), second + Tenth, 1e-9);
    EXPECT_EQ(X(), x);
    for (int axis = 0; axis < 2; ++axis) {
        long bValue = -1;
        XAxis(axis)->GetAutoScale(&bValue);
        EXPECT_EQ(bValue, 1);
        YAxis(axis)->GetAutoScale(&bValue);
        EXPECT_EQ(bValue, 0);
    }
}

TEST_F(InteractionPan, ArrowsMoveThePictureTheirWay)
{
    const double x = X(), y = Y();
    const struct {
        WPARAM key;
        double dx, dy;
    } rows[] = {{VK_LEFT, 1, 0}, {VK_RIGHT, -1, 0}, {VK_UP, 0, -1}, {VK_DOWN, 0, 1}};
    for (const auto& row : rows) {
        const double before[2] = {X(), Y()};
        Clean();
        Key(row.key);
        EXPECT_TRUE(IsDirty()) << row.key;
        EXPECT_NEAR(X(), before[0] + row.dx * Tenth, 1e-9) << row.key;
        EXPECT_NEAR(Y(), before[1] + row.dy * Tenth, 1e-9) << row.key;
    }
    EXPECT_NEAR(X(), x, 1e-9);
    EXPECT_NEAR(Y(), y, 1e-9);
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionPan, PlusAndMinusNarrowAndWidenByATenthAtEachEnd)
{
    const double spanX = SpanX(), spanY = SpanY();
    Key(VK_ADD);
    EXPECT_NEAR(SpanX(), spanX * 0.8, 1e-9);
    EXPECT_NEAR(SpanY(), spanY * 0.8, 1e-9);
    Key(VK_SUBTRACT);
    EXPECT_NEAR(SpanX(), spanX * 0.96, 1e-9);
    EXPECT_NEAR(SpanY(), spanY * 0.96, 1e-9);
    Clean();
    Key(VK_HOME);
    EXPECT_TRUE(IsDirty());
    EXPECT_NEAR(SpanX(), spanX, 1e-12);
    EXPECT_NEAR(SpanY(), spanY, 1e-12);
}

TEST_F(InteractionPan, InTheCursorsStateArrowsMoveTheCursorByAPixel)
{
    Send(Command::cursor);
    const double x = X();
    const struct {
        WPARAM key;
        long dx, dy;
    } rows[] = {{VK_LEFT, -1, 0}, {VK_RIGHT, 1, 0}, {VK_UP, 0, -1}, {VK_DOWN, 0, 1}};
    for (const auto& row : rows) {
        graph->SetCursor(120, 130);
        Clean();
        Key(row.key);
        EXPECT_TRUE(IsDirty());
        long at[2] = {};
        graph->GetCursor(&at[0], &at[1]);
        EXPECT_EQ(at[0], 120 + row.dx) << row.key;
        EXPECT_EQ(at[1], 130 + row.dy) << row.key;
    }
    EXPECT_EQ(X(), x);
    graph->SetCursor(-2147483647 - 1, 2147483647); // past the last pixel there is no trap
    Key(VK_LEFT);
    Key(VK_DOWN);
    graph->SetCursor(0, 0);
}

TEST_F(InteractionPan, OtherKeysDoNothing)
{
    Clean();
    const double x = X();
    for (WPARAM key : {VK_PRIOR, VK_NEXT, VK_ESCAPE, VK_END, VK_RETURN, VK_OEM_PLUS})
        Key(key);
    ::SendMessageW(Handle(), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_FALSE(IsDirty());
    EXPECT_EQ(X(), x);
}

TEST_F(InteractionPan, WithoutInteractionPanZoomCursorAndMeasureWorkOn)
{
    graph->SetInteraction(0);
    const double x = X();
    graph->Pan();
    Press(At(3, 3));
    DragTo(At(3, 3));
    DragTo(At(5, 3));
    Release(At(5, 3));
    EXPECT_NE(X(), x);
    graph->Zoom();
    DragAcross({120, 50}, {220, 150});
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_ZOOMCHANGE)});
    Send(Command::cursor);
    Hover({150, 100});
    EXPECT_EQ(Heards(), std::vector{FromWindow(XG_CURSORMOVED)});
    graph->Measure();
    const Picture before = Shoot();
    DragAcross({120, 50}, {220, 150});
    EXPECT_GT(Shoot().CountDifferences(before), 20);
    graph->DeleteMeasures();
}

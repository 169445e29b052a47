// Pointers, and the markers of axes under the mouse.

#include "InteractionHost.h"

namespace
{

class InteractionPointers : public FrontDoorInteraction
{
protected:
    // The pointer that the window sets, and whether it says that it has set one.
    LPCWSTR Shape(bool& set)
    {
        ::SetCursor(nullptr);
        set = ::SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()),
                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)) == 1;
        const HCURSOR shown = ::GetCursor();
        for (LPCWSTR shape : {IDC_SIZEALL, IDC_CROSS, IDC_HAND, IDC_SIZENS, IDC_SIZENWSE, IDC_ARROW}) {
            if (shown == ::LoadCursorW(nullptr, shape))
                return shape;
        }
        return nullptr;
    }
    LPCWSTR Shape()
    {
        bool set = false;
        return Shape(set);
    }
    POINT OnNothing() { return At(3, 9); }
};

class InteractionMarkers : public InteractionPointers
{
protected:
    POINT OnYAxis() { return {Middle(RectOf(YAxis().Get())).x, At(0, 5).y}; }
    POINT OnXAxis() { return {At(5, 0).x, Middle(RectOf(XAxis().Get())).y}; }
    void AddYMarker(double fValue)
    {
        YAxis()->SetAxisMarker(MarkerCount(YAxis().Get()), fValue, 0, 0);
        Frame();
    }
    void AddXMarker(double fValue)
    {
        XAxis()->SetAxisMarker(MarkerCount(XAxis().Get()), fValue, 0, 0);
        Frame();
    }
    bool Reacts(POINT at)
    {
        Hover(at);
        return Shape() == IDC_HAND;
    }
};

} // namespace

TEST_F(InteractionPointers, EachStateHasItsPointer)
{
    const struct {
        WPARAM entry;
        LPCWSTR shape;
    } rows[] = {{Command::pan, IDC_SIZEALL}, {Command::zoom, IDC_CROSS}, {Command::cursor, IDC_CROSS}};
    for (const auto& row : rows) {
        Send(row.entry);
        bool set = false;
        EXPECT_EQ(Shape(set), row.shape) << row.entry;
        EXPECT_TRUE(set) << row.entry;
    }
    for (WPARAM entry : {Command::noOp, Command::edit, Command::measure}) {
        Send(entry);
        Hover(OnNothing());
        const LPCWSTR shape = Shape();
        EXPECT_TRUE(shape == IDC_ARROW || shape == nullptr) << entry;
    }
}

TEST_F(InteractionPointers, AHandTellsInTheNormalStateThatSomethingReacts)
{
    AddLabel({60, 20, 110, 50});
    const POINT places[] = {At(5, 5),
                            {At(5, 0).x, Middle(RectOf(XAxis().Get())).y},
                            {80, 30},
                            {Middle(RectOf(YAxis().Get())).x, At(0, 5).y}};
    for (POINT at : places) {
        Hover(at);
        EXPECT_EQ(Shape(), IDC_HAND) << at.x << ", " << at.y;
    }
    Hover(At(8, 3));
    EXPECT_NE(Shape(), IDC_HAND);
    Hover(At(5, 5));
    Send(Command::measure);
    EXPECT_NE(Shape(), IDC_HAND) << "only in the normal state";
    Send(Command::noOp);
    graph->SetInteraction(0);
    Hover(At(5, 5));
    EXPECT_NE(Shape(), IDC_HAND);
}

TEST_F(InteractionPointers, InTheEditStateTheSelectedCurveShowsThatItMovesUpAndDown)
{
    Send(Command::edit);
    Hover(At(5, 5));
    EXPECT_EQ(Shape(), IDC_SIZENS);
    Hover(OnNothing());
    EXPECT_NE(Shape(), IDC_SIZENS);
}

TEST_F(InteractionPointers, OverATrackersHandleItsPointerComesFirst)
{
    auto label = AddLabel({80, 40, 180, 110});
    Click({100, 60});
    ::SetCursorPos(79, 39);
    EXPECT_EQ(Shape(), IDC_SIZENWSE);
    ::SetCursorPos(100, 60);
    EXPECT_EQ(Shape(), IDC_SIZEALL);
    ::SetCursorPos(300, 200);
    EXPECT_NE(Shape(), IDC_SIZEALL);
}

TEST_F(InteractionMarkers, AClickBesideASelectedAxisSetsAMarkerOnIt)
{
    Click(OnYAxis());
    EXPECT_EQ(MarkerCount(YAxis().Get()), 0) << "a click on the axis itself sets none";
    Click(OnYAxis());
    EXPECT_EQ(MarkerCount(YAxis().Get()), 0);
    Click(At(3, 7));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1);
    EXPECT_FALSE(IsSelected(YAxis().Get()));
    Click(At(3, 9));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1) << "the axis is no longer selected";
    EXPECT_TRUE(Reacts({At(7, 0).x, At(0, 7).y})) << "the marker is where the click was";
    Click(OnXAxis());
    Click(At(8, 3));
    EXPECT_EQ(MarkerCount(XAxis().Get()), 1);
    EXPECT_TRUE(Reacts(At(8, 1)));
}

TEST_F(InteractionMarkers, OtherStatesSetNoMarkers)
{
    graph->SelectYAxis(0);
    for (WPARAM entry : {Command::edit, Command::cursor, Command::zoom}) {
        graph->SelectYAxis(0);
        Send(entry);
        Click(At(3, 9));
        EXPECT_EQ(MarkerCount(YAxis().Get()), 0) << entry;
    }
}

TEST_F(InteractionMarkers, TheBandIsTenPixelsToEachSideInsideThePlot)
{
    AddYMarker(8);
    const POINT on = At(2, 8);
    EXPECT_TRUE(Reacts({on.x, on.y - 9}));
    EXPECT_TRUE(Reacts({on.x, on.y + 8}));
    EXPECT_FALSE(Reacts({on.x, on.y - 12}));
    EXPECT_FALSE(Reacts({on.x, on.y + 12}));
    AddXMarker(2);
    const POINT at = At(2, 6);
    EXPECT_TRUE(Reacts({at.x - 9, at.y}));
    EXPECT_TRUE(Reacts({at.x + 8, at.y}));
    EXPECT_FALSE(Reacts({at.x - 12, at.y}));
    EXPECT_FALSE(Reacts({at.x + 12, at.y}));
    const RECT inner = Inner();
    EXPECT_FALSE(Reacts({inner.right + 3, on.y}));
}

TEST_F(InteractionMarkers, TheRightButtonRemovesTheMarkerUnderIt)
{
    AddYMarker(8);
    AddYMarker(4);
    AddXMarker(6);
    RightClick(At(2, 8));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1);
    EXPECT_FALSE(Reacts(At(2, 8)));
    EXPECT_TRUE(Reacts(At(2, 4)));
    RightClick(At(6, 2));
    EXPECT_EQ(MarkerCount(XAxis().Get()), 0);
    RightClick(At(2, 9));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1);
    EXPECT_TRUE(Reacts(At(2, 4)));
    graph->Pan();
    RightClick(At(2, 4));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1) << "only in the normal state";
}

TEST_F(InteractionMarkers, ADragMovesTheMarkerUntilTheRelease)
{
    AddYMarker(8);
    Hover(At(2, 8));
    Press(At(2, 8));
    DragTo(At(2, 8));
    DragTo(At(2, 4)); // leaves the band where it was
    Clean();
    DragTo(At(2, 3));
    EXPECT_TRUE(IsDirty());
    Release(At(2, 3));
    EXPECT_FALSE(Reacts(At(2, 8)));
    EXPECT_TRUE(Reacts(At(2, 3)));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1);
    Hover(At(2, 6));
    EXPECT_TRUE(Reacts(At(2, 3))) << "the release has let it go";
}

TEST_F(InteractionMarkers, AYMarkerDragMovesTheMarkerOfThatIndexOnAllYAxes)
{
    AddLine(1, 0, 1);
    ShowAsTold();
    AddYMarker(9);
    YAxis(1)->SetAxisMarker(0, 1, 0, 0);
    Frame();
    Press(At(2, 9));
    DragTo(At(2, 9));
    DragTo(At(2, 6));
    Release(At(2, 6));
    EXPECT_TRUE(Reacts(At(2, 6)));
    EXPECT_FALSE(Reacts(At(6, 1))) << "the second axis's marker has come along";
}

TEST_F(InteractionMarkers, WithoutInteractionNoMarkerMovesOrGoes)
{
    AddYMarker(8);
    graph->SetInteraction(0);
    Press(At(2, 8));
    DragTo(At(2, 8));
    DragTo(At(2, 4));
    Release(At(2, 4));
    RightClick(At(2, 8));
    EXPECT_EQ(MarkerCount(YAxis().Get()), 1);
    graph->SetInteraction(1);
    EXPECT_TRUE(Reacts(At(2, 8)));
}

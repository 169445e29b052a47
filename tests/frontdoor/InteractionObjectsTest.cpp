// Labels under the mouse: selection, sizing frame, in-place edit, the Delete key, and hosts that
// pull something away while one of our loops runs.

#include "InteractionHost.h"

namespace
{

class InteractionObjects : public FrontDoorInteraction
{
protected:
    static constexpr RECT Place = {80, 40, 180, 110};
    static constexpr POINT Inside = {100, 60};
    static constexpr POINT Outside = {250, 150};
    static constexpr COLORREF Fill = 0x30C010;

    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        graph->ResetAll();
        AddLine(0);
        ShowAsTold();
        Curve(0)->SetVisible(0);
        label = AddLabel(Place);
        label->SetColor(Fill);
        Frame();
    }
    bool IsShown() { return Shoot().Count(Fill) > 1000; }
    // Presses at `from` with a drag to `to` waiting in the queue: the frame's own loop takes it.
    void Drag(POINT from, POINT to)
    {
        ::PostMessageW(Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
        ::PostMessageW(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
        Press(from);
        Hover(to);
    }
    void PostKey(WPARAM nKey)
    {
        ::PostMessageW(Handle(), WM_KEYDOWN, nKey, 0);
        HostWindow::Pump();
    }
    static void ExpectRect(const RECT& found, const RECT& expected)
    {
        EXPECT_EQ(found.left, expected.left);
        EXPECT_EQ(found.top, expected.top);
        EXPECT_EQ(found.right, expected.right);
        EXPECT_EQ(found.bottom, expected.bottom);
    }
    // Runs the action from the next message loop, whoever runs it.
    void OnceInALoop(std::function<void()> action)
    {
        Pending() = std::move(action);
        ::SetTimer(nullptr, 0, 1, [](HWND, UINT, UINT_PTR id, DWORD) {
            ::KillTimer(nullptr, id);
            std::exchange(Pending(), nullptr)();
        });
    }
    static std::function<void()>& Pending()
    {
        static std::function<void()> action;
        return action;
    }

    Holder<ISGraphLabel> label;
};

} // namespace

TEST_F(InteractionObjects, AClickSelectsAndFramesAndOneElsewhereLetsGo)
{
    const Picture before = Shoot();
    Click(Inside);
    EXPECT_TRUE(IsSelected(label.Get()));
    EXPECT_EQ(Shoot().At(79, 39), 0u) << "a handle at the corner";
    Click(Outside);
    EXPECT_FALSE(IsSelected(label.Get()));
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
    EXPECT_TRUE(Heards().empty()) << "objects notify nobody";
}

TEST_F(InteractionObjects, AHiddenObjectIsNeverSelected)
{
    label->SetVisible(0);
    Click(Inside);
    EXPECT_FALSE(IsSelected(label.Get()));
}

TEST_F(InteractionObjects, AnObjectKeepsClicksFromTheCurvesBelow)
{
    Curve(0)->SetVisible(1);
    Frame();
    const POINT at = At(5, 5);
    Click(at);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVECLICK)});
    auto above = AddLabel({at.x - 30, at.y - 30, at.x + 30, at.y + 30});
    Click(at);
    EXPECT_TRUE(Heards().empty());
    EXPECT_TRUE(IsSelected(above.Get()));
}

TEST_F(InteractionObjects, OnlyOneObjectIsFramedAtATime)
{
    auto second = AddLabel({200, 40, 260, 110});
    Click(Inside);
    Click({220, 60});
    EXPECT_TRUE(IsSelected(second.Get()));
    const Picture picture = Shoot();
    EXPECT_NE(picture.At(79, 39), 0u);
    EXPECT_EQ(picture.At(199, 39), 0u);
}

TEST_F(InteractionObjects, TheFrameMovesAndSizesTheObject)
{
    Click(Inside);
    Drag(Inside, {Inside.x + 25, Inside.y + 12});
    ExpectRect(RectOf(label.Get()), {105, 52, 205, 122});
    EXPECT_EQ(::GetCapture(), nullptr);
    Drag({206, 123}, {226, 133}); // the corner's handle, outside the box
    ExpectRect(RectOf(label.Get()), {105, 52, 225, 132});
}

TEST_F(InteractionObjects, EscapeLeavesTheObjectWhereItWas)
{
    Click(Inside);
    ::PostMessageW(Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(140, 90));
    ::PostMessageW(Handle(), WM_KEYDOWN, VK_ESCAPE, 0);
    Press(Inside);
    ExpectRect(RectOf(label.Get()), Place);
    Hover(Outside);
}

TEST_F(InteractionObjects, AnObjectThatIsNotFramedIsNotDragged)
{
    Drag(Inside, {150, 90});
    HostWindow::Pump();
    ExpectRect(RectOf(label.Get()), Place);
}

TEST_F(InteractionObjects, ADoubleClickEditsInPlaceAndAClickElsewhereTakesTheText)
{
    DoubleClick(Inside);
    const HWND hEdit = ::GetWindow(Handle(), GW_CHILD);
    ASSERT_NE(hEdit, nullptr);
    EXPECT_EQ(::GetFocus(), hEdit);
    ::SetWindowTextW(hEdit, L"typed");
    Click(Outside);
    EXPECT_FALSE(::IsWindow(hEdit));
    Text text;
    label->GetText(text.Out());
    EXPECT_EQ(text.Str(), L"typed");
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionObjects, DeleteInAHostsPlainLoopRemovesTheFramedObjectThatWasPressed)
{
    PostKey(VK_DELETE);
    EXPECT_TRUE(IsShown()) << "not framed";
    Click(Inside);
    PostKey(VK_RETURN);
    EXPECT_TRUE(IsShown());
    label.Release();
    PostKey(VK_DELETE);
    EXPECT_FALSE(IsShown());
    PostKey(VK_DELETE);
    Click(Inside);
}

TEST_F(InteractionObjects, DeleteWorksOnTheKeysWayUpToo)
{
    Click(Inside);
    label.Release();
    ::PostMessageW(Handle(), WM_KEYUP, VK_DELETE, 0);
    HostWindow::Pump();
    EXPECT_FALSE(IsShown());
}

TEST_F(InteractionObjects, DeleteSparesTheFrameThatWasNotPressedLast)
{
    Click(Inside);
    Press(Outside); // nothing is pressed now, and the frame stays until the release
    PostKey(VK_DELETE);
    EXPECT_TRUE(IsShown());
    Release(Outside);
}

TEST_F(InteractionObjects, TheCursorsBoxIsNotDeleted)
{
    Curve(0)->SetVisible(1);
    Send(Command::cursor);
    Frame();
    Hover(Outside);
    Send(Command::edit); // its box stays
    const RECT inner = Inner();
    const POINT inBox = {inner.left + 30, inner.top + 30};
    Hover(inBox); // in this state a move selects
    Drag(inBox, inBox);
    const Picture before = Shoot();
    PostKey(VK_DELETE);
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
    Send(Command::noOp);
    Frame();
}

TEST_F(InteractionObjects, ARightClickOnThePressedObjectShowsItsMenuAndTellsNothing)
{
    Click(Inside);
    bool bInMenu = false;
    OnceInALoop([&] {
        bInMenu = ::IsWindowVisible(::FindWindowW(L"#32768", nullptr)) != FALSE;
        ::EndMenu();
    });
    RightClick(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    EXPECT_TRUE(bInMenu);
    EXPECT_TRUE(Heards().empty());
    RightClick(Outside);
    EXPECT_EQ(Heards(), std::vector{FromWindow(XG_RBUTTONUP)});
}

TEST_F(InteractionObjects, AHostMayResetEverythingWhileTheMenuIsOpen)
{
    Click(Inside);
    OnceInALoop([&] {
        label.Release();
        graph->ResetAll();
        ::EndMenu();
    });
    RightClick(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    EXPECT_FALSE(IsShown());
    Click(Inside);
    PostKey(VK_DELETE);
}

TEST_F(InteractionObjects, AHostMayResetEverythingWhileTheFrameIsDragged)
{
    Click(Inside);
    OnceInALoop([&] {
        label.Release();
        graph->ResetAll();
        AddLabel({10, 10, 60, 60}); // takes the freed memory
        ::PostMessageW(Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(150, 90));
        ::PostMessageW(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(150, 90));
    });
    Press(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    Hover(Inside);
    EXPECT_FALSE(IsShown());
}

TEST_F(InteractionObjects, AnObjectThatTakesTheMemoryOfTheDraggedOneStaysWhereItIs)
{
    Click(Inside);
    constexpr RECT place = {10, 10, 60, 60};
    std::vector<Holder<ISGraphLabel>> others;
    OnceInALoop([&] {
        label.Release();
        graph->ResetAll();
        for (int i = 0; i < 20; ++i)
            others.push_back(AddLabel(place));
        ::PostMessageW(Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(150, 90));
        ::PostMessageW(Handle(), WM_LBUTTONUP, 0, MAKELPARAM(150, 90));
    });
    Press(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    for (const auto& other : others)
        ExpectRect(RectOf(other.Get()), place);
}

TEST_F(InteractionObjects, AHostMayDestroyTheWindowWhileTheFrameIsDragged)
{
    Click(Inside);
    OnceInALoop([&] { host.Destroy(); });
    Press(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    EXPECT_EQ(Handle(), nullptr);
    EXPECT_EQ(graph->Zoom(), S_OK);
    EXPECT_EQ(graph->ResetZoom(), S_OK);
}

TEST_F(InteractionObjects, AHostMayReleaseTheGraphAndItsWindowWhileTheFrameIsDragged)
{
    Click(Inside);
    OnceInALoop([&] {
        label.Release();
        graph.Release();
        host.Destroy();
    });
    Press(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
}

TEST_F(InteractionObjects, AHostMayDestroyTheWindowWhileTheMenuIsOpen)
{
    Click(Inside);
    OnceInALoop([&] {
        host.Destroy();
        ::EndMenu();
    });
    RightClick(Inside);
    EXPECT_TRUE(HostWindow::PumpUntil([] { return !Pending(); }));
    EXPECT_EQ(Handle(), nullptr);
}

TEST_F(InteractionObjects, AnOpenEditorGoesWithTheWindowAndTheTextStays)
{
    DoubleClick(Inside);
    host.Destroy();
    Text text;
    label->GetText(text.Out());
    EXPECT_EQ(text.Str(), L"label");
}

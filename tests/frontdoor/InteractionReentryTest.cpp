// Hosts that act while the graph is in the middle of a message: the system calls them at once
// that they lose the focus, and they may do anything then.

#include "InteractionHost.h"

namespace
{

class InteractionReentry : public FrontDoorInteraction
{
protected:
    ~InteractionReentry() override { Hook() = {}; }

    // Runs the action once when the host's window gets the message.
    void OnMessage(UINT message, std::function<void()> action)
    {
        Hook() = {message, std::move(action), {}};
        Hook().before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(host.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    }
    static bool HasRun() { return !Hook().action; }

private:
    struct THook {
        UINT message = 0;
        std::function<void()> action;
        WNDPROC before = nullptr;
    };
    static THook& Hook()
    {
        static THook hook;
        return hook;
    }
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const WNDPROC before = Hook().before;
        if (message == Hook().message && Hook().action)
            std::exchange(Hook().action, nullptr)();
        return ::CallWindowProcW(before, hWnd, message, wParam, lParam);
    }
};

} // namespace

TEST_F(InteractionReentry, AHostMayDestroyTheWindowWhenAPressTakesTheFocus)
{
    ::SetActiveWindow(host.m_hWnd);
    ::SetFocus(host.m_hWnd);
    OnMessage(WM_KILLFOCUS, [&] { host.Destroy(); });
    Press({100, 100});
    EXPECT_TRUE(HasRun());
    EXPECT_EQ(Handle(), nullptr);
}

TEST_F(InteractionReentry, AHostMayResetEverythingWhenAnEditorTakesTheFocus)
{
    auto label = AddLabel({80, 40, 180, 110});
    Click({100, 60});
    ::SetFocus(host.m_hWnd);
    OnMessage(WM_KILLFOCUS, [&] {
        label.Release();
        graph->ResetAll();
    });
    Mouse(WM_LBUTTONDBLCLK, {100, 60}, MK_LBUTTON);
    EXPECT_TRUE(HasRun());
    EXPECT_EQ(::GetWindow(Handle(), GW_CHILD), nullptr) << "the editor has gone with its label";
    Frame();
    Click({100, 60});
}

TEST_F(InteractionReentry, AnObjectThatTakesTheMemoryOfAnEditedOneIsNotFramed)
{
    auto label = AddLabel({80, 40, 180, 110});
    Click({100, 60});
    ::SetFocus(host.m_hWnd);
    OnMessage(WM_KILLFOCUS, [&] {
        label.Release();
        graph->ResetAll();
        for (int i = 0; i < 20; ++i)
            AddLabel({200, 100, 260, 160}); // away from the mouse
    });
    Mouse(WM_LBUTTONDBLCLK, {100, 60}, MK_LBUTTON);
    EXPECT_TRUE(HasRun());
    const Picture picture = Shoot();
    EXPECT_NE(picture.At(199, 99), 0u) << "a handle at the corner";
    EXPECT_EQ(picture.At(200, 100), 0u) << "the border";
}

TEST_F(InteractionReentry, AHostMayDestroyTheWindowWhenAnEditorTakesTheFocus)
{
    auto label = AddLabel({80, 40, 180, 110});
    Click({100, 60});
    ::SetFocus(host.m_hWnd);
    OnMessage(WM_KILLFOCUS, [&] { host.Destroy(); });
    Mouse(WM_LBUTTONDBLCLK, {100, 60}, MK_LBUTTON);
    EXPECT_TRUE(HasRun());
    EXPECT_EQ(Handle(), nullptr);
}

TEST_F(InteractionReentry, ASecondGraphIsNotDisturbedByADragOnTheFirst)
{
    Send(Command::edit);
    Hover(At(5, 5));
    Press(At(5, 5));
    DragTo(At(5, 6));
    Heards();
    // The other one has no curve of that index, and sees the same drag.
    auto other = Server::Shared().Make<SGraph, ISGraph>();
    RECT rect = {400, 0, 800, 300};
    ASSERT_EQ(other->Create(nullptr, &rect, WireHandle(host.m_hWnd), 8), S_OK);
    wireHWND hWnd = nullptr;
    other->GetHandle(&hWnd);
    other->Edit();
    ::SendMessageW(reinterpret_cast<HWND>(hWnd), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, 100));
    EXPECT_TRUE(Heards().empty());
    DragTo(At(5, 7));
    EXPECT_FALSE(Heards().empty());
    Release(At(5, 7));
}

// Dialogs whose host takes windows away, quits, or calls in from another thread.

#include <gtest/gtest.h>

#include <thread>

#include "framework/windowing/Exceptions.h"
#include "windowing/TestDialog.h"

using namespace TestDialogs;

namespace
{

class DialogHosts : public TestDialogs::CHostTest
{
};

} // namespace

TEST_F(DialogHosts, OwnerDestroyedMeanwhileEndsIt)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] { ::DestroyWindow(m_host.Handle()); }});
    EXPECT_EQ(dialog.DoModal(), IDABORT);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(DialogHosts, WindowDestroyedMeanwhileEndsItAndFreesTheOwner)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] { ::DestroyWindow(dialog); }});
    EXPECT_EQ(dialog.DoModal(), IDABORT);
}

TEST_F(DialogHosts, OwnerDestroyedUnderANestedDialogEndsBoth)
{
    CTestDialog outer(Values);
    CTestDialog inner(Values);
    const CModalSteps steps(
        {[&] { EXPECT_EQ(inner.DoModal(), IDABORT); }, [&] { ::DestroyWindow(m_host.Handle()); }});
    EXPECT_EQ(outer.DoModal(), IDABORT);
    EXPECT_EQ(inner.m_hWnd, nullptr);
}

TEST_F(DialogHosts, QuitEndsItAndReachesTheLoopsOutside)
{
    CTestDialog outer(Values);
    CTestDialog inner(Values);
    const CModalSteps steps(
        {[&] { EXPECT_EQ(inner.DoModal(), IDABORT); }, [] { ::PostQuitMessage(7); }});
    EXPECT_EQ(outer.DoModal(), IDABORT);
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(DialogHosts, ExceptionThroughTheLoopLeavesNothingBehind)
{
    CTestDialog dialog(Values);
    dialog.m_onPreTranslate = [](MSG* message) -> BOOL {
        if (message->message == WM_KEYDOWN)
            AfxThrowUserException();
        return FALSE;
    };
    const CModalSteps steps({[&] { dialog.Press(VK_TAB); }});
    EXPECT_THROW(dialog.DoModal(), CUserException*);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()));
}

TEST_F(DialogHosts, CallFromAnotherThreadWakesTheLoop)
{
    CTestDialog dialog(Values);
    std::thread other;
    const CModalSteps steps({[&] {
        const HWND window = dialog;
        other = std::thread([window] {
            ::Sleep(50); // no message of its own queue wakes the dialog by then
            ::SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
    }});
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    other.join();
}

TEST_F(DialogHosts, ObjectDestroyedWithItsWindowOpenClosesIt)
{
    HWND window = nullptr;
    {
        CTestDialog dialog;
        ASSERT_TRUE(dialog.Create(Values, m_host));
        window = dialog;
    }
    EXPECT_FALSE(::IsWindow(window));
}

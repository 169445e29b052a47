#pragma once
// How the system reaches CWnd: the window procedure, and the hook that attaches a window's
// object at the moment of its creation, before its first message.

#include <windows.h>

class CWnd;

struct AFX_WND_ENTRY {
    // Every exception ends here: none may cross the system's frames.
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    [[nodiscard]] static bool HasOurProcedure(HWND hWnd) noexcept;

    // Parts an object from its window, on any thread, under CWindowOwnership.
    static HWND Release(CWnd& wnd) noexcept;

    // The next window that this thread creates becomes pWnd's.
    static void HookCreation(CWnd* pWnd);
    // False if no window was created in between.
    [[nodiscard]] static bool UnhookCreation() noexcept;

private:
    static LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam) noexcept;
    static void AdoptWindow(HWND hWnd, CWnd* pWnd);
    static LRESULT Deliver(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

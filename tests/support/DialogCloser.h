#pragma once
// Cancels the dialogs that calls on this thread open, for tests about what comes before and
// after them.

#include <windows.h>

#include <iterator>
#include <string_view>

class DialogCloser
{
public:
    DialogCloser()
    {
        Current() = this;
        m_hHook = ::SetWindowsHookExW(WH_CBT, &DialogCloser::Hook, nullptr, ::GetCurrentThreadId());
    }
    DialogCloser(const DialogCloser&) = delete;
    DialogCloser& operator=(const DialogCloser&) = delete;
    ~DialogCloser()
    {
        ::UnhookWindowsHookEx(m_hHook);
        Current() = nullptr;
    }

    int m_nClosed = 0;

private:
    static DialogCloser*& Current()
    {
        static DialogCloser* pCurrent = nullptr;
        return pCurrent;
    }

    // A dialog is complete when it is activated; it closes as soon as its loop runs.
    static LRESULT CALLBACK Hook(int nCode, WPARAM wParam, LPARAM lParam)
    {
        const HWND hWnd = reinterpret_cast<HWND>(wParam);
        WCHAR className[16] = {};
        if (nCode == HCBT_ACTIVATE &&
            ::GetClassNameW(hWnd, className, static_cast<int>(std::size(className))) > 0 &&
            className == std::wstring_view(L"#32770")) {
            ++Current()->m_nClosed;
            ::PostMessageW(hWnd, WM_COMMAND, IDCANCEL, 0);
        }
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    HHOOK m_hHook;
};

#pragma once
// A top-level window of a host that keeps the notifications it gets, and the host's message loop.
// A handler sees each message first and returns whether it is done with it.

#include <windows.h>

#include <functional>
#include <utility>
#include <vector>

class HostWindow
{
public:
    struct Notification {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    using Handler = std::function<bool(HWND, UINT, WPARAM, LPARAM)>;

    explicit HostWindow(int nWidth = 900, int nHeight = 700, Handler handler = {},
                        DWORD nStyle = WS_POPUP | WS_VISIBLE)
        : m_handler(std::move(handler))
    {
        WNDCLASSW wndclass = {};
        wndclass.lpfnWndProc = &HostWindow::Procedure;
        wndclass.hInstance = ::GetModuleHandleW(nullptr);
        wndclass.lpszClassName = L"VantoplexTestHost";
        ::RegisterClassW(&wndclass); // fails harmlessly the second time
        m_hWnd = ::CreateWindowExW(0, wndclass.lpszClassName, L"Host", nStyle, 0, 0, nWidth, nHeight,
                                   nullptr, nullptr, wndclass.hInstance, this);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow()
    {
        m_handler = {};
        Destroy();
    }

    void Destroy()
    {
        if (m_hWnd)
            ::DestroyWindow(std::exchange(m_hWnd, nullptr));
    }

    // Handles every message that waits.
    static void Pump()
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    // Runs the message loop until the condition holds; false if it never does.
    static bool PumpUntil(const std::function<bool()>& condition, DWORD nMilliseconds = 20000)
    {
        const DWORD nStart = ::GetTickCount();
        while (Pump(), !condition()) {
            if (::GetTickCount() - nStart > nMilliseconds)
                return false;
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        }
        return true;
    }

    HWND m_hWnd = nullptr;
    std::vector<Notification> m_notifications; // of WM_USER and above

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE) {
            ::SetWindowLongPtrW(hWnd, GWLP_USERDATA,
                                reinterpret_cast<LONG_PTR>(
                                    reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams));
        }
        auto* pHost = reinterpret_cast<HostWindow*>(::GetWindowLongPtrW(hWnd, GWLP_USERDATA));
        if (pHost && pHost->m_handler && pHost->m_handler(hWnd, message, wParam, lParam))
            return 0;
        if (pHost && message >= WM_USER && message < 0xC000)
            pHost->m_notifications.push_back({message, wParam, lParam});
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    }

    Handler m_handler;
};

#pragma once
// Windows for the framework's tests.

#include "framework/windowing/Window.h"
#include "support/HostWindow.h"

// A host's plain window, also as a CWnd, which is valid for the current call.
class CHostWindow : public HostWindow
{
public:
    explicit CHostWindow(Handler handler = {})
        : HostWindow(400, 300, std::move(handler), WS_OVERLAPPEDWINDOW | WS_VISIBLE)
    {
    }

    [[nodiscard]] HWND Handle() const { return m_hWnd; }
    operator CWnd*() const { return CWnd::FromHandle(m_hWnd); }
};

#include "Dialogs.h"

#include <cwchar>
#include <utility>

Dialogs* Dialogs::s_pCurrent = nullptr;

Dialogs::Dialogs() : m_hHook(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId()))
{
    s_pCurrent = this;
}

Dialogs::~Dialogs()
{
    ::UnhookWindowsHookEx(m_hHook);
    s_pCurrent = nullptr;
}

std::vector<std::string> Dialogs::TakeTexts()
{
    return std::exchange(m_texts, {});
}

LRESULT Dialogs::OnHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    constexpr int textOfBox = 0xFFFF;
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    wchar_t name[16] = {};
    if ((nCode == HCBT_ACTIVATE || nCode == HCBT_DESTROYWND) && ::GetClassNameW(hWnd, name, 16) > 0 &&
        std::wcscmp(name, L"#32770") == 0) {
        const bool bBox = ::GetDlgItem(hWnd, textOfBox) != nullptr;
        if (nCode == HCBT_ACTIVATE) {
            ::PostMessageW(hWnd, WM_COMMAND, bBox ? IDOK : IDCANCEL, 0);
        } else if (bBox) { // its text is there by now for sure
            char text[256] = {};
            ::GetDlgItemTextA(hWnd, textOfBox, text, sizeof text);
            s_pCurrent->m_texts.emplace_back(text);
        }
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

#pragma once
// Answers the message boxes that calls on this thread open, and keeps their texts.

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

class MessageBoxes
{
public:
    MessageBoxes()
    {
        Current() = this;
        m_hHook = ::SetWindowsHookExW(WH_CBT, &MessageBoxes::Hook, nullptr, ::GetCurrentThreadId());
    }
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    ~MessageBoxes()
    {
        ::UnhookWindowsHookEx(m_hHook);
        Current() = nullptr;
    }

    std::vector<std::wstring> m_texts;

    // What the calls since the last question have shown.
    [[nodiscard]] std::vector<std::wstring> Take() { return std::exchange(m_texts, {}); }

private:
    static MessageBoxes*& Current()
    {
        static MessageBoxes* pCurrent = nullptr;
        return pCurrent;
    }

    // A box is complete when it is activated; it closes as soon as its loop runs.
    static LRESULT CALLBACK Hook(int nCode, WPARAM wParam, LPARAM lParam)
    {
        const HWND hWnd = reinterpret_cast<HWND>(wParam);
        wchar_t className[8] = {};
        if (nCode == HCBT_ACTIVATE && ::GetClassNameW(hWnd, className, 8) > 0 &&
            std::wstring(className) == L"#32770" && ::GetDlgItem(hWnd, TextId)) {
            wchar_t text[256] = {};
            ::GetDlgItemTextW(hWnd, TextId, text, 256);
            Current()->m_texts.emplace_back(text);
            ::PostMessageW(hWnd, WM_COMMAND, IDOK, 0);
        }
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    static constexpr int TextId = 0xFFFF; // of the text of every message box
    HHOOK m_hHook;
};

#pragma once
// What a person does to the controls of a dialog and sees in them.

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace DialogHands
{

inline std::wstring TextOf(HWND hWnd)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(hWnd)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(hWnd, text.data(), static_cast<int>(text.size()))));
    return text;
}
inline std::wstring TextOf(HWND hDialog, int nID)
{
    return TextOf(::GetDlgItem(hDialog, nID));
}
inline bool IsEnabled(HWND hDialog, int nID)
{
    return ::IsWindowEnabled(::GetDlgItem(hDialog, nID)) != FALSE;
}
inline bool IsChecked(HWND hDialog, int nID)
{
    return ::SendDlgItemMessageW(hDialog, nID, BM_GETCHECK, 0, 0) == BST_CHECKED;
}
inline int RowOf(HWND hDialog, int nID)
{
    return static_cast<int>(::SendDlgItemMessageW(hDialog, nID, CB_GETCURSEL, 0, 0));
}
// The texts of a drop-down list.
inline std::vector<std::wstring> RowsOf(HWND hDialog, int nID)
{
    std::vector<std::wstring> rows;
    const HWND hList = ::GetDlgItem(hDialog, nID);
    const auto nCount = static_cast<int>(::SendMessageW(hList, CB_GETCOUNT, 0, 0));
    for (int nRow = 0; nRow < nCount; ++nRow) {
        wchar_t text[256] = {};
        ::SendMessageW(hList, CB_GETLBTEXT, static_cast<WPARAM>(nRow), reinterpret_cast<LPARAM>(text));
        rows.emplace_back(text);
    }
    return rows;
}

// Press and release of the left button in the middle of the window.
inline void Click(HWND hWnd)
{
    RECT rect;
    ::GetClientRect(hWnd, &rect);
    const LPARAM at = MAKELPARAM(rect.right / 2, rect.bottom / 2);
    ::SendMessageW(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageW(hWnd, WM_LBUTTONUP, 0, at);
}
inline void Click(HWND hDialog, int nID)
{
    Click(::GetDlgItem(hDialog, nID));
}
// A key through the queue, as the keyboard's, into the window that has the focus.
inline void PostKey(HWND hWnd, WPARAM nKey)
{
    ::PostMessageW(hWnd, WM_KEYDOWN, nKey, 1);
    ::PostMessageW(hWnd, WM_KEYUP, nKey, static_cast<LPARAM>(0xC0000001));
}
inline void PostKey(WPARAM nKey)
{
    PostKey(::GetFocus(), nKey);
}
// Puts a text in an edit in the place of what stands there, at one stroke as from the
// clipboard.
inline void Paste(HWND hDialog, int nID, const wchar_t* pszText)
{
    const HWND hEdit = ::GetDlgItem(hDialog, nID);
    ::SetFocus(hEdit);
    ::SendMessageW(hEdit, EM_SETSEL, 0, -1);
    ::SendMessageW(hEdit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(pszText));
}
// Whether the edit has the focus and all of its text is selected, ready to be typed over.
inline bool IsOffered(HWND hDialog, int nID)
{
    const HWND hEdit = ::GetDlgItem(hDialog, nID);
    DWORD nFrom = 1, nTo = 0;
    ::SendMessageW(hEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&nFrom), reinterpret_cast<LPARAM>(&nTo));
    return ::GetFocus() == hEdit && nFrom == 0 && nTo == TextOf(hEdit).size();
}
// Chooses a row by the keys of the list, which tells its dialog at each step.
inline void Choose(HWND hDialog, int nID, int nRow)
{
    const HWND hList = ::GetDlgItem(hDialog, nID);
    ::SetFocus(hList);
    for (int nGuard = 0; nGuard < 100 && RowOf(hDialog, nID) != nRow; ++nGuard)
        ::SendMessageW(hList, WM_KEYDOWN, RowOf(hDialog, nID) < nRow ? VK_DOWN : VK_UP, 1);
}
// One step of a spin button, by the mouse on its upper or lower half.
inline void Spin(HWND hDialog, int nID, bool bUp)
{
    const HWND hSpin = ::GetDlgItem(hDialog, nID);
    RECT rect;
    ::GetClientRect(hSpin, &rect);
    const LPARAM at = MAKELPARAM(rect.right / 2, bUp ? rect.bottom / 4 : rect.bottom * 3 / 4);
    ::SendMessageW(hSpin, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageW(hSpin, WM_LBUTTONUP, 0, at);
}

// The page of the property sheet that is seen.
inline HWND PageOf(HWND hSheet)
{
    const HWND hTabs = ::GetDlgItem(hSheet, 6073);
    HWND hPage = nullptr;
    while ((hPage = ::FindWindowExW(hTabs, hPage, L"#32770", nullptr)) != nullptr) {
        if (::IsWindowVisible(hPage))
            return hPage;
    }
    return nullptr;
}
// Clicks on a tab of the sheet; the page that is seen then.
inline HWND OpenTab(HWND hSheet, int nTab)
{
    const HWND hTabs = ::GetDlgItem(hSheet, 6073);
    RECT rect;
    ::SendMessageW(hTabs, TCM_GETITEMRECT, static_cast<WPARAM>(nTab), reinterpret_cast<LPARAM>(&rect));
    const LPARAM at = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    ::SendMessageW(hTabs, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageW(hTabs, WM_LBUTTONUP, 0, at);
    return PageOf(hSheet);
}

} // namespace DialogHands

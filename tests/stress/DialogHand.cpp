#include "DialogHand.h"

#include <algorithm>
#include <cwchar>
#include <string>

namespace
{
constexpr int MostInDialog = 5, MostInStep = 25;

bool IsOfClass(HWND hWnd, const wchar_t* pszClass)
{
    wchar_t name[32] = {};
    return ::GetClassNameW(hWnd, name, 32) > 0 && ::_wcsicmp(name, pszClass) == 0;
}

bool IsMessageBox(HWND hDialog)
{
    constexpr int textOfBox = 0xFFFF;
    return ::GetDlgItem(hDialog, textOfBox) != nullptr;
}

// Null where no menu of this thread is open.
HWND OwnerOfMenu()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    const bool bOpen =
        ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) != FALSE && (info.flags & GUI_INMENUMODE) != 0;
    return bOpen ? info.hwndMenuOwner : nullptr;
}

BOOL CALLBACK AddControl(HWND hWnd, LPARAM pControls)
{
    if (::IsWindowVisible(hWnd) && ::IsWindowEnabled(hWnd))
        reinterpret_cast<std::vector<HWND>*>(pControls)->push_back(hWnd);
    return TRUE;
}
} // namespace

DialogHand* DialogHand::s_pCurrent = nullptr;

DialogHand::DialogHand(Log& log)
    : m_log(log), m_hHook(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId()))
{
    s_pCurrent = this;
}

DialogHand::~DialogHand()
{
    ::UnhookWindowsHookEx(m_hHook);
    s_pCurrent = nullptr;
}

void DialogHand::Begin(Random random)
{
    m_random = random;
    m_nLeft = MostInStep;
}

LRESULT DialogHand::OnHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    if (nCode == HCBT_ACTIVATE && IsOfClass(hWnd, L"#32770"))
        s_pCurrent->OnShown(hWnd);
    else if (nCode == HCBT_DESTROYWND)
        std::erase_if(s_pCurrent->m_open, [hWnd](const TDialog& one) { return one.hWnd == hWnd; });
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

void DialogHand::OnShown(HWND hWnd)
{
    const auto known = std::find_if(m_open.begin(), m_open.end(),
                                    [hWnd](const TDialog& one) { return one.hWnd == hWnd; });
    if (known != m_open.end())
        return;
    const bool bAtOnce = IsMessageBox(hWnd) || m_random.OneIn(2);
    m_open.push_back({hWnd, bAtOnce ? 0 : m_random.Int(1, MostInDialog), 0});
    if (bAtOnce)
        ::PostMessageW(hWnd, WM_COMMAND, IsMessageBox(hWnd) ? IDOK : IDCANCEL, 0);
}

void DialogHand::GoOn()
{
    if (const HWND hOwner = OwnerOfMenu()) {
        UseMenu(hOwner);
        return;
    }
    if (m_open.empty())
        return;
    TDialog& dialog = m_open.back();
    if (dialog.nLeft > 0 && m_nLeft > 0) {
        --dialog.nLeft;
        --m_nLeft;
        UseControl(dialog.hWnd);
    } else {
        Close(dialog);
    }
}

void DialogHand::UseMenu(HWND hOwner)
{
    m_log.Say("  menu");
    if (m_random.OneIn(2)) {
        ::EndMenu();
        return;
    }
    ::PostMessageW(hOwner, WM_KEYDOWN, VK_DOWN, 0);
    ::PostMessageW(hOwner, WM_KEYDOWN, VK_RETURN, 0);
}

// What opens a dialog is posted: this runs in a timer of the loop below it.
void DialogHand::UseControl(HWND hDialog)
{
    const wchar_t* const texts[] = {L"",     L"0",    L"-5",    L"7",      L"1e308",     L"99999999999",
                                    L"text", L"%s%n", L"%5.2f", L"x\r\ny", L"2026-01-01"};
    const WPARAM keys[] = {VK_TAB, VK_RETURN, VK_DOWN, VK_UP, VK_SPACE, VK_HOME, VK_DELETE};
    std::vector<HWND> controls;
    ::EnumChildWindows(hDialog, &AddControl, reinterpret_cast<LPARAM>(&controls));
    if (controls.empty())
        return;
    const HWND hControl =
        controls[static_cast<std::size_t>(m_random.Int(0, static_cast<int>(controls.size()) - 1))];
    m_log.Say("  dialog: control %d", ::GetDlgCtrlID(hControl));
    if (m_random.OneIn(6)) {
        ::PostMessageW(hControl, WM_KEYDOWN, m_random.Of(keys), 0);
    } else if (IsOfClass(hControl, L"Edit")) {
        ::SendMessageW(hControl, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_random.Of(texts)));
    } else if (IsOfClass(hControl, L"ComboBox")) {
        ::SendMessageW(hControl, CB_SETCURSEL, static_cast<WPARAM>(m_random.Int(-1, 5)), 0);
        ::PostMessageW(::GetParent(hControl), WM_COMMAND,
                       MAKEWPARAM(::GetDlgCtrlID(hControl), CBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(hControl));
    } else {
        Click(hControl);
    }
}

void DialogHand::Click(HWND hControl)
{
    RECT rect = {};
    ::GetClientRect(hControl, &rect);
    const LPARAM at = MAKELPARAM(m_random.Int(0, rect.right), m_random.Int(0, rect.bottom));
    ::PostMessageW(hControl, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::PostMessageW(hControl, WM_LBUTTONUP, 0, at);
}

// Esc for whatever holds the mouse, such as the popup of the colours; then OK where it may be
// refused, and Cancel in the end.
void DialogHand::Close(TDialog& dialog)
{
    if (const HWND hHolder = ::GetCapture()) {
        ::PostMessageW(hHolder, WM_KEYDOWN, VK_ESCAPE, 0);
        ::PostMessageW(hHolder, WM_LBUTTONUP, 0, 0);
    }
    const bool bOk = IsMessageBox(dialog.hWnd) || (dialog.nClosings < 2 && m_random.OneIn(2));
    ++dialog.nClosings;
    ::PostMessageW(dialog.hWnd, WM_COMMAND, bOk ? IDOK : IDCANCEL, 0);
}

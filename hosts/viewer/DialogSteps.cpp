#include "viewer/DialogSteps.h"

#include "viewer/PlainText.h"
#include "viewer/WideText.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace Viewer::Dialogs
{
namespace
{

constexpr std::wstring_view DialogClass = L"#32770";
constexpr std::wstring_view MenuClass = L"#32768";

std::wstring ClassOf(HWND window)
{
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    return name;
}

[[noreturn]] void Refuse(std::u16string_view reason)
{
    throw Error{ExitCode::BadCommandLine, std::u16string(reason)};
}

std::vector<HWND> SeenWindows()
{
    std::vector<HWND> windows;
    const auto add = [](HWND window, LPARAM list) -> BOOL {
        if (IsWindowVisible(window))
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HWND FirstOf(std::wstring_view className)
{
    for (const HWND window : SeenWindows()) {
        if (IsWindowEnabled(window) && ClassOf(window) == className)
            return window;
    }
    return nullptr;
}

struct Search {
    int id;
    std::wstring_view className;
    HWND found;
};

// A number may serve several pages, of which one is seen.
HWND FindSeen(HWND dialog, int id, std::wstring_view className)
{
    Search search{id, className, nullptr};
    const auto test = [](HWND window, LPARAM parameter) -> BOOL {
        Search& wanted = *reinterpret_cast<Search*>(parameter);
        const bool right = wanted.className.empty() ? GetDlgCtrlID(window) == wanted.id
                                                    : ClassOf(window) == wanted.className;
        if (!right || !IsWindowVisible(window))
            return TRUE;
        wanted.found = window;
        return FALSE;
    };
    EnumChildWindows(dialog, test, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND Find(HWND dialog, int id)
{
    const HWND control = FindSeen(dialog, id, {});
    if (!control)
        Refuse(u"the dialog shows no control " + ToText(static_cast<std::size_t>(id)));
    return control;
}

void ClickAt(HWND window, POINT place)
{
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(place.x, place.y));
}

POINT Middle(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void ClickOn(HWND window)
{
    RECT client{};
    GetClientRect(window, &client);
    ClickAt(window, Middle(client));
}

bool IsOn(HWND check)
{
    return SendMessageW(check, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

// By the keys, at each of which the dialog is notified.
void ChooseRow(HWND list, const std::u16string& value)
{
    const auto count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    const auto row = [&] { return SendMessageW(list, CB_GETCURSEL, 0, 0); };
    const LRESULT wanted = wcstol(ToWide(value).c_str(), nullptr, 10) - 1;
    if (wanted < 0 || wanted >= count)
        Refuse(u"the list has no row " + Quote(value));
    SetFocus(list);
    for (LRESULT step = 0; step <= count && row() != wanted; ++step)
        SendMessageW(list, WM_KEYDOWN, row() < wanted ? VK_DOWN : VK_UP, 1);
}

} // namespace

HWND Open() noexcept
{
    return FirstOf(DialogClass);
}

HWND OpenMenu() noexcept
{
    return FirstOf(MenuClass);
}

std::vector<HWND> Over(HWND frame)
{
    std::vector<HWND> windows = SeenWindows();
    std::erase(windows, frame);
    std::reverse(windows.begin(), windows.end());
    return windows;
}

void TurnTo(HWND dialog, std::u16string_view page)
{
    constexpr std::array<std::u16string_view, 3> pages = {u"chart", u"axis", u"curve"};
    const HWND tabs = FindSeen(dialog, 0, WC_TABCONTROLW);
    if (!tabs)
        Refuse(u"the dialog has no pages");
    const auto number = std::find(pages.begin(), pages.end(), page) - pages.begin();
    RECT tab{};
    SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(number), reinterpret_cast<LPARAM>(&tab));
    ClickAt(tabs, Middle(tab));
}

void Set(HWND dialog, int id, const std::u16string& value)
{
    const HWND control = Find(dialog, id);
    const std::wstring name = ClassOf(control);
    if (lstrcmpiW(name.c_str(), L"COMBOBOX") == 0) {
        ChooseRow(control, value);
    } else if (lstrcmpiW(name.c_str(), L"BUTTON") == 0) {
        if (value != u"on" && value != u"off")
            Refuse(u"a button is set on or off, not " + Quote(value));
        if (IsOn(control) != (value == u"on"))
            ClickOn(control);
    } else {
        // As from the clipboard: at one stroke.
        SetFocus(control);
        SendMessageW(control, EM_SETSEL, 0, -1);
        SendMessageW(control, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(ToWide(value).c_str()));
    }
}

void Press(HWND dialog, int id)
{
    const HWND control = Find(dialog, id);
    if (!IsWindowEnabled(control))
        Refuse(u"the control " + ToText(static_cast<std::size_t>(id)) + u" is disabled");
    ClickOn(control);
}

std::u16string Read(HWND dialog, int id)
{
    const HWND control = Find(dialog, id);
    if (SendMessageW(control, WM_GETDLGCODE, 0, 0) & (DLGC_BUTTON | DLGC_RADIOBUTTON))
        return IsOn(control) ? u"on" : u"off";
    wchar_t text[1024] = L"";
    SendMessageW(control, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    return FromWide(text);
}

void Choose(HWND menu, int item)
{
    for (int at = 0; at < item; ++at)
        PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
}

} // namespace Viewer::Dialogs

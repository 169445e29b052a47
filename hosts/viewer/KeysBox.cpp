#include "viewer/KeysBox.h"

#include "viewer/HelpText.h"
#include "viewer/WideText.h"
#include "viewer/resource.h"

#include <commctrl.h>

#include <algorithm>

namespace Viewer
{
namespace
{

void AddColumn(HWND list, int index, const wchar_t* title, int width)
{
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = width;
    column.pszText = const_cast<wchar_t*>(title); // it is only read
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
}

void AddRow(HWND list, int row, std::u16string_view line)
{
    const std::size_t tab = std::min(line.find(u'\t'), line.size());
    std::wstring key = ToWide(line.substr(0, tab));
    std::wstring meaning = ToWide(line.substr(std::min(tab + 1, line.size())));
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = key.data();
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.iSubItem = 1;
    item.pszText = meaning.data();
    SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void FillList(HWND list)
{
    RECT client{};
    GetClientRect(list, &client);
    const int first = client.right / 4;
    const int scrollBar = GetSystemMetrics(SM_CXVSCROLL);
    AddColumn(list, 0, L"Keys and mouse", first);
    AddColumn(list, 1, L"What it does", client.right - first - scrollBar);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    std::u16string_view text = KeysText();
    for (int row = 0; !text.empty(); ++row) {
        const std::u16string_view line = text.substr(0, text.find(u'\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        AddRow(list, row, line);
    }
}

INT_PTR CALLBACK Procedure(HWND box, UINT message, WPARAM wParam, LPARAM)
{
    switch (message) {
    case WM_INITDIALOG:
        FillList(GetDlgItem(box, IDC_KEYS_LIST));
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(box, LOWORD(wParam));
            return TRUE;
        }
        return FALSE;
    default:
        return FALSE;
    }
}

} // namespace

void ShowKeys(HWND owner)
{
    DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_KEYS), owner, Procedure, 0);
}

} // namespace Viewer

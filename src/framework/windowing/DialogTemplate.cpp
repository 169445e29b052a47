#include "framework/windowing/DialogTemplate.h"

#include <cstring>
#include <span>
#include <string>

#include "framework/windowing/ModuleState.h"

namespace
{

using TBytes = std::span<const BYTE>;

const WORD ListRecord = 240; // RT_DLGINIT

TBytes FindBytes(UINT id, LPCWSTR type) noexcept
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC place = ::FindResourceW(module, MAKEINTRESOURCEW(id), type);
    const HGLOBAL block = place ? ::LoadResource(module, place) : nullptr;
    const void* const bytes = block ? ::LockResource(block) : nullptr;
    if (!bytes)
        return {};
    return {static_cast<const BYTE*>(bytes), ::SizeofResource(module, place)};
}

template <class T> bool Take(TBytes& bytes, T& value) noexcept
{
    if (bytes.size() < sizeof value)
        return false;
    std::memcpy(&value, bytes.data(), sizeof value);
    bytes = bytes.subspan(sizeof value);
    return true;
}

// The record holds the numbers that these messages had on 16-bit systems.
UINT CurrentMessage(WORD message) noexcept
{
    switch (message) {
    case 0x401:
        return LB_ADDSTRING;
    case 0x403:
        return CB_ADDSTRING;
    default:
        return message;
    }
}

bool AddRow(HWND list, UINT message, TBytes text)
{
    const auto* const units = reinterpret_cast<const char*>(text.data());
    // Without a terminator inside, the length itself ends the text.
    const std::string row(units, ::strnlen(units, text.size()));
    // LB_ERR and LB_ERRSPACE are those of combo boxes too.
    return ::SendMessageA(list, message, 0, reinterpret_cast<LPARAM>(row.c_str())) >= 0;
}

} // namespace

const DLGTEMPLATE* DialogTemplate::Find(UINT id) noexcept
{
    return reinterpret_cast<const DLGTEMPLATE*>(FindBytes(id, MAKEINTRESOURCEW(5)).data()); // RT_DIALOG
}

bool DialogTemplate::HasNoPlace(const DLGTEMPLATE* dialog) noexcept
{
    // The extended form starts with a version and 0xFFFF where the other has its style, and
    // has a help id in front of its styles.
    const BYTE* const bytes = reinterpret_cast<const BYTE*>(dialog);
    WORD mark = 0;
    std::memcpy(&mark, bytes + 2, sizeof mark);
    const bool extended = mark == 0xFFFF;
    DWORD style = 0;
    std::memcpy(&style, bytes + (extended ? 12 : 0), sizeof style);
    short place[2] = {};
    std::memcpy(place, bytes + (extended ? 18 : 10), sizeof place);
    return !(style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN | WS_CHILD)) && place[0] == 0 &&
           place[1] == 0;
}

bool DialogTemplate::FillLists(UINT id, HWND hDialog)
{
    // Records of control, message, length and text; control 0 ends them.
    TBytes bytes = FindBytes(id, MAKEINTRESOURCEW(ListRecord));
    WORD control = 0;
    WORD message = 0;
    DWORD length = 0;
    while (!bytes.empty()) {
        if (!Take(bytes, control))
            return false;
        if (control == 0)
            return true;
        if (!Take(bytes, message) || !Take(bytes, length) || length > bytes.size())
            return false;
        if (!AddRow(::GetDlgItem(hDialog, control), CurrentMessage(message), bytes.first(length)))
            return false;
        bytes = bytes.subspan(length);
    }
    return true;
}

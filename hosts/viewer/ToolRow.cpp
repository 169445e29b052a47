#include "viewer/ToolRow.h"

#include "viewer/GraphCommands.h"

#include <commctrl.h>

#include <array>

namespace Viewer
{
namespace
{

constexpr int NoOperation = -1;

struct Button {
    unsigned command; // 0: a gap
    const wchar_t* text;
    int operation;
};

constexpr std::array<Button, 11> Buttons = {{
    {VPX_COMMAND_SELECT, L"Select", 0},
    {VPX_COMMAND_ZOOM, L"Zoom", 1},
    {VPX_COMMAND_PAN, L"Pan", 3},
    {VPX_COMMAND_CURSOR, L"Cursor", 4},
    {VPX_COMMAND_MEASURE, L"Measure", 8},
    {VPX_COMMAND_EDIT, L"Edit points", 7},
    {0, nullptr, NoOperation},
    {VPX_COMMAND_ZOOM_BACK, L"Zoom back", NoOperation},
    {VPX_COMMAND_RESET_ZOOM, L"Reset zoom", NoOperation},
    {0, nullptr, NoOperation},
    {VPX_COMMAND_INSERT_LABEL, L"Insert label", NoOperation},
}};

} // namespace

ToolRow::ToolRow(HWND parent)
    : m_window(CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr,
                               WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | CCS_TOP |
                                   CCS_NODIVIDER,
                               0, 0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr))
{
    SendMessageW(m_window, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(m_window, TB_SETBITMAPSIZE, 0, MAKELPARAM(0, 0)); // the buttons have texts alone
    for (const Button& button : Buttons) {
        TBBUTTON item{};
        item.iBitmap = button.command ? I_IMAGENONE : 0;
        item.idCommand = static_cast<int>(button.command);
        item.fsState = TBSTATE_ENABLED;
        const bool mode = button.operation != NoOperation;
        item.fsStyle = static_cast<BYTE>(!button.command ? BTNS_SEP
                                         : mode          ? BTNS_CHECKGROUP | BTNS_AUTOSIZE
                                                         : BTNS_BUTTON | BTNS_AUTOSIZE);
        item.iString = reinterpret_cast<INT_PTR>(button.text);
        SendMessageW(m_window, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&item));
    }
    LayOut();
}

void ToolRow::Show(bool graph, int operation)
{
    for (const Button& button : Buttons) {
        if (!button.command)
            continue;
        SendMessageW(m_window, TB_ENABLEBUTTON, button.command, graph);
        if (button.operation != NoOperation) {
            SendMessageW(m_window, TB_CHECKBUTTON, button.command,
                         graph && button.operation == operation);
        }
    }
}

void ToolRow::LayOut()
{
    SendMessageW(m_window, TB_AUTOSIZE, 0, 0);
}

int ToolRow::Height() const
{
    RECT place{};
    GetWindowRect(m_window, &place);
    return place.bottom - place.top;
}

} // namespace Viewer

// A dialog as the host
//
// The chart takes the place of a control of the dialog and lives as long as it. The dialog's own
// message loop drives it.

#include "recipe.h"

#include <cmath>
#include <optional>

static std::optional<vantoplex::Graph> graph;

static void Fill(HWND dialog)
{
    const RECT place = {10, 10, 560, 320};
    graph.emplace(dialog, &place);
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, std::cos(i / 10.0)});
    graph->Plot(points, L"cosine");
    CreateWindowExW(0, L"BUTTON", L"Close", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, 470,
                    330, 90, 28, dialog, reinterpret_cast<HMENU>(INT_PTR(IDOK)), nullptr, nullptr);
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM owner)
{
    if (message == WM_INITDIALOG) {
        SetWindowPos(dialog, nullptr, 30, 10, 580, 400 - 20, SWP_NOZORDER);
        Fill(dialog);
        if (recipes::Unattended())
            SetTimer(dialog, 1, 1, nullptr);
        SetWindowLongPtrW(dialog, GWLP_USERDATA, owner);
        return TRUE;
    }
    if (message == WM_TIMER) { // nobody is there to press the button
        KillTimer(dialog, 1);
        recipes::Present(reinterpret_cast<HWND>(GetWindowLongPtrW(dialog, GWLP_USERDATA)), dialog);
    }
    if (message == WM_TIMER || (message == WM_COMMAND && (wParam == IDOK || wParam == IDCANCEL))) {
        graph.reset(); // before its parent goes
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

RECIPE("dialog-host")
{
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } form = {{WS_CHILD | WS_VISIBLE | WS_BORDER | WS_CLIPCHILDREN, 0, 0, 0, 0, 0, 0}, 0, 0, 0};
    form.head.style = recipes::Unattended() ? DWORD(WS_POPUP | WS_VISIBLE | WS_DLGFRAME)
                                            : DWORD(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU);
    DialogBoxIndirectParamW(nullptr, &form.head, window, DialogProcedure,
                            reinterpret_cast<LPARAM>(window));
}

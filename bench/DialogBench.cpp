#include "DialogBench.h"

#include "Scene.h"
#include "Stopwatch.h"

#include <cstdio>

namespace
{

constexpr double kFrame = 1000.0 / 60; // milliseconds

// A dialog tells its owner when it is shown and has nothing more to do: it is then drawn whole,
// and closed.
LRESULT CALLBACK OwnerProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto before = reinterpret_cast<WNDPROC>(::GetPropW(hWnd, L"before"));
    if (message == WM_ENTERIDLE) {
        const HWND hDialog = reinterpret_cast<HWND>(lParam);
        ::RedrawWindow(hDialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::GdiFlush();
        ::PostMessageW(hDialog, WM_COMMAND, IDCANCEL, 0);
    }
    return ::CallWindowProcW(before, hWnd, message, wParam, lParam);
}

INT_PTR CALLBACK PlainProcedure(HWND hDialog, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_COMMAND && wParam == IDCANCEL)
        ::EndDialog(hDialog, IDCANCEL);
    return message == WM_INITDIALOG;
}

void OpenPlain(HWND hOwner)
{
    struct {
        DLGTEMPLATE dialog{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 0, 0, 335, 273};
        WORD noMenuClassTitle[3] = {};
    } plain;
    ::DialogBoxIndirectParamW(::GetModuleHandleW(nullptr), &plain.dialog, hOwner, &PlainProcedure, 0);
}

} // namespace

void BenchDialogs(int nRuns)
{
    Scene scene;
    std::vector<TDataPoint> points = NoisyWaves(1000);
    scene.m_graph->SetData(points.data(), 1000, 0, 0, 0, true);
    scene.Repaint();
    const HWND hOwner = scene.m_hHost;
    ::SetPropW(hOwner, L"before",
               reinterpret_cast<HANDLE>(::SetWindowLongPtrW(
                   hOwner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OwnerProcedure))));
    const double plain = Stopwatch::Median(nRuns, [&] { OpenPlain(hOwner); });
    const double sheet = Stopwatch::Median(nRuns, [&] { scene.m_graph->OpenSheet(nullptr, nullptr); });
    ::SetWindowLongPtrW(hOwner, GWLP_WNDPROC,
                        reinterpret_cast<LONG_PTR>(::RemovePropW(hOwner, L"before")));
    std::printf("%-34s %10s %10s %10s\n", "opening and closing, ms", "plain", "sheet", "frames");
    std::printf("%-34s %10.3f %10.3f %10.2f\n", "property sheet", plain, sheet,
                (sheet - plain) / kFrame);
    std::fflush(stdout);
}

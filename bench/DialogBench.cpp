#include "DialogBench.h"

#include "Goals.h"
#include "Scene.h"
#include "Stopwatch.h"
#include "resources/DialogIds.h"

#include <cstdio>

namespace
{

constexpr double FrameTime = 1000.0 / 60; // milliseconds

// A dialog notifies its owner when it is shown and has nothing more to do: it is then drawn whole,
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

// The sheet's own templates with nothing behind them: what the platform takes for that many
// controls. The tabs are empty; the pages lie where those of the sheet do.
INT_PTR CALLBACK BareProcedure(HWND hDialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        const HINSTANCE hModule = ::GetModuleHandleW(nullptr);
        const HWND hTabs = ::GetDlgItem(hDialog, IDC_TABS);
        for (const int nID : {IDD_CHART, IDD_AXIS, IDD_CURVE}) {
            const HWND hPage = ::CreateDialogParamW(
                hModule, MAKEINTRESOURCEW(nID), hTabs,
                [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
            ::SetWindowPos(hPage, nullptr, 8, 25, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | (nID == IDD_CHART ? SWP_SHOWWINDOW : 0));
        }
    }
    return PlainProcedure(hDialog, message, wParam, lParam);
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
    const auto times = Stopwatch::InTurns(nRuns, {[&] { OpenPlain(hOwner); },
                                                  [&] {
                                                      ::DialogBoxParamW(::GetModuleHandleW(nullptr),
                                                                        MAKEINTRESOURCEW(IDD_CHARTPAGE),
                                                                        hOwner, &BareProcedure, 0);
                                                  },
                                                  [&] { scene.m_graph->OpenSheet(nullptr, nullptr); }});
    ::SetWindowLongPtrW(hOwner, GWLP_WNDPROC,
                        reinterpret_cast<LONG_PTR>(::RemovePropW(hOwner, L"before")));
    std::printf("%-46s %8s %8s\n", "opening and closing, ms", "p10", "median");
    const char* const names[] = {"a plain empty dialog of the sheet's size",
                                 "the sheet's controls with nothing behind them", "the property sheet"};
    for (std::size_t i = 0; i < times.size(); ++i)
        std::printf("%-46s %8.3f %8.3f\n", names[i], times[i].low, times[i].median);
    std::printf("%-46s %8.2f %8.2f\n", "the sheet beyond the empty dialog, in frames",
                (times[2].low - times[0].low) / FrameTime,
                (times[2].median - times[0].median) / FrameTime);
    Goals::Expect("sheet to its controls with nothing behind them", times[2].low / times[1].low, 1.5);
}

// Prints a graph through a real queue.
//
//   vantoplex-printing DLL [--printer NAME] [--landscape] [--dpi N] [--mono] [--dialog] [--cancel]
//
// --dialog answers the platform's print dialog by OK instead of standing in for it, --cancel by Cancel.
// The exit code is 0 if the job went as asked, 3 if there is no printer.

#include "net/Data.h"
#include "net/Graph.h"
#include "net/Imports.h"

#include <commdlg.h>
#include <winspool.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <vector>

namespace
{
struct TOptions {
    std::wstring dll;
    std::wstring printer;
    int nDpi = 300;
    bool bLandscape = false;
    bool bMono = false;
    bool bDialog = false;
    bool bCancel = false;
};

TOptions g_options;
int g_nStarted = 0, g_nPages = 0, g_nEnded = 0;

std::wstring DefaultPrinter()
{
    wchar_t name[256] = L"";
    DWORD nLength = 256;
    ::GetDefaultPrinterW(name, &nLength);
    return name;
}

// In the dialog's place: its printer, as the options say.
BOOL WINAPI OnPrintDialog(PRINTDLGW* pDialog)
{
    std::vector<char> room(16384);
    auto* const pMode = reinterpret_cast<DEVMODEW*>(room.data());
    HANDLE hPrinter = nullptr;
    if (::OpenPrinterW(g_options.printer.data(), &hPrinter, nullptr)) {
        ::DocumentPropertiesW(nullptr, hPrinter, g_options.printer.data(), pMode, nullptr,
                              DM_OUT_BUFFER);
        pMode->dmFields |= DM_ORIENTATION | DM_PRINTQUALITY | DM_YRESOLUTION | DM_COLOR;
        pMode->dmOrientation = g_options.bLandscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
        pMode->dmPrintQuality = pMode->dmYResolution = static_cast<short>(g_options.nDpi);
        pMode->dmColor = g_options.bMono ? DMCOLOR_MONOCHROME : DMCOLOR_COLOR;
        ::DocumentPropertiesW(nullptr, hPrinter, g_options.printer.data(), pMode, pMode,
                              DM_IN_BUFFER | DM_OUT_BUFFER);
        ::ClosePrinter(hPrinter);
    }
    pDialog->hDC = ::CreateDCW(L"WINSPOOL", g_options.printer.c_str(), nullptr, pMode);
    if (pDialog->hDC)
        std::printf("device: %d x %d at %d x %d dpi, %d colours\n",
                    ::GetDeviceCaps(pDialog->hDC, HORZRES), ::GetDeviceCaps(pDialog->hDC, VERTRES),
                    ::GetDeviceCaps(pDialog->hDC, LOGPIXELSX), ::GetDeviceCaps(pDialog->hDC, LOGPIXELSY),
                    ::GetDeviceCaps(pDialog->hDC, NUMCOLORS));
    return pDialog->hDC ? TRUE : FALSE;
}

int WINAPI OnStart(HDC hDC, const DOCINFOW* pInfo)
{
    const int nJob = ::StartDocW(hDC, pInfo);
    g_nStarted += nJob > 0;
    return nJob;
}

int WINAPI OnEndPage(HDC hDC)
{
    const int nResult = ::EndPage(hDC);
    g_nPages += nResult > 0;
    return nResult;
}

int WINAPI OnEnd(HDC hDC)
{
    const int nResult = ::EndDoc(hDC);
    g_nEnded += nResult > 0;
    return nResult;
}

LRESULT CALLBACK AnswerDialog(int nCode, WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = reinterpret_cast<HWND>(wParam);
    wchar_t name[16] = {};
    if (nCode == HCBT_ACTIVATE && ::GetClassNameW(hWnd, name, 16) > 0 &&
        std::wcscmp(name, L"#32770") == 0)
        ::PostMessageW(hWnd, WM_COMMAND, g_options.bCancel ? IDCANCEL : IDOK, 0);
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

bool Read(int nArguments, wchar_t** arguments)
{
    for (int i = 1; i < nArguments; ++i) {
        const std::wstring word = arguments[i];
        if (word == L"--landscape")
            g_options.bLandscape = true;
        else if (word == L"--mono")
            g_options.bMono = true;
        else if (word == L"--dialog")
            g_options.bDialog = true;
        else if (word == L"--cancel")
            g_options.bDialog = g_options.bCancel = true;
        else if (word == L"--printer" && i + 1 < nArguments)
            g_options.printer = arguments[++i];
        else if (word == L"--dpi" && i + 1 < nArguments)
            g_options.nDpi = ::_wtoi(arguments[++i]);
        else if (word[0] != L'-')
            g_options.dll = word;
        else
            return false;
    }
    return !g_options.dll.empty();
}

void Fill(Graph& graph)
{
    graph.Plot(Data::Wave(Scale::linear, 200, 1), 0);
    graph.Plot(Data::Wave(Scale::linear, 60, 3), 1, 0, 1);
    graph->SetShowLegend(1);
    graph->SetPrintHeader(Text(L"Header: a graph on paper"));
    graph->SetPrintFooter(Text(L"Footer: page 1"));
    graph.Curve(0)->SetLabel(Text(L"first"));
    graph.Curve(1)->SetLabel(Text(L"second"));
    graph.Curve(1)->SetFillBeneath(1, -1);
    graph.Curve(1)->SetFillColor(0xC0FFC0);
    graph.XAxis()->SetLabel(Text(L"length [m]"));
    graph.YAxis()->SetLabel(Text(L"force [N]"));
    RECT rect = {150, 60, 260, 90};
    Holder<ISGraphLabel> label;
    graph->InsertLabel(Text(L"a label"), &rect, label.Out());
    graph.Frame();
}
} // namespace

int wmain(int nArguments, wchar_t** arguments)
{
    if (!Read(nArguments, arguments))
        return 2;
    if (g_options.printer.empty())
        g_options.printer = DefaultPrinter();
    if (g_options.printer.empty())
        return 3;
    ::CoInitialize(nullptr);
    const Server server(g_options.dll);
    const HostWindow host(800, 600);
    Graph graph(server, host, {10, 10, 610, 410});
    Fill(graph);
    Imports imports(server.Module());
    imports.Replace("StartDocW", reinterpret_cast<void*>(&OnStart));
    imports.Replace("EndPage", reinterpret_cast<void*>(&OnEndPage));
    imports.Replace("EndDoc", reinterpret_cast<void*>(&OnEnd));
    if (!g_options.bDialog)
        imports.Replace("PrintDlgW", reinterpret_cast<void*>(&OnPrintDialog));
    const HHOOK hHook = ::SetWindowsHookExW(WH_CBT, &AnswerDialog, nullptr, ::GetCurrentThreadId());
    graph.Send(Command::print);
    ::UnhookWindowsHookEx(hHook);
    graph.Frame();
    std::printf("jobs %d, pages %d, ended %d\n", g_nStarted, g_nPages, g_nEnded);
    const int nWanted = g_options.bCancel ? 0 : 1;
    return g_nStarted == nWanted && g_nPages == nWanted && g_nEnded == nWanted ? 0 : 1;
}

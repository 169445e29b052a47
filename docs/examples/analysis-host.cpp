// A host that analyses a curve: its linear trend run on by a quarter, a moving average, and a
// parabola. S saves the graph's settings, L loads them, P prints.
// Build it like docs/first-program.md.

#include <ole2.h>
#include <windows.h>

#include "vantoplex.h"

#include <cmath>
#include <vector>

static ISGraph* graph = nullptr;

// Adds the points as the next curve. The graph copies them.
static ISGraphDataSerie* Add(TDataPoint* points, long count, const wchar_t* label)
{
    int curves = 0;
    graph->GetCurveCount(&curves);
    ISGraphDataSerie* curve = nullptr;
    graph->SetData(&curve, points, count, curves, 0, 0, TRUE);
    BSTR text = SysAllocString(label);
    curve->SetLabel(text);
    SysFreeString(text);
    return curve;
}

// The same for an array that an analysis handed out, which is ours to free; null if there is none.
static void AddResult(TDataPoint* points, long count, const wchar_t* label)
{
    if (points == nullptr)
        return;
    Add(points, count, label)->Release();
    CoTaskMemFree(points);
}

static void Plot()
{
    std::vector<TDataPoint> points;
    for (int day = 0; day < 200; ++day)
        points.push_back({double(day), day / 20.0 + 3 * std::sin(day / 9.0) + day * 37 % 11 / 5.0});
    const long count = long(points.size());
    ISGraphDataSerie* curve = Add(points.data(), count, L"measured");

    TDataPoint *trend = nullptr, *average = nullptr, *parabola = nullptr;
    curve->GetLinearTrend(&trend, count / 4);    // count + count / 4 points
    curve->GetSimpleMovingAverage(&average, 20); // count points
    curve->GetPolynomialTrend(&parabola, 3, 0);  // three terms
    curve->Release();                            // it would not outlive the next curve
    AddResult(trend, count + count / 4, L"trend");
    AddResult(average, count, L"average of 20 days");
    AddResult(parabola, count, L"parabola");
    graph->Invalidate(TRUE);
}

static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    BSTR file = SysAllocString(L"analysis-settings.bin");
    if (message == WM_CHAR && wParam == 's' && graph->Save(file, PERSIST_PROPERTIES) != S_OK)
        MessageBeep(MB_ICONERROR);
    if (message == WM_CHAR && wParam == 'l') {
        graph->Load(file); // empties the graph first
        graph->ResetAll();
        Plot();
    }
    SysFreeString(file);
    if (message == WM_CHAR && wParam == 'p')
        graph->SendMessage(WM_COMMAND, VPX_COMMAND_PRINT, 0);
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(CoCreateInstance(__uuidof(SGraph), nullptr, CLSCTX_INPROC_SERVER, __uuidof(ISGraph),
                                reinterpret_cast<void**>(&graph))))
        return 1; // the server isn't registered
    WNDCLASSW description{0,       WindowProcedure, 0,       0,       instance,
                          nullptr, nullptr,         nullptr, nullptr, L"Analysis"};
    RegisterClassW(&description);
    HWND window = CreateWindowW(L"Analysis", L"Analysis: S saves, L loads, P prints",
                                WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT, 900,
                                600, nullptr, nullptr, instance, nullptr);
    RECT place{};
    GetClientRect(window, &place);
    graph->Create(nullptr, &place, ToWire(window), 1);
    BSTR header = SysAllocString(L"Two hundred days");
    graph->SetPrintHeader(header);
    SysFreeString(header);
    Plot();
    ShowWindow(window, show);
    for (MSG message{}; GetMessageW(&message, nullptr, 0, 0) > 0; DispatchMessageW(&message))
        TranslateMessage(&message);
    graph->Release();
    return 0;
}

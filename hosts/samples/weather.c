/* A year's temperature and rain, in C: two Y axes, dates along the X axis, a legend, a cursor whose
 * values the window's title shows, and a chart that follows the size of its window.
 * Tried: built by mingw-w64 gcc 12, run under Wine 8.
 *     x86_64-w64-mingw32-gcc -std=c11 -municode -mwindows -I kit/languages hosts/samples/weather.c -o weather-c.exe -lole32 -loleaut32
 * An argument is a BMP file that the graph is written to; the program then ends. */
#ifndef UNICODE
#define UNICODE
#endif
#define VANTOPLEX_DEFINE_GUIDS
#include "vantoplex_c.h"

#include <wchar.h>

#define MONTHS 12
#define RED RGB(192, 48, 32)
#define BLUE RGB(32, 80, 176)

static const double temperature[MONTHS] = {2.8, 2.8, 5.0, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6.0, 3.4};
static const double rain[MONTHS] = {67, 52, 55, 43, 57, 77, 78, 80, 68, 65, 67, 71};

static ISGraph *graph;
static HWND chart;

/* Days since 1899-12-30, as in a DATE: the middle of a month of 2023. */
static double day_of(int month)
{
    return 44941 + 30.4375 * month;
}

static void set_text(HRESULT(STDMETHODCALLTYPE *setter)(ISGraphAxis *, BSTR), ISGraphAxis *axis, const wchar_t *text)
{
    BSTR value = SysAllocString(text);
    setter(axis, value);
    SysFreeString(value);
}

/* A curve on the first X axis and a Y axis of its own colour. */
static void plot(int index, const double *values, const wchar_t *name, const wchar_t *unit, COLORREF color)
{
    TDataPoint points[MONTHS];
    ISGraphDataSerie *curve = NULL;
    ISGraphAxis *axis = NULL;
    BSTR label = SysAllocString(name);
    int i;
    for (i = 0; i < MONTHS; ++i) {
        points[i].fXVal = day_of(i);
        points[i].fYVal = values[i];
    }
    /* The number of Y axes there are makes the next one. The graph copies the points. */
    graph->lpVtbl->SetData(graph, &curve, points, MONTHS, index, 0, index, TRUE);
    curve->lpVtbl->SetLabel(curve, label);
    curve->lpVtbl->SetColor(curve, color);
    curve->lpVtbl->Release(curve);
    SysFreeString(label);
    graph->lpVtbl->GetYAxis(graph, &axis, index);
    axis->lpVtbl->SetColor(axis, color);
    set_text(axis->lpVtbl->SetLabel, axis, unit);
    axis->lpVtbl->SetPlacement(axis, index == 0 ? apLeft : apRight);
    axis->lpVtbl->SetShowGrid(axis, index == 0);
    axis->lpVtbl->Release(axis);
}

static void show_dates(void)
{
    ISGraphAxis *axis = NULL;
    graph->lpVtbl->GetXAxis(graph, &axis, 0);
    axis->lpVtbl->SetDateTime(axis, TRUE);
    set_text(axis->lpVtbl->SetDisplayFmt, axis, L"%b %Y");
    axis->lpVtbl->Release(axis);
}

static void show_cursor_values(HWND window)
{
    TDataPoint warm, wet;
    wchar_t title[80];
    graph->lpVtbl->GetCursorAbsolute(graph, 0, &warm);
    graph->lpVtbl->GetCursorAbsolute(graph, 1, &wet);
    swprintf(title, 80, L"%.1f degrees, %.0f mm", warm.fYVal, wet.fYVal);
    SetWindowTextW(window, title);
}

static LRESULT CALLBACK on_message(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:
        MoveWindow(chart, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    case XG_CURSORMOVED:
        show_cursor_values(window);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

static HWND make_window(HINSTANCE instance)
{
    WNDCLASSW kind = {0};
    kind.lpfnWndProc = on_message;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(NULL, (LPCWSTR)IDC_ARROW);
    kind.lpszClassName = L"Weather";
    RegisterClassW(&kind);
    return CreateWindowExW(0, L"Weather", L"Weather in C", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 720, 480, NULL,
                           NULL, instance, NULL);
}

/* The cursor on July, as the mouse would put it there, and the picture into a file. */
static void save(HWND window, const wchar_t *path)
{
    TDataPoint july = {day_of(6), 0};
    BSTR file = SysAllocString(path);
    UpdateWindow(chart);
    graph->lpVtbl->SetCursorAbsolute(graph, 0, &july, FALSE);
    UpdateWindow(chart);
    show_cursor_values(window);
    graph->lpVtbl->SaveBitmap(graph, file);
    SysFreeString(file);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE before, PWSTR arguments, int show)
{
    RECT place;
    MSG message;
    HWND window;
    (void)before;
    CoInitializeEx(NULL, COINIT_APARTMENTTHREADED);
    if (FAILED(CoCreateInstance(&CLSID_SGraph, NULL, CLSCTX_INPROC_SERVER, &IID_ISGraph, (void **)&graph))) {
        MessageBoxW(NULL, L"Vantoplex is not registered: run regsvr32 Vantoplex.dll.", L"Weather", MB_OK);
        return 1;
    }
    window = make_window(instance);
    GetClientRect(window, &place);
    graph->lpVtbl->Create(graph, NULL, &place, window, 1);
    graph->lpVtbl->GetHandle(graph, &chart);
    plot(0, temperature, L"temperature", L"degrees", RED);
    plot(1, rain, L"rain", L"mm a month", BLUE);
    show_dates();
    graph->lpVtbl->SetCursorFlags(graph, XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    ShowWindow(window, show);
    UpdateWindow(chart);
    SendMessageW(chart, WM_COMMAND, VPX_COMMAND_CURSOR, 0);
    if (*arguments) {
        save(window, arguments);
        DestroyWindow(window);
    }
    while (GetMessageW(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    graph->lpVtbl->Release(graph);
    CoUninitialize();
    return 0;
}

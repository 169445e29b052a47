/* A window filled by the graph of a sine, in C.
 * Tried: built by mingw-w64 gcc 12, run under Wine 8.
 *     x86_64-w64-mingw32-gcc -std=c11 -municode -mwindows -I kit/languages hosts/samples/sine.c -o sine-c.exe -lole32 -loleaut32
 * An argument is a BMP file that the graph is written to; the program then ends. */
#ifndef UNICODE
#define UNICODE
#endif
#define VANTOPLEX_DEFINE_GUIDS
#include "vantoplex_c.h"

#include <math.h>

static void plot(ISGraph *graph)
{
    static TDataPoint points[361];
    ISGraphDataSerie *curve = NULL;
    BSTR name = SysAllocString(L"sine");
    int i;
    for (i = 0; i <= 360; ++i) {
        points[i].fXVal = i;
        points[i].fYVal = sin(i * 3.14159265358979 / 180);
    }
    /* Curve 0 on X axis 0 and Y axis 0; the graph copies the points. */
    graph->lpVtbl->SetData(graph, &curve, points, 361, 0, 0, 0, TRUE);
    curve->lpVtbl->SetLabel(curve, name);
    curve->lpVtbl->Release(curve);
    SysFreeString(name);
    graph->lpVtbl->Invalidate(graph, TRUE);
}

static void save(ISGraph *graph, const wchar_t *path)
{
    HWND window = NULL;
    BSTR file = SysAllocString(path);
    graph->lpVtbl->GetHandle(graph, &window);
    UpdateWindow(window);
    graph->lpVtbl->SaveBitmap(graph, file);
    SysFreeString(file);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE before, PWSTR arguments, int show)
{
    ISGraph *graph = NULL;
    RECT place;
    MSG message;
    HWND window;
    (void)before;
    CoInitializeEx(NULL, COINIT_APARTMENTTHREADED);
    if (FAILED(CoCreateInstance(&CLSID_SGraph, NULL, CLSCTX_INPROC_SERVER, &IID_ISGraph, (void **)&graph))) {
        MessageBoxW(NULL, L"Vantoplex is not registered: run regsvr32 Vantoplex.dll.", L"Sine", MB_OK);
        return 1;
    }
    window = CreateWindowExW(0, L"STATIC", L"A sine in C", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 640, 480, NULL,
                             NULL, instance, NULL);
    ShowWindow(window, show);
    GetClientRect(window, &place);
    graph->lpVtbl->Create(graph, NULL, &place, window, 1);
    plot(graph);
    if (*arguments)
        save(graph, arguments);
    while (!*arguments && IsWindow(window) && GetMessageW(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    graph->lpVtbl->Release(graph);
    CoUninitialize();
    return 0;
}

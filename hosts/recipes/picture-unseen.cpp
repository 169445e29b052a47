// A picture without showing a window
//
// The chart paints into a window that is there and transparent: nobody sees it. SavePng writes what
// it painted: the picture below is that file.

#include "recipe.h"

#include <cmath>

static void WritePicture(const std::wstring& file)
{
    const HWND unseen =
        CreateWindowExW(WS_EX_LAYERED | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP, 0,
                        0, 600, 300, nullptr, nullptr, nullptr, nullptr);
    SetLayeredWindowAttributes(unseen, 0, 0, LWA_ALPHA);
    ShowWindow(unseen, SW_SHOWNOACTIVATE);
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 400; ++i)
        points.push_back({i / 10.0, std::sin(i / 10.0) / (1 + i / 40.0)});
    {
        vantoplex::Graph graph(unseen);
        graph.Plot(points, L"unseen");
        graph.SavePng(file);
    }
    DestroyWindow(unseen);
}

RECIPE("picture-unseen")
{
    const std::wstring file = recipes::Temporary(L"vantoplex-recipe.png");
    WritePicture(file);
    CreateWindowExW(0, L"STATIC", (L"The picture is in " + file).c_str(), WS_CHILD | WS_VISIBLE, 20, 20,
                    600, 24, window, nullptr, nullptr, nullptr);
    recipes::PresentFile(window, file);
    DeleteFileW(file.c_str());
}

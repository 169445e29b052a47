// Dragging points
//
// A person drags points of a curve up and down. XG_POINTCHANGED carries the address of the change:
// read it at once, the next step overwrites it.

#include "recipe.h"

struct PointChange {
    int nCurve;
    int nIndex;
    double fOldY;
    double fNewY;
};

RECIPE("dragging-points")
{
    const std::vector<TDataPoint> points = {{0, 20}, {1, 35}, {2, 30}, {3, 45},
                                            {4, 40}, {5, 60}, {6, 50}};

    const RECT place = {0, 0, 640, 360};
    vantoplex::Graph graph(window, &place);
    const HWND change = CreateWindowExW(0, L"STATIC", L"Drag a point up or down.", WS_CHILD | WS_VISIBLE,
                                        10, 370, 620, 24, window, nullptr, nullptr, nullptr);
    graph.WidenY(0, 0, 100);
    graph.Plot(points, L"plan");
    graph.Curve(0)->SetMarkerType(VPX_MARKER_SYMBOL);
    graph.Curve(0)->SetMarker(VPX_SYMBOL_SQUARE);
    graph.Curve(0)->SetShowMarker(TRUE);
    graph.Send(VPX_COMMAND_EDIT);

    recipes::OnMessage(window, [&](UINT message, WPARAM wParam, LPARAM) {
        if (message != XG_POINTCHANGED)
            return;
        const auto& point = *reinterpret_cast<const PointChange*>(wParam);
        wchar_t text[100] = L"";
        swprintf(text, 100, L"point %d: %.1f", point.nIndex, point.fNewY);
        SetWindowTextW(change, text);
    });
    UpdateWindow(graph.Window());
    const POINT from = graph.PixelOf(0, points[3]);
    recipes::Drag(graph.Window(), from, {from.x, from.y - 100});
    recipes::Present(window);
}

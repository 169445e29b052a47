#include "Data.h"
#include "Scripts.h"

namespace
{
struct TLook {
    const char* name;
    Scale scale;
    bool bBuffered;
    bool bBare; // neither axes nor legend are shown, so that no font decides the layout
};

constexpr RECT Place = {20, 10, 520, 360};
constexpr double MiddleOfData = 0.5;

void ShowScale(ISGraphAxis* pAxis, const TLook& look, bool bX)
{
    if (look.scale == Scale::log)
        pAxis->SetAxisType(atLog);
    if (look.scale == Scale::date && bX) {
        pAxis->SetDateTime(1);
        pAxis->SetDisplayFmt(Text(L"%d.%m. %H:%M"));
    }
    pAxis->SetAutoScale(0);
    if (look.bBare)
        pAxis->SetVisible(0);
}

// Three curves on two Y axes.
void Fill(Graph& graph, const TLook& look)
{
    graph->SetDoubleBuffer(look.bBuffered);
    graph->SetShowLegend(look.bBare ? 0 : 1);
    graph.Plot(Data::Wave(look.scale, 40, 1), 0);
    graph.Plot(Data::Wave(look.scale, 60, 2), 1);
    graph.Plot(Data::Wave(look.scale, 15, 0.5), 2, 0, 1);
    ShowScale(graph.XAxis().Get(), look, true);
    ShowScale(graph.YAxis(0).Get(), look, false);
    ShowScale(graph.YAxis(1).Get(), look, false);
    graph->Autoscale(0, 0, 0);
    graph->Autoscale(0, 1, 2);
    const auto scatter = graph.Curve(2);
    scatter->SetType(gtScatter);
    scatter->SetShowMarker(1);
    scatter->SetMarker(3);
    scatter->SetMarkerSize(7);
    const auto filled = graph.Curve(1);
    filled->SetFillBeneath(1, -1);
    filled->SetFillColor(0xC0FFC0);
    filled->SetLabel(Text(L"filled"));
}

POINT PointOf(Graph& graph, const TLook& look, int nIndex)
{
    const auto points = Data::Wave(look.scale, 40, 1);
    return graph.At(points[nIndex].fXVal, points[nIndex].fYVal);
}

POINT Beside(POINT at, int dx, int dy)
{
    return {at.x + dx, at.y + dy};
}

void Clicks(Watch& watch, Graph& graph, const TLook& look)
{
    const RECT inner = graph.Inner();
    const POINT empty = {inner.left + 8, inner.top + 8};
    const POINT onCurve = PointOf(graph, look, 10);
    watch.Step("pointer over nothing", [&] { graph.Hover(empty); });
    watch.Step("pointer over a curve", [&] { graph.Hover(onCurve); });
    watch.Step("click on a curve", [&] { graph.Click(onCurve); });
    watch.Step("click beside it", [&] { graph.Click(empty); });
    watch.Step("double click on a curve", [&] { graph.DoubleClick(onCurve); });
    watch.Step("double click on nothing", [&] { graph.DoubleClick(empty); });
    watch.Step("right click", [&] { graph.RightClick(empty); });
    watch.Step("properties of nothing", [&] { graph.Send(Command::properties); });
    if (look.bBare)
        return;
    const RECT x = Graph::RectOf(graph.XAxis().Get());
    const RECT y = Graph::RectOf(graph.YAxis().Get());
    watch.Step("click on the x axis", [&] { graph.Click(Graph::Middle(x)); });
    watch.Step("double click on the x axis", [&] { graph.DoubleClick(Graph::Middle(x)); });
    watch.Step("click on a y axis", [&] { graph.Click(Graph::Middle(y)); });
    watch.Step("a click after it sets a marker", [&] { graph.Click(empty); });
    watch.Step("double click on a y axis", [&] { graph.DoubleClick(Graph::Middle(y)); });
    watch.Step("click in the legend", [&] { graph.Click({Place.right - Place.left - 30, 24}); });
}

void Markers(Watch& watch, Graph& graph, const TLook& look)
{
    const POINT middle = Graph::Middle(graph.Inner());
    const double x = Data::XAt(look.scale, MiddleOfData);
    watch.Step("markers on all axes", [&] {
        graph.XAxis()->SetAxisMarker(0, x, 0x0000FF, PS_DOT);
        graph.YAxis(0)->SetAxisMarker(0, 30, 0x00C000, PS_SOLID);
        graph.YAxis(1)->SetAxisMarker(0, 40, 0xC00000, PS_DASH);
    });
    const POINT onX = {graph.At(x, 30).x, graph.Inner().top + 30};
    watch.Step("pointer over a marker", [&] { graph.Hover(onX); });
    watch.Step("a marker is dragged", [&] {
        graph.Press(onX);
        graph.DragTo(Beside(onX, 25, 3));
    });
    watch.Step("and further", [&] { graph.DragTo(Beside(onX, 60, 9)); });
    watch.Step("and let go", [&] { graph.Release(Beside(onX, 60, 9)); });
    const POINT onY = {middle.x + 90, graph.At(x, 30).y};
    watch.Step("a marker of both y axes is dragged", [&] {
        graph.Hover(onY);
        graph.Press(onY);
        graph.DragTo(Beside(onY, 0, -40));
        graph.Release(Beside(onY, 0, -40));
    });
    watch.Step("a right click removes it", [&] { graph.RightClick(Beside(onY, 0, -40)); });
    watch.Step("a right click on the other", [&] { graph.RightClick(Beside(onX, 60, 9)); });
}

void DragBand(Graph& graph, POINT from, POINT to)
{
    graph.Hover(from);
    graph.Press(from);
    graph.DragTo(Beside(from, 20, 12));
    graph.DragTo(to);
}

void Zooms(Watch& watch, Graph& graph, const TLook&)
{
    const RECT inner = graph.Inner();
    const POINT middle = Graph::Middle(inner);
    watch.Step("zoom", [&] { graph.Send(Command::zoom); });
    watch.Step("a band is drawn",
               [&] { DragBand(graph, Beside(middle, -120, -70), Beside(middle, 60, 50)); });
    watch.Step("and painted", [&] { graph.Frame(); });
    watch.Step("and drawn further", [&] { graph.DragTo(Beside(middle, 90, 70)); });
    watch.Step("and let go", [&] { graph.Release(Beside(middle, 90, 70)); });
    watch.Step("a band upwards and out of the plot", [&] {
        DragBand(graph, Beside(middle, 50, 60), {inner.left - 30, inner.top - 20});
        graph.Frame();
        graph.Release({inner.left - 30, inner.top - 20});
    });
    watch.Step("a band too narrow", [&] {
        DragBand(graph, middle, Beside(middle, 14, 100));
        graph.Release(Beside(middle, 14, 100));
    });
    watch.Step("double click while zooming", [&] { graph.DoubleClick(middle); });
    watch.Step("back", [&] { graph.Send(Command::zoomBack); });
    watch.Step("reset", [&] { graph.Send(Command::resetZoom); });
    watch.Step("back once more", [&] { graph.Send(Command::zoomBack); });
    watch.Step("back with nothing left", [&] { graph.Send(Command::zoomBack); });
    watch.Step("reset by the method", [&] { graph->ResetZoom(); });
}

void Pans(Watch& watch, Graph& graph, const TLook&)
{
    const RECT inner = graph.Inner();
    const POINT middle = Graph::Middle(inner);
    watch.Step("pan", [&] { graph.Send(Command::pan); });
    watch.Step("a drag begins", [&] {
        graph.Hover(middle);
        graph.Press(middle);
        graph.DragTo(Beside(middle, 1, 1));
    });
    watch.Step("and goes on", [&] { graph.DragTo(Beside(middle, 30, -15)); });
    watch.Step("and leaves the plot", [&] { graph.DragTo({inner.left - 5, inner.top - 5}); });
    watch.Step("and comes back", [&] { graph.DragTo(Beside(middle, 10, 25)); });
    watch.Step("and ends", [&] { graph.Release(Beside(middle, 10, 25)); });
    watch.Step("wheel forward", [&] { graph.Wheel(WHEEL_DELTA); });
    watch.Step("wheel back", [&] { graph.Wheel(-WHEEL_DELTA); });
    watch.Step("wheel with shift", [&] { graph.Wheel(0, MK_SHIFT); });
    const WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_ADD, VK_SUBTRACT, VK_HOME, VK_SPACE};
    for (const WPARAM nKey : keys)
        watch.Step("key " + std::to_string(nKey), [&] { graph.Key(nKey); });
}

void CursorSnaps(Watch& watch, Graph& graph, const TLook& look)
{
    const POINT onCurve = PointOf(graph, look, 12);
    watch.Step("cursor beside a curve", [&] { graph.Hover(Beside(onCurve, 0, 6)); });
    watch.Step("cursor away from it", [&] { graph.Hover(Beside(onCurve, 30, 40)); });
    watch.Step("cursor painted", [&] { graph.Frame(); });
    watch.Step("cursor by keys", [&] {
        graph.Key(VK_LEFT);
        graph.Key(VK_DOWN);
    });
    watch.Step("snap is off", [&] {
        graph->SetSnapCursor(0);
        graph.Hover(Beside(onCurve, 2, 2));
    });
    watch.Step("snap is forced", [&] {
        graph->ForceSnap(2);
        graph.Hover(Beside(onCurve, -40, 2));
    });
    watch.Step("snap is free again", [&] {
        graph->ForceSnap(-1);
        graph->SetSnapCursor(1);
        graph->SetSnapRange(30);
        graph.Hover(Beside(onCurve, 0, 25));
    });
    watch.Step("no lines", [&] {
        graph->SetCursorFlags(0);
        graph.Hover(Beside(onCurve, 9, 9));
    });
}

void Cursors(Watch& watch, Graph& graph, const TLook& look)
{
    const POINT middle = Graph::Middle(graph.Inner());
    graph->SetCursorFlags(look.bBare ? XGC_HORIZ | XGC_VERT : XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    watch.Step("cursor mode", [&] { graph.Send(Command::cursor); });
    CursorSnaps(watch, graph, look);
    watch.Step("cursor set by value", [&] {
        TDataPoint point = {Data::XAt(look.scale, 0.75), 20};
        graph->SetCursorAbsolute(0, &point, 1);
    });
    watch.Step("cursor set smoothly", [&] {
        graph->SetCursorFlags(XGC_VERT | XGC_ADJUSTSMOOTH);
        TDataPoint point = {Data::XAt(look.scale, 0.6), 20};
        graph->SetCursorAbsolute(1, &point, 1);
    });
    watch.Step("right drag pans", [&] {
        graph.Mouse(WM_RBUTTONDOWN, middle, MK_RBUTTON);
        graph.Mouse(WM_MOUSEMOVE, Beside(middle, 1, 1), MK_RBUTTON);
        graph.Mouse(WM_MOUSEMOVE, Beside(middle, 21, -9), MK_RBUTTON);
        graph.Mouse(WM_RBUTTONUP, Beside(middle, 21, -9));
    });
    watch.Step("left and reset", [&] {
        graph->ResetZoom();
        graph->NoOp();
    });
}

void EndMeasuring(Watch& watch, Graph& graph)
{
    watch.Step("measures are deleted", [&] {
        graph->DeleteMeasures();
        graph->NoOp();
    });
}

void Measures(Watch& watch, Graph& graph, const TLook& look)
{
    const POINT first = PointOf(graph, look, 5), last = PointOf(graph, look, 30);
    watch.Step("measure", [&] { graph.Send(Command::measure); });
    watch.Step("a measure begins", [&] {
        graph.Hover(first);
        graph.Press(first);
        graph.DragTo(Beside(first, 3, 0));
    });
    watch.Step("and grows", [&] { graph.DragTo(Beside(last, -20, 15)); });
    watch.Step("and is painted", [&] { graph.Frame(); });
    watch.Step("and ends", [&] { graph.Release(last); });
    watch.Step("a second, backwards", [&] {
        graph.Hover(last);
        graph.Press(last);
        graph.DragTo(first);
        graph.Release(first);
    });
    watch.Step("a click measures too", [&] { graph.Click(Beside(first, 20, 0)); });
    EndMeasuring(watch, graph);
}

void PointDrags(Watch& watch, Graph& graph, const TLook& look)
{
    const POINT at = PointOf(graph, look, 17);
    watch.Step("edit", [&] { graph.Send(Command::edit); });
    watch.Step("pointer over a curve", [&] { graph.Hover(at); });
    watch.Step("a point is taken", [&] {
        graph.Press(at);
        graph.DragTo(Beside(at, 0, -5));
    });
    watch.Step("and dragged", [&] { graph.DragTo(Beside(at, 3, -35)); });
    watch.Step("and let go", [&] { graph.Release(Beside(at, 3, -35)); });
    watch.Step("away from it", [&] { graph.Hover(Beside(at, 0, 60)); });
    watch.Step("none", [&] { graph.Send(Command::noOp); });
}

void Labels(Watch& watch, Graph& graph)
{
    RECT rect = {120, 60, 240, 110};
    Holder<ISGraphLabel> label;
    watch.Step("a label", [&] { graph->InsertLabel(Text(L"first"), &rect, label.Out()); });
    watch.Step("a label by command", [&] {
        graph.Send(Command::insertLabel);
        graph.Frame();
    });
    watch.Step("click on a label", [&] { graph.Click({130, 70}); });
    watch.Step("it is moved", [&] { graph.DragInLoop({140, 80}, {190, 120}); });
    watch.Step("it is sized", [&] { graph.DragInLoop({168, 98}, {150, 90}); });
    watch.Step("double click edits it", [&] { graph.DoubleClick({200, 125}); });
    watch.Step("a click elsewhere ends that", [&] { graph.Click({60, 300}); });
    watch.Step("right click on it", [&] { graph.RightClick({200, 125}); });
    watch.Step("its looks", [&] {
        label->SetBorder(1);
        label->SetTransparent(0);
        label->SetColor(0xC0E0FF);
        label->SetTextColor(0x800000);
        label->SetAlignment(2);
        label->SetText(Text(L"two\r\nlines"));
        graph.Frame();
    });
    watch.Step("selected and deleted by a key", [&] {
        graph.Click({200, 125});
        graph.PostKey(VK_DELETE);
    });
}

void Notes(Watch& watch, Graph& graph, const TLook& look)
{
    watch.Step("a note", [&] { graph->InsertDataNotation(0, 8); });
    watch.Step("a note by a click", [&] {
        graph.Send(Command::cursor);
        graph.Click(PointOf(graph, look, 20));
        graph.Send(Command::noOp);
    });
    const POINT at = PointOf(graph, look, 8);
    watch.Step("pointer near a note", [&] { graph.Hover(Beside(at, 10, -10)); });
    watch.Step("click near a note", [&] { graph.Click(Beside(at, 10, -10)); });
}

void Run(Watch& watch, const TLook& look)
{
    watch.Begin(look.name, !look.bBare);
    Graph& graph = watch.Add(Place);
    watch.Step("plotted", [&] { Fill(graph, look); });
    Clicks(watch, graph, look);
    Markers(watch, graph, look);
    Zooms(watch, graph, look);
    Pans(watch, graph, look);
    Cursors(watch, graph, look);
    if (look.bBare)
        return;
    Measures(watch, graph, look);
    PointDrags(watch, graph, look);
    Notes(watch, graph, look);
    Labels(watch, graph);
}

// What gestures share between the graphs of a process.
void SideBySide(Watch& watch)
{
    const TLook look = {"side by side", Scale::linear, true, true};
    watch.Begin(look.name, false, 820, 400);
    Graph& left = watch.Add({0, 0, 400, 300});
    Graph& right = watch.Add({405, 0, 805, 300});
    watch.Step("plotted", [&] {
        Fill(left, look);
        Fill(right, look);
    });
    const POINT onCurve = PointOf(left, look, 17);
    const POINT middle = Graph::Middle(left.Inner());
    watch.Step("a point of the left is taken", [&] {
        left.Send(Command::edit);
        right.Send(Command::edit);
        left.Hover(onCurve);
        left.Press(onCurve);
    });
    watch.Step("a drag on the right", [&] { right.DragTo(Beside(onCurve, 0, 30)); });
    watch.Step("let go on the left", [&] { left.Release(onCurve); });
    watch.Step("a marker of the left is taken", [&] {
        left->NoOp();
        right->NoOp();
        for (Graph* pGraph : {&left, &right})
            (*pGraph).XAxis()->SetAxisMarker(0, 5, 0x0000FF, PS_SOLID);
        const POINT onMarker = {left.At(5, 50).x, middle.y};
        left.Hover(onMarker);
        left.Press(onMarker);
        left.DragTo(Beside(onMarker, 2, 0));
    });
    watch.Step("a drag of it on the right", [&] { right.DragTo(Beside(middle, -40, 0)); });
    watch.Step("and let go there", [&] { right.Release(middle); });
    watch.Step("a move on the left", [&] { left.Hover(middle); });
    watch.Step("cursor left, zoom right", [&] {
        left.Send(Command::cursor);
        right.Send(Command::zoom);
        left->SetCursorFlags(XGC_HORIZ | XGC_VERT);
        left.Hover(middle);
        DragBand(right, Beside(middle, -50, -50), Beside(middle, 50, 50));
        right.Release(Beside(middle, 50, 50));
    });
}
} // namespace

void Scripts::Gestures(Watch& watch)
{
    const TLook looks[] = {
        {"linear, buffered, bare", Scale::linear, true, true},
        {"linear, unbuffered, bare", Scale::linear, false, true},
        {"log, buffered, bare", Scale::log, true, true},
        {"date, unbuffered, bare", Scale::date, false, true},
        {"linear, buffered", Scale::linear, true, false},
        {"linear, unbuffered", Scale::linear, false, false},
        {"log, buffered", Scale::log, true, false},
        {"log, unbuffered", Scale::log, false, false},
        {"date, buffered", Scale::date, true, false},
        {"date, unbuffered", Scale::date, false, false},
    };
    for (const TLook& look : looks)
        Run(watch, look);
    SideBySide(watch);
}

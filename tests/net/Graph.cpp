#include "Graph.h"

#include <cmath>

namespace
{
constexpr UINT ControlId = 7;

// The pixel whose value is nearest, on an axis of any scale. nFirst has the smaller value.
int PixelOf(ISGraphAxis* pAxis, double value, int nFirst, int nLast)
{
    while (std::abs(nLast - nFirst) > 1) {
        const int nMiddle = (nFirst + nLast) / 2;
        (ValueAt(pAxis, nMiddle) < value ? nFirst : nLast) = nMiddle;
    }
    return std::fabs(ValueAt(pAxis, nFirst) - value) < std::fabs(ValueAt(pAxis, nLast) - value) ? nFirst
                                                                                                : nLast;
}
} // namespace

double ValueAt(ISGraphAxis* pAxis, int nPos)
{
    double value = NAN;
    pAxis->GetValueForPos(nPos, &value);
    return value;
}

Graph::Graph(const Server& server, const HostWindow& host, const RECT& place)
    : m_graph(server.Make<SGraph, ISGraph>())
{
    RECT rect = place;
    m_graph->Create(nullptr, &rect, host.Wire(), ControlId);
    m_graph->SetInnerColor(InnerColor);
    (void)host.TakePosted();
    Send(Command::passOn);
    const std::vector<MSG> posted = host.TakePosted();
    if (!posted.empty())
        m_half = posted.back().lParam;
}

HWND Graph::Window() const
{
    wireHWND hWnd = nullptr;
    m_graph->GetHandle(&hWnd);
    return reinterpret_cast<HWND>(hWnd);
}

Holder<ISGraphDataSerie> Graph::Plot(const std::vector<TDataPoint>& points, int nCurve, int nXAxis,
                                     int nYAxis)
{
    std::vector<TDataPoint> copy = points;
    Holder<ISGraphDataSerie> curve;
    m_graph->SetData(curve.Out(), copy.data(), static_cast<long>(copy.size()), nCurve, nXAxis, nYAxis,
                     1);
    return curve;
}

Holder<ISGraphAxis> Graph::XAxis(int nAxis) const
{
    Holder<ISGraphAxis> axis;
    m_graph->GetXAxis(axis.Out(), nAxis);
    return axis;
}

Holder<ISGraphAxis> Graph::YAxis(int nAxis) const
{
    Holder<ISGraphAxis> axis;
    m_graph->GetYAxis(axis.Out(), nAxis);
    return axis;
}

Holder<ISGraphDataSerie> Graph::Curve(int nCurve) const
{
    Holder<ISGraphDataSerie> curve;
    m_graph->GetCurve(curve.Out(), nCurve);
    return curve;
}

int Graph::XAxisCount() const
{
    int nCount = 0;
    m_graph->GetXAxisCount(&nCount);
    return nCount;
}

int Graph::YAxisCount() const
{
    int nCount = 0;
    m_graph->GetYAxisCount(&nCount);
    return nCount;
}

int Graph::CurveCount() const
{
    int nCount = 0;
    m_graph->GetCurveCount(&nCount);
    return nCount;
}

void Graph::Frame() const
{
    ::InvalidateRect(Window(), nullptr, TRUE);
    ::UpdateWindow(Window());
}

LRESULT Graph::Mouse(UINT message, POINT at, WPARAM nFlags) const
{
    return ::SendMessageW(Window(), message, nFlags, MAKELPARAM(at.x, at.y));
}

void Graph::Hover(POINT at) const
{
    Mouse(WM_MOUSEMOVE, at);
}

void Graph::Press(POINT at) const
{
    Mouse(WM_LBUTTONDOWN, at, MK_LBUTTON);
}

void Graph::DragTo(POINT at) const
{
    Mouse(WM_MOUSEMOVE, at, MK_LBUTTON);
}

void Graph::Release(POINT at) const
{
    Mouse(WM_LBUTTONUP, at);
}

void Graph::Click(POINT at) const
{
    Hover(at);
    PressAndTake(at, {});
}

void Graph::DoubleClick(POINT at) const
{
    Click(at);
    Mouse(WM_LBUTTONDBLCLK, at, MK_LBUTTON);
    Release(at);
}

void Graph::RightClick(POINT at) const
{
    Hover(at);
    Mouse(WM_RBUTTONDOWN, at, MK_RBUTTON);
    Mouse(WM_RBUTTONUP, at);
}

void Graph::DragInLoop(POINT from, POINT to) const
{
    PressAndTake(from, to);
}

// A press on a frame that sizes an object runs a loop until the button is released: the release
// waits in the queue, and is given to the graph here if no loop has taken it.
void Graph::PressAndTake(POINT from, std::optional<POINT> to) const
{
    const POINT end = to.value_or(from);
    if (to)
        ::PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    ::PostMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(end.x, end.y));
    Press(from);
    MSG message;
    while (::PeekMessageW(&message, Window(), WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
        ::DispatchMessageW(&message);
}

void Graph::Wheel(int nDelta, WPARAM nFlags) const
{
    ::SendMessageW(Window(), WM_MOUSEWHEEL, MAKEWPARAM(nFlags, nDelta), MAKELPARAM(100, 100));
}

void Graph::Key(WPARAM nKey) const
{
    ::SendMessageW(Window(), WM_KEYUP, nKey, 0);
}

void Graph::PostKey(WPARAM nKey) const
{
    ::PostMessageW(Window(), WM_KEYDOWN, nKey, 0);
    MSG message;
    while (::PeekMessageW(&message, Window(), WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
        ::DispatchMessageW(&message);
}

void Graph::Send(WPARAM nCommand) const
{
    m_graph->SendMessage(WM_COMMAND, nCommand, 0);
}

RECT Graph::Inner() const
{
    Frame();
    return Screen(Window()).Bounds(InnerColor);
}

POINT Graph::At(double x, double y, int nXAxis, int nYAxis) const
{
    const RECT inner = Inner();
    return {PixelOf(XAxis(nXAxis).Get(), x, inner.left, inner.right),
            PixelOf(YAxis(nYAxis).Get(), y, inner.bottom, inner.top)};
}

POINT Graph::Middle(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

RECT Graph::RectOf(ISGraphObject* pObject)
{
    RECT rect = {};
    pObject->GetRect(&rect);
    return rect;
}

#pragma once
// An XY graph in a host's window: a hand for its mouse and keys.

#include "Host.h"
#include "Screen.h"

#include <optional>
#include <vector>

namespace Command
{
enum : WPARAM {
    noOp = VPX_COMMAND_SELECT,
    insertLabel = VPX_COMMAND_INSERT_LABEL,
    zoom = VPX_COMMAND_ZOOM,
    resetZoom = VPX_COMMAND_RESET_ZOOM,
    pan = VPX_COMMAND_PAN,
    properties = VPX_COMMAND_PROPERTIES,
    print = VPX_COMMAND_PRINT,
    linearTrend = VPX_COMMAND_LINEAR_TREND,
    cubicTrend = VPX_COMMAND_CUBIC_TREND,
    cursor = VPX_COMMAND_CURSOR,
    passOn = VPX_COMMAND_PASS_ON,
    zoomBack = VPX_COMMAND_ZOOM_BACK,
    edit = VPX_COMMAND_EDIT,
    measure = VPX_COMMAND_MEASURE
};
} // namespace Command

class Graph
{
public:
    static constexpr COLORREF InnerColor = 0x40E0F0; // nothing else in a frame has it

    Graph(const Server& server, const HostWindow& host, const RECT& place);

    ISGraph* operator->() const { return m_graph.Get(); }
    [[nodiscard]] HWND Window() const;
    // What identifies the native object in notifications.
    [[nodiscard]] LPARAM Half() const { return m_half; }

    Holder<ISGraphDataSerie> Plot(const std::vector<TDataPoint>& points, int nCurve, int nXAxis = 0,
                                  int nYAxis = 0);
    [[nodiscard]] Holder<ISGraphAxis> XAxis(int nAxis = 0) const;
    [[nodiscard]] Holder<ISGraphAxis> YAxis(int nAxis = 0) const;
    [[nodiscard]] Holder<ISGraphDataSerie> Curve(int nCurve) const;
    [[nodiscard]] int XAxisCount() const;
    [[nodiscard]] int YAxisCount() const;
    [[nodiscard]] int CurveCount() const;

    void Frame() const; // paints now
    LRESULT Mouse(UINT message, POINT at, WPARAM nFlags = 0) const;
    void Hover(POINT at) const;
    void Press(POINT at) const;
    void DragTo(POINT at) const;
    void Release(POINT at) const;
    void Click(POINT at) const;
    void DoubleClick(POINT at) const;
    void RightClick(POINT at) const;
    // A press with a drag and a release waiting in the queue, for loops of the graph's own.
    void DragInLoop(POINT from, POINT to) const;
    void Wheel(int nDelta, WPARAM nFlags = 0) const;
    void Key(WPARAM nKey) const;
    void PostKey(WPARAM nKey) const; // by way of the host's message loop
    void Send(WPARAM nCommand) const;

    // Places, found as a person finds them. The plot's rectangle is taken from the screen.
    [[nodiscard]] RECT Inner() const;
    [[nodiscard]] POINT At(double x, double y, int nXAxis = 0, int nYAxis = 0) const;
    [[nodiscard]] static POINT Middle(const RECT& rect);
    [[nodiscard]] static RECT RectOf(ISGraphObject* pObject);

private:
    void PressAndTake(POINT from, std::optional<POINT> to) const;

    Holder<ISGraph> m_graph;
    LPARAM m_half = 0;
};

[[nodiscard]] double ValueAt(ISGraphAxis* pAxis, int nPos);

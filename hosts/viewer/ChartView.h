#pragma once
// A chart in a window of ours, whatever its kind.

#include "viewer/ChartServer.h"
#include "viewer/ViewerError.h"

#include <windows.h>

namespace Viewer
{

constexpr UINT ChartId = 100; // control id of the chart's window

class ChartView
{
public:
    ChartView() = default;
    ChartView(const ChartView&) = delete;
    ChartView& operator=(const ChartView&) = delete;
    virtual ~ChartView() = default;

    [[nodiscard]] virtual HWND Window() const noexcept = 0;
    virtual void MoveTo(const RECT& place) noexcept = 0;
};

// A chart that fails a call is of no use. Throws Error(NoServer).
inline void Check(HRESULT result)
{
    if (FAILED(result)) {
        throw Error{ExitCode::NoServer,
                    u"the chart refuses to work (" + SystemText(static_cast<DWORD>(result)) + u")"};
    }
}

// The window of a chart that `Create` has just made one for.
template <class Chart> [[nodiscard]] HWND HandleOf(Chart& chart)
{
    wireHWND window = nullptr;
    Check(chart.GetHandle(&window));
    if (!window)
        throw Error{ExitCode::NoServer, u"the chart has no window"};
    return FromWire(window);
}

} // namespace Viewer

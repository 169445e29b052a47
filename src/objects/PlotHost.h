#pragma once
// What the pieces of a graph see of it.
//
// Pixels are the client pixels of the last frame, or the screen units of the page while one is
// printed. Positions count from 0, and one outside its list ends the process. A piece without a
// graph asks nothing: it tests its m_pGraph first. The graph defines these functions.

#include "base/Vocabulary.h"
#include "framework/windowing/Geometry.h"

#include <windows.h>

class CWnd;
class CXGraph;
class CXGraphAxis;
class CXGraphDataSerie;
struct TFrameRoom;
struct TObjectRef;

namespace PlotHost
{

// The plot, of which right and bottom lie outside. Zeros before the first frame, and inverted where
// the window leaves no room for it.
[[nodiscard]] CRect InnerRect(const CXGraph& graph);
[[nodiscard]] COLORREF GraphColor(const CXGraph& graph); // 0x00BBGGRR, behind the axes
// Any message may change it, so it is read anew at each use.
[[nodiscard]] EOperation Operation(const CXGraph& graph);

// An element is good until its list changes.
[[nodiscard]] CXGraphAxis& XAxis(CXGraph& graph, int nAxis);
[[nodiscard]] CXGraphAxis& YAxis(CXGraph& graph, int nAxis);
[[nodiscard]] CXGraphDataSerie& Curve(CXGraph& graph, int nCurve);
[[nodiscard]] int CurveCount(const CXGraph& graph); // hidden ones included

// Positions by address, -1 for an element of no graph or of another one.
[[nodiscard]] int CurveIndex(const CXGraph& graph, const CXGraphDataSerie& curve);
// In the list of the axis's own kind: a file can put a Y axis into the list of X axes, where it has
// no position.
[[nodiscard]] int AxisIndex(const CXGraph& graph, const CXGraphAxis& axis);

// What the graph keeps for the lists of its frames; null before its first frame.
[[nodiscard]] TFrameRoom* FrameRoom(CXGraph& graph);

// Whether the object is still among the free objects.
[[nodiscard]] bool Owns(const CXGraph& graph, const TObjectRef& entry);

// Its m_hWnd is null before the window is made and after it is gone.
[[nodiscard]] CWnd& Window(CXGraph& graph);
void Repaint(CXGraph& graph); // the whole window with erase; nothing without a window

} // namespace PlotHost

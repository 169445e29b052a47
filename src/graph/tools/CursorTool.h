#pragma once
// The crosshair of opCursor: it snaps in y to a curve and reports what it sits on in the graph's
// cursor label. It is at CXGraph::m_ptCurrent, which a snap moves, also where a frame draws it.

#include "framework/windowing/Geometry.h"

class CDCEx;
class CXGraph;

class CCursorTool
{
public:
    explicit CCursorTool(CXGraph& graph) : m_Graph(graph) {}

    void Enter();  // places the label, too, by the plot of the last frame
    void Forget(); // nothing has to be erased: a frame wiped it
    // Draws it over the window, unclipped, and posts XG_CURSORMOVED.
    void Move();
    // By XOR, over the one at m_ptLastCursor; snaps first.
    void DrawCursor(CDCEx* pDC);
    void DrawCursorLegend(CDCEx* pDC);
    // Pins a note to the curve that it snapped to.
    void Pin();

    // Client pixels of the figure on the canvas, (-1, -1) for none. Written where it is drawn.
    CPoint m_ptLastCursor{0, 0};
    // Axis units, by the axes of the curve that was tried last: of the one it snapped to, if any.
    double m_fCursorX = 0.0;
    double m_fCursorY = 0.0;
    bool m_bTmpDC = false; // during Move; nothing reads it

private:
    void SnapCursor();
    int ReadCursor(int nCurve); // the pixel y of the curve at the cursor's x
    void DrawCursorFigure(CDCEx* pDC, CPoint point);

    CXGraph& m_Graph;
};

#pragma once
// A data point that follows the mouse in y, in opEditCurve. It is grabbed while the mouse hovers over
// its curve, before the button goes down; what is held is the process's (DragState).

#include "framework/windowing/Geometry.h"

class CDCEx;
class CXGraph;

class CPointDrag
{
public:
    explicit CPointDrag(CXGraph& graph) : m_Graph(graph) {}

    static void LetGo();
    // Takes the curve's point that lies half a marker left of the place.
    void Grab(CPoint point, int nCurve);
    // While the left button is held, moves the point's y there, posts XG_POINTCHANGED with the
    // change and repaints. The array may be the host's own.
    void Drag(CPoint point);
    void DrawValue(CDCEx* pDC); // beside the mouse

    double m_fEditValue = 0.0;    // the point's y, valid while m_bPointDragged is set
    bool m_bPointDragged = false; // written by Drag alone

private:
    CXGraph& m_Graph;
};

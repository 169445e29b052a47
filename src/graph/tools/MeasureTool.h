#pragma once
// Measures: the span between two curve points, with its differences in x and y. The graph keeps
// those that are finished; this is the one under the mouse, and how all are drawn.

#include "framework/windowing/Geometry.h"
#include "graph/GraphRecords.h"

class CDCEx;
class CXGraph;

class CMeasureTool
{
public:
    explicit CMeasureTool(CXGraph& graph) : m_Graph(graph) {}

    void Clear();
    // Moves the point's y onto the curve point that is nearest in y, and notes that point as an
    // end of the live measure: the first where the point is the press point.
    void FindNearestPoint(CPoint& point);
    void Keep(); // appends the live measure to the finished ones

    // An empty rectangle means the live measure in opMeasure, and is replaced by it.
    void DrawMeasure(CDCEx* pDC, CRect& rc);
    void DrawMeasures(CDCEx* pDC); // those that are finished
    void DrawLive(CDCEx* pDC);

    // Written by FindNearestPoint; an end that a drag didn't reach is that of the last measure.
    TMeasureSpan m_LiveMeasure;
    // Client pixels, from the press to the mouse, not normalised. Written where it is drawn.
    CRect m_rcMeasure{0, 0, 0, 0};
    // The curve of the second end. The first one's is CXGraph::m_nCursorCurve, which the cursor
    // shares. The texts of all measures read these two.
    int m_nMeasureCurve2 = 0;

private:
    [[nodiscard]] CPoint PointOfCurve(int nCurve, int nIndex);
    [[nodiscard]] CRect LiveMeasureRect() const;
    void DrawMeasureLines(CDCEx* pDC, const CRect& rc);
    static void DrawMeasureArrows(CDCEx* pDC, const CRect& rc);
    void DrawMeasureTexts(CDCEx* pDC, CRect rc);

    CXGraph& m_Graph;
};

#pragma once
// What lies under the mouse of a graph, and what a click there does.
//
// One object lives for one test. Its stages run in a fixed order, since an earlier one keeps
// the later ones from acting: Y axes, X axes, objects, curves, point drag, legend. A test that
// only checks returns true at the first thing that would react; any other one selects,
// notifies the parent window and opens the property sheet, and returns false.

#include "framework/windowing/Geometry.h"

#include <cstddef>

class CXGraph;
class CXGraphAxis;
class CXGraphDataSerie;
struct TAxisClick;

class CGraphHitTest
{
public:
    CGraphHitTest(CXGraph& graph, bool bDblClick, bool bCheckOnly);

    bool Run();

private:
    [[nodiscard]] bool TestAxes(const TAxisClick& kind);
    [[nodiscard]] bool TestAxisMarkers(CXGraphAxis& axis, const TAxisClick& kind);
    void DragAxisMarker(CXGraphAxis& axis, std::size_t nMarker, const TAxisClick& kind);
    void ClickAxis(std::size_t nAxis, const TAxisClick& kind);
    [[nodiscard]] bool TestObjects();
    [[nodiscard]] bool TestCurves();
    void ClickCurve(std::size_t nCurve);
    [[nodiscard]] bool TestLegend();
    void DoubleClickLegend(int nRow);

    CXGraph& m_Graph;
    const CPoint m_Point;
    const bool m_bDblClick;
    const bool m_bCheckOnly;
    bool m_bHandled = false; // an axis, object or curve took the click
    bool m_bContinue = true; // no object took it, so curves may
};

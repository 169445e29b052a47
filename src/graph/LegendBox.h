#pragma once
// The legend of one frame: measured and placed when it is made, drawn when its ground is filled.

#include "draw/DCEx.h"
#include "draw/QuickFont.h"
#include "graph/GraphLegendLayout.h"

#include <vector>

class CXGraph;
class CXGraphDataSerie;

class CLegendBox
{
public:
    // Takes its room, in pixels of the frame, from the left or right side of rcGraph.
    CLegendBox(CXGraph& graph, CDCEx* pDC, CRect& rcGraph);

    // Draws box and rows, and lists the rows in m_LegendEntries. Without a box the list is emptied.
    void Draw();

private:
    struct TRow {
        CXGraphDataSerie* pCurve;
        CString strText;
    };

    void FindRows();
    void DrawKey(const CXGraphDataSerie& curve, const CRect& rcKey);

    CXGraph& m_graph;
    CDCEx* m_pDC;
    CQuickFont m_font;
    std::vector<TRow> m_rows;
    GraphLegendLayout::Extent m_extent;
    CRect m_rcBox;
};

#pragma once
// The legend of one frame: measured and placed when it is made, drawn when its ground is filled.

#include "draw/DCEx.h"
#include "graph/GraphLegendLayout.h"
#include "graph/KeptFrame.h"

#include <vector>

class CXGraph;
class CXGraphDataSerie;

class CLegendBox
{
public:
    // Takes its room, in pixels of the frame, from the left or right side of rcGraph. The rows may
    // be those of an earlier frame; they must outlive the box.
    CLegendBox(CXGraph& graph, CDCEx* pDC, std::vector<TLegendRow>& rows, CRect& rcGraph);

    // Draws box and rows, and lists the rows in m_LegendEntries. Without a box the list is emptied.
    void Draw();

private:
    void FindRows();
    void MeasureRows();
    void DrawKey(const CXGraphDataSerie& curve, const CRect& rcKey);

    CXGraph& m_graph;
    CDCEx* m_pDC;
    std::vector<TLegendRow>& m_rows;
    GraphLegendLayout::Extent m_extent;
    CRect m_rcBox;
};

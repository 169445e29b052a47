// The legend: a box beside the graph area with one row per visible curve.

#include "graph/KeptFrame.h"
#include "graph/LegendBox.h"
#include "graph/XGraph.h"

void CXGraph::DrawLegend(CDCEx* pDC, CRect& rc)
{
    CLegendBox(*this, pDC, KeptFrame().legend, rc).Draw();
}

// Where the graph and its labels, which know no dialog, come in.

#include "dialogs/ChartPage.h"
#include "dialogs/LabelDlg.h"
#include "graph/XGraph.h"

void ShowChartSheet(CXGraph& graph, CXGraphAxis* pAxis, CXGraphDataSerie* pCurve)
{
    // The sheet is about an axis and a curve: a graph without data has none to show.
    if (graph.m_Curves.empty() || graph.m_YAxes.empty())
        return;
    CChartPage sheet(&graph);
    sheet.m_pGraph = &graph;
    sheet.m_pAxis = pAxis;
    sheet.m_pCurve = pCurve;
    sheet.DoModal();
}

void ShowLabelProperties(CXGraphLabel& label)
{
    CLabelDlg dialog(label, label.m_pGraph);
    dialog.DoModal();
}

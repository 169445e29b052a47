// Where the graph and its labels, which know no dialog, come in. The property sheet is not a
// part of the module yet: what would open it has had its effect on the selection and its
// notification by then, and nothing opens.

#include "dialogs/LabelDlg.h"
#include "graph/XGraph.h"

void ShowChartSheet(CXGraph&, CXGraphAxis*, CXGraphDataSerie*) {}

void ShowLabelProperties(CXGraphLabel& label)
{
    CLabelDlg dialog(label, label.m_pGraph);
    dialog.DoModal();
}

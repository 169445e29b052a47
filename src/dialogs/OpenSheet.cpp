// The property sheet and the label's dialog are not a part of the module yet: what would open
// them has had its effect on the selection and its notification by then, and nothing opens.

#include "graph/XGraph.h"

void ShowChartSheet(CXGraph&, CXGraphAxis*, CXGraphDataSerie*) {}

void ShowLabelProperties(CXGraphLabel&) {}

#pragma once
// A refused data operation is reported to the person at the screen, in a message box; the caller
// learns nothing of it.

#include "charts2d/Refusal.h"

// Nothing happens for ERefusal::none. The box is modal: the caller touches nothing of
// the chart afterwards, since the host's messages run meanwhile.
void ReportRefusal(ERefusal refusal);

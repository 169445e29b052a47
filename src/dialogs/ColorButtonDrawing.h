#pragma once
// The look of a CColorButton: a push button's face with a field of colour, a separator and
// an arrow.

#include "framework/windowing/DeviceContexts.h"

namespace ColorButtonDrawing
{

// `state` holds the ODS_ flags; selected is pushed. A disabled button shows no colour.
void Draw(CDC& dc, const CRect& item, UINT state, COLORREF colour);

} // namespace ColorButtonDrawing

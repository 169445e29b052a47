#pragma once
// The rows of the curve page's two lists that it draws itself.

#include "draw/Markers.h"

namespace CurveRows
{

inline constexpr int LineStyles = 5; // pen styles, from 0
inline constexpr int Symbols = 8;    // marker symbols, from 0

void MeasureLineStyle(MEASUREITEMSTRUCT& item);
void MeasureSymbol(MEASUREITEMSTRUCT& item);

// A row past the last one stays as it is.
void DrawLineStyle(const DRAWITEMSTRUCT& item);
void DrawSymbol(const DRAWITEMSTRUCT& item, const MarkerPainter (&painters)[Symbols]);

} // namespace CurveRows

#pragma once
// What bar and line chart paint alike.

#include "base/Geometry.h"
#include "charts2d/BarData.h"
#include "charts2d/ChartMeasures.h"
#include "framework/windowing/GdiObjects.h"

#include <windows.h>

namespace SeriesPainter
{

void DrawAxes(HDC hDC, const ChartMeasures::TFactors& factors, TPoint position, TSize size,
              const CBarData& data);

void DrawLegend(HDC hDC, const CFont* font, TPoint position, TSize size, const CBarData& data,
                COLORREF text, COLORREF background);

} // namespace SeriesPainter

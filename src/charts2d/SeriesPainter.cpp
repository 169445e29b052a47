#include "charts2d/SeriesPainter.h"

#include <vector>

#include "charts2d/ChartPainter.h"

namespace SeriesPainter
{

void DrawAxes(HDC hDC, const ChartMeasures::TFactors& factors, TPoint position, TSize size,
              const CBarData& data)
{
    const auto measures =
        ChartMeasures::Measure(factors, position, size, data.m_nSegments, data.m_nSeries);
    ChartPainter::DrawAxes(hDC, ChartMeasures::AxisLines(measures, position, size));
}

void DrawLegend(HDC hDC, const CFont* font, TPoint position, TSize size, const CBarData& data,
                COLORREF text, COLORREF background)
{
    std::vector<ChartPainter::TLegendRow> rows;
    for (const SBarSeries* series = data.m_pSeries; series; series = series->pNext) {
        const CString name = ChartPainter::TextOf(series->strName);
        rows.push_back({series->crColor, name, name});
    }
    ChartPainter::DrawLegend(hDC, font, LegendLayout::SeriesShape, position, size, rows, text,
                             background);
}

} // namespace SeriesPainter

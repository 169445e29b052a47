// The doughnut and the flat style.

#include "pie3d/PieChartWnd.h"

#include "pie3d/PieBrushes.h"

void CPieChartWnd::DrawDoughnut(CDC& dc)
{
    DrawFrame(dc, &CPieChartWnd::DrawDoughnutSlices);
}

void CPieChartWnd::DrawFlat(CDC& dc)
{
    DrawFrame(dc, &CPieChartWnd::DrawFlatSlices);
}

void CPieChartWnd::DrawDoughnutSlices(const GdiPlus::CGraphics& graphics)
{
    const TRect pie = GetPieRect();
    const PieGeometry::TRectF outer = GdiPlus::ToFloats(pie);
    const float unit = static_cast<float>(pie.Width()) / 15.0f;
    const PieGeometry::TRectF inner = PieGeometry::Inset(pie, unit);
    const GdiPlus::CPen pen = GdiPlus::NewPen(0xFF000000, 1.0f);
    const PieBrushes::CSliceGradient gradient(pie);
    const PieBrushes::CSelection selection(m_crSelected);

    float start = m_fStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        const float sweep = element->fSweep;
        GdiPlus::SetColor(pen, PieColors::LightenColor(element->crColor, 160.0f));
        // Opposite gradients make the bevelled look.
        graphics.FillPie(gradient.Between(element->crLight, element->crDark), outer, start, sweep);
        graphics.FillPie(gradient.Between(element->crDark, element->crLight), inner, start, sweep);
        graphics.DrawPie(pen, outer, start, sweep);
        if (element->bSelected)
            selection.MarkPie(graphics, outer, start, sweep);
        start += sweep;
    }
    if (!m_mapElements.empty()) {
        const GdiPlus::CLineBrush background = DiagonalBrush();
        const PieGeometry::TRectF hole = PieGeometry::AboutCentre(pie, 3 * unit);
        graphics.FillEllipse(background.Get(), hole);
        GdiPlus::SetBrush(pen, background);
        graphics.DrawEllipse(pen, hole);
    }
}

void CPieChartWnd::DrawFlatSlices(const GdiPlus::CGraphics& graphics)
{
    const TRect pie = GetPieRect();
    const PieGeometry::TRectF outer = GdiPlus::ToFloats(pie);
    const PieGeometry::TRectF inner = PieGeometry::Inset(pie, static_cast<float>(pie.Width()) / 25.0f);
    const PieBrushes::CSliceGradient gradient(pie);
    const PieBrushes::CSelection selection(m_crSelected);

    float start = m_fStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        const float sweep = element->fSweep;
        graphics.FillPie(gradient.Between(element->crDark, element->crColor), outer, start, sweep);
        graphics.FillPie(gradient.Between(element->crColor, element->crLight), inner, start, sweep);
        if (element->bSelected)
            selection.MarkPie(graphics, outer, start, sweep);
        start += sweep;
    }
    DrawCuts(graphics);
}

// Lines in the colours of the background between the slices.
void CPieChartWnd::DrawCuts(const GdiPlus::CGraphics& graphics) const
{
    const TRect pie = GetPieRect();
    const PieGeometry::TPointF centre = GdiPlus::ToFloats(PieGeometry::CentreOf(pie));
    const GdiPlus::CLineBrush background = DiagonalBrush();
    const std::int32_t width = m_nPieLimit / 150;
    const GdiPlus::CPen pen = GdiPlus::NewPen(background, static_cast<float>(width));
    float end = m_fStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        end += element->fSweep;
        graphics.DrawLine(pen, centre, PieGeometry::RimPoint(pie, end));
    }
}

#include "pie3d/PieChartWnd.h"

void CPieChartWnd::HitTest(POINT point)
{
    Settle();
    if (m_nChartStyle == 2) {
        SelectOnFaces(point);
    } else {
        SelectOnCircle(point);
    }
    Repaint();
}

// By the wall's path or by the upper face.
void CPieChartWnd::SelectOnFaces(POINT point)
{
    const PieGeometry::TPointF at = GdiPlus::ToFloats(TPoint{point.x, point.y});
    const PieGeometry::TRectF face = GdiPlus::ToFloats(Faces().rcUpper);
    const GdiPlus::CPath scratch = GdiPlus::NewPath();
    float start = m_fDrawStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        GdiPlus::ResetPath(scratch);
        GdiPlus::AddPie(scratch, face, start, element->fDrawSweep);
        element->bSelected = GdiPlus::Contains(element->pPath, at) || GdiPlus::Contains(scratch, at);
        start += element->fDrawSweep;
    }
}

void CPieChartWnd::SelectOnCircle(POINT point)
{
    const PieGeometry::TPointF at = GdiPlus::ToFloats(TPoint{point.x, point.y});
    const TRect pie = GetPieRect();
    const float unit = static_cast<float>(pie.Width()) / 15.0f;
    const GdiPlus::CPath scratch = GdiPlus::NewPath();
    float start = m_fStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        GdiPlus::ResetPath(scratch);
        GdiPlus::AddPie(scratch, GdiPlus::ToFloats(pie), start, element->fSweep);
        if (m_nChartStyle == 0) {
            // The inner pie cancels the outer one, so the hole cannot be clicked.
            GdiPlus::AddPie(scratch, PieGeometry::AboutCentre(pie, 3 * unit), start, element->fSweep);
        }
        element->bSelected = GdiPlus::Contains(scratch, at);
        start += element->fSweep;
    }
}

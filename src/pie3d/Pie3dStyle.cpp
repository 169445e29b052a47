// The three-dimensional style. Depth comes from the order alone: all walls, then all upper
// faces. Walls are on the front half of the rim only, where no slice hides another.

#include "pie3d/PieChartWnd.h"

#include "pie3d/PieBrushes.h"

void CPieChartWnd::Draw3D(CDC& dc)
{
    DrawFrame(dc, &CPieChartWnd::Draw3DSlices);
}

void CPieChartWnd::ProjectAngles()
{
    std::vector<float> sweeps;
    sweeps.reserve(m_mapElements.size());
    for (const auto& [key, element] : m_mapElements)
        sweeps.push_back(element->fSweep);
    std::vector<PieGeometry::TProjection> projections(sweeps.size());
    m_fDrawStartAngle =
        PieGeometry::ProjectAngles(GetPieRect(), Faces(), m_fStartAngle, sweeps, projections);
    auto projection = projections.begin();
    for (const auto& [key, element] : m_mapElements) {
        element->fDrawSweep = projection->fDrawSweep;
        element->fLabelX = projection->fLabelX;
        element->fLabelY = projection->fLabelY;
        ++projection;
    }
}

void CPieChartWnd::Draw3DSlices(const GdiPlus::CGraphics& graphics)
{
    DrawWalls(graphics);

    const TRect upper = Faces().rcUpper;
    const PieGeometry::TRectF face = GdiPlus::ToFloats(upper);
    const GdiPlus::CPen pen = GdiPlus::NewPen(0xFFFFFFFF, 0.2f);
    const PieBrushes::CSliceGradient gradient(upper);
    const PieBrushes::CSelection selection(m_crSelected);
    float start = m_fDrawStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        const float sweep = element->fDrawSweep;
        graphics.FillPie(gradient.Between(element->crDark, element->crLight), face, start, sweep);
        GdiPlus::SetColor(pen, element->crColor);
        graphics.DrawPie(pen, face, start, sweep);
        if (element->bSelected)
            selection.MarkPie(graphics, face, start, sweep);
        start += sweep;
    }
}

void CPieChartWnd::DrawWalls(const GdiPlus::CGraphics& graphics)
{
    float start = m_fDrawStartAngle;
    for (const auto& [key, element] : m_mapElements) {
        const PieWalls::CWallPieces pieces = PieWalls::PiecesOf(start, element->fDrawSweep);
        if (pieces.Pieces().empty())
            element->nPathStatus = GdiPlus::ResetPath(element->pPath);
        for (const PieWalls::TWallPiece& piece : pieces.Pieces())
            DrawSideWall(graphics, *element, piece);
        start += element->fDrawSweep;
    }
}

void CPieChartWnd::DrawSideWall(const GdiPlus::CGraphics& graphics, SPieElement& element,
                                const PieWalls::TWallPiece& piece) const
{
    if (piece.bReset)
        element.nPathStatus = GdiPlus::ResetPath(element.pPath);
    if (!PieWalls::HasWidth(piece))
        return;
    const PieGeometry::TFaces faces = Faces();
    const PieWalls::TOutline outline = PieWalls::OutlineOf(faces, piece);
    const PieGeometry::TRectF upper = GdiPlus::ToFloats(faces.rcUpper);
    const PieGeometry::TRectF lower = GdiPlus::ToFloats(faces.rcLower);
    float start = piece.fStart;
    float sweep = piece.fSweep;
    const bool outlined =
        PieGeometry::OutlineAngles(lower, start, sweep) == PieGeometry::EOutline::whole;

    const GdiPlus::CPath wall = GdiPlus::NewPath();
    GdiPlus::AddArc(wall, lower, start, sweep);
    if (outline.bLeftEdge) {
        GdiPlus::AddLine(wall, GdiPlus::ToFloats(outline.leftEdge.from),
                         GdiPlus::ToFloats(outline.leftEdge.to));
    }
    GdiPlus::AddArc(wall, upper, start + sweep, -sweep);
    if (outline.bRightEdge) {
        GdiPlus::AddLine(wall, GdiPlus::ToFloats(outline.rightEdge.from),
                         GdiPlus::ToFloats(outline.rightEdge.to));
    }

    const std::int32_t middle = faces.rcUpper.right / 2;
    const GdiPlus::CLineBrush gradient =
        GdiPlus::NewLineBrush({middle, PieGeometry::CentreOf(faces.rcUpper).y},
                              {middle, faces.rcLower.bottom}, element.crLight, element.crDark);
    graphics.FillPath(gradient.Get(), wall);
    if (outlined)
        graphics.DrawPath(GdiPlus::NewPen(element.crColor, 0.5f), wall);
    if (element.bSelected) {
        const PieBrushes::CSelection selection(m_crSelected);
        selection.FillPath(graphics, wall);
        if (outlined)
            selection.DrawPath(graphics, wall);
    }
    element.nPathStatus = GdiPlus::AddPath(element.pPath, wall);
}

#include "pie3d/PieWalls.h"

#include <algorithm>
#include <cmath>

namespace PieWalls
{
namespace
{

std::int32_t MiddleOf(const TRect& rc) noexcept
{
    return PieGeometry::CentreOf(rc).y;
}

} // namespace

CWallPieces PiecesOf(float fStart, float fSweep) noexcept
{
    const float start = fStart >= 360.0f ? fStart - 360.0f : fStart;
    const float end = start + fSweep;
    const float beyondRight = fSweep - (360.0f - start); // what is left after coming around
    CWallPieces pieces;
    if (start < 180.0f) {
        if (end <= 180.0f) {
            pieces.Add({start, fSweep, true});
        } else if (end <= 360.0f) {
            pieces.Add({start, 180.0f - start, true});
        } else {
            pieces.Add({0.0f, beyondRight, true});
            pieces.Add({start, 180.0f - start, false});
        }
    } else if (end > 360.0f) {
        pieces.Add({0.0f, std::min(beyondRight, 180.0f), true});
    }
    return pieces;
}

bool HasWidth(const TWallPiece& piece) noexcept
{
    return std::abs(piece.fSweep) >= PieGeometry::ThinnestSweep;
}

TOutline OutlineOf(const PieGeometry::TFaces& faces, const TWallPiece& piece) noexcept
{
    const TRect& upper = faces.rcUpper;
    const TRect& lower = faces.rcLower;
    TOutline outline;
    outline.bLeftEdge = piece.fStart + piece.fSweep == 180.0f;
    outline.bRightEdge = piece.fStart == 0.0f;
    outline.leftEdge = {{lower.left, MiddleOf(lower)}, {upper.left, MiddleOf(upper)}};
    outline.rightEdge = {{lower.right, MiddleOf(lower)}, {upper.right, MiddleOf(upper)}};
    return outline;
}

} // namespace PieWalls

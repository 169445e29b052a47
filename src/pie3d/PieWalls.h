#pragma once
// The side wall of the tilted pie. It shows on the front half of the rim alone, angles 0 to
// 180 (right, down, left), where no element hides another; an element's part of it is one
// piece, or two where the element reaches around the back.

#include "pie3d/PieGeometry.h"

#include <array>
#include <cstdint>
#include <span>

namespace PieWalls
{

struct TWallPiece {
    float fStart = 0;
    float fSweep = 0;
    bool bReset = false; // the first piece of an element starts its hit path afresh
    friend bool operator==(const TWallPiece&, const TWallPiece&) = default;
};

class CWallPieces
{
public:
    void Add(const TWallPiece& piece) noexcept { m_pieces[m_nCount++] = piece; }
    [[nodiscard]] std::span<const TWallPiece> Pieces() const noexcept
    {
        return {m_pieces.data(), m_nCount};
    }

private:
    std::array<TWallPiece, 2> m_pieces{};
    std::size_t m_nCount = 0;
};

// The pieces of an element that starts at fStart on the ellipse (taken under 360 once) and
// sweeps fSweep. None if the element is at the back.
[[nodiscard]] CWallPieces PiecesOf(float fStart, float fSweep) noexcept;

// The drawing library does not survive arcs thinner than this; such a piece has no pixel.
[[nodiscard]] bool HasWidth(const TWallPiece& piece) noexcept;

struct TEdge {
    TPoint from;
    TPoint to;
    friend bool operator==(const TEdge&, const TEdge&) = default;
};

// The outline of a piece: the arc on the lower face from fStart, then the left edge if the
// piece ends at 180, then the arc on the upper face back, then the right edge if it starts
// at 0.
struct TOutline {
    bool bLeftEdge = false;
    bool bRightEdge = false;
    TEdge leftEdge;
    TEdge rightEdge;
};

[[nodiscard]] TOutline OutlineOf(const PieGeometry::TFaces& faces, const TWallPiece& piece) noexcept;

} // namespace PieWalls

#pragma once
// The eight marker symbols, each in the square of side nSize from ptTopLeft: a black pen of
// width 1 around a fill in the colour (the cross is two strokes of width 2 in the colour).
// On a mono target the colour is black. The flag is spare.

#include "framework/windowing/Geometry.h"

class CDCEx;

using MarkerPainter = void (*)(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);

void DrawSquare(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawCircle(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawCross(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawDiamond(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawTriangleLeft(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawTriangleUp(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawTriangleRight(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);
void DrawTriangleDown(CPoint ptTopLeft, int nSize, COLORREF crColor, bool bSpare, CDCEx* pDC);

// By marker number.
inline constexpr MarkerPainter MarkerPainters[] = {
    DrawSquare,       DrawCircle,     DrawCross,         DrawDiamond,
    DrawTriangleLeft, DrawTriangleUp, DrawTriangleRight, DrawTriangleDown,
};

#include "draw/Markers.h"

#include "base/Colors.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"

#include <span>

namespace
{
COLORREF MarkerColour(COLORREF colour, const CDCEx& dc)
{
    return dc.m_bMono ? Black : colour;
}

// The outline and the fill of all symbols but the cross.
class CSymbolLook
{
public:
    CSymbolLook(COLORREF colour, CDCEx* dc) : m_Pen(Black, 1, dc), m_Brush(MarkerColour(colour, *dc), dc)
    {
    }

private:
    CPenSelector m_Pen;
    CBrushSelector m_Brush;
};

void DrawSymbolPolygon(CPoint corner, std::span<const CSize> offsets, COLORREF colour, CDCEx* dc)
{
    const CSymbolLook look(colour, dc);
    POINT points[4];
    int count = 0;
    for (const CSize& offset : offsets)
        points[count++] = corner + offset;
    dc->Polygon(points, count);
}
} // namespace

void DrawSquare(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CSymbolLook look(crColor, pDC);
    const CRect square(ptTopLeft, CSize(nSize, nSize));
    pDC->Rectangle(&square);
}

void DrawCircle(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CSymbolLook look(crColor, pDC);
    const CRect square(ptTopLeft, CSize(nSize, nSize));
    pDC->Ellipse(square.left, square.top, square.right, square.bottom);
}

void DrawCross(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CPenSelector pen(MarkerColour(crColor, *pDC), 2, pDC);
    const CRect square(ptTopLeft, CSize(nSize, nSize));
    pDC->MoveTo(square.left, square.top);
    pDC->LineTo(square.right, square.bottom);
    pDC->MoveTo(square.right, square.top);
    pDC->LineTo(square.left, square.bottom);
}

void DrawDiamond(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const int half = nSize / 2;
    const CSize offsets[] = {{half, 0}, {nSize, half}, {half, nSize}, {0, half}};
    DrawSymbolPolygon(ptTopLeft, offsets, crColor, pDC);
}

void DrawTriangleLeft(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const int right = Wrap::Subtract(nSize, 1);
    const CSize offsets[] = {{right, 0}, {0, nSize / 2}, {right, nSize}};
    DrawSymbolPolygon(ptTopLeft, offsets, crColor, pDC);
}

void DrawTriangleUp(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CSize offsets[] = {{nSize / 2, 0}, {nSize, nSize}, {0, nSize}};
    DrawSymbolPolygon(ptTopLeft, offsets, crColor, pDC);
}

void DrawTriangleRight(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CSize offsets[] = {{0, 0}, {nSize, nSize / 2}, {0, nSize}};
    DrawSymbolPolygon(ptTopLeft, offsets, crColor, pDC);
}

void DrawTriangleDown(CPoint ptTopLeft, int nSize, COLORREF crColor, bool, CDCEx* pDC)
{
    const CSize offsets[] = {{0, 0}, {nSize, 0}, {nSize / 2, nSize}};
    DrawSymbolPolygon(ptTopLeft, offsets, crColor, pDC);
}

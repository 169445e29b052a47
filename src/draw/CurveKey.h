#pragma once
// The keys of curves: what shows a curve along its axes, in the legend and on its points. One
// object draws any number of keys of one size; the font of their numbers is selected from the first
// number to the object's end.

#include "draw/KeptFonts.h"
#include "framework/windowing/Geometry.h"

#include <optional>

class CDCEx;

class CCurveKeys
{
public:
    // nSize is the side of a key's square, in pixels.
    CCurveKeys(CDCEx* pDC, int nSize) noexcept;

    // With bSymbol draws the marker symbol nKey in the colour, or nothing where there is no such
    // symbol; else a filled square with the number nKey + 1, which is white on a dark colour and
    // on a mono target.
    void Draw(CPoint ptTopLeft, int nKey, COLORREF crColor, bool bSymbol);

private:
    void DrawNumber(const CRect& rect, int nKey, COLORREF crColor);

    CDCEx* m_pDC;
    int m_nSize;
    std::optional<CArialSelector> m_numberFont;
};

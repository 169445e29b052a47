#pragma once
// Scoped selection: each makes or takes a drawing object, selects it for its own lifetime,
// and selects the old one back. Stack objects, destroyed in reverse order, so a paint
// routine leaves the context as it found it. The context must outlive them.

#include "framework/windowing/GdiObjects.h"

class CDCEx;

// A pen of the colour; a solid one (style 0) widens with a scaling context. Throws
// CResourceException where the platform makes no pen.
class CPenSelector
{
public:
    CPenSelector(COLORREF crColor, int nWidth, CDCEx* pDC, int nStyle = PS_SOLID);
    CPenSelector(const CPenSelector&) = delete;
    CPenSelector& operator=(const CPenSelector&) = delete;
    virtual ~CPenSelector();

protected:
    CPen m_Pen;
    HGDIOBJ m_hOldPen;
    CDCEx* m_pDC;
};

// A solid brush, or one of the platform's hatches. Throws CResourceException where
// the platform makes no brush.
class CBrushSelector
{
public:
    CBrushSelector(COLORREF crColor, CDCEx* pDC);
    CBrushSelector(int nIndex, COLORREF crColor, CDCEx* pDC);
    CBrushSelector(const CBrushSelector&) = delete;
    CBrushSelector& operator=(const CBrushSelector&) = delete;
    virtual ~CBrushSelector();

    // Whether the platform makes a brush of this style: 0 to 5 are its named hatches, and it has
    // a few beyond them.
    [[nodiscard]] static bool IsHatch(int nIndex) noexcept;

protected:
    CBrush m_Brush;
    HGDIOBJ m_hOldBrush;
    CDCEx* m_pDC;
};

// The font, or with bScale on a scaling context one of the device's size made from it.
// Measure with bScale false and draw with true: layout runs in screen units.
// With bLasting the font outlives the frame: the buffer of the screen may keep it selected after
// the selector's end, until a text wants another one.
class CFontSelector
{
public:
    CFontSelector(CFont* pFont, CDCEx* pDC, bool bScale, bool bLasting = false);
    CFontSelector(const CFontSelector&) = delete;
    CFontSelector& operator=(const CFontSelector&) = delete;
    virtual ~CFontSelector();

protected:
    CFont m_ScaledFont;
    HGDIOBJ m_hOldFont;
    CDCEx* m_pDC;
    bool m_bLasting;
};

#include "draw/Selectors.h"

#include "draw/DCEx.h"
#include "draw/DeviceScale.h"

namespace
{
int PenWidth(int nWidth, int nStyle, CDCEx* pDC)
{
    pDC->NeedScale();
    return DeviceScale::ScaledPenWidth(nWidth, nStyle, pDC->m_bScaling, pDC->m_fScaleX);
}
} // namespace

CPenSelector::CPenSelector(COLORREF crColor, int nWidth, CDCEx* pDC, int nStyle)
    : m_Pen(nStyle, PenWidth(nWidth, nStyle, pDC), crColor), m_hOldPen(pDC->SelectHandle(m_Pen)),
      m_pDC(pDC)
{
}

CPenSelector::~CPenSelector()
{
    m_pDC->SelectHandle(m_hOldPen);
}

CBrushSelector::CBrushSelector(COLORREF crColor, CDCEx* pDC)
    : m_Brush(crColor), m_hOldBrush(pDC->SelectHandle(m_Brush)), m_pDC(pDC)
{
}

CBrushSelector::CBrushSelector(int nIndex, COLORREF crColor, CDCEx* pDC)
    : m_Brush(nIndex, crColor), m_hOldBrush(pDC->SelectHandle(m_Brush)), m_pDC(pDC)
{
}

CBrushSelector::~CBrushSelector()
{
    m_pDC->SelectHandle(m_hOldBrush);
}

bool CBrushSelector::IsHatch(int nIndex) noexcept
{
    const HBRUSH hBrush = ::CreateHatchBrush(nIndex, 0);
    return hBrush && ::DeleteObject(hBrush) != FALSE;
}

CFontSelector::CFontSelector(CFont* pFont, CDCEx* pDC, bool bScale, bool bLasting)
    : m_pDC(pDC), m_bLasting(bLasting)
{
    m_pDC->NeedScale();
    if (!m_pDC->m_bScaling || !bScale) {
        m_hOldFont = m_pDC->WantFont(*pFont);
        return;
    }
    LOGFONT record{};
    pFont->GetLogFont(&record);
    record.lfHeight = DeviceScale::ScaledFontHeight(record.lfHeight, m_pDC->m_fScaleY);
    record.lfWidth = DeviceScale::Scaled(record.lfWidth, m_pDC->m_fScaleX);
    m_ScaledFont.CreateFontIndirect(&record);
    m_hOldFont = m_pDC->WantFont(m_ScaledFont);
}

CFontSelector::~CFontSelector()
{
    m_pDC->WantFont(m_hOldFont);
    if (!m_bLasting)
        m_pDC->SelectWantedFont();
}

#include "draw/Selectors.h"

#include "draw/DCEx.h"
#include "draw/DeviceScale.h"

CPenSelector::CPenSelector(COLORREF crColor, int nWidth, CDCEx* pDC, int nStyle) : m_pDC(pDC)
{
    m_pDC->NeedScale();
    const int width = DeviceScale::ScaledPenWidth(nWidth, nStyle, m_pDC->m_bScaling, m_pDC->m_fScaleX);
    m_pPen = std::make_unique<CPen>(nStyle, width, crColor);
    m_pOldPen = m_pDC->SelectObject(m_pPen.get());
}

CPenSelector::~CPenSelector()
{
    m_pDC->SelectObject(m_pOldPen);
}

CBrushSelector::CBrushSelector(COLORREF crColor, CDCEx* pDC)
    : m_pBrush(std::make_unique<CBrush>(crColor)), m_pOldBrush(pDC->SelectObject(m_pBrush.get())),
      m_pDC(pDC)
{
}

CBrushSelector::CBrushSelector(int nIndex, COLORREF crColor, CDCEx* pDC)
    : m_pBrush(std::make_unique<CBrush>(nIndex, crColor)),
      m_pOldBrush(pDC->SelectObject(m_pBrush.get())), m_pDC(pDC)
{
}

CBrushSelector::~CBrushSelector()
{
    m_pDC->SelectObject(m_pOldBrush);
}

bool CBrushSelector::IsHatch(int nIndex) noexcept
{
    const HBRUSH hBrush = ::CreateHatchBrush(nIndex, 0);
    return hBrush && ::DeleteObject(hBrush) != FALSE;
}

CFontSelector::CFontSelector(CFont* pFont, CDCEx* pDC, bool bScale) : m_pDC(pDC)
{
    m_pDC->NeedScale();
    if (!m_pDC->m_bScaling || !bScale) {
        m_pOldFont = m_pDC->SelectObject(pFont);
        return;
    }
    LOGFONT record{};
    pFont->GetLogFont(&record);
    record.lfHeight = DeviceScale::ScaledFontHeight(record.lfHeight, m_pDC->m_fScaleY);
    record.lfWidth = DeviceScale::Scaled(record.lfWidth, m_pDC->m_fScaleX);
    m_ScaledFont.CreateFontIndirect(&record);
    m_pOldFont = m_pDC->SelectObject(&m_ScaledFont);
}

CFontSelector::~CFontSelector()
{
    m_pDC->SelectObject(m_pOldFont);
}

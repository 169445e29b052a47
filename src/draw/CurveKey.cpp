#include "draw/CurveKey.h"

#include "base/Colors.h"
#include "draw/DCEx.h"
#include "draw/Markers.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace
{

constexpr int LargestKey = 32767; // more than any plot; the platform's cost grows with the size

bool IsDark(COLORREF color)
{
    const int nBlue = GetBValue(color);
    return std::max({static_cast<int>(GetRValue(color)), static_cast<int>(GetGValue(color)),
                     nBlue / 2}) < 129;
}

} // namespace

CCurveKeys::CCurveKeys(CDCEx* pDC, int nSize) noexcept
    : m_pDC(pDC), m_nSize(std::clamp(nSize, -LargestKey, LargestKey))
{
}

void CCurveKeys::Draw(CPoint ptTopLeft, int nKey, COLORREF crColor, bool bSymbol)
{
    if (bSymbol) {
        if (nKey >= 0 && std::cmp_less(nKey, std::size(MarkerPainters)))
            MarkerPainters[nKey](ptTopLeft, m_nSize, crColor, false, m_pDC);
        return;
    }
    const CRect rect(ptTopLeft.x, ptTopLeft.y, Wrap::Add(ptTopLeft.x, m_nSize),
                     Wrap::Add(ptTopLeft.y, m_nSize));
    m_pDC->FillSolidRect(&rect, m_pDC->m_bMono ? Black : crColor);
    DrawNumber(rect, nKey, crColor);
}

void CCurveKeys::DrawNumber(const CRect& rect, int nKey, COLORREF crColor)
{
    // Not before the fill: the first selection of a font can make the canvas mono.
    if (!m_numberFont)
        m_numberFont.emplace(m_nSize, FW_THIN, m_pDC, true);
    const COLORREF crOld = m_pDC->SetTextColor(m_pDC->m_bMono || IsDark(crColor) ? White : Black);
    CString cNumber;
    cNumber.Format(L"%d", static_cast<std::int64_t>(nKey) + 1);
    CRect rcText(rect);
    m_pDC->DrawText(cNumber, &rcText, DT_CENTER);
    m_pDC->SetTextColor(crOld);
}

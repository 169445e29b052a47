#include "objects/XGraphLabel.h"

#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "framework/windowing/Archive.h"
#include "graph/XGraph.h"

#include <optional>

IMPLEMENT_SERIAL(CXGraphLabel, CXGraphObject, 1)

namespace
{

constexpr COLORREF kBlack = 0x000000;
constexpr COLORREF kWhite = 0xFFFFFF;

LOGFONTW DefaultFont()
{
    LOGFONTW font = {};
    font.lfHeight = 14;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfClipPrecision = CLIP_CHARACTER_PRECIS;
    font.lfQuality = ANTIALIASED_QUALITY;
    ::lstrcpynW(font.lfFaceName, L"Arial", LF_FACESIZE);
    return font;
}

} // namespace

CXGraphLabel::CXGraphLabel() : m_cText(L" "), m_crFillColor(::GetSysColor(COLOR_WINDOW))
{
    m_bCanResize = true;
    m_bCanMove = true;
    SetFont(DefaultFont());
}

CXGraphLabel::~CXGraphLabel() = default;

void CXGraphLabel::SetFont(const LOGFONTW& font)
{
    m_Font.DeleteObject();
    m_Font.CreateFontIndirect(&font);
}

void CXGraphLabel::Serialize(CArchive& ar)
{
    CXGraphObject::Serialize(ar);
    LOGFONTW font = {};
    static_assert(sizeof font == 92);
    if (ar.IsStoring()) {
        m_Font.GetLogFont(&font);
        ar << m_cText;
        ar.Write(&font, sizeof font);
        ar << m_crFillColor << m_crTextColor << m_bBorder << m_bTransparent << m_nAlignment << m_nCurve;
    } else {
        ar >> m_cText;
        ar.ReadExactly(&font, sizeof font);
        SetFont(font);
        ar >> m_crFillColor >> m_crTextColor >> m_bBorder >> m_bTransparent >> m_nAlignment >> m_nCurve;
    }
}

void CXGraphLabel::Draw(CDCEx* pDC)
{
    if (!m_bVisible)
        return;
    const bool bMono = pDC->m_bMono;
    const COLORREF crFill = bMono ? kWhite : m_crFillColor;

    const CFontSelector selectFont(&m_Font, pDC, true);
    std::optional<CBrushSelector> selectBrush;
    CGdiObject* pOldBrush = nullptr;
    if (m_bTransparent)
        pOldBrush = pDC->SelectStockObject(HOLLOW_BRUSH);
    else
        selectBrush.emplace(crFill, pDC);
    std::optional<CPenSelector> selectPen;
    if (m_bBorder)
        selectPen.emplace(kBlack, 1, pDC, PS_SOLID);

    if (m_nCurve != -1)
        DrawTie(pDC);
    if (m_bTransparent) {
        pDC->SetBkMode(TRANSPARENT);
    } else {
        pDC->SetBkMode(OPAQUE);
        pDC->FillSolidRect(&m_rcObject, crFill);
    }
    if (m_bBorder)
        pDC->Rectangle(&m_rcObject);

    pDC->SetBkColor(crFill);
    const COLORREF crOldText = pDC->SetTextColor(bMono ? kBlack : m_crTextColor);
    if (m_bSizing)
        m_Tracker.Draw(pDC);
    CRect rcText = m_rcObject;
    rcText.DeflateRect(1, 1);
    pDC->DrawText(m_cText, &rcText, m_nAlignment);
    pDC->SetTextColor(crOldText);
    if (pOldBrush != nullptr)
        pDC->SelectObject(static_cast<CBrush*>(pOldBrush));
}

// From the curve's middle point to the middle of the box, which then hides its inner part.
void CXGraphLabel::DrawTie(CDCEx* pDC)
{
    const CXGraphDataSerie* pCurve = m_pGraph->GetCurve(m_nCurve);
    if (pCurve->m_nCount <= 0)
        return;
    const TDataPoint& middle = pCurve->m_pData[pCurve->m_nCount / 2];
    pDC->MoveTo(m_pGraph->GetXAxis(pCurve->m_nXAxis)->GetPointForValue(middle).x,
                m_pGraph->GetYAxis(pCurve->m_nYAxis)->GetPointForValue(middle).y);
    pDC->LineTo(m_rcObject.CenterPoint());
}

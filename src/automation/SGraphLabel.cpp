#include "automation/SGraphLabel.h"

#include "automation/WrapperCalls.h"

#include <cstring>
#include <cwchar>

STDMETHODIMP CSGraphLabel::SetFont(UINT* pLogFontw)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CXGraphLabel* pLabel = Native();
    if (!pLabel)
        return S_OK;
    LOGFONTW font;
    std::memcpy(&font, pLogFontw, sizeof font);
    // The face again as text: what is behind its end means nothing.
    font.lfFaceName[LF_FACESIZE - 1] = L'\0';
    const std::size_t length = std::wcslen(font.lfFaceName);
    std::memset(font.lfFaceName + length, 0, (LF_FACESIZE - length) * sizeof(wchar_t));
    pLabel->SetFont(font);
    return S_OK;
}

STDMETHODIMP CSGraphLabel::SetText(BSTR pText)
{
    return Wrapper::StoreText(*this, &CXGraphLabel::m_cText, pText);
}

STDMETHODIMP CSGraphLabel::GetText(BSTR* pText)
{
    return Wrapper::FetchText(*this, &CXGraphLabel::m_cText, pText);
}

STDMETHODIMP CSGraphLabel::SetColor(ULONG color)
{
    return Wrapper::Store(*this, &CXGraphLabel::m_crFillColor, color);
}

STDMETHODIMP CSGraphLabel::GetColor(ULONG* pColor)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_crFillColor, pColor);
}

STDMETHODIMP CSGraphLabel::SetTextColor(ULONG color)
{
    return Wrapper::Store(*this, &CXGraphLabel::m_crTextColor, color);
}

STDMETHODIMP CSGraphLabel::GetTextColor(ULONG* pColor)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_crTextColor, pColor);
}

STDMETHODIMP CSGraphLabel::SetBorder(long bValue)
{
    return Wrapper::StoreFlag(*this, &CXGraphLabel::m_bBorder, bValue);
}

STDMETHODIMP CSGraphLabel::GetBorder(long* bpValue)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_bBorder, bpValue);
}

STDMETHODIMP CSGraphLabel::SetTransparent(long bValue)
{
    return Wrapper::StoreFlag(*this, &CXGraphLabel::m_bTransparent, bValue);
}

STDMETHODIMP CSGraphLabel::GetTransparent(long* bpValue)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_bTransparent, bpValue);
}

STDMETHODIMP CSGraphLabel::SetAlignment(UINT value)
{
    return Wrapper::Store(*this, &CXGraphLabel::m_nAlignment, value);
}

STDMETHODIMP CSGraphLabel::GetAlignment(UINT* pValue)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_nAlignment, pValue);
}

STDMETHODIMP CSGraphLabel::SetCurve(int value)
{
    return Wrapper::Store(*this, &CXGraphLabel::m_nAlignment, value);
}

STDMETHODIMP CSGraphLabel::GetCurve(int* pValue)
{
    return Wrapper::Fetch(*this, &CXGraphLabel::m_nCurve, pValue);
}

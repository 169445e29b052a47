#include "automation/SGraphLabel.h"

#include "automation/NativeFields.h"

#include <cstring>
#include <cwchar>

STDMETHODIMP CSGraphLabel::SetFont(UINT* pLogFontw)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CXGraphLabel* pLabel = Native();
    if (pLabel == nullptr)
        return S_OK;
    LOGFONTW font;
    std::memcpy(&font, pLogFontw, sizeof font);
    // The face again as text: what stands behind its end carries nothing.
    font.lfFaceName[LF_FACESIZE - 1] = L'\0';
    const std::size_t length = std::wcslen(font.lfFaceName);
    std::memset(font.lfFaceName + length, 0, (LF_FACESIZE - length) * sizeof(wchar_t));
    pLabel->SetFont(font);
    return S_OK;
}

STDMETHODIMP CSGraphLabel::SetText(BSTR pText)
{
    return NativeFields::StoreText(Native(), &CXGraphLabel::m_cText, pText);
}

STDMETHODIMP CSGraphLabel::GetText(BSTR* pText)
{
    return NativeFields::FetchText(Native(), &CXGraphLabel::m_cText, pText);
}

STDMETHODIMP CSGraphLabel::SetColor(ULONG color)
{
    return NativeFields::Store(Native(), &CXGraphLabel::m_crFillColor, color);
}

STDMETHODIMP CSGraphLabel::GetColor(ULONG* pColor)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_crFillColor, pColor);
}

STDMETHODIMP CSGraphLabel::SetTextColor(ULONG color)
{
    return NativeFields::Store(Native(), &CXGraphLabel::m_crTextColor, color);
}

STDMETHODIMP CSGraphLabel::GetTextColor(ULONG* pColor)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_crTextColor, pColor);
}

STDMETHODIMP CSGraphLabel::SetBorder(long bValue)
{
    return NativeFields::StoreFlag(Native(), &CXGraphLabel::m_bBorder, bValue);
}

STDMETHODIMP CSGraphLabel::GetBorder(long* bpValue)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_bBorder, bpValue);
}

STDMETHODIMP CSGraphLabel::SetTransparent(long bValue)
{
    return NativeFields::StoreFlag(Native(), &CXGraphLabel::m_bTransparent, bValue);
}

STDMETHODIMP CSGraphLabel::GetTransparent(long* bpValue)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_bTransparent, bpValue);
}

STDMETHODIMP CSGraphLabel::SetAlignment(UINT value)
{
    return NativeFields::Store(Native(), &CXGraphLabel::m_nAlignment, value);
}

STDMETHODIMP CSGraphLabel::GetAlignment(UINT* pValue)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_nAlignment, pValue);
}

STDMETHODIMP CSGraphLabel::SetCurve(int value)
{
    return NativeFields::Store(Native(), &CXGraphLabel::m_nAlignment, value);
}

STDMETHODIMP CSGraphLabel::GetCurve(int* pValue)
{
    return NativeFields::Fetch(Native(), &CXGraphLabel::m_nCurve, pValue);
}

// The settings of the 3D pie's window.

#include "automation/PieChart3d.h"

#include "pie3d/PieColors.h"

#include <cstring>

namespace
{

LOGFONTW FontOf(const VARIANT* pFont) noexcept
{
    static_assert(sizeof(LOGFONTW) == 92);
    LOGFONTW font;
    std::memcpy(&font, pFont, sizeof font);
    return font;
}

// The native window's own numbers of the styles.
std::int32_t NativeStyle(int nChartStyle) noexcept
{
    return nChartStyle == 1 || nChartStyle == 2 ? nChartStyle - 1 : 2;
}

} // namespace

STDMETHODIMP CPieChart3d::SetLabelFont(VARIANT* lf)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetLabelFont(FontOf(lf));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetLabelFontName(BSTR bstrName)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetLabelFontName(CString(bstrName));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetTitleFont(VARIANT* lf)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetTitleFont(FontOf(lf));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetTitleFontName(BSTR bstrName)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetTitleFontName(CString(bstrName));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetLabelBoxColor(ULONG crItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetLabelBoxColor(PieColors::FromColorRef(crItem));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetBackgrndColor(ULONG crItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetBackgrndColor(PieColors::FromColorRef(crItem));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetLabelColor(ULONG crLbColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetLabelColor(PieColors::FromColorRef(crLbColor));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetParentWindowColor(ULONG crParent)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetParentWindowColor(crParent);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetBackGroundGradientLight(float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetBackGroundGradientLight(flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetBackGroundGradientDark(float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetBackGroundGradientDark(flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::GetBackGroungGrLight(float* flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (flGradientVal == nullptr)
        return S_FALSE;
    *flGradientVal = m_pNative->GetBackGroungGrLight();
    return S_OK;
}

STDMETHODIMP CPieChart3d::GetBackgroundGrDark(float* flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (flGradientVal == nullptr)
        return S_FALSE;
    *flGradientVal = m_pNative->GetBackgroundGrDark();
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieChartTitle(BSTR bstrTittle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrTittle == nullptr)
        return S_FALSE;
    m_pNative->SetPieChartTitle(CString(bstrTittle));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieChartStyle(int nChartStyle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetPieChartStyle(NativeStyle(nChartStyle));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetStartAngle(float flAngle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetStartAngle(flAngle);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetInclineAngle(float flAngle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetInclineAngle(flAngle);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetDepth(float fDepth)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetDepth(fDepth);
    return S_OK;
}

// The settings of the 3D pie's window.

#include "automation/PieChart3d.h"
#include "automation/WrapperCalls.h"
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
    return Wrapper::Act([&] { m_pNative->SetLabelFont(FontOf(lf)); });
}

STDMETHODIMP CPieChart3d::SetLabelFontName(BSTR bstrName)
{
    return Wrapper::Act([&] { m_pNative->SetLabelFontName(CString(bstrName)); });
}

STDMETHODIMP CPieChart3d::SetTitleFont(VARIANT* lf)
{
    return Wrapper::Act([&] { m_pNative->SetTitleFont(FontOf(lf)); });
}

STDMETHODIMP CPieChart3d::SetTitleFontName(BSTR bstrName)
{
    return Wrapper::Act([&] { m_pNative->SetTitleFontName(CString(bstrName)); });
}

STDMETHODIMP CPieChart3d::SetLabelBoxColor(ULONG crItem)
{
    return Wrapper::Act([&] { m_pNative->SetLabelBoxColor(PieColors::FromColorRef(crItem)); });
}

STDMETHODIMP CPieChart3d::SetBackgrndColor(ULONG crItem)
{
    return Wrapper::Act([&] { m_pNative->SetBackgrndColor(PieColors::FromColorRef(crItem)); });
}

STDMETHODIMP CPieChart3d::SetLabelColor(ULONG crLbColor)
{
    return Wrapper::Act([&] { m_pNative->SetLabelColor(PieColors::FromColorRef(crLbColor)); });
}

STDMETHODIMP CPieChart3d::SetParentWindowColor(ULONG crParent)
{
    return Wrapper::Act([&] { m_pNative->SetParentWindowColor(crParent); });
}

STDMETHODIMP CPieChart3d::SetBackGroundGradientLight(float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetBackGroundGradientLight(flGradientVal); });
}

STDMETHODIMP CPieChart3d::SetBackGroundGradientDark(float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetBackGroundGradientDark(flGradientVal); });
}

STDMETHODIMP CPieChart3d::GetBackGroungGrLight(float* flGradientVal)
{
    return Wrapper::Answer(flGradientVal, [&] { return m_pNative->GetBackGroungGrLight(); });
}

STDMETHODIMP CPieChart3d::GetBackgroundGrDark(float* flGradientVal)
{
    return Wrapper::Answer(flGradientVal, [&] { return m_pNative->GetBackgroundGrDark(); });
}

STDMETHODIMP CPieChart3d::SetPieChartTitle(BSTR bstrTittle)
{
    return Wrapper::ActGiven(bstrTittle, [&] { m_pNative->SetPieChartTitle(CString(bstrTittle)); });
}

STDMETHODIMP CPieChart3d::SetPieChartStyle(int nChartStyle)
{
    return Wrapper::Act([&] { m_pNative->SetPieChartStyle(NativeStyle(nChartStyle)); });
}

STDMETHODIMP CPieChart3d::SetStartAngle(float flAngle)
{
    return Wrapper::Act([&] { m_pNative->SetStartAngle(flAngle); });
}

STDMETHODIMP CPieChart3d::SetInclineAngle(float flAngle)
{
    return Wrapper::Act([&] { m_pNative->SetInclineAngle(flAngle); });
}

STDMETHODIMP CPieChart3d::SetDepth(float fDepth)
{
    return Wrapper::Act([&] { m_pNative->SetDepth(fDepth); });
}

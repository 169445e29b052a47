#include "pie3d/PieChartWnd.h"

#include "pie3d/PieShares.h"

#include <cmath>

namespace
{

CString FaceOf(const LOGFONTW& lf)
{
    return {lf.lfFaceName, static_cast<int>(::wcsnlen(lf.lfFaceName, LF_FACESIZE))};
}

std::int32_t StyleOf(const LOGFONTW& lf) noexcept
{
    return PieShares::FontStyle(lf.lfWeight, lf.lfItalic != 0, lf.lfUnderline != 0, lf.lfStrikeOut != 0);
}

} // namespace

void CPieChartWnd::SetBackgrndColor(PieColors::Argb crItem)
{
    m_crBackground = crItem;
    m_crBackgroundDark = PieColors::DarkenColor(crItem, m_fBackgroundDark);
    m_crBackgroundLight = PieColors::LightenColor(crItem, m_fBackgroundLight);
    Repaint();
}

void CPieChartWnd::SetBackGroundGradientLight(float flGradientVal)
{
    if (!std::isfinite(flGradientVal))
        return;
    m_fBackgroundLight = flGradientVal;
    m_crBackgroundLight = PieColors::LightenColor(m_crBackground, flGradientVal);
    Repaint();
}

void CPieChartWnd::SetBackGroundGradientDark(float flGradientVal)
{
    if (!std::isfinite(flGradientVal))
        return;
    m_fBackgroundDark = flGradientVal;
    m_crBackgroundDark = PieColors::DarkenColor(m_crBackground, flGradientVal);
    Repaint();
}

void CPieChartWnd::SetLabelColor(PieColors::Argb crLabel)
{
    m_crLabel = crLabel;
    Repaint();
}

void CPieChartWnd::SetLabelBoxColor(PieColors::Argb crItem)
{
    m_crLabelBox = crItem;
    Repaint();
}

void CPieChartWnd::SetParentWindowColor(COLORREF crParent) noexcept
{
    m_crParentWindow = crParent;
}

void CPieChartWnd::SetLabelFontName(const CString& strName)
{
    m_strLabelFontName = strName;
    Repaint();
}

void CPieChartWnd::SetTitleFontName(const CString& strName)
{
    m_strTitleFontName = strName;
    Repaint();
}

void CPieChartWnd::SetLabelFont(const LOGFONTW& lf)
{
    m_strLabelFontName = FaceOf(lf);
    m_nLabelFontStyle = StyleOf(lf);
    Repaint();
}

void CPieChartWnd::SetTitleFont(const LOGFONTW& lf)
{
    m_strTitleFontName = FaceOf(lf);
    m_nTitleFontStyle |= StyleOf(lf);
    Repaint();
}

void CPieChartWnd::SetPieChartTitle(const CString& strTitle)
{
    m_strTitle = strTitle;
    Repaint();
}

void CPieChartWnd::SetPieChartStyle(std::int32_t nChartStyle)
{
    m_nChartStyle = nChartStyle;
    Repaint();
}

void CPieChartWnd::SetStartAngle(float flAngle)
{
    if (!std::isfinite(flAngle))
        return;
    m_fStartAngle = PieGeometry::BelowFullTurn(flAngle);
    m_fDrawStartAngle = m_fStartAngle;
    Repaint();
}

void CPieChartWnd::SetInclineAngle(float flAngle)
{
    m_fInclineAngle = flAngle > 0 ? flAngle : 0;
    Repaint();
}

int CPieChartWnd::SetDepth(float fDepth)
{
    if (fDepth < 0 || !std::isfinite(fDepth))
        return 0;
    m_fDepthRatio = PieGeometry::RatioForDepth(GetPieRect(), fDepth);
    Repaint();
    return 1;
}

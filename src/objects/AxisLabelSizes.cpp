// Sizes of labels and title, and what depends on them: the step and the rounded range.

#include "objects/XGraphAxis.h"

#include "base/Trunc.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "draw/WindowCanvas.h"
#include "framework/windowing/Window.h"
#include "objects/DateTimeSteps.h"
#include "objects/LogDecades.h"
#include "objects/PlotHost.h"
#include "objects/TickSteps.h"

#include <algorithm>

int CXGraphAxis::GetMaxLabelWidth(CDCEx* pDC)
{
    const CFontSelector font(&m_LabelFont, pDC, false);
    const int nLower = pDC->GetTextExtent(LabelText(m_fCurMin)).cx;
    const int nUpper = pDC->GetTextExtent(LabelText(m_fCurMax)).cx;
    return Wrap::Add(std::max(nLower, nUpper), m_nTickSize);
}

int CXGraphAxis::GetLabelHeight(CDCEx* pDC)
{
    // Of the whole range's bound, where the width takes the visible ones.
    const CFontSelector font(&m_LabelFont, pDC, false);
    return Wrap::Add(pDC->GetTextExtent(LabelText(m_fMin)).cy, m_nTickSize);
}

CSize CXGraphAxis::GetTitleSize(CDCEx* pDC)
{
    const CFontSelector font(&m_TitleFont, pDC, false);
    return pDC->GetTextExtent(m_cLabel);
}

int CXGraphAxis::RoomForTicks() const
{
    const CRect plot = PlotRect();
    if (IsVertical())
        return Wrap::Subtract(plot.bottom, Trunc(plot.top + m_fEndMargin + m_fKeySpace));
    return Wrap::Subtract(Trunc(plot.right - m_fEndMargin - m_fKeySpace), plot.left);
}

void CXGraphAxis::RecalcStep()
{
    CWindowCanvas canvas(m_pGraph != nullptr ? PlotHost::Window(*m_pGraph).m_hWnd : nullptr);
    const int nRoom = RoomForTicks();
    const int nLength = nRoom == 0 ? 1 : nRoom;
    const int nSize = IsVertical() ? GetLabelHeight(canvas.Get()) : GetMaxLabelWidth(canvas.Get());
    m_fStep = (m_fCurMax - m_fCurMin) / nLength * nSize;
}

void CXGraphAxis::AutoScale(CDCEx* pDC)
{
    if (m_AxisType == atLog) {
        LogDecades::AutoScale(m_fCurMin, m_fCurMax);
        return;
    }
    m_fEndMargin = (IsVertical() ? 2.0 : 4.0) * m_nArcSize;
    m_fKeySpace = DrawCurveKeys(pDC, false);
    const int nCount =
        TickSteps::TickCount(RoomForTicks(), IsVertical() ? GetLabelHeight(pDC) : GetMaxLabelWidth(pDC));
    double fStep = 0;
    if (m_bDateTime) {
        if (DateTimeSteps::CalcDateTimeStep(nCount, m_fCurMin, m_fCurMax, fStep) && fStep > 0) {
            m_fStep = fStep;
            DateTimeSteps::AdjustDateTimeRange(m_fCurMin, m_fCurMax, m_fStep);
        }
    } else if (TickSteps::CalcNiceStep(nCount, m_fCurMin, m_fCurMax, fStep) && fStep > 0) {
        m_fStep = fStep;
        TickSteps::AdjustRange(m_fCurMin, m_fCurMax, m_fStep);
    }
}

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
#include "objects/TickLabels.h"
#include "objects/TickSteps.h"

#include <algorithm>
#include <optional>

CKeptLabels* CXGraphAxis::KeptLabels(const CDCEx* pDC)
{
    LOGFONTW look = {};
    if (!pDC->IsScreen() || m_LabelFont.GetLogFont(&look) == 0)
        return nullptr;
    m_KeptLabels.Follow(look, m_cDisplayFmt, m_bDateTime);
    return &m_KeptLabels;
}

CSize CXGraphAxis::GetLabelSize(CDCEx* pDC, double fValue)
{
    CKeptLabels* const kept = KeptLabels(pDC);
    if (const CKeptLabels::Label known = kept ? kept->Find(fValue) : nullptr)
        return known->size;
    const CFontSelector font(&m_LabelFont, pDC, false, true);
    const CTickLabels::Made made = CTickLabels::Make(LabelText(fValue), fValue);
    const std::optional<CSize> size = pDC->MeasureText(made->cText);
    made->size = size.value_or(CSize());
    if (kept && size)
        kept->Keep(made);
    return made->size;
}

int CXGraphAxis::GetMaxLabelWidth(CDCEx* pDC)
{
    const int nLower = GetLabelSize(pDC, m_fCurMin).cx;
    const int nUpper = GetLabelSize(pDC, m_fCurMax).cx;
    return Wrap::Add(std::max(nLower, nUpper), m_nTickSize);
}

int CXGraphAxis::GetLabelHeight(CDCEx* pDC)
{
    // Of the whole range's bound, where the width takes the visible ones.
    return Wrap::Add(GetLabelSize(pDC, m_fMin).cy, m_nTickSize);
}

CSize CXGraphAxis::GetTitleSize(CDCEx* pDC)
{
    LOGFONTW look = {};
    const bool bKeep = pDC->IsScreen() && m_TitleFont.GetLogFont(&look) != 0;
    if (const CSize* known = bKeep ? m_KeptTitle.Find(look, m_cLabel) : nullptr)
        return *known;
    const CFontSelector font(&m_TitleFont, pDC, false, true);
    const std::optional<CSize> size = pDC->MeasureText(m_cLabel);
    if (bKeep && size)
        m_KeptTitle.Keep(look, m_cLabel, *size);
    return size.value_or(CSize());
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
    // Sizes don't ask for colours.
    CWindowCanvas canvas(m_pGraph ? PlotHost::Window(*m_pGraph).m_hWnd : nullptr, true);
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

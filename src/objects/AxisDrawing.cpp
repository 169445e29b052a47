// The painting of a whole axis: linear and date-time scales, and the logarithmic ones.

#include "objects/XGraphAxis.h"

#include "base/Trunc.h"
#include "objects/AxisTicks.h"
#include "objects/FrameRoom.h"
#include "objects/LogDecades.h"
#include "objects/TickWalk.h"

namespace
{

constexpr std::size_t UsualTicks = 64;

// Pixels between ticks along the axis; no ticks at all where the step is none.
double PlaceStep(const CXGraphAxis& axis, int nFarEnd)
{
    const double fTicks = (axis.m_fCurMax - axis.m_fCurMin) / axis.m_fStep;
    const int nLine = axis.IsVertical() ? Wrap::Subtract(axis.m_nOriginY, nFarEnd)
                                        : Wrap::Subtract(nFarEnd, axis.m_nOriginX);
    return (nLine - axis.m_fEndMargin) / fTicks;
}

int LinearLength(const CXGraphAxis& axis, double fPlaceStep)
{
    if (!axis.IsVertical())
        return Trunc(fPlaceStep * ((axis.m_fCurMax - axis.m_fCurMin) / axis.m_fStep));
    const CRect plot = axis.PlotRect();
    return Wrap::Subtract(plot.bottom, Trunc(plot.top + axis.m_fEndMargin + axis.m_fKeySpace));
}

int LogLength(const CXGraphAxis& axis)
{
    const CRect plot = axis.PlotRect();
    if (axis.IsVertical())
        return Wrap::Subtract(plot.bottom, Trunc(plot.top + axis.m_fEndMargin + axis.m_fKeySpace));
    return Wrap::Subtract(Trunc(plot.right - axis.m_fEndMargin - axis.m_fKeySpace), plot.left);
}

// A Y axis has a tick at its upper bound, an X axis none.
void ListLinearTicks(const CXGraphAxis& axis, double fPlaceStep, std::vector<TTick>& ticks)
{
    const bool bVertical = axis.IsVertical();
    const TickWalk::TWalk walk{.fFrom = axis.m_fCurMin,
                               .fTo = axis.m_fCurMax,
                               .fStep = axis.m_fStep,
                               .fPlace =
                                   static_cast<double>(bVertical ? axis.m_nOriginY : axis.m_nOriginX),
                               .fPlaceStep = bVertical ? -fPlaceStep : fPlaceStep,
                               .bIncludeEnd = bVertical};
    ticks.reserve(UsualTicks);
    TickWalk::Walk(walk, [&](double fValue, double fPlace) { ticks.push_back({fValue, fPlace}); });
}

void ListLogTicks(const CXGraphAxis& axis, std::vector<TTick>& ticks)
{
    const AxisMapping::CMapper mapper(axis.GetScale(true));
    ticks.reserve(UsualTicks);
    LogDecades::WalkTicks(axis.m_fCurMin, axis.m_fCurMax, [&](double fValue, bool bDecade) {
        ticks.push_back({fValue, static_cast<double>(mapper.Pixel(fValue)), bDecade});
    });
}

} // namespace

void CXGraphAxis::Draw(CDCEx* pDC)
{
    CAxisCanvas canvas(*this, pDC);
    if (m_bAutoScale)
        AutoScale(canvas.Get());
    if (m_AxisType == atLog) {
        AxisPainting::DrawLogarithmic(*this, canvas.Get(), true);
        return;
    }
    m_fRange = m_fCurMax - m_fCurMin;
    CAxisTicks painter(*this, canvas.Get());
    painter.MeasureMargins();
    const double fPlaceStep = PlaceStep(*this, painter.FarEnd());
    m_nLength = LinearLength(*this, fPlaceStep);
    painter.DrawBackground(true);
    painter.DrawTitle();
    CRoomyList ticks(m_pGraph, &TFrameRoom::ticks);
    ListLinearTicks(*this, fPlaceStep, *ticks);
    painter.DrawTicks(*ticks, true);
    painter.DrawLine();
}

void AxisPainting::DrawLogarithmic(CXGraphAxis& axis, CDCEx* pDC, bool bMarkers)
{
    axis.m_fRange = axis.m_fCurMax - axis.m_fCurMin;
    CAxisTicks painter(axis, pDC);
    painter.MeasureMargins();
    axis.m_nLength = LogLength(axis);
    painter.DrawBackground(bMarkers);
    painter.DrawTitle();
    CRoomyList ticks(axis.m_pGraph, &TFrameRoom::ticks);
    ListLogTicks(axis, *ticks);
    painter.DrawTicks(*ticks, false);
    painter.DrawLine();
}

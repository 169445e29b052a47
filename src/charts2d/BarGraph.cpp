#include "charts2d/BarGraph.h"

#include <optional>

#include "base/Trunc.h"
#include "charts2d/ChartPainter.h"
#include "charts2d/FadeStep.h"
#include "charts2d/SeriesPainter.h"
#include "charts2d/ValueTable.h"

C2DBarGraph::C2DBarGraph(TPoint position, TSize size)
    : m_pLabelsFont(ChartPainter::MakeFont(Trunc(size.cy * 0.1), 0, FW_NORMAL, L"Arial")),
      m_pLegendFont(ChartPainter::MakeFont(Trunc(size.cy * 0.075), 0, FW_NORMAL, L"Arial")),
      m_szGraph(size), m_ptGraph(position)
{
}

C2DBarGraph::~C2DBarGraph() = default;

void C2DBarGraph::Resize(TSize size)
{
    m_szGraph = size;
    m_pLegendFont = ChartPainter::MakeFont(Trunc(size.cy * 0.08), 0, FW_NORMAL, L"Arial");
    m_pLabelsFont = ChartPainter::MakeFont(Trunc(size.cy * 0.1), 0, FW_NORMAL, L"Arial");
}

void C2DBarGraph::Draw(HDC hDC)
{
    SeriesPainter::DrawAxes(hDC, ChartMeasures::BarFactors, m_ptGraph, m_szGraph, m_Data);
    const CValueTable table(m_Data);
    const TBarPicture picture = BarPicture::Compose(table, m_Animation, m_ptGraph, m_szGraph);
    if (!picture.bValueLabels)
        return;

    const ChartPainter::CTextColor textColor(hDC, m_crLabels);
    ChartPainter::DrawValueLabels(
        hDC, m_pLabelsFont.get(),
        ChartMeasures::ValueLabels(picture.Bars.Measures, m_szGraph, picture.nMaximum));
    const auto segmentFont =
        ChartPainter::MakeFont(picture.Bars.Measures.nLabelHeight, 0, FW_NORMAL, L"Arial");
    const ChartPainter::CSelection font(hDC, *segmentFont);
    DrawSteps(hDC, table, picture);
}

void C2DBarGraph::DrawSteps(HDC hDC, const CValueTable& table, const TBarPicture& picture) const
{
    std::optional<CFadeStep> fade;
    HDC canvas = hDC;
    for (const TBarStep& step : picture.Steps) {
        const auto place = static_cast<std::size_t>(step.nIndex);
        switch (step.kind) {
        case TBarStep::EKind::label:
            ChartPainter::DrawSegmentLabel(hDC, step.ptLabel, table.m_Segments[place]->strName);
            break;
        case TBarStep::EKind::bar:
            ChartPainter::DrawRectangle(canvas, step.rcBar, table.m_Series[place]->crColor);
            if (fade)
                fade->Touch(step.rcBar);
            break;
        case TBarStep::EKind::beginFade:
            fade.emplace(hDC, m_szWindow, m_ptGraph, m_szGraph, step.rcBar);
            canvas = fade->Canvas();
            break;
        case TBarStep::EKind::blend:
            if (fade)
                fade->Blend(m_Animation.m_nAnimationPercent);
            break;
        case TBarStep::EKind::endFade:
            if (fade)
                fade->Finish();
            fade.reset();
            canvas = hDC;
            break;
        }
    }
}

void C2DBarGraph::DrawLegend(HDC hDC) const
{
    SeriesPainter::DrawLegend(hDC, m_pLegendFont.get(), m_ptGraph, m_szGraph, m_Data, m_crLegendText,
                              m_crLegendBackground);
}

#include "charts2d/LineGraph.h"

#include <algorithm>
#include <optional>

#include "base/Trunc.h"
#include "charts2d/ChartPainter.h"
#include "charts2d/LineGeometry.h"
#include "charts2d/SeriesPainter.h"
#include "charts2d/ValueTable.h"

namespace
{

constexpr DWORD LineWidth = 3;

HPEN MakePen(COLORREF color)
{
    const LOGBRUSH brush{BS_SOLID, color, 0};
    return ::ExtCreatePen(PS_GEOMETRIC, LineWidth, &brush, 0, nullptr);
}

void DrawLine(HDC hDC, TPoint from, TPoint to)
{
    if (!LineGeometry::CutToDevice(from, to))
        return;
    ::MoveToEx(hDC, from.x, from.y, nullptr);
    ::LineTo(hDC, to.x, to.y);
}

} // namespace

C2DLineGraph::C2DLineGraph(TPoint position, TSize size)
    : m_pLabelsFont(ChartPainter::MakeFont(Trunc(size.cy * 0.1), 0, FW_NORMAL, L"Arial")),
      m_pLegendFont(ChartPainter::MakeFont(Trunc(size.cy * 0.075), 0, FW_NORMAL, L"Times New Roman")),
      m_szGraph(size), m_ptGraph(position)
{
}

C2DLineGraph::~C2DLineGraph() = default;

void C2DLineGraph::Resize(TSize size)
{
    m_szGraph = size;
    m_pLegendFont = ChartPainter::MakeFont(Trunc(size.cy * 0.08), Trunc(size.cx * 0.035), FW_NORMAL,
                                           L"Times New Roman");
    m_pLabelsFont = ChartPainter::MakeFont(Trunc(size.cy * 0.1), 0, FW_NORMAL, L"Arial");
}

TPoint C2DLineGraph::StartPoint() const noexcept
{
    return LineGeometry::StartPoint(m_ptGraph, m_szGraph, m_Data.m_nSegments);
}

void C2DLineGraph::SetAnimation(int on, int type)
{
    // After a deletion ids reach beyond the number of series.
    std::int32_t highestSeries = 0;
    for (const SBarSeries* series = m_Data.m_pSeries; series; series = series->pNext)
        highestSeries = std::max(highestSeries, series->nId);
    m_Animation.SetAnimation(on, type, m_Data.m_nSegments, highestSeries, StartPoint());
}

void C2DLineGraph::Animate()
{
    m_Animation.Animate(m_Data.m_nSegments, m_Data.m_nSeries, StartPoint());
}

void C2DLineGraph::Draw(HDC hDC)
{
    SeriesPainter::DrawAxes(hDC, ChartMeasures::LineFactors, m_ptGraph, m_szGraph, m_Data);
    const CValueTable table(m_Data);
    const TLinePicture picture = LinePicture::Compose(table, m_Animation, m_ptGraph, m_szGraph);
    if (!picture.bValueLabels)
        return;

    const ChartPainter::CTextColor textColor(hDC, m_crLabels);
    ChartPainter::DrawValueLabels(
        hDC, m_pLabelsFont.get(),
        ChartMeasures::ValueLabels(picture.Plot.Measures, m_szGraph, picture.nMaximum));
    const auto segmentFont =
        ChartPainter::MakeFont(picture.Plot.Measures.nLabelHeight, 0, FW_NORMAL, L"Arial");
    const ChartPainter::CSelection font(hDC, *segmentFont);
    DrawSteps(hDC, table, picture);
}

void C2DLineGraph::DrawSteps(HDC hDC, const CValueTable& table, const TLinePicture& picture)
{
    CPen pen;
    std::optional<ChartPainter::CSelection> selection;
    std::int32_t penSeries = -1;
    for (const TLineStep& step : picture.Steps) {
        const auto place = static_cast<std::size_t>(step.nIndex);
        if (step.kind == TLineStep::EKind::label) {
            ChartPainter::DrawSegmentLabel(hDC, step.ptFrom, table.m_Segments[place]->strName);
            continue;
        }
        if (penSeries != step.nIndex) {
            selection.reset();
            pen.DeleteObject();
            pen.Attach(MakePen(table.m_Series[place]->crColor));
            selection.emplace(hDC, pen);
            penSeries = step.nIndex;
        }
        DrawLine(hDC, step.ptFrom, step.ptTo);
    }
}

void C2DLineGraph::DrawLegend(HDC hDC) const
{
    SeriesPainter::DrawLegend(hDC, m_pLegendFont.get(), m_ptGraph, m_szGraph, m_Data, m_crLegendText,
                              m_crLegendBackground);
}

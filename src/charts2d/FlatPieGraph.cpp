#include "charts2d/FlatPieGraph.h"

#include <vector>

#include "base/Trunc.h"
#include "charts2d/ChartPainter.h"
#include "charts2d/FadeStep.h"
#include "charts2d/FlatPieGeometry.h"

C2DPieGraph::C2DPieGraph(TPoint position, TSize size)
    : m_pLegendFont(ChartPainter::MakeFont(Trunc(size.cy * 0.1), 0, FW_NORMAL, L"Arial")),
      m_szGraph(size), m_ptGraph(position)
{
}

C2DPieGraph::~C2DPieGraph() = default;

void C2DPieGraph::UpdateSegment(int index, int percent, COLORREF color, const CString& text)
{
    const ERefusal refusal = m_Data.UpdateSegment(index, percent, color, text.ToU16());
    if (refusal == ERefusal::none)
        m_Animation.Restart(Start());
    ReportRefusal(refusal);
}

void C2DPieGraph::Resize(TSize size)
{
    m_szGraph = size;
    m_pLegendFont = ChartPainter::MakeFont(Trunc(size.cy * 0.1), Trunc(size.cx * 0.035), FW_NORMAL,
                                           L"Times New Roman");
}

TPoint C2DPieGraph::Start() const noexcept
{
    return FlatPieGeometry::Start(m_ptGraph, m_szGraph);
}

TRect C2DPieGraph::Box() const noexcept
{
    return {m_ptGraph.x, m_ptGraph.y, m_ptGraph.x + m_szGraph.cx, m_ptGraph.y + m_szGraph.cy};
}

void C2DPieGraph::DrawSlice(HDC hDC, const TFlatPieSlice& slice) const
{
    CBrush brush;
    brush.CreateSolidBrush(slice.pSegment->crColor);
    const ChartPainter::CSelection selection(hDC, brush);
    const TRect box = Box();
    ::Pie(hDC, box.left, box.top, box.right, box.bottom, slice.ptStart.x, slice.ptStart.y, slice.ptEnd.x,
          slice.ptEnd.y);
}

void C2DPieGraph::Draw(HDC hDC)
{
    const TFlatPiePicture picture = FlatPiePicture::Compose(m_Data, m_Animation, m_ptGraph, m_szGraph);
    if (picture.Fading) {
        const TRect slice = FlatPieGeometry::Bounds(m_ptGraph, m_szGraph, picture.Fading->ptStart,
                                                    picture.Fading->ptEnd);
        CFadeStep fade(hDC, m_szWindow, m_ptGraph, m_szGraph, slice);
        DrawSlice(fade.Canvas(), *picture.Fading);
        fade.Touch(slice);
        fade.Blend(m_Animation.m_dAnimationPercent);
        fade.Finish();
    }
    for (const TFlatPieSlice& slice : picture.Slices)
        DrawSlice(hDC, slice);
}

void C2DPieGraph::DrawLegend(HDC hDC) const
{
    std::vector<ChartPainter::TLegendRow> rows;
    for (const SPieSegment* segment = m_Data.m_pSegments; segment; segment = segment->pNext) {
        ChartPainter::TLegendRow row{segment->crColor, {}, ChartPainter::TextOf(segment->strName)};
        row.strText.Format(L"(%.1f%s)  %s", segment->dPercent, L"%", row.strName);
        rows.push_back(row);
    }
    ChartPainter::DrawLegend(hDC, m_pLegendFont.get(), LegendLayout::PieShape, m_ptGraph, m_szGraph,
                             rows, m_crLegendText, m_crLegendBackground);
}

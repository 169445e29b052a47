#include "viewer/BusinessView.h"

#include "viewer/Palette.h"

namespace Viewer
{
namespace
{

constexpr UINT_PTR AnimationTimer = 50000; // the chart's own

int NumberOf(Motion motion) noexcept
{
    switch (motion) {
    case Motion::BarsGrow:
        return VPX_ANIMATION_BARS_GROW;
    case Motion::BarGroupsGrow:
        return VPX_ANIMATION_BAR_GROUPS_GROW;
    case Motion::BarSeriesGrow:
        return VPX_ANIMATION_BAR_SERIES_GROW;
    case Motion::BarGroupsFade:
        return VPX_ANIMATION_BAR_GROUPS_FADE;
    case Motion::BarSeriesFade:
        return VPX_ANIMATION_BAR_SERIES_FADE;
    case Motion::LinesDraw:
        return VPX_ANIMATION_LINES_DRAW;
    case Motion::LineSeriesDraw:
        return VPX_ANIMATION_LINE_SERIES_DRAW;
    case Motion::PieSweep:
        return VPX_ANIMATION_PIE_SWEEP;
    case Motion::PieFade:
        return VPX_ANIMATION_PIE_FADE;
    }
    return 0;
}

int NumberOf(ChartKind kind) noexcept
{
    switch (kind) {
    case ChartKind::Pie:
        return VPX_CHART_PIE;
    case ChartKind::Line:
        return VPX_CHART_LINE;
    default:
        return VPX_CHART_BAR;
    }
}

} // namespace

BusinessView::BusinessView(const ChartServer& server, HWND parent, const RECT& place,
                           const CategoryPlan& plan, const Options& options)
    : m_chart(server.MakeChart()), m_kind(options.chart)
{
    RECT rectangle = place;
    Check(m_chart->Create(&rectangle, ToWire(parent), ChartId));
    m_window = HandleOf(*m_chart.Get());
    Check(m_chart->CreateGraph(NumberOf(m_kind)));
    SetLooks(options);
    if (m_kind == ChartKind::Pie) {
        AddSlices(plan);
    } else if (m_kind == ChartKind::Line) {
        AddLines(plan);
    } else {
        AddBars(plan);
    }
    Check(m_chart->ShowGraphLegend(options.legend));
    Check(m_chart->Invalidate(TRUE));
}

void BusinessView::SetLooks(const Options& options)
{
    Check(m_chart->SetGraphTitle(Bstr(options.title).Get()));
    Check(m_chart->SetGraphSubtitle(Bstr(options.subtitle).Get()));
    Check(m_chart->SetGraphTitleColor(RGB(0x20, 0x30, 0x50)));
    Check(m_chart->SetGraphSubtitleColor(RGB(0x50, 0x60, 0x80)));
    if (options.gradient) {
        Check(m_chart->SetGraphFillType(VPX_BACKGROUND_GRADIENT));
        Check(m_chart->SetGradientFillType(VPX_GRADIENT_VERTICAL));
        Check(m_chart->SetGraphGradientColors(RGB(0xFF, 0xFF, 0xFF), RGB(0xB8, 0xCC, 0xE8)));
    }
}

// Segments and series are counted from 1, and segments come first.
void BusinessView::AddBars(const CategoryPlan& plan)
{
    for (const std::u16string& name : plan.categories)
        Check(m_chart->Add2DBarGraphSegment(Bstr(name).Get()));
    for (std::size_t at = 0; at < plan.series.size(); ++at) {
        const Series& series = plan.series[at];
        Check(m_chart->Add2DBarGraphSeries(Bstr(series.name).Get(), ColorOf(at)));
        for (std::size_t segment = 0; segment < series.values.size(); ++segment) {
            Check(m_chart->Set2DBarGraphValue(static_cast<int>(segment + 1), static_cast<int>(at + 1),
                                              ToWholeValue(series.values[segment])));
        }
    }
}

void BusinessView::AddLines(const CategoryPlan& plan)
{
    for (const std::u16string& name : plan.categories)
        Check(m_chart->Add2DLineGraphSegment(Bstr(name).Get()));
    for (std::size_t at = 0; at < plan.series.size(); ++at) {
        const Series& series = plan.series[at];
        Check(m_chart->Add2DLineGraphSeries(Bstr(series.name).Get(), ColorOf(at)));
        for (std::size_t segment = 0; segment < series.values.size(); ++segment) {
            Check(m_chart->Set2DLineGraphValue(static_cast<int>(segment + 1), static_cast<int>(at + 1),
                                               ToWholeValue(series.values[segment])));
        }
    }
}

void BusinessView::AddSlices(const CategoryPlan& plan)
{
    for (std::size_t at = 0; at < plan.slices.size(); ++at) {
        Check(m_chart->Add2DPieGraphSegment(plan.slices[at].percent, ColorOf(at),
                                            Bstr(plan.slices[at].name).Get()));
    }
}

void BusinessView::Animate(std::u16string_view word)
{
    const Animation* animation = FindAnimation(m_kind, word);
    Check(m_chart->SetGraphAnimation(animation ? VPX_ANIMATE_ON : VPX_ANIMATE_OFF,
                                     animation ? NumberOf(animation->motion) : 0));
    Check(m_chart->Invalidate(TRUE));
}

void BusinessView::StopAtTick(int tick)
{
    KillTimer(m_window, AnimationTimer);
    UpdateWindow(m_window);
    for (int at = 0; at < tick; ++at) {
        SendMessageW(m_window, WM_TIMER, AnimationTimer, 0);
        UpdateWindow(m_window);
    }
}

void BusinessView::MoveTo(const RECT& place) noexcept
{
    (void)m_chart->SetGraphPosition(place.left, place.top);
    (void)m_chart->SetGraphSize(place.right - place.left, place.bottom - place.top);
}

} // namespace Viewer

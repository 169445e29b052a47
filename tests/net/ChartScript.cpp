#include "Scripts.h"

namespace
{
enum EKind { bars, flatPie, lines };

// The business chart has no state to ask for but what it shows.
class Chart
{
public:
    explicit Chart(Watch& watch, EKind kind)
        : m_watch(watch), m_chart(watch.TheServer().Make<Chart2d, IChart2d>())
    {
        RECT rect = {10, 10, 610, 410};
        m_chart->Create(&rect, watch.Host().Wire(), 7);
        m_chart->CreateGraph(kind);
        HostWindow::Settle();
    }

    IChart2d* operator->() const { return m_chart.Get(); }
    template <class Action> void Step(const std::string& what, Action action) const
    {
        m_watch.Step(what, action);
        wireHWND wire = nullptr;
        m_chart->GetHandle(&wire);
        const HWND hWnd = reinterpret_cast<HWND>(wire);
        Report& report = m_watch.TheReport();
        const bool bDirty = ::GetUpdateRect(hWnd, nullptr, FALSE) != FALSE;
        report.State("paint", "%s", bDirty ? "due" : "not due");
        ::UpdateWindow(hWnd);
        PrintPicture(report, "picture", hWnd);
    }
    // Without the timer's clock.
    void Tick(int nTicks) const
    {
        wireHWND wire = nullptr;
        m_chart->GetHandle(&wire);
        const HWND hWnd = reinterpret_cast<HWND>(wire);
        constexpr UINT_PTR timer = 50000;
        for (int i = 0; i < nTicks; ++i) {
            ::SendMessageW(hWnd, WM_TIMER, timer, 0);
            ::UpdateWindow(hWnd);
        }
    }

private:
    Watch& m_watch;
    Holder<IChart2d> m_chart;
};

void Background(Chart& chart)
{
    chart.Step("texts", [&] {
        chart->SetGraphTitle(Text(L"Title"));
        chart->SetGraphSubtitle(Text(L"Subtitle"));
        chart->SetGraphTitleShadow(1);
        chart->SetGraphSubtitleShadow(1);
        chart->SetGraphTitleColor(0x800000);
        chart->Invalidate(1);
    });
    chart.Step("gradient", [&] {
        chart->SetGraphFillType(11);
        chart->SetGradientFillType(20);
        chart->SetGraphGradientColors(0x00C0FF, 0xFFE0C0);
        chart->Invalidate(1);
    });
    chart.Step("solid", [&] {
        chart->SetGraphFillType(10);
        chart->SetGraphBackgroundColor(0xE0FFE0);
        chart->SetGraphLegendTextColor(0x0000C0);
        chart->SetGraphLegendBackgroundColor(0xFFFFC0);
        chart->SetGraphLabelsColor(0x808000);
    });
    chart.Step("no legend, erased", [&] {
        chart->ShowGraphLegend(0);
        chart->Invalidate(1);
    });
    chart.Step("smaller", [&] { chart->SetGraphSize(420, 300); });
    chart.Step("elsewhere", [&] { chart->SetGraphPosition(30, 40); });
    chart.Step("legend again", [&] {
        chart->ShowGraphLegend(1);
        chart->Invalidate(1);
    });
}

void Animate(Chart& chart, std::initializer_list<int> types)
{
    for (const int nType : types) {
        chart.Step("animation " + std::to_string(nType), [&] { chart->SetGraphAnimation(1, nType); });
        for (const int nTicks : {1, 6, 20, 80, 200})
            chart.Step(std::to_string(nTicks) + " ticks", [&] { chart.Tick(nTicks); });
        chart.Step("animation ends", [&] { chart->SetGraphAnimation(0, nType); });
    }
}

void Bars(Watch& watch)
{
    watch.Begin("bar chart", true);
    Chart chart(watch, bars);
    chart.Step("a series too early", [&] { chart->Add2DBarGraphSeries(Text(L"none"), 0); });
    chart.Step("filled", [&] {
        for (const wchar_t* name : {L"spring", L"summer", L"autumn", L"winter"})
            chart->Add2DBarGraphSegment(Text(name));
        for (int series = 1; series <= 3; ++series) {
            chart->Add2DBarGraphSeries(Text(L"series"), 0x4040C0u << (series * 3));
            for (int segment = 1; segment <= 4; ++segment)
                chart->Set2DBarGraphValue(segment, series, (segment * 37 * series) % 90 + 5);
        }
        chart->Invalidate(1);
    });
    chart.Step("bad indices", [&] {
        chart->Set2DBarGraphValue(0, 1, 5);
        chart->Set2DBarGraphValue(1, 9, 5);
        chart->Detele2DBarGraphSeries(4);
        chart->Delete2DBarGraphSegment(5);
    });
    Background(chart);
    Animate(chart, {20, 21, 22, 25, 26});
    chart.Step("a series and a segment less", [&] {
        chart->Detele2DBarGraphSeries(2);
        chart->Delete2DBarGraphSegment(1);
        chart->Invalidate(1);
    });
}

void Lines(Watch& watch)
{
    watch.Begin("line chart", true);
    Chart chart(watch, lines);
    chart.Step("filled", [&] {
        for (const wchar_t* name : {L"mon", L"tue", L"wed", L"thu", L"fri"})
            chart->Add2DLineGraphSegment(Text(name));
        for (int series = 1; series <= 2; ++series) {
            chart->Add2DLineGraphSeries(Text(L"line"), series == 1 ? 0x0000C0 : 0xC00000);
            for (int segment = 1; segment <= 5; ++segment)
                chart->Set2DLineGraphValue(segment, series, (segment * 53 * series) % 70 - 10);
        }
        chart->Invalidate(1);
    });
    chart.Step("bad indices", [&] { chart->Set2DLineGraphValue(6, 1, 5); });
    Background(chart);
    Animate(chart, {30, 31});
    chart.Step("a series less", [&] {
        chart->Delete2DLineGraphSeries(1);
        chart->Delete2DLineGraphSegment(5);
        chart->Invalidate(1);
    });
}

void FlatPie(Watch& watch)
{
    watch.Begin("flat pie", true);
    Chart chart(watch, flatPie);
    chart.Step("filled", [&] {
        chart->Add2DPieGraphSegment(40, 0x0000C0, Text(L"red"));
        chart->Add2DPieGraphSegment(35, 0x00C000, Text(L"green"));
        chart->Add2DPieGraphSegment(25, 0xC00000, Text(L"blue"));
        chart->Invalidate(1);
    });
    chart.Step("updated", [&] {
        chart->Update2DPieGraphSegment(1, 30, 0x0080C0, Text(L"orange"));
        chart->Update2DPieGraphSegment(2, 120, 0, Text(L"too much"));
        chart->Update2DPieGraphSegment(9, 10, 0, Text(L"none"));
        chart->Invalidate(1);
    });
    Background(chart);
    Animate(chart, {10, 11});
    chart.Step("one less", [&] {
        chart->Delete2DPieGraphSegment(2);
        chart->Invalidate(1);
    });
    chart.Step("cleared", [&] {
        chart->Clear2DPieGraph();
        chart->Invalidate(1);
    });
}
} // namespace

void Scripts::BusinessCharts(Watch& watch)
{
    Bars(watch);
    Lines(watch);
    FlatPie(watch);
}

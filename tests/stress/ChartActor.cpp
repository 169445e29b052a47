#include "Actor.h"

namespace
{
enum EKind { bars, flatPie, lines };

// A business chart. Its methods of the other kinds are called too: they do nothing.
class ChartActor : public Actor
{
public:
    ChartActor(const Server& server, wireHWND parent, const RECT& place, int nKind)
        : m_chart(server.Make<Chart2d, IChart2d>())
    {
        RECT rect = place;
        m_chart->Create(&rect, parent, 8);
        m_chart->CreateGraph(nKind);
    }

    [[nodiscard]] HWND Window() const override
    {
        wireHWND wire = nullptr;
        m_chart->GetHandle(&wire);
        return reinterpret_cast<HWND>(wire);
    }

    void Act(Random& random, Log& log) override
    {
        switch (random.Int(0, 9)) {
        case 0:
        case 1:
            return Add(random, log);
        case 2:
            return SetValues(random, log);
        case 3:
            return Remove(random, log);
        case 4:
            return SetLooks(random, log);
        case 5:
            return Animate(random, log);
        case 6:
            return Place(random, log);
        case 9:
            return AskLooks(log);
        default:
            return Paint(random, log);
        }
    }

private:
    void Add(Random& random, Log& log)
    {
        log.Say("chart: segments and series");
        const Text text(Extremes::String(random));
        m_chart->Add2DBarGraphSegment(text);
        m_chart->Add2DLineGraphSegment(text);
        m_chart->Add2DPieGraphSegment(random.Real(-5, 40), random.Color(), text);
        m_chart->Add2DBarGraphSeries(text, random.Color());
        m_chart->Add2DLineGraphSeries(text, random.Color());
    }
    void SetValues(Random& random, Log& log)
    {
        log.Say("chart: values");
        const int nSegment = Extremes::Number(random, 0, 5), nSeries = Extremes::Number(random, 0, 5);
        const int nValue = Extremes::Number(random, -50, 150);
        m_chart->Set2DBarGraphValue(nSegment, nSeries, nValue);
        m_chart->Set2DLineGraphValue(nSegment, nSeries, nValue);
        m_chart->Update2DPieGraphSegment(nSegment, nValue, random.Color(),
                                         Text(Extremes::String(random)));
    }
    void Remove(Random& random, Log& log)
    {
        log.Say("chart: removal");
        const int n = Extremes::Number(random, 0, 5);
        m_chart->Detele2DBarGraphSeries(n);
        m_chart->Delete2DBarGraphSegment(n);
        m_chart->Delete2DLineGraphSeries(n);
        m_chart->Delete2DLineGraphSegment(n);
        m_chart->Delete2DPieGraphSegment(n);
        if (random.OneIn(8))
            m_chart->Clear2DPieGraph();
    }
    void SetLooks(Random& random, Log& log)
    {
        log.Say("chart: looks");
        m_chart->SetGraphTitle(Text(Extremes::String(random)));
        m_chart->SetGraphSubtitle(Text(Extremes::String(random)));
        m_chart->SetGraphFillType(random.Int(9, 12));
        m_chart->SetGradientFillType(random.Int(19, 22));
        m_chart->SetGraphGradientColors(random.Color(), random.Color());
        m_chart->ShowGraphLegend(Extremes::Number(random, 0, 1));
        m_chart->SetGraphTitleShadow(random.Int(0, 1));
        m_chart->SetGraphLabelsColor(random.Color());
        m_chart->SetGraphLegendBackgroundColor(random.Color());
        m_chart->SetGraphLegendTextColor(random.Color());
        m_chart->SetGraphBackgroundColor(random.Color());
        m_chart->SetGraphTitleColor(random.Color());
        m_chart->SetGraphSubtitleColor(random.Color());
        m_chart->SetGraphSubtitleShadow(random.Int(0, 1));
    }
    void AskLooks(Log& log)
    {
        log.Say("chart: questions");
        unsigned long color = 0;
        m_chart->GetGraphLegendTextColor(&color);
        m_chart->GetGraphLegendBackgroundColor(&color);
        m_chart->GetGraphLabelsColor(&color);
        m_chart->GetGraphTitleColor(&color);
        m_chart->GetGraphSubtitleColor(&color);
        m_chart->GetGraphBackgroundColor(&color);
        m_chart->GetGraphBackgroundColor(nullptr);
        long flag = 0;
        m_chart->GetGraphTitleShadow(&flag);
        m_chart->GetGraphSubtitleShadow(&flag);
        m_chart->GetGraphAnimation(&flag);
        int nType = 0;
        m_chart->GetGradientFillType(&nType);
        m_chart->GetGraphFillType(&nType);
    }
    void Animate(Random& random, Log& log)
    {
        const int types[] = {20, 21, 22, 25, 26, 30, 31, 10, 11, 0, 99};
        const int nType = random.Of(types), nTicks = random.Int(0, 120);
        log.Say("chart: animation %d, %d ticks", nType, nTicks);
        m_chart->SetGraphAnimation(random.Int(0, 2), nType);
        for (int i = 0; i < nTicks; ++i)
            ::SendMessageW(Window(), WM_TIMER, 50000, 0);
    }
    void Place(Random& random, Log& log)
    {
        log.Say("chart: size and place");
        m_chart->SetGraphSize(random.Int(-10, 700), random.Int(-10, 500));
        m_chart->SetGraphPosition(random.Int(-100, 300), random.Int(-100, 300));
    }
    void Paint(Random& random, Log& log)
    {
        log.Say("chart: paint");
        m_chart->Invalidate(random.Int(0, 1));
        ::UpdateWindow(Window());
    }

    Holder<IChart2d> m_chart;
};
} // namespace

std::unique_ptr<Actor> Actors::MakeChart(const Server& server, wireHWND parent, const RECT& place,
                                         int nKind)
{
    return std::make_unique<ChartActor>(server, parent, place, nKind);
}

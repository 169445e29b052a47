#include "Stage.h"

namespace
{
class ChartHand
{
public:
    void Create(Stage& stage, int nKind)
    {
        m_chart.Release();
        m_bMade = false;
        Stage::Try([&] { m_chart = stage.TheServer().Make<Chart2d, IChart2d>(); });
        RECT rect = {10, 10, 510, 410};
        if (m_chart)
            Stage::Try([&] { m_bMade = m_chart->Create(&rect, stage.Parent(), 8) == S_OK; });
        if (Window())
            Stage::Try([&] { m_chart->CreateGraph(nKind); });
        m_nKind = nKind;
    }
    [[nodiscard]] HWND Window() const
    {
        wireHWND hWnd = nullptr;
        if (m_bMade) // without a chart the call would fault
            Stage::Try([&] { m_chart->GetHandle(&hWnd); });
        return reinterpret_cast<HWND>(hWnd);
    }
    IChart2d* operator->() const { return m_chart.Get(); }
    void Fill()
    {
        if (!Window())
            return;
        Stage::Try([&] { m_chart->SetGraphTitle(Text(L"a title of some length")); });
        Stage::Try([&] { m_chart->SetGraphSubtitle(Text(L"a subtitle of some length")); });
        m_chart->ShowGraphLegend(1);
        m_chart->SetGraphFillType(11);
        m_chart->SetGraphGradientColors(0x00C0FF, 0xFFE0C0);
        for (int i = 1; i <= 3; ++i)
            AddPart(i);
        Frame(Window());
    }
    void Animate(int nType, int nTicks)
    {
        if (!Window())
            return;
        Stage::Try([&] { m_chart->SetGraphAnimation(1, nType); });
        for (int i = 0; i < nTicks; ++i) {
            ::SendMessageW(Window(), WM_TIMER, 50000, 0);
            ::UpdateWindow(Window());
        }
        Stage::Try([&] { m_chart->SetGraphAnimation(0, nType); });
        Frame(Window());
    }

private:
    void AddPart(int nPart)
    {
        const COLORREF color = 0x4040C0u << (nPart * 3);
        const Text name((L"a part with the number " + std::to_wstring(nPart)).c_str());
        Stage::Try([&] {
            if (m_nKind == 1)
                m_chart->Add2DPieGraphSegment(30, color, name);
            else if (m_nKind == 0)
                m_chart->Add2DBarGraphSegment(name);
            else
                m_chart->Add2DLineGraphSegment(name);
        });
        if (m_nKind != 1 && nPart == 1) {
            for (int nSeries = 1; nSeries <= 2; ++nSeries)
                Stage::Try([&] {
                    m_nKind == 0 ? m_chart->Add2DBarGraphSeries(name, color * nSeries)
                                 : m_chart->Add2DLineGraphSeries(name, color * nSeries);
                });
        }
        for (int nSeries = 1; m_nKind != 1 && nSeries <= 2; ++nSeries)
            Stage::Try([&] {
                m_nKind == 0 ? m_chart->Set2DBarGraphValue(nPart, nSeries, 20 + 30 * nPart)
                             : m_chart->Set2DLineGraphValue(nPart, nSeries, 20 + 30 * nPart);
            });
    }

    Holder<IChart2d> m_chart;
    int m_nKind = 0;
    bool m_bMade = false;
};

template <int nKind> class OnChart : public Scenario
{
public:
    using Scenario::Scenario;
    void Prepare() override
    {
        m_chart.Create(TheStage(), nKind);
        m_chart.Fill();
    }
    std::uint64_t Result() override { return PictureOf(m_chart.Window()); }

protected:
    ChartHand m_chart;

private:
    Dialogs m_dialogs; // what is refused leads to bad indices, and to boxes about them
};

template <int nKind> class Create : public OnChart<nKind>
{
public:
    using OnChart<nKind>::OnChart;
    void Prepare() override {}
    void Act() override
    {
        this->m_chart.Create(this->TheStage(), nKind);
        this->m_chart.Fill();
    }
};

template <int nKind> class Paint : public OnChart<nKind>
{
public:
    using OnChart<nKind>::OnChart;
    void Act() override
    {
        if (this->m_chart.Window())
            this->m_chart->Invalidate(1);
        Frame(this->m_chart.Window());
    }
};

template <int nKind> class Animate : public OnChart<nKind>
{
public:
    using OnChart<nKind>::OnChart;
    void Act() override
    {
        for (const int nType : {1, 2, 20, 21, 22})
            this->m_chart.Animate(nType, 8);
    }
    std::uint64_t Result() override
    {
        this->m_chart.Create(this->TheStage(), nKind);
        this->m_chart.Fill();
        return OnChart<nKind>::Result();
    }
};

template <int nKind> class Resize : public OnChart<nKind>
{
public:
    using OnChart<nKind>::OnChart;
    void Act() override
    {
        for (const int nSize : {300, 480}) {
            Stage::Try([&] { this->m_chart->SetGraphSize(nSize, nSize - 50); });
            Frame(this->m_chart.Window());
        }
        Stage::Try([&] { this->m_chart->SetGraphPosition(20, 20); });
    }
};

template <int nKind> class Change : public OnChart<nKind>
{
public:
    using OnChart<nKind>::OnChart;
    void Act() override
    {
        IChart2d* const pChart = this->m_chart.operator->();
        Stage::Try([&] { pChart->SetGraphTitle(Text(L"another title, longer than before")); });
        if constexpr (nKind == 0) {
            Stage::Try([&] { pChart->Delete2DBarGraphSegment(1); });
            Stage::Try([&] { pChart->Detele2DBarGraphSeries(1); });
            Stage::Try([&] { pChart->Add2DBarGraphSegment(Text(L"a segment that comes late")); });
        } else if constexpr (nKind == 1) {
            Stage::Try([&] {
                pChart->Update2DPieGraphSegment(1, 20, 0xFF, Text(L"changed to a longer text"));
            });
            Stage::Try([&] { pChart->Delete2DPieGraphSegment(1); });
            Stage::Try([&] { pChart->Clear2DPieGraph(); });
        } else {
            Stage::Try([&] { pChart->Delete2DLineGraphSegment(1); });
            Stage::Try([&] { pChart->Delete2DLineGraphSeries(1); });
            Stage::Try([&] { pChart->Add2DLineGraphSegment(Text(L"a segment that comes late")); });
        }
        Frame(this->m_chart.Window());
    }
    std::uint64_t Result() override
    {
        this->m_chart.Create(this->TheStage(), nKind);
        this->m_chart.Fill();
        return OnChart<nKind>::Result();
    }
};
} // namespace

void Scenarios::AddCharts(std::vector<TScenario>& scenarios)
{
    scenarios.insert(scenarios.end(), {{"bars-create", &MakeScenario<Create<0>>},
                                       {"bars-paint", &MakeScenario<Paint<0>>},
                                       {"bars-animate", &MakeScenario<Animate<0>>},
                                       {"bars-resize", &MakeScenario<Resize<0>>},
                                       {"bars-change", &MakeScenario<Change<0>>},
                                       {"flat-create", &MakeScenario<Create<1>>},
                                       {"flat-paint", &MakeScenario<Paint<1>>},
                                       {"flat-animate", &MakeScenario<Animate<1>>},
                                       {"flat-resize", &MakeScenario<Resize<1>>},
                                       {"flat-change", &MakeScenario<Change<1>>},
                                       {"lines-create", &MakeScenario<Create<2>>},
                                       {"lines-paint", &MakeScenario<Paint<2>>},
                                       {"lines-animate", &MakeScenario<Animate<2>>},
                                       {"lines-resize", &MakeScenario<Resize<2>>},
                                       {"lines-change", &MakeScenario<Change<2>>},
                                       {"bars-end", &MakeScenario<Ending<Paint<0>>>},
                                       {"flat-end", &MakeScenario<Ending<Paint<1>>>},
                                       {"lines-end", &MakeScenario<Ending<Paint<2>>>}});
}

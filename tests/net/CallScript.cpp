#include "Data.h"
#include "Printer.h"
#include "SavedBytes.h"
#include "Scripts.h"

#include <cstdio>

namespace
{
constexpr RECT Place = {10, 10, 510, 360};

std::wstring ScratchFile(const wchar_t* pszEnding)
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"net-calls-" + std::to_wstring(::GetCurrentProcessId()) + pszEnding;
}

std::uint64_t FileSum(const std::wstring& path)
{
    std::uint64_t sum = 0;
    if (std::FILE* pFile = ::_wfopen(path.c_str(), L"rb")) {
        std::vector<unsigned char> bytes(1 << 22);
        sum = Checksum(bytes.data(), std::fread(bytes.data(), 1, bytes.size(), pFile));
        std::fclose(pFile);
    }
    return sum;
}

void Fill(Graph& graph)
{
    graph.Plot(Data::Wave(Scale::linear, 40, 1), 0);
    graph.Plot(Data::Wave(Scale::linear, 25, 3), 1, 1, 1);
    graph.Curve(0)->SetLabel(Text(L"first"));
    graph.Curve(1)->SetLabel(Text(L"second"));
    graph.XAxis(0)->SetLabel(Text(L"length [m]"));
    graph.YAxis(0)->SetLabel(Text(L"force [N]"));
}

void AxisLooks(Watch& watch, Graph& graph)
{
    watch.Step("arcs, ticks, marker sizes", [&] {
        graph.XAxis()->SetArcSize(9);
        graph.XAxis()->SetTickSize(12);
        graph.YAxis()->SetMarkerSize(16);
        graph->Invalidate(1);
    });
    watch.Step("grid", [&] {
        graph.XAxis()->SetShowGrid(0);
        graph.YAxis()->SetGridStyle(PS_DASHDOT);
        graph.YAxis()->SetGridColor(0x8080FF);
        graph->Invalidate(1);
    });
    watch.Step("placement", [&] {
        graph.YAxis(0)->SetPlacement(apRight);
        graph.YAxis(1)->SetPlacement(apAutomatic);
        graph->Invalidate(1);
    });
    watch.Step("formats and colours", [&] {
        graph.XAxis()->SetDisplayFmt(Text(L"%.3e"));
        graph.YAxis()->SetDisplayFmt(Text(L"<%g>"));
        graph.YAxis()->SetColor(0x0000C0);
        graph.XAxis(1)->SetShowMarker(0);
        graph->Invalidate(1);
    });
    watch.Step("no rounding of bounds", [&] {
        graph.XAxis()->SetAutoScale(0);
        graph.YAxis(1)->SetAutoScale(0);
        graph->Autoscale(0, 1, 1);
    });
    watch.Step("hidden axes", [&] {
        graph.YAxis(1)->SetVisible(0);
        graph.XAxis(1)->SetVisible(0);
        graph->Invalidate(1);
    });
}

void Bands(Watch& watch, Graph& graph)
{
    watch.Step("colour ranges", [&] {
        graph.XAxis()->SetColorRange(0, 2, 4, 0xFFE0C0, 0xC0E0FF, Text(L"range"), 6);
        graph.YAxis()->SetColorRange(0, 20, 60, 0xC0FFC0, 0xC0FFC0, Text(L"hatched"), HS_DIAGCROSS);
        graph.YAxis()->SetColorRange(1, 70, 90, 0xC0C0FF, 0xFFFFFF, Text(L""), 6);
    });
    watch.Step("a range replaced, one deleted", [&] {
        graph.YAxis()->SetColorRange(1, 65, 66, 0x00FFFF, 0xFFFF00, Text(L"thin"), 6);
        graph.YAxis()->DeleteColorRange(0);
        graph.YAxis()->DeleteColorRange(9);
        graph->Invalidate(1);
    });
    watch.Step("axis markers with texts", [&] {
        graph.XAxis()->SetAxisMarker(0, 5, 0x0000FF, PS_DASH);
        graph.XAxis()->SetMaskerLabel(0, Text(L"five"));
        graph.YAxis()->SetAxisMarker(0, 33, 0xFF0000, PS_SOLID);
    });
    watch.Step("no ranges", [&] {
        graph.XAxis()->DeleteAllColorRanges();
        graph->Invalidate(1);
    });
}

void CurveLooks(Watch& watch, Graph& graph)
{
    for (int nMarker = 0; nMarker < 8; ++nMarker) {
        watch.Step("marker " + std::to_string(nMarker), [&] {
            const auto curve = graph.Curve(0);
            curve->SetMarker(nMarker);
            curve->SetMarkerType(nMarker % 2);
            curve->SetMarkerSize(3 + 2 * nMarker);
            curve->SetShowMarker(1);
            curve->SetLineSize(1 + nMarker % 3);
            curve->SetLineStyle(nMarker % 5);
            graph->Invalidate(1);
        });
    }
    watch.Step("filled to another curve", [&] {
        graph.Curve(0)->SetFillBeneath(1, 1);
        graph.Curve(0)->SetFillStyle(HS_CROSS);
        graph.Curve(0)->SetFillTransparent(1);
        graph->Invalidate(1);
    });
    watch.Step("scatter, and a hidden curve", [&] {
        graph.Curve(0)->SetType(gtScatter);
        graph.Curve(1)->SetVisible(0);
        graph->Invalidate(1);
    });
}

void Trends(Watch& watch, Graph& graph)
{
    watch.Step("trends by command", [&] {
        graph->NoOp();
        graph->SelectCurve(0);
        const auto points = Data::Wave(Scale::linear, 40, 1);
        graph.Frame();
        graph.Click(graph.At(points[11].fXVal, points[11].fYVal));
        long bSelected = 0;
        graph.Curve(0)->GetSelected(&bSelected);
        if (bSelected == 0)
            return;
        graph.Send(Command::linearTrend);
        graph.Send(Command::cubicTrend);
    });
    watch.Step("trends and averages by method", [&] {
        const auto curve = graph.Curve(0);
        long nCount = 0;
        curve->GetCount(&nCount);
        const auto print = [&](const char* name, TDataPoint* pPoints, long nPoints) {
            watch.TheReport().Line("%s: %016llx", name,
                                   static_cast<unsigned long long>(Checksum(
                                       pPoints, static_cast<std::size_t>(nPoints) * sizeof *pPoints)));
            ::CoTaskMemFree(pPoints);
        };
        TDataPoint* pPoints = nullptr;
        curve->GetLinearTrend(&pPoints, 5);
        print("linear", pPoints, nCount + 5);
        curve->GetCubicTrend(&pPoints, 3);
        print("cubic", pPoints, nCount + 3);
        curve->GetPolynomialTrend(&pPoints, 4, 2);
        print("polynomial", pPoints, nCount + 2);
        curve->GetSimpleMovingAverage(&pPoints, 4);
        print("simple", pPoints, nCount);
        curve->GetExponentialMovingAverage(&pPoints, 4);
        print("exponential", pPoints, nCount);
        curve->GetLinearMovingAverage(&pPoints, 4);
        print("weighted", pPoints, nCount);
        curve->GetTriangularMovingAverage(&pPoints, 4);
        print("triangular", pPoints, nCount);
    });
}

void Pictures(Watch& watch, Graph& graph)
{
    watch.Step("a picture file", [&] {
        const std::wstring path = ScratchFile(L".bmp");
        graph.Frame();
        graph->SaveBitmap(Text(path));
        watch.TheReport().Exact("picture %016llx", static_cast<unsigned long long>(FileSum(path)));
        ::DeleteFileW(path.c_str());
    });
    const Printer::TPaper papers[] = {
        {1240, 1754, 150, false}, {800, 600, 96, true}, {900, 700, 200, true}};
    for (const Printer::TPaper& paper : papers) {
        watch.Step("a page of " + std::to_string(paper.nResolution) + " dots", [&] {
            const Printer printer(watch.TheServer().Module(), paper);
            graph->SetPrintHeader(Text(L"Header"));
            graph->SetPrintFooter(Text(L"Footer"));
            graph.Send(Command::print);
            watch.TheReport().Line("pages %d", printer.PageCount());
            watch.TheReport().Exact("page %016llx", static_cast<unsigned long long>(printer.Sum()));
        });
    }
}

void Files(Watch& watch, Graph& graph)
{
    for (const unsigned int nFlags : {1u, 2u, 4u, 7u, 8u, 0u}) {
        watch.Step("saved with flags " + std::to_string(nFlags) + " and loaded", [&] {
            const std::wstring path = ScratchFile(L".graph");
            const HRESULT saved = graph->Save(Text(path), nFlags);
            const HRESULT loaded = graph->Load(Text(path));
            watch.TheReport().Line("saved %ld, loaded %ld", saved, loaded);
            ::DeleteFileW(path.c_str());
        });
        watch.Step("filled again", [&] {
            graph->ResetAll();
            Fill(graph);
        });
    }
}

void Structure(Watch& watch, Graph& graph)
{
    watch.Step("selections", [&] {
        graph->SelectXAxis(1);
        graph->SelectYAxis(0);
        graph->SelectCurve(1);
    });
    watch.Step("selections past the end", [&] {
        graph->SelectXAxis(-1);
        graph->SelectYAxis(7);
        graph->SelectCurve(2);
    });
    watch.Step("a curve replaced", [&] {
        auto points = Data::Wave(Scale::linear, 10, 2);
        graph->SetData(nullptr, points.data(), 10, 1, 0, 0, 0);
        graph.Frame();
        graph->DeleteCurve(1);
    });
    watch.Step("single points", [&] { graph.Plot({{5, 5}}, graph.CurveCount()); });
    watch.Step("odd values", [&] {
        graph.Plot({{0, 0}, {1, NAN}, {2, INFINITY}, {3, 1e300}, {4, -1e300}, {5, 3}},
                   graph.CurveCount());
    });
    watch.Step("no data", [&] {
        const HRESULT result = graph->SetData(nullptr, nullptr, 5, 0, 0, 0, 1);
        watch.TheReport().Line("result %ld", result);
    });
    watch.Step("all reset", [&] {
        graph->ResetAll();
        graph->Invalidate(1);
    });
}

void Sizes(Watch& watch, Graph& graph)
{
    const SIZE sizes[] = {{0, 0}, {1, 1}, {9, 9}, {30, 200}, {200, 12}, {64, 48}, {600, 420}};
    for (const SIZE& size : sizes) {
        watch.Step("size " + std::to_string(size.cx) + " by " + std::to_string(size.cy), [&] {
            ::SetWindowPos(graph.Window(), nullptr, 10, 10, size.cx, size.cy, SWP_NOZORDER);
            graph.Frame();
        });
    }
    watch.Step("margins that meet", [&] {
        graph->SetGraphMargins(400, 300, 400, 300);
        graph->Invalidate(1);
    });
    watch.Step("margins below zero", [&] {
        graph->SetGraphMargins(-20, -10, -30, -5);
        graph->Invalidate(1);
    });
    watch.Step("legend left, top", [&] {
        graph->SetGraphMargins(5, 5, 5, 5);
        graph->SetLegendAlignment(left);
        graph.Frame();
        graph->SetLegendAlignment(top);
        graph->Invalidate(1);
    });
}

void OddWindows(Watch& watch)
{
    const RECT places[] = {{100, 100, 40, 30}, {0, 0, 1, 1}, {10, 10, 10, 200}, {-50, -40, 300, 200}};
    int nPlace = 0;
    for (const RECT& one : places) {
        watch.Begin("odd window " + std::to_string(++nPlace), true);
        Graph& graph = watch.Add(one);
        watch.Step("plotted", [&] {
            Fill(graph);
            graph.Frame();
        });
        watch.Step("zoomed and panned", [&] {
            graph->Zoom();
            graph.Press({1, 1});
            graph.DragTo({60, 60});
            graph.Release({60, 60});
            graph->Pan();
            graph.Press({1, 1});
            graph.DragTo({5, 5});
            graph.Release({5, 5});
        });
    }
}
} // namespace

void Scripts::Calls(Watch& watch)
{
    watch.Begin("calls", true);
    Graph& graph = watch.Add(Place);
    watch.Step("empty", [&] { graph.Frame(); });
    watch.Step("plotted", [&] { Fill(graph); });
    AxisLooks(watch, graph);
    Bands(watch, graph);
    CurveLooks(watch, graph);
    Trends(watch, graph);
    Pictures(watch, graph);
    Files(watch, graph);
    Structure(watch, graph);
    watch.Step("filled again", [&] { Fill(graph); });
    Sizes(watch, graph);
    OddWindows(watch);
}

#include "RandomGraph.h"

#include "Printer.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace
{
constexpr int MostCurves = 8;

RECT RandomPlace(Random& random)
{
    const int nLeft = random.Int(-20, 60), nTop = random.Int(-20, 60);
    if (random.OneIn(10))
        return {nLeft, nTop, nLeft + random.Int(-60, 40), nTop + random.Int(-60, 40)};
    if (random.OneIn(10))
        return {nLeft, nTop, nLeft + random.Int(20, 700), nTop + random.Int(1, 60)};
    return {nLeft, nTop, nLeft + random.Int(160, 720), nTop + random.Int(120, 520)};
}

double Odd(Random& random)
{
    const double values[] = {NAN, INFINITY, -INFINITY, 1e308, -1e308, 1e15, -1e-15, 0.0, 4e9, -4e9};
    return random.Of(values);
}
} // namespace

RandomGraph::RandomGraph(const Server& server, const HostWindow& host, Random& random, bool bBare)
    : m_random(random), m_bBare(bBare), m_graph(server, host, RandomPlace(random))
{
    if (m_bBare)
        m_graph->SetShowLegend(0);
    for (int nLeft = m_random.Int(1, 4); nLeft > 0; --nLeft)
        AddCurve();
    SetGraph();
}

RandomGraph::~RandomGraph()
{
    ::DestroyWindow(m_graph.Window());
}

std::vector<TDataPoint> RandomGraph::Points()
{
    const int sizes[] = {1, 2, 3, 17, 60, 250, 1500, 6000};
    std::vector<TDataPoint> points(static_cast<std::size_t>(m_random.Of(sizes)));
    const double scales[] = {1e-9, 0.01, 1, 1, 1, 50, 1e4, 1e9};
    const double scale = m_random.Of(scales),
                 offset = m_random.OneIn(3) ? scale * m_random.Real(-20, 20) : 0;
    const int nShape = m_random.Int(0, 5);
    double x = m_random.Real(-5, 5), y = m_random.Real(-1, 1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        x += nShape == 1                        ? m_random.Real(-0.5, 0.6)
             : nShape == 2 && m_random.OneIn(2) ? 0
                                                : m_random.Part();
        y = nShape == 3   ? std::fabs(y) + m_random.Part()
            : nShape == 4 ? static_cast<double>(i % 5)
                          : y + m_random.Real(-1, 1);
        points[i] = {x, y * scale + offset};
        if (nShape == 5 && m_random.OneIn(12))
            (m_random.OneIn(4) ? points[i].fXVal : points[i].fYVal) = Odd(m_random);
    }
    return points;
}

void RandomGraph::AddCurve()
{
    const int nCurve = m_graph.CurveCount();
    if (nCurve >= MostCurves)
        return;
    const int nXAxis = m_random.Int(0, std::min(m_graph.XAxisCount(), 2));
    const int nYAxis = m_random.Int(0, std::min(m_graph.YAxisCount(), 3));
    m_lent.push_back(Points());
    m_graph->SetData(nullptr, m_lent.back().data(), static_cast<long>(m_lent.back().size()), nCurve,
                     nXAxis, nYAxis, m_random.OneIn(3) ? 0 : 1);
    if (m_bBare) {
        m_graph.XAxis(nXAxis)->SetVisible(0);
        m_graph.YAxis(nYAxis)->SetVisible(0);
    }
    SetAxis(m_graph.XAxis(nXAxis).Get(), true);
    SetAxis(m_graph.YAxis(nYAxis).Get(), false);
    SetCurve(nCurve);
}

void RandomGraph::SetGraph()
{
    m_graph->SetBackColor(m_random.Color());
    if (m_random.OneIn(2))
        m_graph->SetInnerColor(m_random.Color());
    m_graph->SetDoubleBuffer(m_random.OneIn(4) ? 0 : 1);
    if (!m_bBare) {
        const EAlignment sides[] = {left, right, right, top, bottom};
        m_graph->SetShowLegend(m_random.OneIn(3) ? 0 : 1);
        m_graph->SetLegendAlignment(m_random.Of(sides));
    }
    if (m_random.OneIn(3)) {
        const int most = m_random.OneIn(4) ? 400 : 30;
        m_graph->SetGraphMargins(m_random.Int(-10, most), m_random.Int(-10, most),
                                 m_random.Int(-10, most), m_random.Int(-10, most));
    }
    m_graph->SetSnapRange(m_random.Int(0, 40));
    m_graph->SetSnapCursor(m_random.Int(0, 1));
}

void RandomGraph::SetAxis(ISGraphAxis* pAxis, bool bX)
{
    if (m_random.OneIn(4))
        pAxis->SetAxisType(m_random.OneIn(2) ? atLog : atLinear);
    if (bX && m_random.OneIn(5))
        pAxis->SetDateTime(1);
    pAxis->SetAutoScale(m_random.Int(0, 1));
    pAxis->SetShowGrid(m_random.Int(0, 1));
    pAxis->SetGridStyle(static_cast<unsigned>(m_random.Int(0, 5)));
    pAxis->SetGridColor(m_random.Color());
    if (m_bBare)
        return;
    pAxis->SetVisible(m_random.OneIn(6) ? 0 : 1);
    SetAxisLooks(pAxis);
    if (m_random.OneIn(4))
        AddBands(pAxis);
}

void RandomGraph::SetAxisLooks(ISGraphAxis* pAxis)
{
    const wchar_t* const formats[] = {L"%5.1f",         L"%.3e",     L"%g", L"%+08.2f u",
                                      L"two\nlines %f", L"%d.%m.%Y", L""};
    const wchar_t* const labels[] = {L" ", L"", L"length [m]",
                                     L"a title that is much longer than its axis"};
    const EAxisPlacement sides[] = {apLeft, apRight, apAutomatic};
    if (m_random.OneIn(3))
        pAxis->SetDisplayFmt(Text(m_random.Of(formats)));
    pAxis->SetLabel(Text(m_random.Of(labels)));
    pAxis->SetPlacement(m_random.Of(sides));
    pAxis->SetShowMarker(m_random.Int(0, 1));
    pAxis->SetArcSize(m_random.Int(0, 12));
    pAxis->SetTickSize(m_random.Int(0, 12));
    pAxis->SetMarkerSize(m_random.Int(1, 20));
    if (m_random.OneIn(3))
        pAxis->SetColor(m_random.Color());
    if (m_random.OneIn(6))
        pAxis->SetSelected(1);
}

void RandomGraph::AddBands(ISGraphAxis* pAxis)
{
    double from = ValueAt(pAxis, m_random.Int(0, 300)), to = ValueAt(pAxis, m_random.Int(0, 300));
    if (!std::isfinite(from) || !std::isfinite(to))
        return;
    pAxis->SetColorRange(0, std::min(from, to), std::max(from, to), m_random.Color(), m_random.Color(),
                         Text(L"range"), static_cast<unsigned>(m_random.Int(0, 6)));
    long nMarkers = 0;
    pAxis->GetAxisMarkerCount(&nMarkers);
    pAxis->SetAxisMarker(static_cast<int>(nMarkers), from, m_random.Color(),
                         static_cast<unsigned>(m_random.Int(0, 4)));
    if (m_random.OneIn(2))
        pAxis->SetMaskerLabel(0, Text(L"marker"));
}

void RandomGraph::SetCurve(int nCurve)
{
    const auto curve = m_graph.Curve(nCurve);
    curve->SetType(m_random.OneIn(4) ? gtScatter : gtLine);
    curve->SetColor(m_random.Color());
    curve->SetLineSize(m_random.Int(0, 6));
    curve->SetLineStyle(static_cast<unsigned>(m_random.Int(0, 4)));
    curve->SetMarker(m_random.Int(0, 7));
    curve->SetMarkerType(m_random.Int(0, 2));
    curve->SetMarkerSize(m_random.Int(1, 14));
    curve->SetShowMarker(m_random.OneIn(3) ? 1 : 0);
    curve->SetSelected(m_random.OneIn(5) ? 1 : 0);
    curve->SetVisible(m_random.OneIn(7) ? 0 : 1);
    curve->SetLabel(Text(m_random.OneIn(2) ? L"curve" : L"a longer name of a curve"));
    if (!m_random.OneIn(4))
        return;
    curve->SetFillBeneath(1, m_random.OneIn(2) ? m_random.Int(0, nCurve) : 0xFFFF);
    curve->SetFillColor(m_random.Color());
    curve->SetFillStyle(m_random.Int(0, 6));
    curve->SetFillTransparent(m_random.Int(0, 1));
}

void RandomGraph::AddObject()
{
    if (m_bBare)
        return;
    if (m_random.OneIn(2)) {
        long nCount = 0;
        const int nCurve = m_random.Int(0, m_graph.CurveCount() - 1);
        m_graph.Curve(nCurve)->GetCount(&nCount);
        m_graph->InsertDataNotation(nCurve, m_random.Int(0, static_cast<int>(nCount) - 1));
        return;
    }
    const POINT at = Place();
    RECT rect = {at.x, at.y, at.x + m_random.Int(-10, 150), at.y + m_random.Int(-10, 80)};
    Holder<ISGraphLabel> label;
    m_graph->InsertLabel(Text(L"a label\r\nof two lines"), &rect, label.Out());
    label->SetBorder(m_random.Int(0, 1));
    label->SetTransparent(m_random.Int(0, 1));
    label->SetColor(m_random.Color());
    label->SetTextColor(m_random.Color());
    label->SetAlignment(static_cast<unsigned>(m_random.Int(0, 2)));
}

POINT RandomGraph::Place()
{
    RECT client;
    ::GetClientRect(m_graph.Window(), &client);
    return {m_random.Int(-5, client.right + 5), m_random.Int(-5, client.bottom + 5)};
}

void RandomGraph::EndOperation()
{
    m_graph->NoOp();
}

// The button is held over one frame, so that the overlay is seen too.
void RandomGraph::Drag(WPARAM nCommand)
{
    m_graph.Send(nCommand);
    const POINT from = Place(), to = Place();
    m_graph.Hover(from);
    m_graph.Press(from);
    m_graph.DragTo(to);
    m_graph.Frame();
    m_graph.DragTo(Place());
    if (m_random.OneIn(2))
        m_graph.Frame();
    m_graph.Release(to);
}

// A measure is labelled by the cursor's curve, and the process ends where there is none: after the
// first cursor of a graph nothing is measured.
void RandomGraph::SetCursor()
{
    m_graph->DeleteMeasures();
    m_bHadCursor = true;
    m_graph->SetCursorFlags(static_cast<unsigned>(m_random.Int(0, m_bBare ? 3 : 7)));
    m_graph.Send(Command::cursor);
    for (int nMoves = m_random.Int(1, 4); nMoves > 0; --nMoves) {
        m_graph.Hover(Place());
        if (m_random.OneIn(3))
            m_graph.Frame();
    }
}

void RandomGraph::Resize()
{
    const RECT place = RandomPlace(m_random);
    ::SetWindowPos(m_graph.Window(), nullptr, place.left, place.top,
                   std::max(0L, place.right - place.left), std::max(0L, place.bottom - place.top),
                   SWP_NOZORDER);
}

void RandomGraph::Gesture()
{
    const WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_ADD, VK_SUBTRACT, VK_HOME};
    switch (m_random.Int(0, 9)) {
    case 0:
    case 1:
        return Drag(Command::zoom);
    case 2:
        return Drag(Command::pan);
    case 3:
        return SetCursor();
    case 4:
        return m_bBare || m_bHadCursor ? SetCursor() : Drag(Command::measure);
    case 5:
        return m_bBare ? Drag(Command::zoom) : Drag(Command::edit);
    case 6:
        return m_graph.Wheel(m_random.OneIn(2) ? WHEEL_DELTA : -WHEEL_DELTA,
                             m_random.OneIn(2) ? MK_SHIFT : 0);
    case 7:
        return m_graph.Key(m_random.Of(keys));
    case 8:
        return m_graph.Send(Command::zoomBack);
    default:
        return m_graph.Hover(Place());
    }
}

void RandomGraph::Change()
{
    switch (m_random.Int(0, 9)) {
    case 0:
        AddCurve();
        break;
    case 1:
        SetGraph();
        break;
    case 2:
        SetAxis(m_graph.XAxis(m_random.Int(0, m_graph.XAxisCount() - 1)).Get(), true);
        break;
    case 3:
        SetAxis(m_graph.YAxis(m_random.Int(0, m_graph.YAxisCount() - 1)).Get(), false);
        break;
    case 4:
        SetCurve(m_random.Int(0, m_graph.CurveCount() - 1));
        break;
    case 5:
        AddObject();
        break;
    case 6:
        Resize();
        break;
    default:
        EndOperation();
        Gesture();
        break;
    }
    m_graph.Frame();
}

void RandomGraph::Print(Report& report, HMODULE hServer)
{
    const Printer::TPaper papers[] = {
        {800, 600, 96, true}, {1000, 700, 150, false}, {900, 1200, 300, true}};
    const Printer printer(hServer, m_random.Of(papers));
    m_graph->SetPrintHeader(Text(m_random.OneIn(2) && !m_bBare ? L"Header" : L""));
    m_graph.Send(Command::print);
    report.Line("page %016llx", static_cast<unsigned long long>(printer.Sum()));
}

std::uint64_t RandomGraph::PictureSum() const
{
    return Screen(m_graph.Window()).Sum();
}

std::uint64_t RandomGraph::ValueSum() const
{
    std::uint64_t sum = Checksum(nullptr, 0);
    const auto add = [&](ISGraphAxis* pAxis) {
        for (const int nPos : {0, 7, 200, 1000}) {
            const double value = ValueAt(pAxis, nPos);
            // No number is like another: which of its bits are set is the processor's affair.
            const auto bits = std::isnan(value) ? 0 : std::bit_cast<std::uint64_t>(value);
            sum = Checksum(&bits, sizeof bits, sum);
        }
        const RECT rect = Graph::RectOf(pAxis);
        sum = Checksum(&rect, sizeof rect, sum);
    };
    for (int i = 0; i < m_graph.XAxisCount(); ++i)
        add(m_graph.XAxis(i).Get());
    for (int i = 0; i < m_graph.YAxisCount(); ++i)
        add(m_graph.YAxis(i).Get());
    return sum;
}

bool RandomGraph::WritePicture(const std::wstring& path) const
{
    return Screen(m_graph.Window()).Write(path);
}

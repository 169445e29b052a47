#include "CursorBench.h"

#include "Goals.h"
#include "Scene.h"
#include "Stopwatch.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

namespace
{

constexpr int Curves = 10;
constexpr int Count = 1'000'000;
constexpr int Moves = 50; // of one run, over the width of the plot

// x ascends, evenly or by ever longer steps.
std::vector<TDataPoint> Points(bool bEven)
{
    std::vector<TDataPoint> points = NoisyWaves(Count);
    if (!bEven) {
        for (int i = 0; i < Count; ++i)
            points[i].fXVal = static_cast<double>(i) * i / Count;
    }
    return points;
}

double TimeMoves(CXGraph& graph, int nRuns, const std::function<void(CPoint)>& move)
{
    const CRect plot = graph.m_rcInner;
    int nAt = 0;
    return Stopwatch::Median(nRuns,
                             [&] {
                                 for (int i = 0; i < Moves; ++i) {
                                     nAt = (nAt + 7) % plot.Width();
                                     move({plot.left + nAt, plot.top + 5 + nAt % 20});
                                 }
                                 ::GdiFlush();
                             }) /
           Moves;
}

// The old lines drawn once more and the new ones, by a plain host with a pen that it keeps.
class CPlainLines
{
public:
    explicit CPlainLines(const CXGraph& graph) : m_Graph(graph) {}

    void Move(CPoint at)
    {
        const HDC hDC = ::GetDC(m_Graph.m_hWnd);
        const HGDIOBJ hOldPen = ::SelectObject(hDC, ::GetStockObject(BLACK_PEN));
        const int mode = ::SetROP2(hDC, R2_NOTXORPEN);
        Draw(hDC, m_last);
        Draw(hDC, at);
        m_last = at;
        ::SetROP2(hDC, mode);
        ::SelectObject(hDC, hOldPen);
        ::ReleaseDC(m_Graph.m_hWnd, hDC);
    }

private:
    void Draw(HDC hDC, CPoint at) const
    {
        const CRect& plot = m_Graph.m_rcInner;
        const int half = m_Graph.m_nSnapRange / 2;
        ::MoveToEx(hDC, at.x, plot.top, nullptr);
        ::LineTo(hDC, at.x, plot.bottom);
        ::MoveToEx(hDC, plot.left, at.y, nullptr);
        ::LineTo(hDC, plot.right, at.y);
        ::Rectangle(hDC, at.x - half, at.y - half, at.x + half + 1, at.y + half + 1);
    }

    const CXGraph& m_Graph;
    CPoint m_last{0, 0};
};

void TimeCase(const char* pszCase, bool bOwned, bool bEven, int nRuns)
{
    std::vector<TDataPoint> points = Points(bEven);
    Scene scene;
    CXGraph& graph = *scene.m_graph;
    for (int i = 0; i < Curves; ++i)
        graph.SetData(points.data(), Count, i, 0, 0, bOwned);
    scene.Repaint();
    graph.Cursor();
    scene.Repaint();
    auto mouse = [&](CPoint at) { graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y)); };
    const double withText = TimeMoves(graph, nRuns, mouse);
    graph.m_nCursorFlags = XGC_HORIZ | XGC_VERT;
    graph.m_CursorLabel.m_bVisible = false;
    scene.Repaint();
    const double lines = TimeMoves(graph, nRuns, mouse);
    CPlainLines plain(graph);
    const double floor = TimeMoves(graph, nRuns, [&](CPoint at) { plain.Move(at); });
    const double search = TimeMoves(graph, nRuns, [&](CPoint at) {
        for (int i = 0; i < Curves; ++i) {
            graph.m_ptCurrent = at;
            graph.GetCursorAbsolute(i);
        }
    });
    const double hit = TimeMoves(graph, nRuns, [&](CPoint at) {
        graph.m_ptCurrent = at;
        graph.HitTest(false, true);
    });
    std::printf("%-34s %10.4f %10.4f %10.4f %10.4f %10.4f\n", pszCase, withText, lines, floor, search,
                hit);
    std::fflush(stdout);
    const std::string name = std::string("cursor beyond its text, ") + pszCase + ", ms";
    Goals::Expect(name, std::max(lines, search + hit), 0.5);
}

} // namespace

void BenchCursor(int nRuns)
{
    std::printf("%-34s %10s %10s %10s %10s %10s\n", "cursor, 10 x 1000000, ms a move", "with text",
                "lines", "fewest", "search", "hit test");
    TimeCase("owned, even", true, true, nRuns);
    TimeCase("owned, uneven", true, false, nRuns);
    TimeCase("caller's, even", false, true, nRuns);
    TimeCase("caller's, uneven", false, false, nRuns);
}

#include "PieBench.h"

#include "Goals.h"
#include "Stopwatch.h"

#include "framework/windowing/DeviceContexts.h"
#include "pie3d/PieChartWnd.h"

#include <cstdio>
#include <string>

namespace
{

constexpr TRect Window{0, 0, 800, 600};

// A visible host with a pie in it.
class CPieScene
{
public:
    CPieScene()
        : m_hHost(::CreateWindowExW(0, L"STATIC", L"Host", WS_POPUP | WS_VISIBLE, 0, 0, Window.right,
                                    Window.bottom, nullptr, nullptr, nullptr, nullptr))
    {
        m_pie.Create(L"Title", CRect(Window), CWnd::FromHandle(m_hHost), 1);
        m_pie.SetBackgrndColor(0xFFC0D0E0);
    }
    CPieScene(const CPieScene&) = delete;
    CPieScene& operator=(const CPieScene&) = delete;
    ~CPieScene()
    {
        m_pie.DestroyWindow();
        ::DestroyWindow(m_hHost);
    }

    void Fill(int nElements)
    {
        for (int i = 0; i < nElements; ++i) {
            CString name;
            name.Format(L"Element %d", i);
            m_pie.InsertItem(name, name, 1 + i % 7, 0xFF000000 | static_cast<unsigned>(i) * 7654321u);
        }
    }
    // Shows what is there once more.
    void Repaint()
    {
        m_pie.Invalidate();
        m_pie.UpdateWindow();
    }
    // Every slice gets another place, and the first another value.
    void Change()
    {
        SPieElement* const first = m_pie.m_mapElements.begin()->second.get();
        m_pie.UpdateItemValue(first, first->dValue == 1 ? 2 : 1);
        m_pie.UpdateWindow();
    }
    void Click()
    {
        m_pie.HitTest(CPoint(m_clicked = m_clicked == 400 ? 100 : 400, 320));
        m_pie.UpdateWindow();
    }
    // One gradient over the whole window, the way each paint goes, and bare slices on it.
    void Floor(int nSlices)
    {
        CClientDC dc(&m_pie);
        const GdiPlus::CBitmap picture = GdiPlus::NewBitmap({Window.right, Window.bottom});
        const GdiPlus::CLineBrush brush = GdiPlus::NewLineBrush(
            {0, 0}, {Window.right, Window.bottom}, m_pie.m_crBackgroundLight, m_pie.m_crBackgroundDark);
        const GdiPlus::CGraphics graphics = GdiPlus::CGraphics::Of(picture);
        graphics.FillRectangle(brush.Get(), GdiPlus::ToFloats(Window));
        for (int i = 0; i < nSlices; ++i) {
            const float sweep = 360.0f / static_cast<float>(nSlices);
            graphics.FillPie(brush.Get(), {60, 120, 400, 400}, static_cast<float>(i) * sweep, sweep);
        }
        GdiPlus::CGraphics::Of(dc.m_hDC).DrawWhole(picture, {0, 0});
    }

    HWND m_hHost;
    CPieChartWnd m_pie;

private:
    int m_clicked = 0;
};

void Print(const char* pszCase, int nElements, double time, double floor)
{
    std::printf("%-34s %9d %10.3f %8.2f\n", pszCase, nElements, time, time / floor);
    std::fflush(stdout);
}

void TimeStyles(int nRuns)
{
    constexpr int elements = 12;
    CPieScene scene;
    scene.Fill(elements);
    const double gradient = Stopwatch::Median(nRuns, [&] { scene.Floor(0); });
    const double floor = Stopwatch::Median(nRuns, [&] { scene.Floor(elements); });
    std::printf("%-34s %9s %10s %8s\n", "case", "elements", "ms", "floor");
    Print("floor: bare gradient", 0, gradient, floor);
    Print("floor: gradient and bare slices", elements, floor, floor);
    const char* const names[] = {"doughnut", "flat pie with cuts", "3D pie, tilted by 60"};
    scene.m_pie.SetInclineAngle(60);
    for (int style = 0; style < 3; ++style) {
        scene.m_pie.SetPieChartStyle(style);
        const double time = Stopwatch::Median(nRuns, [&] { scene.Change(); });
        Print(names[style], elements, time, floor);
        Goals::Expect(std::string(names[style]) + " to gradient and slices", time / floor, 1.3);
    }
    Print("3D pie, unchanged", elements, Stopwatch::Median(nRuns, [&] { scene.Repaint(); }), floor);
    Print("3D pie, click and its paint", elements, Stopwatch::Median(nRuns, [&] { scene.Click(); }),
          floor);
    Print("3D pie, click without its paint", elements,
          Stopwatch::Median(nRuns, [&] { scene.m_pie.HitTest(CPoint(400, 320)); }), floor);
}

void TimeTable(int nRuns)
{
    constexpr int elements = 10'000;
    CPieScene scene;
    const double floor = Stopwatch::Median(nRuns, [&] { scene.Floor(12); });
    const double start = Stopwatch::Milliseconds();
    scene.Fill(elements);
    Print("3D pie, insertion of a table", elements, Stopwatch::Milliseconds() - start, floor);
    const double first = Stopwatch::Milliseconds();
    scene.m_pie.UpdateWindow();
    Print("3D pie, first paint of a table", elements, Stopwatch::Milliseconds() - first, floor);
    const double changed = Stopwatch::Milliseconds();
    scene.Change();
    Print("3D pie, table, a value changed", elements, Stopwatch::Milliseconds() - changed, floor);
    Print("3D pie, table, unchanged", elements, Stopwatch::Median(nRuns, [&] { scene.Repaint(); }),
          floor);
    Print("3D pie, step of scrolling a table", elements,
          Stopwatch::Median(nRuns,
                            [&] {
                                scene.m_pie.SendMessage(
                                    WM_VSCROLL, SB_LINEDOWN,
                                    reinterpret_cast<LPARAM>(scene.m_pie.m_wndScrollBar.m_hWnd));
                                scene.m_pie.UpdateWindow();
                            }),
          floor);
}

} // namespace

void BenchPie(int nRuns)
{
    TimeStyles(nRuns);
    TimeTable(nRuns);
}

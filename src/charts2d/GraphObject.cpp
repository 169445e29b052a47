// Window, geometry, settings and data. Painting: GraphObjectPaint.cpp.

#include "charts2d/GraphObject.h"

#include "charts2d/ChartPainter.h"
#include "charts2d/GraphObjectCharts.h"

namespace
{

constexpr DWORD WindowStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_BORDER;
constexpr UINT_PTR TimerId = 50000;
constexpr UINT TimerPeriod = 50; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(CGraphObject, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_TIMER()
END_MESSAGE_MAP()

CGraphObject::CGraphObject()
    : m_strSubtitle(L"Add graph subtitle here"), m_strTitle(L"Add graph title here")
{
}

CGraphObject::~CGraphObject() = default;

BOOL CGraphObject::Create(LPCWSTR, LPCWSTR, DWORD, const RECT& rect, CWnd* pParentWnd, UINT nID, void*)
{
    const TRect place = WindowLayout::AtLeastSmallest(static_cast<TRect>(CRect(rect)));
    m_ptGraph = {place.left, place.top};
    m_szGraph = {place.Width(), place.Height()};
    m_crBackground = 0xFFFFFF;
    m_bRedraw = true;
    MakeTitleFonts();
    return CWnd::Create(nullptr, nullptr, WindowStyle, CRect(place), pParentWnd, nID);
}

void CGraphObject::MakeTitleFonts()
{
    const TSize title = WindowLayout::Title(m_szGraph).Font;
    const TSize subtitle = WindowLayout::Subtitle(m_szGraph).Font;
    m_pTitleFont = ChartPainter::MakeFont(title.cy, title.cx, FW_NORMAL, L"Arial");
    m_pSubtitleFont = ChartPainter::MakeFont(subtitle.cy, subtitle.cx, FW_BOLD, L"Arial");
}

template <class Chart> std::unique_ptr<Chart> CGraphObject::NewChart() const
{
    const WindowLayout::TArea area = WindowLayout::GraphArea(Kind(), m_szGraph);
    auto chart = std::make_unique<Chart>(area.Position, area.Size);
    chart->SetWindowSize(m_szGraph);
    return chart;
}

void CGraphObject::CreateGraph(int type)
{
    m_nGraphType = type;
    switch (type) {
    case WindowLayout::bar:
        m_pBarGraph = NewChart<C2DBarGraph>();
        break;
    case WindowLayout::flatPie:
        m_pPieGraph = NewChart<C2DPieGraph>();
        break;
    case WindowLayout::line:
        m_pLineGraph = NewChart<C2DLineGraph>();
        break;
    default:
        break;
    }
    MakeFrame();
}

bool CGraphObject::HasChart() const noexcept
{
    switch (m_nGraphType) {
    case WindowLayout::bar:
        return m_pBarGraph != nullptr;
    case WindowLayout::flatPie:
        return m_pPieGraph != nullptr;
    case WindowLayout::line:
        return m_pLineGraph != nullptr;
    default:
        return false;
    }
}

WindowLayout::EKind CGraphObject::Kind() const noexcept
{
    return static_cast<WindowLayout::EKind>(m_nGraphType);
}

void CGraphObject::Repaint(BOOL bErase)
{
    if (m_hWnd) // without a window the platform would repaint the whole screen
        InvalidateRect(nullptr, bErase);
}

void CGraphObject::StopTimer()
{
    if (m_hWnd)
        KillTimer(TimerId);
}

void CGraphObject::RestartTimer()
{
    if (m_hWnd && m_bAnimation == 1)
        SetTimer(TimerId, TimerPeriod);
}

void CGraphObject::MoveWindowToGraph()
{
    if (m_hWnd)
        ::SetWindowPos(m_hWnd, HWND_NOTOPMOST, m_ptGraph.x, m_ptGraph.y, m_szGraph.cx, m_szGraph.cy,
                       SWP_NOZORDER);
    m_bRedraw = true;
    RestartTimer();
}

void CGraphObject::SetGraphPosition(CPoint position)
{
    if (m_bAnimation == 1)
        StopTimer();
    m_ptGraph = position;
    MoveWindowToGraph();
    Repaint();
}

void CGraphObject::SetGraphSize(CSize size)
{
    if (m_bAnimation == 1)
        StopTimer();
    m_szGraph = WindowLayout::AtLeastSmallest(static_cast<TSize>(size));
    WithChart([&](auto& chart) {
        const WindowLayout::TArea area = WindowLayout::GraphArea(Kind(), m_szGraph);
        chart.Resize(area.Size);
        chart.SetPosition(area.Position);
        chart.SetWindowSize(m_szGraph);
    });
    MakeTitleFonts();
    MoveWindowToGraph();
    if (m_nGraphType != WindowLayout::none)
        MakeFrame();
    Repaint();
}

void CGraphObject::SetGraphAnimation(BOOL animation, int type)
{
    if (!HasChart())
        return;
    WithChart([&](auto& chart) {
        chart.SetAnimation(animation, type);
        chart.Animate();
    });
    m_bAnimation = animation;
    if (animation == 1)
        RestartTimer();
    else
        StopTimer();
}

// The flat pie keeps its legend's colours to itself, and has no labels.
COLORREF CGraphObject::SeriesChartColor(COLORREF C2DBarGraph::*ofBars,
                                        COLORREF C2DLineGraph::*ofLines) const noexcept
{
    if (m_nGraphType == WindowLayout::bar && m_pBarGraph)
        return (*m_pBarGraph).*ofBars;
    if (m_nGraphType == WindowLayout::line && m_pLineGraph)
        return (*m_pLineGraph).*ofLines;
    return 0;
}

COLORREF CGraphObject::GetGraphLegendTextColor() const noexcept
{
    return SeriesChartColor(&C2DBarGraph::m_crLegendText, &C2DLineGraph::m_crLegendText);
}

void CGraphObject::SetGraphLegendTextColor(COLORREF color)
{
    WithChart([&](auto& chart) { chart.m_crLegendText = color; });
    Repaint();
}

COLORREF CGraphObject::GetGraphLegendBackgroundColor() const noexcept
{
    return SeriesChartColor(&C2DBarGraph::m_crLegendBackground, &C2DLineGraph::m_crLegendBackground);
}

void CGraphObject::SetGraphLegendBackgroundColor(COLORREF color)
{
    WithChart([&](auto& chart) { chart.m_crLegendBackground = color; });
    Repaint();
}

COLORREF CGraphObject::GetGraphLabelsColor() const noexcept
{
    return SeriesChartColor(&C2DBarGraph::m_crLabels, &C2DLineGraph::m_crLabels);
}

void CGraphObject::SetGraphLabelsColor(COLORREF color)
{
    if (m_nGraphType == WindowLayout::bar && m_pBarGraph)
        m_pBarGraph->m_crLabels = color;
    else if (m_nGraphType == WindowLayout::line && m_pLineGraph)
        m_pLineGraph->m_crLabels = color;
    Repaint();
}

void CGraphObject::SetGradientFillType(int nType)
{
    m_nGradientMode = nType == verticalGradient ? GRADIENT_FILL_RECT_V : GRADIENT_FILL_RECT_H;
    FillGradient();
}

void CGraphObject::SetGraphGradientColors(COLORREF col1, COLORREF col2)
{
    m_crGradient1 = col1;
    m_crGradient2 = col2;
    FillGradient();
}

void CGraphObject::SetGraphTitle(const CString& text)
{
    m_strTitle = text;
    m_bRedraw = true;
    Repaint();
}

void CGraphObject::SetGraphSubtitle(const CString& text)
{
    m_strSubtitle = text;
    m_bRedraw = true;
    Repaint();
}

void CGraphObject::SetGraphBackgroundColor(COLORREF color)
{
    m_crBackground = color;
    WithChart([&](auto& chart) { chart.m_crBackground = color; });
    Repaint();
}

#include "graph/XGraph.h"

#include "framework/windowing/App.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"
#include "graph/CommandIds.h"
#include "graph/GraphRegister.h"
#include "graph/KeptFrame.h"

IMPLEMENT_SERIAL(CXGraph, CWnd, 1)

BEGIN_MESSAGE_MAP(CXGraph, CWnd)
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_RBUTTONUP()
ON_WM_SETCURSOR()
ON_WM_MOUSEWHEEL()
ON_WM_KEYUP()
ON_COMMAND(CommandId::NoOp, NoOp)
ON_COMMAND(CommandId::InsertLabel, OnInsertLabel)
ON_COMMAND(CommandId::Zoom, Zoom)
ON_COMMAND(CommandId::ResetZoom, ResetZoom)
ON_COMMAND(CommandId::Pan, Pan)
ON_COMMAND(CommandId::Properties, OnProperties)
ON_COMMAND(CommandId::Print, Print)
ON_COMMAND(CommandId::LinearTrend, OnLinearTrend)
ON_COMMAND(CommandId::CubicTrend, OnCubicTrend)
ON_COMMAND(CommandId::Cursor, Cursor)
ON_COMMAND(CommandId::PassOn, OnPassOn)
ON_COMMAND(CommandId::ZoomBack, ZoomBack)
ON_COMMAND(CommandId::Edit, Edit)
ON_COMMAND(CommandId::Measure, Measure)
END_MESSAGE_MAP()

namespace
{

constexpr wchar_t ClassName[] = L"XGraph";

// The class serves hosts that place the control by its class name; the graph's own window
// is made without it.
void RegisterGraphClass()
{
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    WNDCLASSW wndclass = {};
    if (::GetClassInfoW(hInstance, ClassName, &wndclass))
        return;
    wndclass = {};
    wndclass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    wndclass.lpfnWndProc = ::DefWindowProcW;
    wndclass.hInstance = hInstance;
    wndclass.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // IDC_ARROW
    wndclass.hbrBackground = reinterpret_cast<HBRUSH>(16);
    wndclass.lpszClassName = ClassName;
    if (!AfxRegisterClass(&wndclass))
        AfxThrowResourceException();
}

} // namespace

CXGraph::CXGraph()
{
    m_CursorLabel.m_rcObject = CRect(100, 100, 200, 175);
    m_CursorLabel.m_bVisible = false;
    m_CursorLabel.m_bCanEdit = false;
    m_CursorLabel.m_bBorder = true;
    m_CursorLabel.m_pGraph = this;
    m_Objects.AddTail(&m_CursorLabel);
    RegisterGraphClass();
    GraphRegister::Add(this);
}

CXGraph::~CXGraph()
{
    GraphRegister::Remove(this);
    if (m_hWnd)
        DestroyWindow();
    ResetAll();
}

LRESULT CXGraph::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool bHidden = message == WM_SHOWWINDOW && wParam == FALSE;
    if (m_pKeptFrame && (bHidden || m_pKeptFrame->buffer.IsIdle()))
        m_pKeptFrame->buffer.Free();
    if (message == WM_ERASEBKGND)
        return OnEraseBkgnd(nullptr); // by the map, a canvas would be made that nobody draws on
    return CWnd::WindowProc(message, wParam, lParam);
}

void CXGraph::PostNcDestroy()
{
    m_pKeptFrame.reset(); // the graph itself may live to the end of the module
    CWnd::PostNcDestroy();
}

TKeptFrame& CXGraph::KeptFrame()
{
    if (!m_pKeptFrame)
        m_pKeptFrame = std::make_unique<TKeptFrame>();
    return *m_pKeptFrame;
}

TFrameRoom* CXGraph::FrameRoom() noexcept
{
    return m_pKeptFrame ? &m_pKeptFrame->room : nullptr;
}

bool CXGraph::IsKnownScreen() const noexcept
{
    return m_pKeptFrame && m_pKeptFrame->bScreen;
}

CXGraphAxis* CXGraph::GetXAxis(int nAxis)
{
    return &m_XAxes[nAxis];
}

CXGraphAxis* CXGraph::GetYAxis(int nAxis)
{
    return &m_YAxes[nAxis];
}

CXGraphDataSerie* CXGraph::GetCurve(int nCurve)
{
    return &m_Curves[nCurve];
}

void CXGraph::ResetAll()
{
    m_XAxes.clear();
    m_YAxes.clear();
    m_Curves.clear();
    m_ObjectTracker.Forget();
    while (m_Objects.GetCount() > 1)
        delete m_Objects.RemoveTail();
}

void CXGraph::SetGraphMargins(int nLeft, int nTop, int nRight, int nBottom)
{
    m_nLeftMargin = nLeft;
    m_nTopMargin = nTop;
    m_nRightMargin = nRight;
    m_nBottomMargin = nBottom;
}

int CXGraph::GetAxisIndex(const CXGraphAxis* pAxis) const
{
    for (const auto* pAxes : {&m_XAxes, &m_YAxes}) {
        for (std::size_t i = 0; i < pAxes->size(); ++i) {
            if (&(*pAxes)[i] == pAxis)
                return static_cast<int>(i);
        }
    }
    return -1;
}

int CXGraph::GetCurveIndex(const CXGraphDataSerie* pCurve) const
{
    for (std::size_t i = 0; i < m_Curves.size(); ++i) {
        if (&m_Curves[i] == pCurve)
            return static_cast<int>(i);
    }
    return -1;
}

void CXGraph::FreeAll()
{
    GraphRegister::FreeAll();
}

#include "pie3d/PieChartWnd.h"

#include "framework/windowing/DeviceContexts.h"

BEGIN_MESSAGE_MAP(CPieChartWnd, CWnd)
ON_WM_PAINT()
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_VSCROLL()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CPieChartWnd::CPieChartWnd() : m_crParentWindow(::GetSysColor(COLOR_3DFACE)) {}

CPieChartWnd::~CPieChartWnd()
{
    // Everything of GDI+ goes before GDI+ does; the window itself goes with the base class.
    m_mapElements.clear();
    m_KeptBackground.Reset();
    m_KeptPicture.Reset();
    GdiPlus::Stop(m_gdiplusToken);
}

BOOL CPieChartWnd::Create(LPCWSTR lpszCaption, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    m_strTitle = lpszCaption;
    return CWnd::Create(nullptr, nullptr, WS_VISIBLE, rect, pParentWnd, nID);
}

int CPieChartWnd::OnCreate(CREATESTRUCTW* lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    ModifyStyle(0, WS_CLIPCHILDREN); // the scroll bar is not painted over
    if (m_gdiplusToken == 0)
        m_gdiplusToken = GdiPlus::Start();
    const CRect client = ClientRect();
    m_wndScrollBar.Create(
        WS_CHILD | SBS_VERT,
        CRect(client.right - 40, client.top + 10, client.right - 20, client.bottom - 10), this, 1);
    return 0;
}

void CPieChartWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Settle();

    const TRect client = ClientRect();
    m_nPieLimit = PieLabels::PieLimit(client.Width());
    m_nScrollBarInset = client.Width() / 20;
    const TRect pie = GetPieRect();
    const PieLabels::TSizes sizes = PieLabels::SizesFor(pie);
    m_nRowHeight = sizes.nRowHeight;
    m_nMarkWidth = sizes.nMarkWidth;
    m_nRowGap = sizes.nRowGap;
    m_wndScrollBar.MoveWindow(client.right - m_nScrollBarInset, pie.top, 20, pie.Height(), TRUE);
    RecalcLabelExtent();
    UpdateScrollBar();
    SyncFirstLabel(m_wndScrollBar.GetScrollPos(), FALSE);
}

void CPieChartWnd::OnPaint()
{
    Settle();
    CPaintDC dc(this);
    switch (m_nChartStyle) {
    case 0:
        DrawDoughnut(dc);
        break;
    case 1:
        DrawFlat(dc);
        break;
    case 2:
        Draw3D(dc);
        break;
    default:
        break;
    }
}

void CPieChartWnd::OnLButtonDown(UINT nFlags, CPoint point)
{
    HitTest(point);
    CWnd::OnLButtonDown(nFlags, point);
}

void CPieChartWnd::Repaint() noexcept
{
    if (m_hWnd) { // a null handle would mean every window of the screen
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
    }
}

TRect CPieChartWnd::ClientRect() const noexcept
{
    CRect client;
    GetClientRect(&client);
    return client;
}

TRect CPieChartWnd::GetPieRect() const noexcept
{
    return PieGeometry::PieSquare(ClientRect(), m_nPieLimit);
}

PieGeometry::TFaces CPieChartWnd::Faces() const noexcept
{
    return PieGeometry::FaceRects(GetPieRect(), m_fInclineAngle, m_fDepthRatio);
}

void CPieChartWnd::GetFaceRects(TRect& rcUpper, TRect& rcLower) const noexcept
{
    const PieGeometry::TFaces faces = Faces();
    rcUpper = faces.rcUpper;
    rcLower = faces.rcLower;
}

float CPieChartWnd::AngleOfPoint(const PieGeometry::TPointF& point, const TRect& rc) noexcept
{
    return PieGeometry::AngleOfPoint(point, rc);
}

// What the mouse and the keys do, by the operation.

#include "draw/WindowCanvas.h"
#include "framework/windowing/DeviceContexts.h"
#include "graph/XGraph.h"

namespace
{
// Posted to nobody, a message would come up in the thread's own queue.
void PostToParent(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (const HWND hParent = ::GetParent(hWnd))
        ::PostMessageW(hParent, nMessage, wParam, lParam);
}

// A message carries 32 bits of an address or a handle, with their sign.
LPARAM LowHalf(const void* pointer)
{
    return static_cast<LONG>(reinterpret_cast<LONG_PTR>(pointer));
}
} // namespace

void CXGraph::Notify(UINT nMessage, WPARAM wParam) const
{
    PostToParent(m_hWnd, nMessage, wParam, LowHalf(this));
}

void CXGraph::NotifyOfWindow(UINT nMessage) const
{
    PostToParent(m_hWnd, nMessage, 0, LowHalf(m_hWnd));
}

void CXGraph::OnLButtonDown(UINT, CPoint point)
{
    SetFocus();
    SetCapture();
    m_ptLButtonDown = point;
    if (m_opOperation == opMeasure) {
        m_MeasureTool.FindNearestPoint(point);
        m_ptLButtonDown = point;
    }
    m_bLButtonDown = true;
    m_ObjectTracker.Press(point);
    Default();
}

void CXGraph::OnLButtonUp(UINT, CPoint point)
{
    if (!m_bLButtonDown)
        return;
    ::ReleaseCapture();
    m_ptLButtonUp = point;
    m_ptPan = CPoint(0, 0);
    m_bLButtonDown = false;
    switch (m_opOperation) {
    case opMeasure:
        m_MeasureTool.FindNearestPoint(point);
        m_MeasureTool.Keep();
        break;
    case opCursor:
        HitTest(false, false);
        m_CursorTool.Pin();
        break;
    case opZoom:
        m_ZoomBand.ApplyZoomRect();
        break;
    case opNone:
    case opEditCurve:
        HitTest(false, false);
        break;
    default:
        break;
    }
    Invalidate();
    Default();
}

void CXGraph::OnLButtonDblClk(UINT, CPoint)
{
    if (m_opOperation == opNone) {
        m_ObjectTracker.DropFrame();
        HitTest(true, false);
    }
    Default();
}

void CXGraph::OnRButtonDown(UINT, CPoint)
{
    m_bRButtonDown = true;
    Default();
}

void CXGraph::OnRButtonUp(UINT, CPoint point)
{
    HitTest(false, false);
    m_bRButtonDown = false;
    if (m_opOperation == opCursor) {
        m_CursorTool.Forget();
        Invalidate();
    }
    if (!m_ObjectTracker.ShowProperties(point))
        NotifyOfWindow(XG_RBUTTONUP);
    Default();
}

void CXGraph::OnMouseMove(UINT nFlags, CPoint point)
{
    m_bLButtonDown = (nFlags & MK_LBUTTON) != 0;
    if (m_opOperation == opMeasure && m_bLButtonDown)
        m_MeasureTool.FindNearestPoint(point);
    m_ptCurrent = point;
    if (m_opOperation == opCursor)
        m_CursorTool.Move();
    m_bOverObject = HitTest(false, m_opOperation != opEditCurve);
    DragTo(point);
    Default();
}

void CXGraph::DragTo(CPoint point)
{
    const bool pans =
        (m_bLButtonDown && m_opOperation == opPan) || (m_bRButtonDown && m_opOperation == opCursor);
    if (pans && m_rcInner.PtInRect(point)) {
        if (m_ptPan == CPoint(0, 0))
            m_ptPan = point;
        else
            PanBy(point);
    }
    if (!m_bLButtonDown || (m_opOperation != opZoom && m_opOperation != opMeasure) || !m_hWnd)
        return;
    if (m_bDoubleBuffer) {
        if (m_opOperation == opZoom)
            m_ZoomBand.Follow();
        Invalidate();
        return;
    }
    CWindowCanvas canvas(m_hWnd, IsKnownScreen());
    if (m_opOperation == opZoom)
        m_ZoomBand.DrawZoomRect(canvas.Get());
    else
        m_MeasureTool.DrawLive(canvas.Get());
}

BOOL CXGraph::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT)
{
    if (m_ObjectTracker.SetPointer(pWnd, nHitTest))
        return TRUE;
    LPCWSTR shape = nullptr;
    if (m_opOperation == opPan)
        shape = IDC_SIZEALL;
    else if (m_opOperation == opZoom || m_opOperation == opCursor)
        shape = IDC_CROSS;
    else if (m_bOverObject && m_opOperation == opNone)
        shape = IDC_HAND;
    else if (m_opOperation == opEditCurve && m_nSelectedCurve != -1)
        shape = IDC_SIZENS;

    const HCURSOR cursor = shape ? ::LoadCursorW(nullptr, shape) : nullptr;
    if (!cursor)
        return static_cast<BOOL>(Default());
    ::SetCursor(cursor);
    return TRUE;
}

void CXGraph::MoveCursorBy(int x, int y)
{
    m_ptCurrent = m_ptCurrent + CSize(x, y);
}

void CXGraph::OnKeyUp(UINT nChar, UINT, UINT)
{
    const bool cursor = m_opOperation == opCursor;
    switch (nChar) {
    case VK_HOME:
        ResetRanges(m_XAxes);
        ResetRanges(m_YAxes);
        break;
    case VK_ADD:
        ShiftRanges(m_XAxes, 1, -1);
        ShiftRanges(m_YAxes, 1, -1);
        break;
    case VK_SUBTRACT:
        ShiftRanges(m_XAxes, -1, 1);
        ShiftRanges(m_YAxes, -1, 1);
        break;
    case VK_LEFT:
        cursor ? MoveCursorBy(-1, 0) : ShiftRanges(m_XAxes, 1, 1);
        break;
    case VK_RIGHT:
        cursor ? MoveCursorBy(1, 0) : ShiftRanges(m_XAxes, -1, -1);
        break;
    case VK_UP:
        cursor ? MoveCursorBy(0, -1) : ShiftRanges(m_YAxes, -1, -1);
        break;
    case VK_DOWN:
        cursor ? MoveCursorBy(0, 1) : ShiftRanges(m_YAxes, 1, 1);
        break;
    default:
        Default();
        return;
    }
    Invalidate();
    Default();
}

BOOL CXGraph::PreTranslateMessage(MSG* pMsg)
{
    const bool key = pMsg->message == WM_KEYDOWN || pMsg->message == WM_KEYUP;
    if (key && pMsg->wParam == VK_DELETE)
        m_ObjectTracker.DeleteCurrent();
    return CWnd::PreTranslateMessage(pMsg);
}

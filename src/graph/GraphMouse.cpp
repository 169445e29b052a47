// What the mouse does, by the operation.

#include "draw/WindowCanvas.h"
#include "framework/windowing/DeviceContexts.h"
#include "graph/FrameLayout.h"
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
        FindNearestPoint(point);
        m_ptLButtonDown = point;
    }
    m_bLButtonDown = true;
    m_pCurrentObject = nullptr;
    PressObjects(point);
    Default();
}

void CXGraph::PressObjects(CPoint point)
{
    for (const TObjectRef& entry : ListObjects()) {
        // While an earlier one was tracked, messages ran and may have removed this one.
        if (!Owns(entry))
            continue;
        CXGraphObject* object = entry.pObject;
        if (object->m_rcObject.PtInRect(point))
            m_pCurrentObject = object;
        if (object->m_bSizing && object->m_Tracker.HitTest(point) != CRectTracker::hitNothing)
            TrackObject(object, point);
    }
}

void CXGraph::TrackObject(CXGraphObject* object, CPoint point)
{
    const TObjectRef self(object);
    ReleaseCapture();
    // Messages run while it drags, and may remove the object: a copy of its tracker drags.
    CRectTracker tracker = object->m_Tracker;
    const bool moved = tracker.Track(this, point, FALSE, nullptr) != FALSE;
    if (!moved || !Owns(self))
        return;
    object->m_Tracker = tracker;
    if (object->m_bCanMove && object->m_bCanResize) {
        object->m_rcObject = tracker.m_rect;
        Invalidate(FALSE);
    }
}

std::vector<TObjectRef> CXGraph::ListObjects() const
{
    std::vector<TObjectRef> objects;
    for (POSITION place = m_Objects.GetHeadPosition(); place != nullptr;)
        objects.emplace_back(static_cast<CXGraphObject*>(m_Objects.GetNext(place)));
    return objects;
}

bool CXGraph::Owns(const TObjectRef& entry) const
{
    return m_Objects.Find(entry.pObject) != nullptr && entry.pObject->m_nIdentity == entry.nIdentity;
}

void CXGraph::OnLButtonUp(UINT, CPoint point)
{
    if (!m_bLButtonDown)
        return;
    ReleaseCapture();
    m_ptLButtonUp = point;
    m_ptPan = CPoint(0, 0);
    m_bLButtonDown = false;
    switch (m_opOperation) {
    case opMeasure:
        FindNearestPoint(point);
        m_Measures.push_back(m_LiveMeasure);
        break;
    case opCursor:
        HitTest(false, false);
        PinNotation();
        break;
    case opZoom:
        ApplyZoomRect();
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
        m_pTracker = nullptr;
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
        m_ptLastCursor = CPoint(-1, -1);
        Invalidate();
    }
    if (m_pCurrentObject != nullptr && m_pCurrentObject->m_rcObject.PtInRect(point))
        m_pCurrentObject->InvokeProperties();
    else
        NotifyOfWindow(XG_RBUTTONUP);
    Default();
}

void CXGraph::OnMouseMove(UINT nFlags, CPoint point)
{
    m_bLButtonDown = (nFlags & MK_LBUTTON) != 0;
    if (m_opOperation == opMeasure && m_bLButtonDown)
        FindNearestPoint(point);
    m_ptCurrent = point;
    if (m_opOperation == opCursor)
        MoveCursor();
    m_bOverObject = HitTest(false, m_opOperation != opEditCurve);
    DragTo(point);
    Default();
}

void CXGraph::MoveCursor()
{
    m_bTmpDC = true;
    {
        CWindowCanvas canvas(m_hWnd);
        DrawCursor(canvas.Get());
    }
    m_bTmpDC = false;
    NotifyOfWindow(XG_CURSORMOVED);
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
    if (!m_bLButtonDown || (m_opOperation != opZoom && m_opOperation != opMeasure) || m_hWnd == nullptr)
        return;
    if (m_bDoubleBuffer) {
        // The frame may come after the release, which needs the band.
        if (m_opOperation == opZoom)
            m_rcZoom = FrameLayout::Band(m_ptLButtonDown, m_ptCurrent, m_rcInner);
        Invalidate();
        return;
    }
    CWindowCanvas canvas(m_hWnd);
    if (m_opOperation == opZoom) {
        DrawZoomRect(canvas.Get());
    } else {
        CRect live(0, 0, 0, 0);
        DrawMeasure(canvas.Get(), live);
    }
}

BOOL CXGraph::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT)
{
    if (m_pTracker != nullptr && m_pTracker->SetCursor(pWnd, nHitTest))
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

    const HCURSOR cursor = shape != nullptr ? ::LoadCursorW(nullptr, shape) : nullptr;
    if (cursor == nullptr)
        return static_cast<BOOL>(Default());
    ::SetCursor(cursor);
    return TRUE;
}

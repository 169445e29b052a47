// What the mouse does, by the operation.

#include "draw/WindowCanvas.h"
#include "framework/windowing/DeviceContexts.h"
#include "graph/XGraph.h"

#include <vector>

void CXGraph::Notify(UINT nMessage, WPARAM wParam) const
{
    // A message carries 32 bits of the address, with their sign.
    const auto low = static_cast<LONG>(reinterpret_cast<LONG_PTR>(this));
    ::PostMessageW(::GetParent(m_hWnd), nMessage, wParam, low);
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
    std::vector<CObject*> objects;
    for (POSITION place = m_Objects.GetHeadPosition(); place != nullptr;)
        objects.push_back(m_Objects.GetNext(place));

    for (CObject* candidate : objects) {
        // While an earlier one was tracked, messages ran and may have removed this one.
        if (m_Objects.Find(candidate) == nullptr)
            continue;
        auto* object = static_cast<CXGraphObject*>(candidate);
        if (object->m_rcObject.PtInRect(point))
            m_pCurrentObject = object;
        if (object->m_bSizing && object->m_Tracker.HitTest(point) != CRectTracker::hitNothing)
            TrackObject(object, point);
    }
}

void CXGraph::TrackObject(CXGraphObject* object, CPoint point)
{
    ReleaseCapture();
    const bool moved = object->m_Tracker.Track(this, point, FALSE, nullptr) != FALSE;
    if (!moved || m_Objects.Find(object) == nullptr)
        return;
    if (object->m_bCanMove && object->m_bCanResize) {
        object->m_rcObject = object->m_Tracker.m_rect;
        Invalidate(FALSE);
    }
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
        ::PostMessageW(::GetParent(m_hWnd), XG_RBUTTONUP, 0,
                       static_cast<LONG>(reinterpret_cast<LONG_PTR>(m_hWnd)));
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
        // The frame clips its cursor to the plot; drawn without that here, the cursor's box would
        // leave at the plot's edge what the next frame never drew.
        canvas.Get()->IntersectClipRect(&m_rcInner);
        DrawCursor(canvas.Get());
    }
    m_bTmpDC = false;
    ::PostMessageW(::GetParent(m_hWnd), XG_CURSORMOVED, 0,
                   static_cast<LONG>(reinterpret_cast<LONG_PTR>(m_hWnd)));
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
    if (!m_bLButtonDown || (m_opOperation != opZoom && m_opOperation != opMeasure))
        return;
    if (m_bDoubleBuffer) {
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

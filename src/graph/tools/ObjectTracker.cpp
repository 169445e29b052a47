#include "graph/tools/ObjectTracker.h"

#include "framework/windowing/RectTracker.h"
#include "graph/XGraph.h"

void CObjectTracker::Press(CPoint point)
{
    m_pCurrentObject = nullptr;
    for (const TObjectRef& entry : m_Graph.ListObjects()) {
        // While an earlier one was tracked, messages ran and may have removed this one.
        if (!m_Graph.Owns(entry))
            continue;
        CXGraphObject* object = entry.pObject;
        if (object->m_rcObject.PtInRect(point))
            m_pCurrentObject = object;
        if (object->m_bSizing && object->m_Tracker.HitTest(point) != CRectTracker::hitNothing)
            Track(object, point);
    }
}

void CObjectTracker::Track(CXGraphObject* pObject, CPoint point)
{
    const TObjectRef self(pObject);
    ::ReleaseCapture();
    // Messages run while it drags, and may remove the object: a copy of its tracker drags.
    CRectTracker tracker = pObject->m_Tracker;
    const bool moved = tracker.Track(&m_Graph, point, FALSE, nullptr) != FALSE;
    if (!moved || !m_Graph.Owns(self))
        return;
    pObject->m_Tracker = tracker;
    if (pObject->m_bCanMove && pObject->m_bCanResize) {
        pObject->m_rcObject = tracker.m_rect;
        m_Graph.Invalidate(FALSE);
    }
}

bool CObjectTracker::Click(CPoint point, bool bDblClick)
{
    bool taken = false;
    for (const TObjectRef& entry : m_Graph.ListObjects()) {
        // An editor that opens or closes notifies the host, which may have removed this one.
        if (!m_Graph.Owns(entry))
            continue;
        CXGraphObject* object = entry.pObject;
        object->m_bSelected = object->m_bVisible && object->m_rcObject.PtInRect(point);
        if (object->m_bSelected) {
            if (bDblClick) {
                taken = true;
                object->BeginEdit();
                if (!m_Graph.Owns(entry))
                    continue;
            }
            if (!object->m_bEditing && !m_pTracker) {
                taken = true;
                object->BeginSize();
                m_pTracker = &object->m_Tracker;
            }
            continue;
        }
        if (object->m_bEditing)
            object->EndEdit();
        if (m_Graph.Owns(entry) && object->m_bSizing) {
            m_pTracker = nullptr;
            object->EndSize();
        }
    }
    return taken;
}

void CObjectTracker::Forget()
{
    m_pTracker = nullptr;
    m_pCurrentObject = nullptr;
}

void CObjectTracker::DropFrame()
{
    m_pTracker = nullptr;
}

void CObjectTracker::DeleteCurrent()
{
    CXGraphObject* object = m_pCurrentObject;
    const POSITION place = m_Graph.m_Objects.Find(object);
    if (!place || !object->m_bSizing || object == &m_Graph.m_CursorLabel)
        return;
    m_Graph.m_Objects.RemoveAt(place);
    Forget();
    delete object;
    m_Graph.Invalidate();
}

bool CObjectTracker::ShowProperties(CPoint point)
{
    if (!m_pCurrentObject || !m_pCurrentObject->m_rcObject.PtInRect(point))
        return false;
    m_pCurrentObject->InvokeProperties();
    return true;
}

bool CObjectTracker::SetPointer(CWnd* pWnd, UINT nHitTest)
{
    return m_pTracker && m_pTracker->SetCursor(pWnd, nHitTest);
}

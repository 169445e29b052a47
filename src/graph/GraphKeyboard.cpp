// What the keys do.

#include "graph/XGraph.h"

namespace
{
constexpr double KeySteps = 10.0; // a key moves by this part of the last visible span

// Moves the visible bounds by multiples of the key step; the step of the ticks is computed anew.
void Shift(CCheckedVector<CXGraphAxis>& axes, double lowSteps, double highSteps)
{
    for (CXGraphAxis& axis : axes) {
        const double step = axis.m_fRange / KeySteps;
        axis.SetCurrentRange(axis.m_fCurMin + lowSteps * step, axis.m_fCurMax + highSteps * step, 0.0);
    }
}

void Reset(CCheckedVector<CXGraphAxis>& axes)
{
    for (CXGraphAxis& axis : axes)
        axis.ResetRange();
}
} // namespace

void CXGraph::MoveCursorBy(int x, int y)
{
    m_ptCurrent = m_ptCurrent + CSize(x, y);
}

void CXGraph::OnKeyUp(UINT nChar, UINT, UINT)
{
    const bool cursor = m_opOperation == opCursor;
    switch (nChar) {
    case VK_HOME:
        Reset(m_XAxes);
        Reset(m_YAxes);
        break;
    case VK_ADD:
        Shift(m_XAxes, 1, -1);
        Shift(m_YAxes, 1, -1);
        break;
    case VK_SUBTRACT:
        Shift(m_XAxes, -1, 1);
        Shift(m_YAxes, -1, 1);
        break;
    case VK_LEFT:
        cursor ? MoveCursorBy(-1, 0) : Shift(m_XAxes, 1, 1);
        break;
    case VK_RIGHT:
        cursor ? MoveCursorBy(1, 0) : Shift(m_XAxes, -1, -1);
        break;
    case VK_UP:
        cursor ? MoveCursorBy(0, -1) : Shift(m_YAxes, -1, -1);
        break;
    case VK_DOWN:
        cursor ? MoveCursorBy(0, 1) : Shift(m_YAxes, 1, 1);
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
        DeleteCurrentObject();
    return CWnd::PreTranslateMessage(pMsg);
}

void CXGraph::DeleteCurrentObject()
{
    CXGraphObject* object = m_pCurrentObject;
    const POSITION place = m_Objects.Find(object);
    if (place == nullptr || !object->m_bSizing || object == &m_CursorLabel)
        return;
    m_Objects.RemoveAt(place);
    m_pCurrentObject = nullptr;
    m_pTracker = nullptr;
    delete object;
    Invalidate();
}

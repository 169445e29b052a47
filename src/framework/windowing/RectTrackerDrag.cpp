// The drag of a tracker: a message loop that lasts while the button is down.

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/RectTracker.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

#include <utility>

namespace
{
// Fetches without the windows' PreTranslateMessage, as the drag's messages are its own: a key
// that one of them takes could destroy the object under the tracker.
bool Fetch(MSG& message)
{
    bool& pumping = AfxGetThreadState().bPumping;
    const bool before = std::exchange(pumping, true);
    const bool fetched = ::GetMessage(&message, nullptr, 0, 0) > 0;
    pumping = before;
    return fetched;
}

// Releases the capture on every way out, if it is still ours.
class CCapture
{
public:
    explicit CCapture(HWND hWnd) : m_hWnd(hWnd) { ::SetCapture(m_hWnd); }
    ~CCapture()
    {
        if (IsHeld())
            ::ReleaseCapture();
    }
    CCapture(const CCapture&) = delete;
    CCapture& operator=(const CCapture&) = delete;
    bool IsHeld() const { return ::GetCapture() == m_hWnd; }

private:
    HWND m_hWnd;
};

// A context that draws over child windows, clipped to the window that it belongs to.
class CDragDC : public CDC
{
public:
    explicit CDragDC(HWND hWnd) : m_hWnd(hWnd)
    {
        Attach(::GetDCEx(hWnd, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_LOCKWINDOWUPDATE));
    }
    ~CDragDC() override
    {
        if (m_hDC)
            ::ReleaseDC(m_hWnd, Detach());
    }

private:
    HWND m_hWnd;
};
} // namespace

struct CRectTracker::TDrag {
    int handle;
    CWnd* window;
    CWnd* clipTo;
    CDC* dc;
    CPoint grip;   // the pointer, less the rectangle's place at the start
    CRect start;   // the rectangle before the drag
    CRect outline; // what is drawn
    bool outlined = false;
    bool cancelled = false;
};

BOOL CRectTracker::Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert, CWnd* pWndClipTo)
{
    const int handle = HitTest(point);
    if (handle < 0)
        return FALSE;
    m_bAllowInvert = bAllowInvert;
    return TrackHandle(handle, pWnd, point, pWndClipTo);
}

void CRectTracker::ShowOutline(TDrag& drag)
{
    m_bErase = FALSE;
    drag.outline = m_rect;
    drag.outlined = true;
    DrawTrackerRect(&drag.outline, drag.clipTo, drag.dc, drag.window);
}

void CRectTracker::HideOutline(TDrag& drag)
{
    if (!drag.outlined)
        return;
    m_bErase = TRUE;
    drag.outlined = false;
    DrawTrackerRect(&drag.outline, drag.clipTo, drag.dc, drag.window);
}

// True: the drag is over.
bool CRectTracker::HandleDragMessage(TDrag& drag, const MSG& message)
{
    switch (message.message) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP: {
        const bool last = message.message == WM_LBUTTONUP;
        const CRect before = m_rect;
        m_rect = drag.start;
        MoveHandle(drag.handle, CPoint(message.lParam) - CSize(drag.grip));
        AdjustRect(drag.handle, &m_rect);
        const bool changed = !(m_rect == before);
        m_bFinalErase = last;
        if (changed || last)
            HideOutline(drag);
        if (changed) {
            OnChangedRect(before);
            if (!last)
                ShowOutline(drag);
        }
        return last;
    }

    case WM_KEYDOWN:
        // Other keys wait for no one: what they would do to the object must not happen now.
        if (message.wParam != VK_ESCAPE)
            return false;
        [[fallthrough]];
    case WM_RBUTTONDOWN:
        drag.cancelled = true;
        return true;

    case WM_PAINT: {
        // A picture painted over half an outline could not be inverted back.
        const bool shown = drag.outlined;
        HideOutline(drag);
        ::DispatchMessage(&message);
        if (shown)
            ShowOutline(drag);
        return false;
    }

    default:
        ::DispatchMessage(&message);
        return false;
    }
}

BOOL CRectTracker::TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo)
{
    if (::GetCapture())
        return FALSE; // somebody else has the mouse

    // All that is due must be on screen before the outline inverts it.
    pWnd->UpdateWindow();
    if (pWndClipTo)
        pWndClipTo->UpdateWindow();

    const CCapture capture(*pWnd);
    CDragDC dc(pWndClipTo ? *pWndClipTo : *pWnd);
    TDrag drag{nHandle, pWnd, pWndClipTo, &dc, point, m_rect, m_rect};
    MSG message;
    for (bool over = false; !over;) {
        if (!Fetch(message)) {
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
            drag.cancelled = true;
            break;
        }
        if (!capture.IsHeld()) {
            ::DispatchMessage(&message);
            drag.cancelled = true;
            break;
        }
        over = HandleDragMessage(drag, message);
        // What ran just now may have destroyed the window; no further message need ever come.
        if (!over && !capture.IsHeld())
            over = drag.cancelled = true;
    }

    m_bFinalErase = TRUE;
    HideOutline(drag);
    m_bErase = m_bFinalErase = FALSE;
    if (drag.cancelled)
        m_rect = drag.start;
    return !(m_rect == drag.start);
}

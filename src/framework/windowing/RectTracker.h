#pragma once
// A rectangle with a frame and eight handles that the user drags with the mouse. It draws
// itself, finds which part is under a point, shows the fitting pointer, and runs the drag
// in a message loop of its own until the button comes up, Escape or the right button
// cancels, or the capture is lost. All coordinates are the window's client coordinates.

#include "framework/windowing/Geometry.h"

class CDC;
class CWnd;

class CRectTracker
{
public:
    enum StyleFlags {
        solidLine = 1,
        dottedLine = 2,
        hatchedBorder = 4,
        resizeInside = 8,
        resizeOutside = 16,
        hatchInside = 32
    };

    enum TrackerHit {
        hitNothing = -1,
        hitTopLeft = 0,
        hitTopRight = 1,
        hitBottomRight = 2,
        hitBottomLeft = 3,
        hitTop = 4,
        hitRight = 5,
        hitBottom = 6,
        hitLeft = 7,
        hitMiddle = 8
    };

    CRectTracker();
    CRectTracker(LPCRECT lpSrcRect, UINT nStyle);
    virtual ~CRectTracker() = default;

    UINT m_nStyle = 0;
    CRect m_rect;
    // Smallest width and height that a drag leaves; twice the handle's size by default.
    CSize m_sizeMin;
    int m_nHandleSize;

    void Draw(CDC* pDC) const;
    // m_rect grown by the border and by handles that lie outside.
    void GetTrueRect(LPRECT lpTrueRect) const;
    // TRUE if the point is over the tracker and nHitTest says client area: the pointer is set.
    BOOL SetCursor(CWnd* pWnd, UINT nHitTest) const;
    // Drags from the point, in the handle that it hits. TRUE if the rectangle changed; FALSE
    // if the point hits nothing, or the drag was cancelled, or ended where it began, and
    // m_rect is then as before. bAllowInvert lets a handle be dragged past the opposite one.
    BOOL Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert = FALSE, CWnd* pWndClipTo = nullptr);
    [[nodiscard]] int HitTest(CPoint point) const;
    // The handle as it lies on screen, for a rectangle dragged inside out.
    [[nodiscard]] int NormalizeHit(int nHandle) const;

    // For derived classes: the drag's outline, the rectangle's limits, its changes, and
    // which handles exist (bit 1 << hit code).
    virtual void DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd);
    virtual void AdjustRect(int nHandle, LPRECT lpRect);
    virtual void OnChangedRect(const CRect& rectOld);
    [[nodiscard]] virtual UINT GetHandleMask() const;

protected:
    BOOL m_bAllowInvert = FALSE;
    BOOL m_bErase = FALSE;      // DrawTrackerRect removes an outline
    BOOL m_bFinalErase = FALSE; // and it is the last one of the drag

    [[nodiscard]] int HitTestHandles(CPoint point) const;
    void GetHandleRect(int nHandle, CRect* pHandleRect) const;
    // Handles inside a small rectangle shrink, so that opposite ones don't meet.
    [[nodiscard]] virtual int GetHandleSize(LPCRECT lpRect = nullptr) const;
    BOOL TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo);

private:
    struct TDrag;
    void DrawHatch(CDC* pDC, const CRect& rect) const;
    void MoveHandle(int nHandle, CPoint offset);
    bool HandleDragMessage(TDrag& drag, const MSG& message);
    void ShowOutline(TDrag& drag);
    void HideOutline(TDrag& drag);
};

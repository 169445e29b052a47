#pragma once
// CWnd: an object in front of a window handle.
//
// An object that creates or subclasses its window is its permanent wrapper: the window's
// messages arrive in WindowProc. FromHandle returns such an object, or a temporary one that is
// good only for the current call. Objects belong to the thread that made them.
//
// The way of a message: WindowProc -> OnWndMsg -> (OnCommand, OnNotify | the message map) ->
// DefWindowProc, which is the procedure that the window had before it was ours. A window may
// go away inside of any handler, and with it its object: nothing here touches the object
// after a handler has handled its message.

#include "framework/windowing/CmdTarget.h"
#include "framework/windowing/Geometry.h"
#include "framework/windowing/MessageMap.h"
#include "framework/windowing/Strings.h"

class CDC;
class CFont;
class CScrollBar;
class CWnd;

// A class of the module for the given looks, registered at first need; its name stays good
// until the next call on this thread. Raises a CResourceException if that fails.
LPCWSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                            HICON hIcon = nullptr);
// Registers the class unless the module has it already; FALSE on failure. Classes of a DLL
// are unregistered when the module goes.
BOOL AfxRegisterClass(WNDCLASSW* lpWndClass);

class CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)
    DECLARE_MESSAGE_MAP()
public:
    CWnd() noexcept = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    // Destroys the window if it is still there.
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    static const CWnd wndTop;
    static const CWnd wndNoTopMost;

    // Handles and objects
    operator HWND() const noexcept { return m_hWnd; }
    static CWnd* FromHandle(HWND hWnd);
    [[nodiscard]] static CWnd* FromHandlePermanent(HWND hWnd) noexcept;
    // Makes this the permanent object of a window, without taking its messages.
    BOOL Attach(HWND hWndNew);
    // Lets go of the window, which gets its former procedure back.
    HWND Detach() noexcept;
    // Attaches and takes the messages of a window that exists already.
    BOOL SubclassWindow(HWND hWnd);

    // Creation. A null class name means AfxRegisterWndClass(0) with the arrow cursor.
    // Create always makes a child window.
    virtual BOOL Create(LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, void* pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, int x,
                  int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                  void* lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, void* lpParam = nullptr);
    virtual BOOL DestroyWindow();
    // Called when the object has its handle and before its first message.
    virtual void PreSubclassWindow();
    // FALSE cancels the creation.
    virtual BOOL PreCreateWindow(CREATESTRUCTW& cs);
    // The last thing called for a window; the place for `delete this`.
    virtual void PostNcDestroy();

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    // TRUE takes a queued message away before it is dispatched. Called for messages of this
    // window and of the windows below it, in the modal loops of the module and in the host's.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Default handling of the message under way, with its original parameters.
    LRESULT Default();

    // Style, place, state
    [[nodiscard]] DWORD GetStyle() const
    {
        return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE));
    }
    // FALSE if nothing changes. With nFlags the frame is redrawn by SetWindowPos.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    void GetWindowRect(RECT* lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(RECT* lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ScreenToClient(POINT* lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(RECT* lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(const RECT* lpRect, BOOL bRepaint = TRUE)
    {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
    {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr, x, y, cx, cy,
                              nFlags);
    }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    [[nodiscard]] BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }

    // Family
    // The nearest ancestor or owner that is not a child window itself.
    [[nodiscard]] CWnd* GetParentOwner() const;
    [[nodiscard]] int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

    // Text and font
    void SetWindowText(LPCWSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    void GetWindowText(CString& rString) const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);

    // Painting
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    // Without a window these do nothing; the platform would take the whole screen instead.
    void Invalidate(BOOL bErase = TRUE) { InvalidateRect(nullptr, bErase); }
    void InvalidateRect(const RECT* lpRect, BOOL bErase = TRUE)
    {
        if (m_hWnd)
            ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
    BOOL RedrawWindow(const RECT* lpRectUpdate = nullptr, HRGN hRgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE)
    {
        return m_hWnd && ::RedrawWindow(m_hWnd, lpRectUpdate, hRgnUpdate, flags);
    }

    // Input
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr)
    {
        return m_hWnd ? ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer) : 0;
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra) override;

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // TRUE if the message was handled; its result is in *pResult.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // A control's message to its parent, offered to the control itself first; TRUE if the
    // control handled it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Offers the message under way to a child of ours.
    [[nodiscard]] BOOL ReflectMessage(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam,
                                      LRESULT* pResult);

    // Handlers to override and call on; here each is the default handling.
    afx_msg int OnCreate(CREATESTRUCTW* lpCreateStruct);
    afx_msg void OnNcDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct);

private:
    friend struct AFX_WND_ENTRY; // the window procedure and the creation hook

    explicit CWnd(HWND hWnd) noexcept : m_hWnd(hWnd) {}
    // Puts our procedure in front of the window's own.
    void TakeMessages();

    WNDPROC m_pfnSuper = nullptr; // what the window did before it was ours
};

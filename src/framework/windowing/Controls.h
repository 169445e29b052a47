#pragma once
// The platform's controls as windows of ours.

#include <windows.h>

#include <commctrl.h>

#include "framework/windowing/Window.h"

class CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
    }
};

class CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    using CWnd::Create;
    BOOL Create(LPCWSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
    {
        return CWnd::Create(L"BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
    }
    // Called for a button with BS_OWNERDRAW when something of its look has changed.
    virtual void DrawItem(DRAWITEMSTRUCT* lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    // Results below 0 are CB_ERR and CB_ERRSPACE.
    int AddString(LPCWSTR lpszString)
    {
        return Ask(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString));
    }
    int DeleteString(UINT nIndex) { return Ask(CB_DELETESTRING, nIndex, 0); }
    [[nodiscard]] int GetCount() const { return Ask(CB_GETCOUNT, 0, 0); }
    [[nodiscard]] int GetCurSel() const { return Ask(CB_GETCURSEL, 0, 0); }
    // -1 takes the selection away.
    int SetCurSel(int nSelect) { return Ask(CB_SETCURSEL, static_cast<WPARAM>(nSelect), 0); }

private:
    int Ask(UINT message, WPARAM wParam, LPARAM lParam) const
    {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};

class CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    void SetRange(short nLower, short nUpper)
    {
        SendMessage(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
    }
    void SetRange32(int nLower, int nUpper)
    {
        SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
    }
    // The result is the position before.
    int SetPos(int nPos) { return static_cast<short>(SendMessage(UDM_SETPOS, 0, MAKELPARAM(nPos, 0))); }
};

class CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)
public:
    // The number of the new tab, -1 on failure.
    int InsertItem(int nItem, TCITEMW* pTabCtrlItem)
    {
        return static_cast<int>(SendMessage(TCM_INSERTITEMW, static_cast<WPARAM>(nItem),
                                            reinterpret_cast<LPARAM>(pTabCtrlItem)));
    }
    int InsertItem(UINT nMask, int nItem, LPCWSTR lpszItem, int nImage, LPARAM lParam);
    [[nodiscard]] int GetCurSel() const { return static_cast<int>(SendMessage(TCM_GETCURSEL)); }
    // The number of the tab selected before, -1 if none was.
    int SetCurSel(int nItem)
    {
        return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(nItem)));
    }
};

class CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    using CWnd::Create;
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    // A text for a rectangle of pWnd's client area. The tip shows while the pointer rests there
    // and pWnd's messages are relayed.
    BOOL AddTool(CWnd* pWnd, LPCWSTR lpszText, const RECT* lpRectTool, UINT_PTR nIDTool);
    void RelayEvent(MSG* lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
};

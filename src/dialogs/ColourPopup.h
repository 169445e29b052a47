#pragma once
// CColourPopup: a borderless window with a grid of named colours and two boxes, "Automatic"
// and "More Colors...", that drops down from a CColorButton. It holds the mouse capture while
// it is open, reports its results to the button by the CBM_ messages, and deletes itself with its
// window.

#include <memory>

#include "dialogs/ColourTable.h"
#include "dialogs/PopupLayout.h"
#include "framework/windowing/Controls.h"
#include "framework/windowing/DeviceContexts.h"

class CColourPopup : public CWnd
{
    DECLARE_DYNAMIC(CColourPopup)
    DECLARE_MESSAGE_MAP()
public:
    // Makes and opens the window at a point of the screen. Without a window afterwards the
    // object is the caller's to delete. A null or empty caption leaves its box out.
    CColourPopup(CPoint point, COLORREF cr, CWnd* pButton, LPCWSTR lpszAutoCaption,
                 LPCWSTR lpszMoreCaption);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    int m_nCells = ColourTable::Count;
    int m_nColumns = PopupLayout::Columns;
    int m_nRows = 5;
    int m_nCellSize = 18;
    int m_nEdge;                         // the window's margin
    int m_nHot = PopupLayout::NoCell;    // under the pointer or the keyboard
    int m_nPicked = PopupLayout::NoCell; // of the colour at opening
    CString m_strAutoCaption;
    CString m_strMoreCaption;
    CRect m_rcMore;
    CRect m_rcAuto;
    CRect m_rcFrame; // on the screen
    CFont m_Font;
    CPalette m_Palette; // for devices that have one
    COLORREF m_crOpening;
    COLORREF m_crResult;
    CToolTipCtrl m_ToolTip;
    CWnd* m_pButton;
    int m_bDialogOpen = 0; // the colour dialog is open

protected:
    afx_msg void OnNcDestroy();
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);

private:
    void Open(CPoint point);
    void MakeFont();
    void MakePalette();
    void Layout();
    void MakeToolTips();
    [[nodiscard]] int CellForColor(COLORREF cr) const noexcept;
    [[nodiscard]] PopupLayout::TGrid Grid() const noexcept;
    // The object may be gone after these: their messages reach the host.
    void SetHot(int cell);
    void Finish(UINT message);
    void SendButton(UINT message, COLORREF cr) const;
    // False if the popup went away meanwhile.
    [[nodiscard]] bool AskForColor(UINT& message);

    void DrawPart(CDC& dc, int part);
    void DrawCell(CDC& dc, int cell);
    void DrawAuto(CDC& dc);
    void DrawMore(CDC& dc);
    void DrawEdgeOf(CDC& dc, CRect box, int part) const;
    void DrawCaption(CDC& dc, CRect box, const CString& caption);

    HWND m_hButton;
    bool m_bOpening = true;                                      // the constructor is under way
    std::shared_ptr<const int> m_life = std::make_shared<int>(); // ends with the object
};

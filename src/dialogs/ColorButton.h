#pragma once
// CColorButton: a button that shows a colour and drops a CColourPopup down to choose another.
// It reports what happens to its parent by the CBM_ messages, sent with the colour as wParam and
// the button's control id as lParam.

#include "framework/windowing/Controls.h"

inline constexpr UINT CBM_COLORCHANGE = 2025; // a colour is under the pointer, or it changed
inline constexpr UINT CBM_DROPDOWN = 2026;    // the popup has opened
inline constexpr UINT CBM_CLOSEUP = 2027;     // the popup has closed
inline constexpr UINT CBM_ACCEPT = 2028;      // the choice was accepted
inline constexpr UINT CBM_CANCEL = 2029;      // the choice was dropped

class CColorButton : public CButton
{
    DECLARE_DYNCREATE(CColorButton)
    DECLARE_MESSAGE_MAP()
public:
    CColorButton();

    // The colour, 0x00BBGGRR, or CLR_DEFAULT for "Automatic".
    [[nodiscard]] COLORREF GetColor() const noexcept { return m_crValue; }
    void SetColor(COLORREF cr);

    void PreSubclassWindow() override;
    void DrawItem(DRAWITEMSTRUCT* lpDrawItemStruct) override;

    COLORREF m_crValue = CLR_DEFAULT;
    COLORREF m_crAutomatic; // what is shown for CLR_DEFAULT
    // The texts of the popup's boxes; a box without a text doesn't exist.
    CString m_strAutoCaption = L"Automatic";
    CString m_strMoreCaption = L"More Colors...";
    int m_bOpen = 0;          // a popup is open
    int m_bFollowPointer = 0; // the colour follows the pointer while the popup is open

protected:
    afx_msg int OnCreate(CREATESTRUCTW* lpCreateStruct);
    afx_msg BOOL Open();
    // From the popup.
    afx_msg LRESULT OnPopupAccept(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopupCancel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopupColor(WPARAM wParam, LPARAM lParam);
};

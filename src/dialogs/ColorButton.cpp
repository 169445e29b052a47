#include "dialogs/ColorButton.h"

#include <memory>
#include <utility>

#include "dialogs/ColorButtonDrawing.h"
#include "dialogs/ColourPopup.h"

IMPLEMENT_DYNCREATE(CColorButton, CButton)

BEGIN_MESSAGE_MAP(CColorButton, CButton)
ON_WM_CREATE()
ON_CONTROL_REFLECT_EX(BN_CLICKED, Open)
ON_MESSAGE(CBM_ACCEPT, OnPopupAccept)
ON_MESSAGE(CBM_CANCEL, OnPopupCancel)
ON_MESSAGE(CBM_COLORCHANGE, OnPopupColor)
END_MESSAGE_MAP()

namespace
{

// Messages to the parent. Its handlers may destroy the button, and with it the object that
// sends: nothing of that object is needed after the first message.
class CParent
{
public:
    explicit CParent(const CColorButton& button)
        : m_hParent(::GetParent(button)), m_id(button.GetDlgCtrlID())
    {
    }
    void Send(UINT message, COLORREF colour) const
    {
        if (m_hParent)
            ::SendMessageW(m_hParent, message, colour, m_id);
    }

private:
    HWND m_hParent;
    LPARAM m_id;
};

} // namespace

CColorButton::CColorButton() : m_crAutomatic(::GetSysColor(COLOR_APPWORKSPACE)) {}

void CColorButton::SetColor(COLORREF cr)
{
    m_crValue = cr;
    if (::IsWindow(m_hWnd))
        RedrawWindow();
}

void CColorButton::PreSubclassWindow()
{
    ModifyStyle(0, BS_OWNERDRAW);
    CButton::PreSubclassWindow();
}

int CColorButton::OnCreate(CREATESTRUCTW* lpCreateStruct)
{
    return CButton::OnCreate(lpCreateStruct) == -1 ? -1 : 0;
}

BOOL CColorButton::Open()
{
    const CParent parent(*this);
    const COLORREF colour = m_crValue;
    m_bOpen = 1;
    CRect place;
    GetWindowRect(place);
    auto popup = std::make_unique<CColourPopup>(CPoint(place.left, place.bottom), colour, this,
                                                m_strAutoCaption, m_strMoreCaption);
    if (popup->m_hWnd)
        static_cast<void>(popup.release()); // it deletes itself with its window
    parent.Send(CBM_DROPDOWN, colour);
    return TRUE;
}

LRESULT CColorButton::OnPopupAccept(WPARAM wParam, LPARAM)
{
    const CParent parent(*this);
    const auto colour = static_cast<COLORREF>(wParam);
    const COLORREF before = m_crValue;
    m_bOpen = 0;
    SetColor(colour);
    parent.Send(CBM_CLOSEUP, colour);
    parent.Send(CBM_ACCEPT, colour);
    if (colour != before)
        parent.Send(CBM_COLORCHANGE, colour);
    return 1;
}

LRESULT CColorButton::OnPopupCancel(WPARAM wParam, LPARAM)
{
    const CParent parent(*this);
    const auto colour = static_cast<COLORREF>(wParam);
    m_bOpen = 0;
    SetColor(colour);
    parent.Send(CBM_CLOSEUP, colour);
    parent.Send(CBM_CANCEL, colour);
    return 1;
}

LRESULT CColorButton::OnPopupColor(WPARAM wParam, LPARAM)
{
    const CParent parent(*this);
    const auto colour = static_cast<COLORREF>(wParam);
    if (m_bFollowPointer)
        SetColor(colour);
    parent.Send(CBM_COLORCHANGE, colour);
    return 1;
}

void CColorButton::DrawItem(DRAWITEMSTRUCT* lpDrawItemStruct)
{
    CDC* const pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (!pDC)
        return; // the platform has no room for one
    UINT state = lpDrawItemStruct->itemState;
    if (m_bOpen)
        state |= ODS_SELECTED | ODS_FOCUS;
    const COLORREF colour = m_crValue == CLR_DEFAULT ? m_crAutomatic : m_crValue;
    ColorButtonDrawing::Draw(*pDC, lpDrawItemStruct->rcItem, state, colour);
}

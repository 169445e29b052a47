#include "framework/windowing/Controls.h"

#include <string>

IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

void CButton::DrawItem(DRAWITEMSTRUCT*) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
    return TRUE;
}

int CTabCtrl::InsertItem(UINT nMask, int nItem, LPCWSTR lpszItem, int nImage, LPARAM lParam)
{
    std::wstring text(lpszItem ? lpszItem : L"");
    TCITEMW item{};
    item.mask = nMask;
    item.pszText = text.data();
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof controls;
    controls.dwICC = ICC_BAR_CLASSES;
    ::InitCommonControlsEx(&controls);
    return CreateEx(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->m_hWnd, nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCWSTR lpszText, const RECT* lpRectTool, UINT_PTR nIDTool)
{
    std::wstring text(lpszText);
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = pWnd->m_hWnd;
    tool.uId = nIDTool;
    tool.rect = *lpRectTool;
    tool.lpszText = text.data();
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}

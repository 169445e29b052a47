#include "dialogs/SheetPage.h"

#include "framework/windowing/Window.h"

namespace SheetPage
{

bool Swallows(const MSG& message) noexcept
{
    const bool bKey = message.message == WM_KEYDOWN || message.message == WM_KEYUP;
    return bKey && (message.wParam == VK_ESCAPE || message.wParam == VK_RETURN);
}

void EndSheet(const CWnd& page, int nResult)
{
    if (const CWnd* pSheet = page.m_hWnd ? page.GetParentOwner() : nullptr)
        pSheet->SendMessage(WM_COMMAND, static_cast<WPARAM>(nResult));
}

bool IsLive(const CWnd& page) noexcept
{
    return ::IsWindow(page.m_hWnd) && ::IsWindowVisible(page.m_hWnd);
}

void EnableControls(const CWnd& page, std::initializer_list<int> ids, bool bEnable)
{
    for (const int nID : ids)
        ::EnableWindow(::GetDlgItem(page.m_hWnd, nID), bEnable);
}

} // namespace SheetPage

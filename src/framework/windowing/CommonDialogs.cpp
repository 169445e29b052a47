#include "framework/windowing/CommonDialogs.h"

#include <array>

#include "base/Colors.h"
#include "framework/windowing/App.h"
#include "framework/windowing/ModalOwner.h"
#include "framework/windowing/Window.h"

namespace
{

HWND OwnerOf(const CWnd* parent)
{
    return AfxGetSafeOwner(parent ? parent->m_hWnd : nullptr);
}

// The platform disables the owner, but not what owns that.
HWND BehindOwner(HWND owner)
{
    return owner ? ::GetWindow(owner, GW_OWNER) : nullptr;
}

} // namespace

CFontDialog::CFontDialog(LOGFONTW* lplfInitial, DWORD dwFlags, CWnd* pParentWnd) noexcept
    : m_pInitial(lplfInitial), m_pParentWnd(pParentWnd)
{
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = dwFlags;
    if (lplfInitial) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
}

INT_PTR CFontDialog::DoModal()
{
    m_cf.hwndOwner = OwnerOf(m_pParentWnd);
    m_cf.lpLogFont = &m_lf;
    const CModalOwner disabled(BehindOwner(m_cf.hwndOwner));
    if (!::ChooseFontW(&m_cf))
        return IDCANCEL;
    if (m_pInitial)
        *m_pInitial = m_lf;
    return IDOK;
}

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) noexcept
    : m_pParentWnd(pParentWnd)
{
    m_cc.lStructSize = sizeof m_cc;
    m_cc.Flags = dwFlags;
    m_cc.rgbResult = clrInit;
    if (clrInit)
        m_cc.Flags |= CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal()
{
    m_cc.hwndOwner = OwnerOf(m_pParentWnd);
    m_cc.lpCustColors = GetSavedCustomColors();
    const CModalOwner disabled(BehindOwner(m_cc.hwndOwner));
    return ::ChooseColorW(&m_cc) ? IDOK : IDCANCEL;
}

COLORREF* CColorDialog::GetSavedCustomColors() noexcept
{
    static std::array<COLORREF, 16> colors = [] {
        std::array<COLORREF, 16> white;
        white.fill(White);
        return white;
    }();
    return colors.data();
}

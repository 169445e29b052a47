#include "framework/windowing/ModalOwner.h"

CModalOwner::CModalOwner(HWND hOwner)
{
    for (HWND window = hOwner; window; window = ::GetWindow(window, GW_OWNER)) {
        if (window == ::GetDesktopWindow() || !::IsWindowEnabled(window))
            continue;
        m_disabled.push_back(window);
    }
    // Only now, with nothing left that can fail.
    for (const HWND window : m_disabled)
        ::EnableWindow(window, FALSE);
}

void CModalOwner::Enable() noexcept
{
    for (const HWND window : m_disabled) {
        if (::IsWindow(window))
            ::EnableWindow(window, TRUE);
    }
    m_disabled.clear();
}

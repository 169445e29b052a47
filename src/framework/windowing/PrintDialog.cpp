#include "framework/windowing/PrintDialog.h"

#include "framework/windowing/Window.h"

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
    : m_pParentWnd(pParentWnd)
{
    m_pd.lStructSize = sizeof m_pd;
    m_pd.Flags = dwFlags | (bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC);
}

CPrintDialog::~CPrintDialog()
{
    ::GlobalFree(m_pd.hDevMode);
    ::GlobalFree(m_pd.hDevNames);
}

INT_PTR CPrintDialog::DoModal()
{
    m_pd.hwndOwner = m_pParentWnd ? m_pParentWnd->m_hWnd : ::GetActiveWindow();
    return ::PrintDlgW(&m_pd) ? IDOK : IDCANCEL;
}

#pragma once
// The platform's print dialog.

#include <windows.h>

#include <commdlg.h>

class CWnd;

class CPrintDialog
{
public:
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);
    CPrintDialog(const CPrintDialog&) = delete;
    CPrintDialog& operator=(const CPrintDialog&) = delete;
    // Frees the device's name and mode; the context that was made is the caller's.
    ~CPrintDialog();

    // IDOK, or IDCANCEL where the user or the platform ended it.
    INT_PTR DoModal();
    [[nodiscard]] HDC GetPrinterDC() const noexcept { return m_pd.hDC; }

    PRINTDLGW m_pd = {};

private:
    CWnd* m_pParentWnd;
};

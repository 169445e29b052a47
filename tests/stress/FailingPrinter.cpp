#include "FailingPrinter.h"

FailingPrinter* FailingPrinter::s_pCurrent = nullptr;

FailingPrinter::FailingPrinter(HMODULE hServer)
    : m_imports(hServer), m_hPage(::CreateBitmap(300, 200, 1, 32, nullptr))
{
    s_pCurrent = this;
    m_imports.Replace("PrintDlgW", reinterpret_cast<void*>(&OnPrintDialog));
    m_imports.Replace("StartDocW", reinterpret_cast<void*>(&OnStartDocument));
    for (const char* const pszName : {"StartPage", "EndPage", "EndDoc", "AbortDoc"})
        m_imports.Replace(pszName, reinterpret_cast<void*>(&OnPage));
}

FailingPrinter::~FailingPrinter()
{
    ::DeleteObject(m_hPage);
    s_pCurrent = nullptr;
}

// The job deletes the context.
BOOL FailingPrinter::OnPrintDialog(PRINTDLGW* pDialog)
{
    if (s_pCurrent->m_random.OneIn(4))
        return FALSE;
    pDialog->hDC = ::CreateCompatibleDC(nullptr);
    if (s_pCurrent->m_random.OneIn(2))
        ::SelectObject(pDialog->hDC, s_pCurrent->m_hPage);
    return TRUE;
}

int FailingPrinter::Answer()
{
    return m_random.OneIn(4) ? SP_ERROR : 1;
}

int FailingPrinter::OnStartDocument(HDC, const DOCINFOW*)
{
    return s_pCurrent->Answer();
}

int FailingPrinter::OnPage(HDC)
{
    return s_pCurrent->Answer();
}

#pragma once
// A printer that mostly fails: the dialog is cancelled, or the job ends at one of its calls.

#include "net/Imports.h"
#include "net/Random.h"

#include <windows.h>

#include <commdlg.h>

class FailingPrinter
{
public:
    explicit FailingPrinter(HMODULE hServer);
    FailingPrinter(const FailingPrinter&) = delete;
    FailingPrinter& operator=(const FailingPrinter&) = delete;
    ~FailingPrinter();

    // For the jobs of one step.
    void Begin(Random random) { m_random = random; }

private:
    static BOOL WINAPI OnPrintDialog(PRINTDLGW* pDialog);
    static int WINAPI OnStartDocument(HDC hDC, const DOCINFOW* pDocument);
    static int WINAPI OnPage(HDC hDC);
    int Answer();

    static FailingPrinter* s_pCurrent;

    Imports m_imports;
    Random m_random{0, 0};
    HBITMAP m_hPage;
};

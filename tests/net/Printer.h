#pragma once
// A printer made of memory. While one lives, the print dialog of the DLL answers at once with
// it, and the page that is printed can be read.

#include "Imports.h"

#include <windows.h>

#include <commdlg.h>

#include <cstdint>

class Printer
{
public:
    struct TPaper {
        int nWidth;
        int nHeight;
        int nResolution; // dots in an inch
        bool bMono;
    };

    Printer(HMODULE hServer, const TPaper& paper);
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;
    ~Printer();

    // How many pages have come, and a checksum of the last.
    [[nodiscard]] int PageCount() const { return m_nPages; }
    [[nodiscard]] std::uint64_t Sum() const;

private:
    static BOOL WINAPI OnPrintDialog(PRINTDLGW* pDialog);
    static int WINAPI OnStartDocument(HDC hDC, const DOCINFOW* pDocument);
    static int WINAPI OnPage(HDC hDC);
    static int WINAPI OnEndPage(HDC hDC);
    static int WINAPI OnDeviceCaps(HDC hDC, int nIndex);

    static Printer* s_pCurrent;

    Imports m_imports;
    TPaper m_paper;
    HDC m_hDC = nullptr; // the job deletes it
    HBITMAP m_hBitmap = nullptr;
    void* m_pBits = nullptr;
    int m_nPages = 0;
};

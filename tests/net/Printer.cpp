#include "Printer.h"

#include "Report.h"

#include <cstring>

Printer* Printer::s_pCurrent = nullptr;

Printer::Printer(HMODULE hServer, const TPaper& paper) : m_imports(hServer), m_paper(paper)
{
    s_pCurrent = this;
    m_imports.Replace("PrintDlgW", reinterpret_cast<void*>(&OnPrintDialog));
    m_imports.Replace("StartDocW", reinterpret_cast<void*>(&OnStartDocument));
    m_imports.Replace("StartPage", reinterpret_cast<void*>(&OnPage));
    m_imports.Replace("EndPage", reinterpret_cast<void*>(&OnEndPage));
    m_imports.Replace("EndDoc", reinterpret_cast<void*>(&OnPage));
    m_imports.Replace("GetDeviceCaps", reinterpret_cast<void*>(&OnDeviceCaps));
}

Printer::~Printer()
{
    if (m_hBitmap != nullptr)
        ::DeleteObject(m_hBitmap);
    s_pCurrent = nullptr;
}

std::uint64_t Printer::Sum() const
{
    ::GdiFlush();
    const std::size_t nBytes = static_cast<std::size_t>(m_paper.nWidth) * m_paper.nHeight * 4;
    return m_pBits == nullptr ? 0 : Checksum(m_pBits, nBytes);
}

BOOL Printer::OnPrintDialog(PRINTDLGW* pDialog)
{
    Printer& self = *s_pCurrent;
    if (self.m_hBitmap != nullptr)
        ::DeleteObject(self.m_hBitmap);
    self.m_hBitmap = nullptr;
    self.m_hDC = ::CreateCompatibleDC(nullptr);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER),
                      self.m_paper.nWidth,
                      -self.m_paper.nHeight,
                      1,
                      32,
                      BI_RGB,
                      0,
                      0,
                      0,
                      0,
                      0};
    self.m_hBitmap = ::CreateDIBSection(self.m_hDC, &info, DIB_RGB_COLORS, &self.m_pBits, nullptr, 0);
    if (self.m_hBitmap == nullptr) { // no room for one
        self.m_pBits = nullptr;
        ::DeleteDC(self.m_hDC);
        return FALSE;
    }
    std::memset(self.m_pBits, 0xFF,
                static_cast<std::size_t>(self.m_paper.nWidth) * self.m_paper.nHeight * 4);
    ::SelectObject(self.m_hDC, self.m_hBitmap);
    pDialog->hDC = self.m_hDC;
    return TRUE;
}

int Printer::OnStartDocument(HDC, const DOCINFOW*)
{
    return 1;
}

int Printer::OnPage(HDC)
{
    return 1;
}

int Printer::OnEndPage(HDC)
{
    return ++s_pCurrent->m_nPages;
}

int Printer::OnDeviceCaps(HDC hDC, int nIndex)
{
    const Printer& self = *s_pCurrent;
    if (hDC == self.m_hDC) {
        switch (nIndex) {
        case HORZRES:
            return self.m_paper.nWidth;
        case VERTRES:
            return self.m_paper.nHeight;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return self.m_paper.nResolution;
        case NUMCOLORS:
            return self.m_paper.bMono ? 2 : -1;
        case TECHNOLOGY:
            return DT_RASPRINTER;
        default:
            break;
        }
    }
    return ::GetDeviceCaps(hDC, nIndex);
}

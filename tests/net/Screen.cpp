#include "Screen.h"

#include "Report.h"

#include <algorithm>
#include <cstdio>

Screen::Screen(HWND hWnd)
{
    RECT client;
    ::GetClientRect(hWnd, &client);
    m_nWidth = client.right;
    m_nHeight = client.bottom;
    if (m_nWidth <= 0 || m_nHeight <= 0)
        return;
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_nWidth, -m_nHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC hWindow = ::GetDC(hWnd);
    const HDC hMemory = ::CreateCompatibleDC(hWindow);
    void* pBits = nullptr;
    const HBITMAP hBitmap = ::CreateDIBSection(hMemory, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    const HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
    ::BitBlt(hMemory, 0, 0, m_nWidth, m_nHeight, hWindow, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* pPixels = static_cast<const DWORD*>(pBits);
    m_pixels.assign(pPixels, pPixels + static_cast<std::size_t>(m_nWidth) * m_nHeight);
    for (DWORD& pixel : m_pixels)
        pixel &= 0xFFFFFF;
    ::SelectObject(hMemory, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemory);
    ::ReleaseDC(hWnd, hWindow);
}

std::uint64_t Screen::Sum() const noexcept
{
    const int size[] = {m_nWidth, m_nHeight};
    return Checksum(m_pixels.data(), m_pixels.size() * sizeof(DWORD), Checksum(size, sizeof size));
}

RECT Screen::Bounds(COLORREF color) const noexcept
{
    const DWORD wanted = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
    RECT bounds = {m_nWidth, m_nHeight, 0, 0};
    for (LONG y = 0; y < m_nHeight; ++y) {
        for (LONG x = 0; x < m_nWidth; ++x) {
            if (m_pixels[static_cast<std::size_t>(y) * m_nWidth + x] != wanted)
                continue;
            bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                      std::max(bounds.bottom, y + 1)};
        }
    }
    return bounds.right > bounds.left ? bounds : RECT{};
}

bool Screen::Write(const std::wstring& path) const
{
    std::FILE* pFile = ::_wfopen(path.c_str(), L"wb");
    if (pFile == nullptr)
        return false;
    const DWORD nBytes = static_cast<DWORD>(m_pixels.size() * sizeof(DWORD));
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + nBytes;
    const BITMAPINFOHEADER info = {sizeof info, m_nWidth, -m_nHeight, 1, 32, BI_RGB, nBytes, 0, 0, 0, 0};
    std::fwrite(&file, sizeof file, 1, pFile);
    std::fwrite(&info, sizeof info, 1, pFile);
    std::fwrite(m_pixels.data(), 1, nBytes, pFile);
    return std::fclose(pFile) == 0;
}

void PrintPicture(Report& report, const std::string& subject, HWND hWnd)
{
    if (report.ShowsExact())
        report.ExactState(subject, "%016llx", static_cast<unsigned long long>(Screen(hWnd).Sum()));
}

const char* PointerName() noexcept
{
    const struct {
        const wchar_t* id;
        const char* name;
    } shapes[] = {{IDC_ARROW, "arrow"},     {IDC_CROSS, "cross"},       {IDC_HAND, "hand"},
                  {IDC_SIZEALL, "sizeall"}, {IDC_SIZENS, "sizens"},     {IDC_SIZEWE, "sizewe"},
                  {IDC_IBEAM, "ibeam"},     {IDC_SIZENWSE, "sizenwse"}, {IDC_SIZENESW, "sizenesw"}};
    const HCURSOR hCursor = ::GetCursor();
    for (const auto& shape : shapes) {
        if (hCursor == ::LoadCursorW(nullptr, shape.id))
            return shape.name;
    }
    return hCursor == nullptr ? "none" : "other";
}

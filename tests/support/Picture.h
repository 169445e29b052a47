#pragma once
// The pixels of a window, read back from the screen.

#include <windows.h>

#include <cstddef>
#include <vector>

// What a window shows, copied off the screen.
class Picture
{
public:
    explicit Picture(HWND hWnd)
    {
        RECT client;
        ::GetClientRect(hWnd, &client);
        m_width = client.right;
        m_height = client.bottom;
        m_pixels.resize(static_cast<std::size_t>(m_width) * m_height);
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        const HDC hWindow = ::GetDC(hWnd);
        const HDC hMemory = ::CreateCompatibleDC(hWindow);
        const HBITMAP hBitmap = ::CreateCompatibleBitmap(hWindow, m_width, m_height);
        const HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
        ::BitBlt(hMemory, 0, 0, m_width, m_height, hWindow, 0, 0, SRCCOPY);
        ::SelectObject(hMemory, hOld);
        ::GetDIBits(hWindow, hBitmap, 0, m_height, m_pixels.data(), &info, DIB_RGB_COLORS);
        ::DeleteObject(hBitmap);
        ::DeleteDC(hMemory);
        ::ReleaseDC(hWnd, hWindow);
    }

    // 0x00BBGGRR, as COLORREF.
    [[nodiscard]] COLORREF At(int x, int y) const
    {
        const DWORD pixel = m_pixels[static_cast<std::size_t>(y) * m_width + x];
        return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
    }
    [[nodiscard]] int Count(const RECT& rect, COLORREF color) const
    {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x)
                count += At(x, y) == color ? 1 : 0;
        }
        return count;
    }
    [[nodiscard]] int Count(COLORREF color) const { return Count({0, 0, m_width, m_height}, color); }
    [[nodiscard]] int CountDifferences(const Picture& other) const
    {
        int count = m_width == other.m_width && m_height == other.m_height ? 0 : -1;
        for (std::size_t i = 0; count >= 0 && i < m_pixels.size(); ++i)
            count += ((m_pixels[i] ^ other.m_pixels[i]) & 0xFFFFFF) != 0 ? 1 : 0;
        return count;
    }

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<DWORD> m_pixels;
};

#pragma once
// A graph in a visible window of a host, and its pixels.

#include "base/Vocabulary.h"
#include "framework/windowing/ModuleState.h"
#include "graph/XGraph.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

inline void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

inline void PrintTo(const CRect& rect, std::ostream* stream)
{
    PrintTo(static_cast<const RECT&>(rect), stream);
}

// A top-level window on the platform's own means.
class HostWindow
{
public:
    HostWindow()
    {
        m_hWnd = ::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 900, 700, nullptr, nullptr,
                                   nullptr, nullptr);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { ::DestroyWindow(m_hWnd); }

    HWND m_hWnd;
};

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

class GraphTest : public testing::Test
{
protected:
    static constexpr int kWidth = 400;
    static constexpr int kHeight = 300;

    GraphTest() : graph(*new CXGraph)
    {
        graph.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight),
                     CWnd::FromHandle(host.m_hWnd), 7);
        graph.m_crBackColor = 0x102030;
        graph.m_crGraphColor = 0x405060;
        graph.m_crInnerColor = 0x708090;
    }
    ~GraphTest() override { delete &graph; }

    // A straight line from (0, 0) to (10, 10) in as many points.
    static std::vector<TDataPoint> Line(int nCount = 11)
    {
        std::vector<TDataPoint> points;
        for (int i = 0; i < nCount; ++i)
            points.push_back({10.0 * i / (nCount - 1), 10.0 * i / (nCount - 1)});
        return points;
    }
    CXGraphDataSerie* AddLine(int nXAxis = 0, int nYAxis = 0)
    {
        auto points = Line();
        return graph.SetData(points.data(), static_cast<long>(points.size()),
                             static_cast<int>(graph.m_Curves.size()), nXAxis, nYAxis, true);
    }
    void Paint()
    {
        graph.Invalidate();
        graph.UpdateWindow();
    }
    Picture Shoot()
    {
        Paint();
        return Picture(graph.m_hWnd);
    }

    HostWindow host;
    CXGraph& graph;
};

#pragma once
// A picture in memory to draw on through a CDCEx: white at first, 32 bits a pixel, or one
// bit for a black-and-white device.

#include "draw/DCEx.h"

#include <stdexcept>
#include <string>
#include <vector>

class Canvas
{
public:
    Canvas(int width, int height, WORD bits = 32) : m_Width(width), m_Height(height)
    {
        if (bits == 1) {
            m_Bitmap = ::CreateBitmap(width, height, 1, 1, nullptr);
        } else {
            BITMAPINFO info{};
            info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, bits, BI_RGB, 0, 0, 0, 0, 0};
            void* memory = nullptr;
            m_Bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
        }
        dc.Attach(::CreateCompatibleDC(nullptr));
        m_Old = ::SelectObject(dc, m_Bitmap);
        ::PatBlt(dc, 0, 0, width, height, WHITENESS);
    }
    ~Canvas()
    {
        ::SelectObject(dc, m_Old);
        ::DeleteObject(m_Bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDCEx dc;

    COLORREF At(int x, int y) const { return ::GetPixel(dc, x, y); }

    // One text a row: '#' black, '.' white, 'o' any other colour.
    std::vector<std::string> Picture() const
    {
        std::vector<std::string> rows;
        for (int y = 0; y < m_Height; ++y) {
            std::string row;
            for (int x = 0; x < m_Width; ++x) {
                const COLORREF colour = At(x, y);
                row += colour == RGB(0, 0, 0) ? '#' : colour == RGB(255, 255, 255) ? '.' : 'o';
            }
            rows.push_back(row);
        }
        return rows;
    }

private:
    int m_Width;
    int m_Height;
    HBITMAP m_Bitmap = nullptr;
    HGDIOBJ m_Old = nullptr;
};

inline void ScaleBy(CDCEx& dc, float factorX, float factorY)
{
    dc.m_bScaleReady = true;
    dc.m_bScaling = true;
    dc.m_fScaleX = factorX;
    dc.m_fScaleY = factorY;
}

#pragma once
// A canvas straight on a window, or on the screen where there is none, for what is measured or
// drawn between two frames.

#include "draw/DCEx.h"

class CWindowCanvas
{
public:
    explicit CWindowCanvas(HWND hWnd) : m_hWnd(hWnd), m_hDC(::GetDC(hWnd)) { m_dc.Attach(m_hDC); }
    CWindowCanvas(const CWindowCanvas&) = delete;
    CWindowCanvas& operator=(const CWindowCanvas&) = delete;
    ~CWindowCanvas()
    {
        m_dc.Detach();
        ::ReleaseDC(m_hWnd, m_hDC);
    }

    [[nodiscard]] CDCEx* Get() noexcept { return &m_dc; }

private:
    HWND m_hWnd;
    HDC m_hDC;
    CDCEx m_dc;
};

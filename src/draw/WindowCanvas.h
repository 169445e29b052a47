#pragma once
// A canvas straight on a window, or on the screen where there is none, for what is measured or
// drawn between two frames. bScreen spares the slow questions to the device: it has the screen's
// scale anyway, and the caller knows that it has more than 256 colours or asks for none.

#include "draw/DCEx.h"

class CWindowCanvas
{
public:
    explicit CWindowCanvas(HWND hWnd, bool bScreen = false) : m_hWnd(hWnd), m_hDC(::GetDC(hWnd))
    {
        m_dc.Attach(m_hDC);
        if (bScreen)
            m_dc.TakeScreenScale();
    }
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

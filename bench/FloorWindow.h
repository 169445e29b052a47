#pragma once
// A plain host that shows a recorded frame with the fewest calls: it keeps its buffer, its fonts
// and pens, and measures nothing.

#include "FrameRecording.h"

class FloorWindow
{
public:
    FloorWindow(HWND hHost, const FrameRecording& frame);
    FloorWindow(const FloorWindow&) = delete;
    FloorWindow& operator=(const FloorWindow&) = delete;
    ~FloorWindow();

    void Repaint() const;
    [[nodiscard]] HWND Handle() const { return m_hWnd; }

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Paint() const;

    const FrameRecording& m_frame;
    HWND m_hWnd;
    HDC m_hMemory;
    HBITMAP m_hBitmap;
    SIZE m_size;
};

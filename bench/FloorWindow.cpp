#include "FloorWindow.h"

FloorWindow::FloorWindow(HWND hHost, const FrameRecording& frame) : m_frame(frame)
{
    WNDCLASSW wndclass = {};
    wndclass.lpfnWndProc = &FloorWindow::Procedure;
    wndclass.hInstance = ::GetModuleHandleW(nullptr);
    wndclass.lpszClassName = L"VantoplexFloor";
    ::RegisterClassW(&wndclass); // fails harmlessly the second time
    RECT client;
    ::GetClientRect(hHost, &client);
    m_size = {client.right, client.bottom};
    m_hWnd = ::CreateWindowExW(0, wndclass.lpszClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, m_size.cx,
                               m_size.cy, hHost, nullptr, wndclass.hInstance, nullptr);
    ::SetWindowLongPtrW(m_hWnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    const HDC hWindow = ::GetDC(m_hWnd);
    m_hMemory = ::CreateCompatibleDC(hWindow);
    m_hBitmap = ::CreateCompatibleBitmap(hWindow, m_size.cx, m_size.cy);
    ::ReleaseDC(m_hWnd, hWindow);
    ::SelectObject(m_hMemory, m_hBitmap);
}

FloorWindow::~FloorWindow()
{
    ::DestroyWindow(m_hWnd);
    ::DeleteDC(m_hMemory);
    ::DeleteObject(m_hBitmap);
}

void FloorWindow::Repaint() const
{
    ::InvalidateRect(m_hWnd, nullptr, FALSE);
    ::UpdateWindow(m_hWnd);
    ::GdiFlush();
}

void FloorWindow::Paint() const
{
    PAINTSTRUCT paint;
    const HDC hDC = ::BeginPaint(m_hWnd, &paint);
    m_frame.Draw(m_hMemory);
    ::SelectClipRgn(m_hMemory, nullptr);
    ::BitBlt(hDC, 0, 0, m_size.cx, m_size.cy, m_hMemory, 0, 0, SRCCOPY);
    ::EndPaint(m_hWnd, &paint);
}

LRESULT FloorWindow::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* pSelf = reinterpret_cast<const FloorWindow*>(::GetWindowLongPtrW(hWnd, GWLP_USERDATA));
    if (message != WM_PAINT || pSelf == nullptr)
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    pSelf->Paint();
    return 0;
}

#include "viewer/Capture.h"

#include "viewer/ViewerError.h"
#include "viewer/WideText.h"

#include <algorithm>

namespace Viewer
{

namespace
{

void Need(bool done)
{
    if (!done) {
        throw Error{ExitCode::NoPicture,
                    u"the window can't be read back (" + SystemText(GetLastError()) + u")"};
    }
}

} // namespace

Capture::Capture(HWND window, Paint paint)
{
    RECT client{};
    GetClientRect(window, &client);
    m_width = client.right;
    m_height = client.bottom;
    MakeBitmap();
    Need(paint == Paint::Again ? CopyInPieces(window) : CopyPiece(window, client));
}

Capture::Capture(HWND behind, const std::vector<HWND>& windows)
{
    RECT area{};
    for (const HWND window : windows) {
        RECT place{};
        GetWindowRect(window, &place);
        UnionRect(&area, &area, &place);
    }
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    IntersectRect(&area, &area, &screen);
    m_width = area.right - area.left;
    m_height = area.bottom - area.top;
    MakeBitmap();
    Need(CopyFrame(behind, area));
    for (const HWND window : windows) {
        RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        Need(CopyFrame(window, area));
    }
}

void Capture::MakeBitmap()
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = BitsOfPixel;
    m_bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0));
    Need(m_bitmap != nullptr);
}

// What of a window with its frame lies in that part of the screen.
bool Capture::CopyFrame(HWND window, const RECT& area) const
{
    RECT place{};
    GetWindowRect(window, &place);
    const HDC source = GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
    const HDC target = CreateCompatibleDC(source);
    bool done = false;
    if (source && target) {
        const HGDIOBJ before = SelectObject(target, m_bitmap.get());
        done = BitBlt(target, place.left - area.left, place.top - area.top, place.right - place.left,
                      place.bottom - place.top, source, 0, 0, SRCCOPY) != FALSE;
        SelectObject(target, before);
        GdiFlush();
    }
    DeleteDC(target);
    ReleaseDC(window, source);
    return done;
}

// A window beyond the screen's edges has no pixels there, so it passes by in pieces.
bool Capture::CopyInPieces(HWND window) const
{
    const HWND frame = GetAncestor(window, GA_ROOT);
    const int stepX = GetSystemMetrics(SM_CXSCREEN);
    const int stepY = GetSystemMetrics(SM_CYSCREEN);
    for (int y = 0; y < m_height; y += stepY) {
        for (int x = 0; x < m_width; x += stepX) {
            SetWindowPos(frame, nullptr, -x, -y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            RedrawWindow(window, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            const RECT piece = {x, y, std::min(x + stepX, m_width), std::min(y + stepY, m_height)};
            if (!CopyPiece(window, piece))
                return false;
        }
    }
    return true;
}

bool Capture::CopyPiece(HWND window, const RECT& piece) const
{
    // Without the window's own clipping of its children.
    const HDC source = GetDCEx(window, nullptr, DCX_CACHE);
    const HDC target = CreateCompatibleDC(source);
    bool done = false;
    if (source && target) {
        const HGDIOBJ before = SelectObject(target, m_bitmap.get());
        done = BitBlt(target, piece.left, piece.top, piece.right - piece.left, piece.bottom - piece.top,
                      source, piece.left, piece.top, SRCCOPY) != FALSE;
        SelectObject(target, before);
        GdiFlush();
    }
    DeleteDC(target);
    ReleaseDC(window, source);
    return done;
}

} // namespace Viewer

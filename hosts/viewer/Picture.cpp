#include "viewer/Picture.h"

#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"
#include "viewer/WideText.h"

#include <objidl.h>

#include <algorithm>
#include <memory>

namespace Gdiplus
{ // its headers call these without their namespace
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace Viewer
{
namespace
{

constexpr CLSID pngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
constexpr int bitsOfPixel = 24;

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::NoPicture, std::move(text)};
}

class GdiplusSession
{
public:
    GdiplusSession()
    {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok) {
            Refuse(u"GDI+ can't be started");
        }
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

struct GdiDeleter {
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};

// What a window shows, row by row from the top, three bytes a pixel.
class Capture
{
public:
    explicit Capture(HWND window)
    {
        RECT client{};
        GetClientRect(window, &client);
        m_width = client.right;
        m_height = client.bottom;
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = m_width;
        info.bmiHeader.biHeight = -m_height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = bitsOfPixel;
        m_bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0));
        if (!m_bitmap || !Copy(window)) {
            Refuse(u"the window can't be read back (" + SystemText(GetLastError()) + u")");
        }
    }

    void Save(const std::u16string& path) const
    {
        const int stride = (m_width * bitsOfPixel + 31) / 32 * 4;
        Gdiplus::Bitmap picture(m_width, m_height, stride, PixelFormat24bppRGB,
                                static_cast<BYTE*>(m_bits));
        Gdiplus::Status status = picture.GetLastStatus();
        if (status == Gdiplus::Ok) {
            status = picture.Save(ToWide(path).c_str(), &pngEncoder, nullptr);
        }
        if (status != Gdiplus::Ok) {
            Refuse(u"can't write " + Quote(path) + u" (GDI+ status " +
                   ToText(static_cast<std::size_t>(status)) + u")");
        }
    }

private:
    // A window beyond the screen's edges has no pixels there, so it passes by in pieces.
    bool Copy(HWND window) const
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
                if (!CopyPiece(window, piece)) {
                    return false;
                }
            }
        }
        return true;
    }

    bool CopyPiece(HWND window, const RECT& piece) const
    {
        const HDC source = GetDC(window);
        const HDC target = CreateCompatibleDC(source);
        bool done = false;
        if (source && target) {
            const HGDIOBJ before = SelectObject(target, m_bitmap.get());
            done = BitBlt(target, piece.left, piece.top, piece.right - piece.left,
                          piece.bottom - piece.top, source, piece.left, piece.top, SRCCOPY) != FALSE;
            SelectObject(target, before);
            GdiFlush();
        }
        DeleteDC(target);
        ReleaseDC(window, source);
        return done;
    }

    int m_width = 0;
    int m_height = 0;
    void* m_bits = nullptr;
    std::unique_ptr<HBITMAP, GdiDeleter> m_bitmap;
};

} // namespace

void SaveWindowAsPng(HWND window, const std::u16string& path)
{
    const GdiplusSession session;
    Capture(window).Save(path);
}

} // namespace Viewer

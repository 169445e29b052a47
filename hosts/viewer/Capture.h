#pragma once
// What a window shows, read back from the screen.

#include <windows.h>

#include <memory>
#include <vector>

namespace Viewer
{

class Capture
{
public:
    enum class Paint {
        Again, // everything anew, in pieces if the window is larger than the screen
        AsIs   // what is there, with all that was drawn over the last frame
    };

    // The client area with its child windows. The window's frame is moved to the screen's corner for
    // it if it is painted again. Throws Error(NoPicture).
    Capture(HWND window, Paint paint);

    // Other windows with their frames, as they lie on the screen one over the other, the lowest first,
    // and what they leave free of the window behind them. Throws Error(NoPicture).
    Capture(HWND behind, const std::vector<HWND>& windows);

    // Rows from the top, three bytes a pixel (blue first), each row filled up to whole 4 bytes.
    [[nodiscard]] int Width() const noexcept { return m_width; }
    [[nodiscard]] int Height() const noexcept { return m_height; }
    [[nodiscard]] int Stride() const noexcept { return (m_width * BitsOfPixel + 31) / 32 * 4; }
    [[nodiscard]] const BYTE* Bits() const noexcept { return static_cast<const BYTE*>(m_bits); }

private:
    static constexpr int BitsOfPixel = 24;

    struct Deleter {
        using pointer = HGDIOBJ;
        void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
    };

    void MakeBitmap();
    bool CopyInPieces(HWND window) const;
    bool CopyPiece(HWND window, const RECT& piece) const;
    bool CopyFrame(HWND window, const RECT& area) const;

    int m_width = 0;
    int m_height = 0;
    void* m_bits = nullptr;
    std::unique_ptr<HBITMAP, Deleter> m_bitmap;
};

} // namespace Viewer

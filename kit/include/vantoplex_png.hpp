#pragma once
// Pictures of windows as PNG files, by the system's own codec. Part of vantoplex.hpp.

#include <windows.h>

#include <objbase.h>
#include <wincodec.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace vantoplex
{
namespace detail
{

// {CACAF262-9370-4615-A13B-9F5539DA4C0A} and {1B7CFAF4-713F-473C-BBCD-6137425FAEAF}
inline constexpr CLSID PictureFactory = {0xCACAF262, 0x9370, 0x4615, {0xA1, 0x3B, 0x9F, 0x55, 0x39, 0xDA, 0x4C, 0x0A}};
inline constexpr GUID PngContainer = {0x1B7CFAF4, 0x713F, 0x473C, {0xBB, 0xCD, 0x61, 0x37, 0x42, 0x5F, 0xAE, 0xAF}};
// {6FDDC324-4E03-4BFE-B185-3D77768DC90C}: 24 bits, blue first
inline constexpr GUID BlueGreenRed = {0x6FDDC324, 0x4E03, 0x4BFE, {0xB1, 0x85, 0x3D, 0x77, 0x76, 0x8D, 0xC9, 0x0C}};

template <class Interface> class Held
{
public:
    Held() noexcept = default;
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held()
    {
        if (m_raw)
            m_raw->Release();
    }
    Interface** Receive() noexcept { return &m_raw; }
    Interface* Get() const noexcept { return m_raw; }
    Interface* operator->() const noexcept { return m_raw; }

private:
    Interface* m_raw = nullptr;
};

// The pixels of a client area, rows from the top, three bytes a pixel, rows filled up to four.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<BYTE> bytes;
    std::size_t Stride() const noexcept { return (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4; }
};

inline bool ReadBits(HDC canvas, HBITMAP bitmap, Pixels& pixels)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = pixels.width;
    info.bmiHeader.biHeight = -pixels.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    pixels.bytes.resize(pixels.Stride() * static_cast<std::size_t>(pixels.height));
    return GetDIBits(canvas, bitmap, 0, static_cast<UINT>(pixels.height), pixels.bytes.data(), &info, DIB_RGB_COLORS) ==
           pixels.height;
}

// What a visible window shows, with its children; nothing of what covers it where the system
// composes windows.
inline bool ReadPixels(HWND window, Pixels& pixels)
{
    RECT area{};
    if (!IsWindowVisible(window) || !GetClientRect(window, &area) || area.right <= 0 || area.bottom <= 0)
        return false;
    pixels.width = area.right;
    pixels.height = area.bottom;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const HDC source = GetDCEx(window, nullptr, DCX_CACHE);
    const HDC canvas = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateCompatibleBitmap(source, pixels.width, pixels.height);
    const HGDIOBJ before = SelectObject(canvas, bitmap);
    const bool copied = BitBlt(canvas, 0, 0, pixels.width, pixels.height, source, 0, 0, SRCCOPY) != FALSE;
    SelectObject(canvas, before);
    const bool read = copied && ReadBits(canvas, bitmap, pixels);
    DeleteObject(bitmap);
    DeleteDC(canvas);
    ReleaseDC(window, source);
    return read;
}

inline HRESULT WriteFrame(IWICBitmapFrameEncode& frame, Pixels& pixels)
{
    GUID format = BlueGreenRed;
    HRESULT result = frame.Initialize(nullptr);
    if (SUCCEEDED(result))
        result = frame.SetSize(static_cast<UINT>(pixels.width), static_cast<UINT>(pixels.height));
    if (SUCCEEDED(result))
        result = frame.SetPixelFormat(&format);
    if (SUCCEEDED(result) && !IsEqualGUID(format, BlueGreenRed))
        result = E_NOTIMPL;
    if (SUCCEEDED(result))
        result = frame.WritePixels(static_cast<UINT>(pixels.height), static_cast<UINT>(pixels.Stride()),
                                   static_cast<UINT>(pixels.bytes.size()), pixels.bytes.data());
    return SUCCEEDED(result) ? frame.Commit() : result;
}

inline HRESULT WritePng(Pixels& pixels, const wchar_t* path)
{
    Held<IWICImagingFactory> factory;
    Held<IWICStream> stream;
    Held<IWICBitmapEncoder> encoder;
    Held<IWICBitmapFrameEncode> frame;
    HRESULT result = CoCreateInstance(PictureFactory, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IWICImagingFactory),
                                      reinterpret_cast<void**>(factory.Receive()));
    if (SUCCEEDED(result))
        result = factory->CreateStream(stream.Receive());
    if (SUCCEEDED(result))
        result = stream->InitializeFromFilename(path, GENERIC_WRITE);
    if (SUCCEEDED(result))
        result = factory->CreateEncoder(PngContainer, nullptr, encoder.Receive());
    if (SUCCEEDED(result))
        result = encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache);
    if (SUCCEEDED(result))
        result = encoder->CreateNewFrame(frame.Receive(), nullptr);
    if (SUCCEEDED(result))
        result = WriteFrame(*frame.Get(), pixels);
    return SUCCEEDED(result) ? encoder->Commit() : result;
}

} // namespace detail

// Paints the window anew and writes it with its children as a PNG file. E_INVALIDARG for one that
// isn't visible: a window for a picture that nobody is to see is shown and transparent
// (WS_EX_LAYERED with SetLayeredWindowAttributes and alpha 0).
inline HRESULT SavePng(HWND window, const wchar_t* path)
{
    detail::Pixels pixels;
    return detail::ReadPixels(window, pixels) ? detail::WritePng(pixels, path) : E_INVALIDARG;
}

} // namespace vantoplex

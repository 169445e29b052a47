#include "viewer/ClipboardCopy.h"

#include "viewer/Capture.h"
#include "viewer/ViewerError.h"
#include "viewer/WideText.h"

#include <cstring>

namespace Viewer
{
namespace
{

[[noreturn]] void Refuse(std::u16string_view what)
{
    throw Error{ExitCode::NoPicture, std::u16string(what) + u" (" + SystemText(GetLastError()) + u")"};
}

// Open and empty for as long as it lives.
class OpenedClipboard
{
public:
    explicit OpenedClipboard(HWND owner)
    {
        if (!OpenClipboard(owner))
            Refuse(u"the clipboard is in use");
        EmptyClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() { CloseClipboard(); }
};

// Of a picture whose rows come from the top.
BITMAPINFOHEADER HeaderOf(const Capture& capture)
{
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = capture.Width();
    header.biHeight = -capture.Height();
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biSizeImage = static_cast<DWORD>(capture.Stride()) * static_cast<DWORD>(capture.Height());
    return header;
}

} // namespace

void CopyAsBitmap(HWND owner, const Capture& capture)
{
    // Not every program reads rows from the top.
    BITMAPINFOHEADER header = HeaderOf(capture);
    header.biHeight = capture.Height();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof header + header.biSizeImage);
    auto* bytes = memory ? static_cast<BYTE*>(GlobalLock(memory)) : nullptr;
    if (!bytes) {
        GlobalFree(memory);
        Refuse(u"no memory for the picture");
    }
    std::memcpy(bytes, &header, sizeof header);
    const std::size_t stride = static_cast<std::size_t>(capture.Stride());
    for (int row = 0; row < capture.Height(); ++row) {
        const std::size_t from = static_cast<std::size_t>(capture.Height() - 1 - row);
        std::memcpy(bytes + sizeof header + static_cast<std::size_t>(row) * stride,
                    capture.Bits() + from * stride, stride);
    }
    GlobalUnlock(memory);

    const OpenedClipboard clipboard(owner);
    if (!SetClipboardData(CF_DIB, memory)) { // takes the memory over
        GlobalFree(memory);
        Refuse(u"the clipboard takes no picture");
    }
}

void CopyAsMetafile(HWND owner, const Capture& capture, const std::u16string& title)
{
    const HDC reference = GetDC(owner);
    // Hundredths of a millimetre.
    const RECT frame = {0, 0,
                        MulDiv(capture.Width(), GetDeviceCaps(reference, HORZSIZE) * 100,
                               GetDeviceCaps(reference, HORZRES)),
                        MulDiv(capture.Height(), GetDeviceCaps(reference, VERTSIZE) * 100,
                               GetDeviceCaps(reference, VERTRES))};
    std::wstring description = L"Vantoplex Viewer";
    description += L'\0' + ToWide(title) + L'\0';
    const HDC target = CreateEnhMetaFileW(reference, nullptr, &frame, description.c_str());
    ReleaseDC(owner, reference);
    if (!target)
        Refuse(u"no metafile can be made");
    BITMAPINFO info{};
    info.bmiHeader = HeaderOf(capture);
    StretchDIBits(target, 0, 0, capture.Width(), capture.Height(), 0, 0, capture.Width(),
                  capture.Height(), capture.Bits(), &info, DIB_RGB_COLORS, SRCCOPY);
    const HENHMETAFILE metafile = CloseEnhMetaFile(target);

    const OpenedClipboard clipboard(owner);
    if (!metafile || !SetClipboardData(CF_ENHMETAFILE, metafile)) {
        DeleteEnhMetaFile(metafile);
        Refuse(u"the clipboard takes no metafile");
    }
}

} // namespace Viewer

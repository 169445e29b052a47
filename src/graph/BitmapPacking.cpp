#include "graph/BitmapPacking.h"

#include "graph/DibFormat.h"

#include <limits>
#include <utility>

namespace BitmapPacking
{

namespace
{

// The screen with a palette selected and realised.
class ScreenWithPalette
{
public:
    explicit ScreenWithPalette(HPALETTE hPalette) noexcept
        : m_hDC(::GetDC(nullptr)), m_hOldPalette(::SelectPalette(m_hDC, hPalette, FALSE))
    {
        ::RealizePalette(m_hDC);
    }
    ScreenWithPalette(const ScreenWithPalette&) = delete;
    ScreenWithPalette& operator=(const ScreenWithPalette&) = delete;
    ~ScreenWithPalette()
    {
        if (m_hOldPalette)
            ::SelectPalette(m_hDC, m_hOldPalette, TRUE);
        ::RealizePalette(m_hDC);
        ::ReleaseDC(nullptr, m_hDC);
    }

    operator HDC() const noexcept { return m_hDC; }

private:
    HDC m_hDC;
    HPALETTE m_hOldPalette;
};

BITMAPINFOHEADER HeaderOf(const BITMAP& bitmap) noexcept
{
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = bitmap.bmWidth;
    header.biHeight = bitmap.bmHeight;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bitmap.bmPlanes * bitmap.bmBitsPixel);
    header.biCompression = BI_RGB;
    return header;
}

// Asks the driver first. It may write a table or masks behind the header, hence the room.
// 0 for a failure.
std::uint64_t ImageSizeOf(HDC hScreen, HBITMAP hBitmap, const BITMAPINFOHEADER& header) noexcept
{
    struct {
        BITMAPINFOHEADER bmiHeader;
        RGBQUAD bmiColors[256];
    } info = {header, {}};
    if (::GetDIBits(hScreen, hBitmap, 0, static_cast<UINT>(header.biHeight), nullptr,
                    reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS) == 0)
        return 0;
    if (info.bmiHeader.biSizeImage != 0)
        return info.bmiHeader.biSizeImage;
    return DibFormat::ImageSize(static_cast<std::uint32_t>(header.biWidth),
                                static_cast<std::uint32_t>(header.biHeight), header.biBitCount);
}

BITMAPINFO* InfoOf(const Block& block) noexcept
{
    return reinterpret_cast<BITMAPINFO*>(block.GetData());
}

} // namespace

// Fixed memory, so the handle is the address.
Block::Block(std::size_t nSize) noexcept : m_hGlobal(::GlobalAlloc(GPTR, nSize)) {}

Block::Block(Block&& other) noexcept : m_hGlobal(std::exchange(other.m_hGlobal, nullptr)) {}

Block::~Block()
{
    if (m_hGlobal)
        ::GlobalFree(m_hGlobal);
}

bool Block::Grow(std::size_t nSize) noexcept
{
    const HGLOBAL hGrown = ::GlobalReAlloc(m_hGlobal, nSize, GMEM_MOVEABLE | GMEM_ZEROINIT);
    if (!hGrown)
        return false;
    m_hGlobal = hGrown;
    return true;
}

std::size_t Block::GetSize() const noexcept
{
    return ::GlobalSize(m_hGlobal);
}

Block Pack(const CBitmap& bitmap, const CPalette& palette)
{
    BITMAP record = {};
    if (bitmap.GetObject(sizeof record, &record) == 0)
        return {};
    const BITMAPINFOHEADER header = HeaderOf(record);
    const std::uint32_t nHeadSize = DibFormat::HeadSize(header.biBitCount);
    Block block(nHeadSize);
    if (!block)
        return {};
    block.GetHeader() = header;

    const HPALETTE hPalette = static_cast<HPALETTE>(palette.GetSafeHandle());
    const ScreenWithPalette screen(hPalette ? hPalette
                                            : static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)));
    const auto nLines = static_cast<UINT>(header.biHeight);
    const std::uint64_t nImageSize = ImageSizeOf(screen, bitmap, header);
    if (nImageSize == 0 || nImageSize > std::numeric_limits<DWORD>::max() - nHeadSize)
        return {};
    block.GetHeader().biSizeImage = static_cast<DWORD>(nImageSize);
    if (!block.Grow(nHeadSize + static_cast<std::size_t>(nImageSize)))
        return {};
    if (::GetDIBits(screen, bitmap, 0, nLines, block.GetData() + nHeadSize, InfoOf(block),
                    DIB_RGB_COLORS) == 0)
        return {};
    return block;
}

} // namespace BitmapPacking

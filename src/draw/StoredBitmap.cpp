#include "draw/StoredBitmap.h"

#include <cstring>

namespace StoredBitmap
{
namespace
{
constexpr std::int64_t MostBytes = 0x7FFFFFFF;
constexpr std::int64_t MostPadding = 32;

// Bytes of one row of a device-dependent bitmap.
std::int64_t PackedRow(const THeader& header)
{
    const std::int64_t bits = std::int64_t{header.width} * header.bitsPixel;
    return (bits + 15) / 16 * 2;
}

bool IsDepth(std::uint16_t planes, std::uint16_t bitsPixel)
{
    if (planes != 1)
        return false;
    switch (bitsPixel) {
    case 1:
    case 4:
    case 8:
    case 16:
    case 24:
    case 32:
        return true;
    default:
        return false;
    }
}
} // namespace

bool IsNone(const THeader& header) noexcept
{
    return header == THeader{};
}

bool IsPossible(const THeader& header) noexcept
{
    if (header.type != 0 || header.width <= 0 || header.height <= 0)
        return false;
    if (!IsDepth(header.planes, header.bitsPixel) || header.widthBytes % 2 != 0)
        return false;
    const std::int64_t packed = PackedRow(header);
    if (header.widthBytes < packed || header.widthBytes > packed + MostPadding)
        return false;
    return std::int64_t{header.widthBytes} * header.height <= MostBytes;
}

std::size_t ByteCount(const THeader& header) noexcept
{
    return static_cast<std::size_t>(header.widthBytes) * static_cast<std::size_t>(header.height);
}

void PackRows(THeader& header, std::vector<std::uint8_t>& bits)
{
    const auto packed = static_cast<std::size_t>(PackedRow(header));
    const auto stored = static_cast<std::size_t>(header.widthBytes);
    if (packed == stored)
        return;
    const auto rows = static_cast<std::size_t>(header.height);
    for (std::size_t row = 1; row < rows; ++row)
        std::memmove(bits.data() + row * packed, bits.data() + row * stored, packed);
    bits.resize(packed * rows);
    header.widthBytes = static_cast<std::int32_t>(packed);
}
} // namespace StoredBitmap

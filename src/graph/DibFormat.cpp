#include "graph/DibFormat.h"

namespace DibFormat
{

namespace
{

void Put(std::byte* pTarget, std::uint32_t nValue, int nBytes) noexcept
{
    for (int i = 0; i < nBytes; ++i)
        pTarget[i] = static_cast<std::byte>(nValue >> (8 * i));
}

} // namespace

std::uint32_t ColorCount(std::uint32_t nBitCount) noexcept
{
    return nBitCount <= 8 ? 1u << nBitCount : 0;
}

std::uint32_t HeadSize(std::uint32_t nBitCount) noexcept
{
    return InfoHeaderSize + 4 * ColorCount(nBitCount);
}

std::uint64_t ImageSize(std::uint32_t nWidth, std::uint32_t nHeight, std::uint32_t nBitCount) noexcept
{
    const std::uint64_t bits = std::uint64_t{nWidth} * nBitCount + 31;
    return (bits & ~std::uint64_t{31}) / 8 * nHeight;
}

std::uint32_t OffsetOfBits(std::uint32_t nHeaderSize, std::uint32_t nBitCount) noexcept
{
    return nHeaderSize + FileHeaderSize + 4 * (1u << (nBitCount % 32));
}

std::array<std::byte, FileHeaderSize> FileHeader(std::uint32_t nBlockSize, std::uint32_t nHeaderSize,
                                                 std::uint32_t nBitCount) noexcept
{
    std::array<std::byte, FileHeaderSize> bytes{};
    Put(&bytes[0], 0x4D42, 2);
    Put(&bytes[2], nBlockSize + FileHeaderSize, 4);
    Put(&bytes[10], OffsetOfBits(nHeaderSize, nBitCount), 4);
    return bytes;
}

} // namespace DibFormat

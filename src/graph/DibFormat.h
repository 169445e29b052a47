#pragma once
// Sizes and the file header of a device-independent bitmap that is packed into one block:
// header, colour table, bits. Little-endian, without padding.

#include <array>
#include <cstddef>
#include <cstdint>

namespace DibFormat
{

inline constexpr std::uint32_t InfoHeaderSize = 40;
inline constexpr std::uint32_t FileHeaderSize = 14;

// Colours in the table: as many as a pixel can name, if that is 256 at most, else none.
[[nodiscard]] std::uint32_t ColorCount(std::uint32_t nBitCount) noexcept;

// Header and colour table, in bytes.
[[nodiscard]] std::uint32_t HeadSize(std::uint32_t nBitCount) noexcept;

// Bytes of the bits, rows rounded up to whole 32-bit words. 64 bits hold any bitmap's size.
[[nodiscard]] std::uint64_t ImageSize(std::uint32_t nWidth, std::uint32_t nHeight,
                                      std::uint32_t nBitCount) noexcept;

// bfOffBits = header size + 14 + 4 * (1 << bit count modulo 32). Right for palette depths; the
// one formula serves all depths, so readers of deeper pictures go by the header's own sizes.
[[nodiscard]] std::uint32_t OffsetOfBits(std::uint32_t nHeaderSize, std::uint32_t nBitCount) noexcept;

// The 14 bytes before the block.
[[nodiscard]] std::array<std::byte, FileHeaderSize>
FileHeader(std::uint32_t nBlockSize, std::uint32_t nHeaderSize, std::uint32_t nBitCount) noexcept;

} // namespace DibFormat

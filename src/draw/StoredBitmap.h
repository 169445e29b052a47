#pragma once
// The header of a stored bitmap: which sizes can be, and how its rows lie.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace StoredBitmap
{
struct THeader {
    std::int32_t type = 0;
    std::int32_t width = 0;      // pixels
    std::int32_t height = 0;     // rows
    std::int32_t widthBytes = 0; // bytes from one row to the next
    std::uint16_t planes = 0;
    std::uint16_t bitsPixel = 0;
    friend bool operator==(const THeader&, const THeader&) = default;
};

// The header of no bitmap at all: zeros.
[[nodiscard]] bool IsNone(const THeader& header) noexcept;

// Type 0; width and height above 0; one of the platform's depths; a row that holds its
// pixels, in an even number of bytes, with at most the padding to 32 bytes; and no more than
// 2^31 - 1 bytes in all.
[[nodiscard]] bool IsPossible(const THeader& header) noexcept;

// Of a possible header.
[[nodiscard]] std::size_t ByteCount(const THeader& header) noexcept;

// A device-independent bitmap pads its rows to 4 bytes, a device-dependent one, which is
// what loading makes, to 2: takes the surplus out and corrects header.widthBytes.
void PackRows(THeader& header, std::vector<std::uint8_t>& bits);
} // namespace StoredBitmap

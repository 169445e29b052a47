#pragma once
// The named colours of the popup, in the order of its cells: 8 a row.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ColourTable
{

struct TEntry {
    std::u16string_view name; // the cell's tool tip
    std::uint32_t colour;     // 0x00BBGGRR
};

inline constexpr int Count = 40;
extern const std::array<TEntry, Count> Entries;

// The first cell with that colour.
[[nodiscard]] std::optional<int> Find(std::uint32_t colour) noexcept;

} // namespace ColourTable

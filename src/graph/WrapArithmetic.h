#pragma once
// Sums of pixels as the machine forms them: settings come from outside without a test of
// their size, and a sum that leaves the 32 bits wraps.

#include <cstdint>

[[nodiscard]] constexpr std::int32_t WrapAdd(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t WrapSubtract(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

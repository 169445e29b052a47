#pragma once
// Integer arithmetic as the machine does it: what leaves the 32 bits wraps. Settings come from
// outside without a test of their size, and a bar may be as high as the smallest int; each sum must
// have one result on every build. The result has the type of the first operand.

#include <concepts>
#include <cstdint>

namespace Wrap
{

template <typename T>
concept Int32 = std::signed_integral<T> && sizeof(T) == sizeof(std::int32_t);

template <Int32 T, Int32 U> [[nodiscard]] constexpr T Add(T a, U b) noexcept
{
    return static_cast<T>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

template <Int32 T, Int32 U> [[nodiscard]] constexpr T Subtract(T a, U b) noexcept
{
    return static_cast<T>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

template <Int32 T, Int32 U> [[nodiscard]] constexpr T Multiply(T a, U b) noexcept
{
    return static_cast<T>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace Wrap

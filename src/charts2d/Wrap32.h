#pragma once
// Pixel arithmetic that wraps at 32 bits. A bar's height may be the smallest int (a value
// over a scale of nothing), and what is added to it must have one result on every build.

#include <cstdint>

namespace Wrap32
{

[[nodiscard]] constexpr std::int32_t Add(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t Sub(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr std::int32_t Mul(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace Wrap32

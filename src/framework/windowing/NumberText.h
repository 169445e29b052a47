#pragma once
// Numbers that a user types into an edit control. Blanks and tabs may surround them,
// nothing else. The decimal sign is the point whatever the system's settings are, and there
// is no sign between thousands.

#include <cstdint>
#include <optional>
#include <string_view>

namespace NumberText
{

// Whole numbers beyond the type are its nearest end, so that a check of limits refuses them.
[[nodiscard]] std::optional<std::int32_t> ParseInteger(std::u16string_view text) noexcept;
// Without a minus sign.
[[nodiscard]] std::optional<std::uint32_t> ParseUnsigned(std::u16string_view text) noexcept;
// Digits with at most one point, and an exponent. Numbers too large for a double are refused,
// those too small are 0.
[[nodiscard]] std::optional<double> ParseReal(std::u16string_view text);

} // namespace NumberText

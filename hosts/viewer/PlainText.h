#pragma once
// Small helpers for UTF-16 text.

#include <cstddef>
#include <string>
#include <string_view>

namespace Viewer
{

[[nodiscard]] std::u16string ToText(std::size_t number);
[[nodiscard]] std::u16string Quote(std::u16string_view name); // in double quotes, cut to a sane length
[[nodiscard]] std::u16string_view TrimBlanks(std::u16string_view text);
[[nodiscard]] bool EqualsIgnoringCase(std::u16string_view one,
                                      std::u16string_view other); // ASCII letters

} // namespace Viewer

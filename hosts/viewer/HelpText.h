#pragma once
// What the program says about itself.

#include <string_view>

namespace Viewer
{

[[nodiscard]] std::u16string_view HelpText() noexcept; // of --help
[[nodiscard]] std::u16string_view KeysText() noexcept; // keys and mouse in the XY graph
[[nodiscard]] std::u16string_view VersionText() noexcept;

} // namespace Viewer

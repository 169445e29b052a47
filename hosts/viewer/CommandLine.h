#pragma once
// What the person who starts the viewer asks for.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

struct Options {
    std::u16string file; // empty: ask for one
    std::optional<std::u16string> x;
    std::vector<std::u16string> y;  // columns on the first Y axis; empty: all numeric ones
    std::vector<std::u16string> y2; // columns on the second Y axis
    std::optional<std::u16string> group;
    std::u16string png; // empty: a window for a person
    int width = 800;    // of the client area, in pixels
    int height = 600;
    bool points = false;
    bool legend = true;
    bool registered = false;
    bool help = false;
    bool version = false;
};

// `arguments` without the program's name. Throws Error(BadCommandLine).
[[nodiscard]] Options ParseCommandLine(std::span<const std::u16string> arguments);

// The text of --help.
[[nodiscard]] std::u16string_view HelpText() noexcept;

} // namespace Viewer

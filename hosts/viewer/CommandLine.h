#pragma once
// What the person who starts the viewer asks for.

#include "viewer/ChartOptions.h"

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
    std::u16string png;    // empty: a window for a person
    std::u16string script; // empty: a person works with the window
    int width = 800;       // of the client area, in pixels
    int height = 600;
    bool points = false;
    bool legend = true;
    bool registered = false;
    bool help = false;
    bool version = false;

    ChartKind chart = ChartKind::Graph;
    std::u16string title; // of bar, line and pie charts; empty: the file's name
    std::u16string subtitle;
    std::u16string pick;      // the one category that a pie shows; empty: all of them, summed
    std::u16string animation; // a word of Animations(); empty: still
    int tick = -1;            // ticks of the animation before the picture; -1: it runs
    bool gradient = false;
    PieStyle style = PieStyle::Solid;
    PieOrder order = PieOrder::AsRead;
    int tilt = 50;  // degrees, 0 to 85
    int start = 0;  // degrees, 0 to 359
    int depth = 60; // of the wall at full tilt, in pixels
};

// `arguments` without the program's name. Throws Error(BadCommandLine).
[[nodiscard]] Options ParseCommandLine(std::span<const std::u16string> arguments);

} // namespace Viewer

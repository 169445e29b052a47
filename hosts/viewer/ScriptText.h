#pragma once
// The text of a script as steps. Nothing is run here.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

enum class Verb {
    Mode,
    Command,
    Click,
    DoubleClick,
    RightClick,
    Move,
    Drag,
    Hold,
    Release,
    Wheel,
    Key,
    Type,
    Save,
    Load,
    Picture,
    Window,
    Print,
    Choose, // these are about dialogs
    Page,
    Set,
    Press,
    Read,
    Dialog
};

// One coordinate of the chart's window.
struct Coordinate {
    enum class Unit { Pixels, Percent, OnCurve };
    Unit unit = Unit::Pixels;
    double value = 0; // pixels, percent of the width or height, or the index of a curve
};

struct Place {
    Coordinate x;
    Coordinate y;
};

struct Step {
    Verb verb;
    std::size_t line; // of the script, counted from 1
    std::vector<Place> places;
    std::u16string text; // a word, a file or what is typed
    // Notches of the wheel, the number of a command (text is empty then), of a menu's item or of a
    // dialog's control.
    int number = 0;
};

// Empty lines and lines that start with "#" are left out. Throws Error(BadCommandLine) that names
// the line.
[[nodiscard]] std::vector<Step> ParseScript(std::u16string_view text);

} // namespace Viewer

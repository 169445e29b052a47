#pragma once
// What ends the program early: an exit code and a sentence for the person who started it.

#include <string>

namespace Viewer
{

enum class ExitCode : int {
    Done = 0,
    BadData = 1,        // the file can't be read, or holds nothing to plot
    BadCommandLine = 2, // an unknown option, a missing or senseless value
    NoServer = 3,       // the chart server can't be started
    NoPicture = 4       // the picture can't be drawn or written
};

struct Error {
    ExitCode exitCode;
    std::u16string text;
};

} // namespace Viewer

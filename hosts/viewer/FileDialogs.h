#pragma once
// Asking a person for files. An empty name: the person doesn't want to.

#include <windows.h>

#include <string>

namespace Viewer
{

[[nodiscard]] std::u16string AskForCsv(HWND owner);
[[nodiscard]] std::u16string AskForGraph(HWND owner);
[[nodiscard]] std::u16string AskForPng(HWND owner);

struct GraphTarget {
    std::u16string path;
    unsigned sections = 0; // XGRAPH_PERSIST
};

[[nodiscard]] GraphTarget AskForGraphTarget(HWND owner);

} // namespace Viewer

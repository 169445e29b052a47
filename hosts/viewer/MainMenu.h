#pragma once
// The viewer's menus, and what is checked and enabled in them.

#include "viewer/ChartOptions.h"

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

struct MenuState {
    ChartKind kind = ChartKind::Graph;
    std::u16string_view animation;
    PieStyle style = PieStyle::Solid;
    PieOrder order = PieOrder::AsRead;
    int span = 0; // index of MenuCommand::spans
    bool follows = false;
    std::vector<std::u16string> recent; // files

    // Of an XY graph.
    int operation = 0;
    bool legend = false;
    bool snap = false;
    std::vector<std::u16string> curves;
    int curve = -1;
};

// For MainWindow, which owns it then.
[[nodiscard]] HMENU MakeMainMenu();
// To be destroyed by the caller.
[[nodiscard]] HMENU MakeGraphPopup();

// For either of the two.
void UpdateMenu(HMENU menu, const MenuState& state);

// Ctrl+O and the like. To be destroyed by the caller.
[[nodiscard]] HACCEL MakeAccelerators();

} // namespace Viewer

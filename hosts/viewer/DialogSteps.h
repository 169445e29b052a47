#pragma once
// What a script does with the dialogs of a chart: they run loops of their own, and are reached from
// inside of them as a person would, by controls, mouse and keys.

#include "viewer/ViewerError.h"

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace Viewer::Dialogs
{

// The dialog or message box of this thread that takes input; null if there is none.
[[nodiscard]] HWND Open() noexcept;
// The popup menu that is open; null if there is none.
[[nodiscard]] HWND OpenMenu() noexcept;
// Every window of this thread that is seen over `frame`, the lowest first.
[[nodiscard]] std::vector<HWND> Over(HWND frame);

// The following throw a text that says what was not found.
void TurnTo(HWND dialog, std::u16string_view page);
// A text for an edit, "on" or "off" for a check box, the number of a row, from 1, for a list.
void Set(HWND dialog, int id, const std::u16string& value);
void Press(HWND dialog, int id);
[[nodiscard]] std::u16string Read(HWND dialog, int id);
void Choose(HWND menu, int item);

} // namespace Viewer::Dialogs

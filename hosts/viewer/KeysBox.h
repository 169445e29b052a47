#pragma once
// The box of keys and mouse: two columns, with a heading for each mode.

#include <windows.h>

namespace Viewer
{

// Returns when the person has closed it.
void ShowKeys(HWND owner);

} // namespace Viewer

#pragma once
// A window's contents as a PNG file.

#include <windows.h>

#include <string>

namespace Viewer
{

// Paints the window, which is shown at its frame's top left corner, and writes what is then in it.
// The frame is moved about for that if it is larger than the screen. Throws Error(NoPicture).
void SaveWindowAsPng(HWND window, const std::u16string& path);

} // namespace Viewer

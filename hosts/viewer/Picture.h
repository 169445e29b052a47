#pragma once
// A window's contents as a PNG file.

#include <windows.h>

#include <string>

namespace Viewer
{

// Paints the window, which is shown, and writes what is then in it. Throws Error(NoPicture).
void SaveWindowAsPng(HWND window, const std::u16string& path);

} // namespace Viewer

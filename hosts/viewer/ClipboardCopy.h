#pragma once
// A captured window on the clipboard.

#include <windows.h>

#include <string>

namespace Viewer
{

class Capture;

// Both throw Error(NoPicture). `owner` is a window of ours.
void CopyAsBitmap(HWND owner, const Capture& capture);                                // CF_DIB
void CopyAsMetafile(HWND owner, const Capture& capture, const std::u16string& title); // CF_ENHMETAFILE

} // namespace Viewer

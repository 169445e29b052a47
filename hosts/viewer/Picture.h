#pragma once
// A captured window as a PNG file.

#include <string>

namespace Viewer
{

class Capture;

// Throws Error(NoPicture).
void SaveAsPng(const Capture& capture, const std::u16string& path);

} // namespace Viewer

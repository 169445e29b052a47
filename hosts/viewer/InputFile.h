#pragma once
// The file that is plotted.

#include <windows.h>

#include <string>

namespace Viewer
{

// All bytes of a file of at most 256 MB. Throws Error(BadData).
[[nodiscard]] std::string ReadWholeFile(const std::u16string& path);

// "C:\data\co2.csv" to "co2.csv".
[[nodiscard]] std::u16string NameOfFile(const std::u16string& path);

} // namespace Viewer

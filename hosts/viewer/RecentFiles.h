#pragma once
// The CSV files that were opened last, kept in the person's registry.

#include <cstddef>
#include <string>
#include <vector>

namespace Viewer::RecentFiles
{

constexpr std::size_t Most = 8;

// The last one first. Empty where nothing is kept or it can't be read.
[[nodiscard]] std::vector<std::u16string> List();

// Puts the file's full path first. A file that is there already moves.
void Add(const std::u16string& path);

} // namespace Viewer::RecentFiles

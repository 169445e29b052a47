#pragma once
// Two outputs of the net, compared line by line.

#include <string>

namespace Comparison
{
// Prints the first places where the second file differs from the first, each with the step that
// it belongs to. Returns 0 if there are none, 1 if there are, 2 if a file can't be read.
int Print(const std::wstring& before, const std::wstring& after);
} // namespace Comparison

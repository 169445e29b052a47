#pragma once
// The ratios that the product has to keep, and whether this run kept them.

#include <string>

namespace Goals
{
// Prints nothing by itself. A ratio is kept if it is at most the given one.
void Expect(const std::string& what, double ratio, double most);

// Prints all of them. Returns how many were missed.
int Print();
} // namespace Goals

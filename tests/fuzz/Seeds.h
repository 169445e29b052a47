#pragma once
// The whole graph files that mutation starts from.

#include <string>
#include <vector>

[[nodiscard]] std::vector<std::string> SeedFiles();
// A file that puts a graph's settings back to those it starts with.
[[nodiscard]] std::string DefaultSettings();

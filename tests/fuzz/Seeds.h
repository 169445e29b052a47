#pragma once
// The whole graph files that mutation starts from.

#include <string>
#include <vector>

[[nodiscard]] std::vector<std::string> SeedFiles();

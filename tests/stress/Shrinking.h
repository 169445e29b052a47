#pragma once
// A run of a seed in a process of its own, and the search for its shortest failing part.

#include <string>
#include <vector>

namespace Shrinking
{
struct TRun {
    std::wstring dll;
    std::wstring log;
    int nSeed;
    int nSteps;
};

// "3,17,40", or all of nSteps for an empty text.
[[nodiscard]] std::vector<int> Steps(const std::wstring& only, int nSteps);

// Whether the run comes to its end; all steps for an empty list.
[[nodiscard]] bool Survives(const TRun& run, const std::vector<int>& steps);

// The last lines of what the run wrote.
void PrintEnd(const TRun& run);
void PrintShortest(const TRun& run);
} // namespace Shrinking

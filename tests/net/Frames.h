#pragma once
// Random graphs and their frames, printed as checksums.

#include "Host.h"
#include "Report.h"

#include <cstdint>
#include <string>

namespace Frames
{
struct TPlan {
    int nGraphs = 0;
    int nFirst = 0; // number of the first graph: each depends on its number and the seed alone
    std::uint64_t seed = 1;
    bool bBare = false;
    std::wstring pictures; // folder that gets every frame as a BMP file, or empty
};

void Run(const Server& server, Report& report, const TPlan& plan);
} // namespace Frames

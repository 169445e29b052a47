#pragma once
// Median times, in milliseconds.

#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace Stopwatch
{

[[nodiscard]] inline double Milliseconds()
{
    static const double frequency = [] {
        LARGE_INTEGER ticks;
        ::QueryPerformanceFrequency(&ticks);
        return static_cast<double>(ticks.QuadPart);
    }();
    LARGE_INTEGER now;
    ::QueryPerformanceCounter(&now);
    return 1000.0 * static_cast<double>(now.QuadPart) / frequency;
}

// Of an odd number of runs, after one that nobody counts. Stops early, with three runs at
// least, when the whole takes longer than a second or two.
[[nodiscard]] inline double Median(int nRuns, const std::function<void()>& run)
{
    constexpr double kLimit = 2000.0;
    run();
    std::vector<double> times;
    const double start = Milliseconds();
    while (static_cast<int>(times.size()) < nRuns &&
           (times.size() < 3 || Milliseconds() - start < kLimit)) {
        const double before = Milliseconds();
        run();
        times.push_back(Milliseconds() - before);
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

} // namespace Stopwatch

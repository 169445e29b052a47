#pragma once
// Times in milliseconds.

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

// What a busy machine adds is left out of the lowest tenth; the median is what a user sees.
struct TTimes {
    double low = 0;
    double median = 0;
};

[[nodiscard]] inline TTimes Of(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return {times[times.size() / 10], times[times.size() / 2]};
}

// Runs the cases in turns, so that all of them meet the same machine, after one round that nobody
// counts. Stops early, with three rounds at least, when the whole takes longer than some seconds.
[[nodiscard]] inline std::vector<TTimes> InTurns(int nRuns,
                                                 const std::vector<std::function<void()>>& cases,
                                                 const std::function<void()>& between = {})
{
    constexpr double limit = 4000.0;
    std::vector<std::vector<double>> times(cases.size());
    const double start = Milliseconds();
    for (int nRun = -1; nRun < nRuns && (nRun < 3 || Milliseconds() - start < limit); ++nRun) {
        for (std::size_t i = 0; i < cases.size(); ++i) {
            if (between)
                between();
            const double before = Milliseconds();
            cases[i]();
            if (nRun >= 0)
                times[i].push_back(Milliseconds() - before);
        }
    }
    std::vector<TTimes> results;
    for (std::vector<double>& one : times)
        results.push_back(Of(std::move(one)));
    return results;
}

[[nodiscard]] inline TTimes Measure(int nRuns, const std::function<void()>& run,
                                    const std::function<void()>& between = {})
{
    return InTurns(nRuns, {run}, between).front();
}

[[nodiscard]] inline double Median(int nRuns, const std::function<void()>& run)
{
    return Measure(nRuns, run).median;
}

// What a host does that has nothing to do: the display catches up.
inline void WaitForMessages()
{
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 3, QS_ALLINPUT);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

} // namespace Stopwatch

#pragma once
// Points for the curves of the script, the same in every run.

#include "Host.h"

#include <cmath>
#include <vector>

enum class Scale { linear, log, date };

namespace Data
{
// From x = 0 to 10 on a linear axis, 1 to 1000 on a log axis, over ten days on a date axis.
inline double XAt(Scale scale, double part)
{
    switch (scale) {
    case Scale::log:
        return std::exp2(10 * part);
    case Scale::date:
        return 40000.25 + 10 * part;
    default:
        return 10 * part;
    }
}

// y from 1 to 100 in waves, or all positive on a log axis.
inline std::vector<TDataPoint> Wave(Scale scale, int nCount, double phase)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < nCount; ++i) {
        const double part = static_cast<double>(i) / (nCount - 1);
        const double wave = part * (1 - part) * 4 * ((i % 7) + phase) / 8;
        points.push_back({XAt(scale, part), 1 + 99 * wave});
    }
    return points;
}
} // namespace Data

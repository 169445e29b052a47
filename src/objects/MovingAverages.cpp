#include "objects/MovingAverages.h"

#include "base/Wrap.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace MovingAverages
{
namespace
{
// Walks the points behind the first; value(i, w) returns the average at i over a window of w.
template <class Value>
void Walk(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average, Value value)
{
    if (points.empty())
        return;
    average[0] = points[0];
    const int count = static_cast<int>(points.size());
    for (int i = 1; i < count; ++i) {
        average[i].fXVal = points[i].fXVal;
        average[i].fYVal = value(i, std::min(i, span));
    }
}

// How many values the widest window holds.
int WidestWindow(std::span<const TDataPoint> points, int span) noexcept
{
    return std::clamp(span, 0, static_cast<int>(std::max<std::size_t>(points.size(), 1)) - 1);
}
} // namespace

void Simple(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept
{
    Walk(points, span, average, [points](int i, int w) {
        double sum = 0.0;
        for (int j = 0; j < w; ++j)
            sum += points[i - j].fYVal;
        return sum / w;
    });
}

void Exponential(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept
{
    const double k = 2.0 / (span + 1.0);
    Walk(points, span, average, [points, average, k](int i, int) {
        return k * points[i].fYVal + (1.0 - k) * average[i - 1].fYVal;
    });
}

void Linear(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept
{
    Walk(points, span, average, [points](int i, int w) {
        double sum = 0.0;
        double weights = 0.0;
        for (int j = 0; j < w; ++j) {
            const double weight = w - j;
            sum += weight * points[i - j].fYVal;
            weights += weight;
        }
        return sum / weights;
    });
}

void Triangular(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average)
{
    // The weights depend on w alone, so once the window is full they stay.
    std::vector<double> weights(static_cast<std::size_t>(WidestWindow(points, span)));
    int made = 0;
    double total = 0.0;
    Walk(points, span, average, [&](int i, int w) {
        if (w > made) {
            const double centre = (w + 1) * 0.5;
            total = 0.0;
            for (int j = 1; j <= w; ++j) {
                weights[j - 1] = (1.0 - std::fabs((j - centre) / centre)) * w;
                total += weights[j - 1];
            }
            made = w;
        }
        double sum = 0.0;
        for (int j = 1; j <= w; ++j)
            sum += weights[j - 1] * points[i - j + 1].fYVal;
        return sum / total;
    });
}

void SineWeighted(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average)
{
    const double angle = 3.14159265358979 / Wrap::Add(span, 1);
    const int widest = WidestWindow(points, span);
    std::vector<double> weights(static_cast<std::size_t>(widest) + 1); // sin(j * angle) at j
    std::vector<double> totals(weights.size());                        // of the weights 1..w at w
    for (int j = 1; j <= widest; ++j) {
        weights[j] = std::sin(j * angle);
        totals[j] = totals[j - 1] + weights[j];
    }
    Walk(points, span, average, [&](int i, int w) {
        double sum = 0.0;
        for (int j = w; j >= 1; --j)
            sum += weights[j] * points[i - (w - j)].fYVal;
        return sum / (w > 0 ? totals[w] : 0.0);
    });
}
} // namespace MovingAverages

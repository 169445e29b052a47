#include "Floors.h"

#include "base/Trunc.h"

#include <algorithm>
#include <cstring>

namespace Floors
{

namespace
{

constexpr int Width = 800;
constexpr int Height = 600;

// The data's extent as the benchmark makes it: x from 0 up by 1, y about -1.1 to 1.1.
constexpr double Low = -1.1;
constexpr double High = 1.1;

} // namespace

std::uint32_t MapAll(std::span<const TDataPoint> points)
{
    const double kx = Width / points.back().fXVal;
    const double ky = Height / (High - Low);
    std::uint32_t sum = 0;
    for (const TDataPoint& point : points) {
        const std::int32_t x = Trunc(kx * point.fXVal + 0.0);
        const std::int32_t y = Trunc(Height - ky * (point.fYVal - Low));
        sum += static_cast<std::uint32_t>(x) ^ static_cast<std::uint32_t>(y);
    }
    return sum;
}

std::uint32_t FindColumns(std::span<const TDataPoint> points)
{
    const double kx = Width / points.back().fXVal;
    std::uint32_t sum = 0;
    for (int column = 0; column < Width; ++column) {
        const auto first =
            std::partition_point(points.begin(), points.end(), [&](const TDataPoint& point) {
                return Trunc(kx * point.fXVal + 0.0) < column;
            });
        sum += static_cast<std::uint32_t>(first - points.begin());
    }
    return sum;
}

std::uint32_t Copy(std::span<const TDataPoint> points, std::span<TDataPoint> target)
{
    std::memcpy(target.data(), points.data(), points.size_bytes());
    return static_cast<std::uint32_t>(target.back().fXVal);
}

} // namespace Floors

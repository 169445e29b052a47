#include "charts2d/LineGeometry.h"

#include <algorithm>
#include <cmath>

#include "base/Trunc.h"
#include "base/Wrap.h"
#include "charts2d/DeviceReach.h"

namespace LineGeometry
{

namespace
{

std::int32_t Nearest(double pixel) noexcept
{
    return Trunc(std::floor(pixel + 0.5));
}

} // namespace

TPlot Measure(TPoint position, TSize size, std::int32_t segments, std::int32_t series) noexcept
{
    TPlot plot;
    plot.Measures = ChartMeasures::Measure(ChartMeasures::LineFactors, position, size, segments, series);
    plot.nStep = ChartMeasures::GroupStep(plot.Measures);
    plot.nBase = Wrap::Add(position.y, Trunc(size.cy * 0.93));
    plot.nHeight = Trunc(size.cy * 0.8);
    return plot;
}

std::int32_t PointY(const TPlot& plot, std::int32_t value, std::int32_t maximum) noexcept
{
    const double share = static_cast<double>(value) / static_cast<double>(maximum);
    return Wrap::Subtract(plot.nBase, Trunc(share * plot.nHeight));
}

TPoint Point(const TPlot& plot, std::int32_t k, std::int32_t value, std::int32_t maximum) noexcept
{
    using namespace Wrap;
    const std::int32_t left = Add(plot.Measures.nStartX, Multiply(k, plot.nStep));
    return {Add(left, plot.Measures.nGroupWidth / 2), PointY(plot, value, maximum)};
}

TPoint StartPoint(TPoint position, TSize size, std::int32_t segments) noexcept
{
    using namespace Wrap;
    const double area = Trunc(size.cx * 0.7);
    const std::int32_t gap = Trunc(area / (segments * 4.0));
    const std::int32_t barGap = Trunc(gap * 0.125);
    const std::int32_t x0 = Add(position.x, Trunc(size.cx * 0.15));
    const std::int32_t y0 = Add(position.y, Trunc(size.cy * 0.95));
    return {Add(x0, Multiply(segments > 1 ? 4 : 2, barGap)), Subtract(y0, Trunc(size.cy * 0.01))};
}

TPoint PartialEnd(TPoint from, TPoint to, std::int32_t rest, std::int32_t whole) noexcept
{
    const double x1 = from.x;
    const double y1 = from.y;
    const double x2 = to.x;
    const double y2 = to.y;
    const double length =
        std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2)) * (static_cast<double>(rest) / whole);
    const double angle = std::atan((y2 - y1) / (x2 - x1));
    return {Wrap::Add(Trunc(std::cos(angle) * length), from.x),
            Wrap::Add(Trunc(std::sin(angle) * length), from.y)};
}

bool CutToDevice(TPoint& from, TPoint& to) noexcept
{
    constexpr double farthest = DeviceReach;
    const double stepX = static_cast<double>(to.x) - from.x;
    const double stepY = static_cast<double>(to.y) - from.y;
    double enter = 0;
    double leave = 1;
    const auto narrow = [&](double step, double room) { // the part where t * step <= room
        if (step > 0)
            leave = std::min(leave, room / step);
        else if (step < 0)
            enter = std::max(enter, room / step);
        else if (room < 0)
            leave = -1;
    };
    narrow(stepX, farthest - from.x);
    narrow(-stepX, farthest + from.x);
    narrow(stepY, farthest - from.y);
    narrow(-stepY, farthest + from.y);
    if (enter > leave)
        return false;

    const TPoint start = from;
    if (enter > 0)
        from = {Nearest(start.x + enter * stepX), Nearest(start.y + enter * stepY)};
    if (leave < 1)
        to = {Nearest(start.x + leave * stepX), Nearest(start.y + leave * stepY)};
    return true;
}

} // namespace LineGeometry

#include "charts2d/BarGeometry.h"

#include <algorithm>

#include "base/Trunc.h"
#include "base/Wrap.h"
#include "charts2d/DeviceReach.h"

namespace BarGeometry
{

TBars Measure(TPoint position, TSize size, std::int32_t segments, std::int32_t series) noexcept
{
    using namespace Wrap;
    TBars bars;
    bars.Measures = ChartMeasures::Measure(ChartMeasures::BarFactors, position, size, segments, series);
    const ChartMeasures::TMeasures& m = bars.Measures;
    const std::int32_t innerGaps = Multiply(Subtract(series, 1), m.nBarGap);
    bars.nWidth = Trunc(static_cast<double>(Subtract(m.nGroupWidth, innerGaps)) / series);
    bars.nPitch = Add(Add(Multiply(series, bars.nWidth), innerGaps), m.nGap);
    bars.nBase = ChartMeasures::BaseLine(m, size);
    bars.nFixedStartX = Add(m.ptOrigin.x, Multiply(4, m.nBarGap));
    bars.dFullHeight = size.cy * 0.8;
    return bars;
}

std::int32_t Left(const TBars& bars, std::int32_t start, std::int32_t segment,
                  std::int32_t series) noexcept
{
    using namespace Wrap;
    const std::int32_t inGroup = Multiply(series, Add(bars.nWidth, bars.Measures.nBarGap));
    return Add(start, Add(Multiply(segment, bars.nPitch), inGroup));
}

std::int32_t Height(const TBars& bars, std::int32_t value, std::int32_t maximum) noexcept
{
    return Trunc(static_cast<double>(value) / static_cast<double>(maximum) * bars.dFullHeight);
}

std::int32_t GrownHeight(std::int32_t height, std::int32_t percent) noexcept
{
    return Trunc(height * (percent / 100.0));
}

TRect Rectangle(const TBars& bars, std::int32_t left, std::int32_t height) noexcept
{
    using namespace Wrap;
    const auto within = [](std::int32_t edge) { return std::clamp(edge, -DeviceReach, DeviceReach); };
    return {within(left), within(Subtract(bars.nBase, height)), within(Add(left, bars.nWidth)),
            within(bars.nBase)};
}

} // namespace BarGeometry

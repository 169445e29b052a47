#include "charts2d/BarGeometry.h"

#include <algorithm>

#include "base/Trunc.h"
#include "charts2d/DeviceReach.h"
#include "charts2d/Wrap32.h"

namespace BarGeometry
{

TBars Measure(TPoint position, TSize size, std::int32_t segments, std::int32_t series) noexcept
{
    using namespace Wrap32;
    TBars bars;
    bars.Measures = ChartMeasures::Measure(ChartMeasures::barFactors, position, size, segments, series);
    const ChartMeasures::TMeasures& m = bars.Measures;
    const std::int32_t innerGaps = Mul(Sub(series, 1), m.nBarGap);
    bars.nWidth = Trunc(static_cast<double>(Sub(m.nGroupWidth, innerGaps)) / series);
    bars.nPitch = Add(Add(Mul(series, bars.nWidth), innerGaps), m.nGap);
    bars.nBase = ChartMeasures::BaseLine(m, size);
    bars.nFixedStartX = Add(m.ptOrigin.x, Mul(4, m.nBarGap));
    bars.dFullHeight = size.cy * 0.8;
    return bars;
}

std::int32_t Left(const TBars& bars, std::int32_t start, std::int32_t segment,
                  std::int32_t series) noexcept
{
    using namespace Wrap32;
    const std::int32_t inGroup = Mul(series, Add(bars.nWidth, bars.Measures.nBarGap));
    return Add(start, Add(Mul(segment, bars.nPitch), inGroup));
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
    using namespace Wrap32;
    const auto within = [](std::int32_t edge) { return std::clamp(edge, -deviceReach, deviceReach); };
    return {within(left), within(Sub(bars.nBase, height)), within(Add(left, bars.nWidth)),
            within(bars.nBase)};
}

} // namespace BarGeometry

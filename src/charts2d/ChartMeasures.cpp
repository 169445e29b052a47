#include "charts2d/ChartMeasures.h"

#include "base/Trunc.h"
#include "base/Wrap.h"

namespace ChartMeasures
{

TMeasures Measure(const TFactors& factors, TPoint position, TSize size, std::int32_t segments,
                  std::int32_t series) noexcept
{
    using namespace Wrap;
    const double groups = segments;
    TMeasures m;
    m.dArea = Trunc(size.cx * factors.dWidth);
    m.nGap = Trunc(m.dArea / (groups * 4.0));
    m.nBarGap = Trunc(m.nGap * 0.125 + factors.dBarGap);
    // A label that has the axis to itself is sized as if there were two.
    m.nLabelHeight = Trunc(m.dArea / (segments == 1 ? 2.0 : groups) * 0.38 + 0.5);
    m.ptOrigin = {Add(position.x, Trunc(size.cx * 0.15)), Add(position.y, Trunc(size.cy * 0.95))};

    const double area = m.dArea - Multiply(Subtract(segments, 1), m.nGap);
    m.nGroupWidth =
        Trunc((area + Multiply(Multiply(Subtract(series, 1), segments), m.nBarGap)) / groups);
    m.nStartX = Add(m.ptOrigin.x, Multiply(segments > 1 ? 4 : 2, m.nBarGap));
    return m;
}

std::int32_t GroupStep(const TMeasures& measures) noexcept
{
    return Wrap::Add(measures.nGroupWidth, measures.nGap);
}

std::int32_t LabelCentre(const TMeasures& measures, std::int32_t left, std::int32_t series) noexcept
{
    using namespace Wrap;
    return Add(left, Add(Multiply(measures.nBarGap, series), measures.nGroupWidth) / 2);
}

std::int32_t LabelTop(const TMeasures& measures, TSize size) noexcept
{
    return Wrap::Add(measures.ptOrigin.y, Trunc(size.cy * 0.01));
}

std::array<TLine, 6> AxisLines(const TMeasures& measures, TPoint position, TSize size) noexcept
{
    using namespace Wrap;
    const auto [x0, y0] = measures.ptOrigin;
    const TPoint right{size.cx, y0};
    const TPoint top{x0, Add(position.y, Trunc(size.cy * 0.05))};
    const std::int32_t barbX = Trunc(size.cx * 0.98);
    const std::int32_t barbY = Add(position.y, Trunc(size.cy * 0.085));
    return {{{measures.ptOrigin, right},
             {right, {barbX, Subtract(y0, Trunc(size.cy * 0.02))}},
             {right, {barbX, Add(y0, Trunc(size.cy * 0.02))}},
             {measures.ptOrigin, top},
             {top, {Subtract(x0, Trunc(size.cx * 0.015)), barbY}},
             {top, {Add(x0, Trunc(size.cx * 0.015)), barbY}}}};
}

std::int32_t BaseLine(const TMeasures& measures, TSize size) noexcept
{
    return Wrap::Subtract(measures.ptOrigin.y, Trunc(size.cy * 0.01));
}

std::array<TValueLabel, 3> ValueLabels(const TMeasures& measures, TSize size,
                                       std::int32_t maximum) noexcept
{
    using namespace Wrap;
    const std::int32_t right = Subtract(measures.ptOrigin.x, Trunc(size.cx * 0.02));
    const std::int32_t base = BaseLine(measures, size);
    return {{{maximum, {right, Subtract(base, Trunc(size.cy * 0.85))}},
             {Trunc(maximum * 0.5), {right, Subtract(base, Trunc(size.cy * 0.45))}},
             {0, {right, Subtract(base, Trunc(size.cy * 0.05))}}}};
}

} // namespace ChartMeasures

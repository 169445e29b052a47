#include "charts2d/LegendLayout.h"

#include "base/Trunc.h"
#include "base/Wrap.h"

namespace LegendLayout
{

TLegend Layout(const TShape& shape, TPoint position, TSize size, std::int32_t rows,
               std::int32_t lineHeight) noexcept
{
    using namespace Wrap;
    const std::int32_t pad = Subtract(size.cy, Multiply(rows, lineHeight)) / 2;
    TLegend legend;
    legend.rcBox = {Add(position.x, Trunc(size.cx * shape.dBoxLeft)), Add(position.y, pad),
                    Add(position.x, Trunc(size.cx * shape.dBoxRight)),
                    Add(Trunc((rows + 0.5) * lineHeight + pad), position.y)};
    legend.nLeft = Add(position.x, Trunc(size.cx * shape.dRows));
    legend.nTop = Add(Add(position.y, Trunc(size.cy * 0.014)), pad);
    legend.nTextLeft = Add(legend.nLeft, Add(Trunc(size.cx * shape.dMarkWidth), Trunc(size.cx * 0.01)));
    return legend;
}

TRect Mark(const TShape& shape, const TLegend& legend, TSize size, std::int32_t top) noexcept
{
    using namespace Wrap;
    return {legend.nLeft, Add(top, Trunc(size.cy * shape.dMarkTop) / 2),
            Add(legend.nLeft, Trunc(size.cx * shape.dMarkWidth)), Add(top, Trunc(size.cy * 0.075))};
}

} // namespace LegendLayout

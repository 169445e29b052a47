#include "graph/FrameLayout.h"

#include "base/Wrap.h"

#include <algorithm>

namespace FrameLayout
{

TRect GraphRect(const TRect& client, const Margins& margins) noexcept
{
    return {Wrap::Add(client.left, margins.nLeft), Wrap::Add(client.top, margins.nTop),
            Wrap::Subtract(client.right, margins.nRight),
            Wrap::Subtract(client.bottom, margins.nBottom)};
}

void ResolvePlacement(std::span<YAxis> axes) noexcept
{
    bool bLeftIsNext = true;
    for (YAxis& axis : axes) {
        if (axis.placement != apAutomatic)
            continue;
        axis.placement = bLeftIsNext ? apLeft : apRight;
        bLeftIsNext = !bLeftIsNext;
    }
}

TRect Stack(const TRect& graph, std::span<YAxis> yAxes, std::span<XAxis> xAxes, int nAxisSpace) noexcept
{
    int xLeft = graph.left;
    for (YAxis& axis : yAxes) {
        if (axis.placement != apLeft)
            continue;
        const int width = std::max(axis.nLabelWidth, Wrap::Add(axis.nTitleWidth, axis.nArcSize));
        if (axis.bVisible)
            xLeft = Wrap::Add(xLeft, Wrap::Add(width, nAxisSpace));
        axis.nOriginX = xLeft;
    }

    // The arrowhead is no part of a right axis's width: the two sides differ by that term.
    int xRight = graph.right;
    for (YAxis& axis : yAxes) {
        if (axis.placement != apRight)
            continue;
        if (axis.bVisible)
            xRight = Wrap::Subtract(xRight,
                                    Wrap::Add(std::max(axis.nLabelWidth, axis.nTitleWidth), nAxisSpace));
        axis.nOriginX = xRight;
    }

    int yBottom = graph.bottom;
    for (XAxis& axis : xAxes) {
        if (axis.bVisible)
            yBottom = Wrap::Subtract(yBottom, Wrap::Add(axis.nLabelHeight, nAxisSpace));
        axis.nOriginY = yBottom;
        axis.nOriginX = xLeft;
    }
    return {Wrap::Add(xLeft, 1), graph.top, xRight, yBottom};
}

TRect Band(TPoint from, TPoint to, const TRect& frame) noexcept
{
    return {std::max(std::min(from.x, to.x), frame.left), std::max(std::min(from.y, to.y), frame.top),
            std::min(std::max(from.x, to.x), frame.right),
            std::min(std::max(from.y, to.y), frame.bottom)};
}

} // namespace FrameLayout

#include "graph/GraphLegendLayout.h"

#include "graph/WrapArithmetic.h"

#include <algorithm>

namespace GraphLegendLayout
{

namespace
{
constexpr int kGap = 10;     // between the box and the edges of the graph rectangle
constexpr int kKeyRoom = 16; // beside the widest text
constexpr int kTextLeft = 12;
} // namespace

Extent Measure(std::span<const TSize> texts) noexcept
{
    Extent extent;
    for (const TSize& text : texts) {
        extent.nWidth = std::max(extent.nWidth, text.cx);
        extent.nHeight = WrapAdd(extent.nHeight, text.cy);
        extent.nRowHeight = text.cy;
    }
    return extent;
}

TRect PlaceBox(EAlignment alignment, const Extent& extent, TRect& graph) noexcept
{
    const int width = WrapAdd(extent.nWidth, kKeyRoom);
    const int room = WrapAdd(width, 2 * kGap);
    TRect box;
    if (alignment == EAlignment::left) {
        box.left = WrapAdd(graph.left, kGap);
        box.right = WrapAdd(WrapAdd(graph.left, width), kGap);
        graph.left = WrapAdd(graph.left, room);
    } else {
        box.left = WrapSubtract(WrapSubtract(graph.right, width), kGap);
        box.right = WrapSubtract(graph.right, kGap);
        graph.right = WrapSubtract(graph.right, room);
    }
    box.top = WrapAdd(graph.top, kGap);
    box.bottom = WrapAdd(graph.top, WrapAdd(extent.nHeight, kGap + 2));
    return box;
}

Row PlaceRow(const TRect& inner, int nOffset, int nRowHeight) noexcept
{
    const int top = WrapAdd(inner.top, nOffset);
    const int bottom = WrapAdd(top, nRowHeight);
    Row row;
    row.text = {WrapAdd(inner.left, kTextLeft), top, inner.right, bottom};
    row.entry = {inner.left, top, inner.right, bottom};
    row.key = {WrapAdd(inner.left, 2), WrapAdd(top, 1), WrapAdd(inner.left, 10),
               WrapSubtract(bottom, 2)};
    return row;
}

} // namespace GraphLegendLayout

#include "graph/GraphLegendLayout.h"

#include "base/Wrap.h"

#include <algorithm>

namespace GraphLegendLayout
{

namespace
{
constexpr int Gap = 10;     // between the box and the edges of the graph rectangle
constexpr int KeyRoom = 16; // beside the widest text
constexpr int TextLeft = 12;
} // namespace

void Extent::Add(TSize text) noexcept
{
    nWidth = std::max(nWidth, text.cx);
    nHeight = Wrap::Add(nHeight, text.cy);
    nRowHeight = text.cy;
}

TRect PlaceBox(EAlignment alignment, const Extent& extent, TRect& graph) noexcept
{
    const int width = Wrap::Add(extent.nWidth, KeyRoom);
    const int room = Wrap::Add(width, 2 * Gap);
    TRect box;
    if (alignment == EAlignment::left) {
        box.left = Wrap::Add(graph.left, Gap);
        box.right = Wrap::Add(Wrap::Add(graph.left, width), Gap);
        graph.left = Wrap::Add(graph.left, room);
    } else {
        box.left = Wrap::Subtract(Wrap::Subtract(graph.right, width), Gap);
        box.right = Wrap::Subtract(graph.right, Gap);
        graph.right = Wrap::Subtract(graph.right, room);
    }
    box.top = Wrap::Add(graph.top, Gap);
    box.bottom = Wrap::Add(graph.top, Wrap::Add(extent.nHeight, Gap + 2));
    return box;
}

Row PlaceRow(const TRect& inner, int nOffset, int nRowHeight) noexcept
{
    const int top = Wrap::Add(inner.top, nOffset);
    const int bottom = Wrap::Add(top, nRowHeight);
    Row row;
    row.text = {Wrap::Add(inner.left, TextLeft), top, inner.right, bottom};
    row.entry = {inner.left, top, inner.right, bottom};
    row.key = {Wrap::Add(inner.left, 2), Wrap::Add(top, 1), Wrap::Add(inner.left, 10),
               Wrap::Subtract(bottom, 2)};
    return row;
}

} // namespace GraphLegendLayout

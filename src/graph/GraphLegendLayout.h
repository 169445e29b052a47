#pragma once
// Where the legend and its rows are, in pixels. The box takes its width and 20 pixels from
// one side of the graph rectangle; its height is that of its rows and limits nothing.
//
//   box   |<- 1 ->| inner box |<- 1 ->|
//   row   key in [left + 2, left + 10), text from left + 12 to right, of the inner box

#include "base/Geometry.h"
#include "base/Vocabulary.h"

namespace GraphLegendLayout
{

inline constexpr int KeySize = 8;

// What the rows' texts measure together.
struct Extent {
    int nWidth = 0;     // of the widest
    int nHeight = 0;    // of all
    int nRowHeight = 0; // of the last, which every row gets

    void Add(TSize text) noexcept;
};

// Whether the box has a place at all: it is on the left or on the right.
[[nodiscard]] constexpr bool HasBox(EAlignment alignment) noexcept
{
    return alignment == EAlignment::left || alignment == EAlignment::right;
}

// Places the box beside a graph rectangle and takes its room from it. Needs HasBox.
[[nodiscard]] TRect PlaceBox(EAlignment alignment, const Extent& extent, TRect& graph) noexcept;

struct Row {
    TRect text;
    TRect entry; // the whole row, which the mouse hits
    TRect key;
};
[[nodiscard]] Row PlaceRow(const TRect& inner, int nOffset, int nRowHeight) noexcept;

} // namespace GraphLegendLayout

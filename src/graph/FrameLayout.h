#pragma once
// Where the parts of a graph's frame are, in pixels.
//
//   client - margins - legend = graph rectangle
//   graph rectangle - left axes - right axes - X axes = inner plotting rectangle
//
// Left axes push the left edge inward one after another, so the first is nearest the
// margin; right axes and X axes do the same from their sides. A hidden axis takes no room
// but gets the edge that is current at its turn. Sums wrap like 32-bit machine words.

#include "base/Geometry.h"
#include "base/Vocabulary.h"

#include <span>

namespace FrameLayout
{

struct Margins {
    int nLeft = 0;
    int nTop = 0;
    int nRight = 0;
    int nBottom = 0;
};

struct YAxis {
    EAxisPlacement placement = apAutomatic;
    bool bVisible = true;
    int nLabelWidth = 0; // widest tick label with its tick
    int nTitleWidth = 0;
    int nArcSize = 0; // arrowhead; counts on the left side only
    int nOriginX = 0; // result, of left and right axes
};

struct XAxis {
    bool bVisible = true;
    int nLabelHeight = 0; // tick label with its tick
    int nOriginX = 0;     // result
    int nOriginY = 0;     // result
};

[[nodiscard]] TRect GraphRect(const TRect& client, const Margins& margins) noexcept;

// Automatic axes alternate in list order, the first of them on the left.
void ResolvePlacement(std::span<YAxis> axes) noexcept;

// Stacks the axes and returns the inner plotting rectangle.
TRect Stack(const TRect& graph, std::span<YAxis> yAxes, std::span<XAxis> xAxes, int nAxisSpace) noexcept;

// The rectangle between two corners, normalised and then cut to a frame side by side.
[[nodiscard]] TRect Band(TPoint from, TPoint to, const TRect& frame) noexcept;

} // namespace FrameLayout

#pragma once
// What one frame of the flat pie shows, in the order of drawing.

#include <cstdint>
#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "charts2d/FlatPieAnimation.h"
#include "charts2d/FlatPieData.h"

struct TFlatPieSlice {
    const SPieSegment* pSegment = nullptr;
    TPoint ptStart; // the slice runs counterclockwise from this radial ...
    TPoint ptEnd;   // ... to this one; two equal points are the whole ellipse
    friend bool operator==(const TFlatPieSlice&, const TFlatPieSlice&) = default;
};

struct TFlatPiePicture {
    std::optional<TFlatPieSlice> Fading; // drawn aside and blended in, before the others
    std::vector<TFlatPieSlice> Slices;   // drawn at full strength
};

namespace FlatPiePicture
{

// Every slice is drawn whatever its ends: the platform draws the whole ellipse for one that is
// too thin for two points. Only a sweep leaves out a slice of equal points. Pointers are good
// until the data changes. A frame of an animation notes in it how far it has drawn.
[[nodiscard]] TFlatPiePicture Compose(const CFlatPieData& data, CFlatPieAnimation& animation,
                                      TPoint position, TSize size);

} // namespace FlatPiePicture

#pragma once
// What one frame of the bar chart shows between its axes, in the order of drawing.
//
//   CValueTable + CBarAnimation + area  ->  list of steps  ->  painted by C2DBarGraph

#include <cstdint>
#include <vector>

#include "base/Geometry.h"
#include "charts2d/BarAnimation.h"
#include "charts2d/BarGeometry.h"
#include "charts2d/ValueTable.h"

struct TBarStep {
    enum class EKind {
        label,     // nIndex: place of the segment; ptLabel: upper middle of the text
        bar,       // nIndex: place of the series; rcBar
        beginFade, // what follows is drawn aside, inside rcBar ...
        blend,     // ... and blended into the picture at these points
        endFade
    };
    EKind kind = EKind::bar;
    std::int32_t nIndex = 0;
    TPoint ptLabel;
    TRect rcBar;
    friend bool operator==(const TBarStep&, const TBarStep&) = default;
};

struct TBarPicture {
    bool bValueLabels = false; // the labels of the value axis are drawn, before the steps
    std::int32_t nMaximum = 0; // of the scale
    BarGeometry::TBars Bars;
    std::vector<TBarStep> Steps;
};

namespace BarPicture
{

// With no segment, no series, an unknown animation, or animation values other than 0 and 1
// the axes are alone: no labels, no steps.
[[nodiscard]] TBarPicture Compose(const CValueTable& table, const CBarAnimation& animation,
                                  TPoint position, TSize size);

} // namespace BarPicture

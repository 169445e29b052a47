#pragma once
// What one frame of the line chart shows between its axes, in the order of drawing.

#include <cstdint>
#include <vector>

#include "base/Geometry.h"
#include "charts2d/LineAnimation.h"
#include "charts2d/LineGeometry.h"
#include "charts2d/ValueTable.h"

struct TLineStep {
    enum class EKind {
        label, // nIndex: place of the segment; ptFrom: upper middle of the text
        line   // nIndex: place of the series
    };
    EKind kind = EKind::line;
    std::int32_t nIndex = 0;
    TPoint ptFrom;
    TPoint ptTo;
    friend bool operator==(const TLineStep&, const TLineStep&) = default;
};

struct TLinePicture {
    bool bValueLabels = false;
    std::int32_t nMaximum = 0;
    LineGeometry::TPlot Plot;
    std::vector<TLineStep> Steps;
};

namespace LinePicture
{

// With fewer than two segments, no series, or animation values other than 0 and 1 the axes are
// alone; an unknown animation has the labels of the value axis and no steps. A frame of an
// animation moves its end points.
//
// Lines run along a series' list of values, where the values of deleted segments keep their
// place; labels are those of the segments that exist.
[[nodiscard]] TLinePicture Compose(const CValueTable& table, CLineAnimation& animation, TPoint position,
                                   TSize size);

} // namespace LinePicture

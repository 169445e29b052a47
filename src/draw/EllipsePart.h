#pragma once
// What a canvas shows of an ellipse that is far larger than it. The platform takes seconds for one
// of some ten thousand pixels with a pen as wide, and a curve of dots may have thousands.

#include "draw/LongLines.h"

enum class EEllipsePart { nothing, inside, line, mixed };

// Of the visible rectangle, by an ellipse in that bounding box with a line of that width on its
// rim. Whatever comes within two pixels of an edge is mixed.
[[nodiscard]] EEllipsePart EllipsePart(const TRect& visible, const TRect& ellipse,
                                       double lineWidth) noexcept;

// The ellipse as a polygon, its half axes longer by that many pixels. Its edges lie within a quarter
// of a pixel of the rim where that comes near the visible rectangle, and elsewhere stay out of it. Empty
// where the half axes are not positive.
[[nodiscard]] std::vector<LongLines::TVertex> EllipseOutline(const TRect& visible, const TRect& ellipse,
                                                             double by);

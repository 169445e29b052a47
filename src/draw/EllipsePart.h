#pragma once
// What a canvas shows of an ellipse that is far larger than it. The platform takes seconds for one
// of some ten thousand pixels with a pen as wide, and a curve of dots may have thousands.

#include "base/Geometry.h"

enum class EEllipsePart { nothing, inside, line, mixed };

// Of the visible rectangle, by an ellipse in that bounding box with a line of that width on its
// rim. Whatever comes within two pixels of an edge is mixed.
[[nodiscard]] EEllipsePart EllipsePart(const TRect& visible, const TRect& ellipse,
                                       double lineWidth) noexcept;

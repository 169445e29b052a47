#pragma once
// What can be seen of a canvas, as a rectangle of real numbers: without limits in a recording.
// Whatever lies wholly outside it may be left out.

#include "base/Geometry.h"

#include <algorithm>
#include <limits>

struct TVisibleArea {
    double left = -std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();
    double right = std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();

    // Whether the rectangle, in either sense of rotation and with that much room around it,
    // touches the area.
    [[nodiscard]] bool Meets(const TRect& rect, double room) const noexcept
    {
        return std::min(rect.left, rect.right) - room <= right &&
               std::max(rect.left, rect.right) + room >= left &&
               std::min(rect.top, rect.bottom) - room <= bottom &&
               std::max(rect.top, rect.bottom) + room >= top;
    }
    [[nodiscard]] bool Meets(TPoint point, double room) const noexcept
    {
        return Meets(TRect{point.x, point.y, point.x, point.y}, room);
    }
};

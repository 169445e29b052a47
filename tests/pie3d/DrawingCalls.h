#pragma once
// What the pie asks of GDI+ while it lives: outlines with their pens, fonts and texts, one line
// of text for each call, in order.
//
//   pie FFFF0000 0.2          an outline: kind, the pen's colour (or "brush") and its width
//   line FF102030 1: 1,2 3,4  with its ends
//   box FF102030 2: 1,2 46,25 with its place and size
//   font 11 bold 0            points and style, in a unit other than points with that unit
//   text 'label' 1,2 46,25    with its layout rectangle

#include "pie3d/GdiPlus.h"

#include <string>
#include <vector>

class DrawingCalls
{
public:
    DrawingCalls();
    DrawingCalls(const DrawingCalls&) = delete;
    DrawingCalls& operator=(const DrawingCalls&) = delete;
    ~DrawingCalls();

    // The calls whose line begins with this.
    [[nodiscard]] std::vector<std::string> Of(const std::string& kind) const;
    // The place of the first such call among all, or of none.
    [[nodiscard]] std::size_t First(const std::string& kind) const;
    [[nodiscard]] std::size_t Last(const std::string& kind) const;

    static std::string Color(PieColors::Argb color);
};

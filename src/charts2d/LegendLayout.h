#pragma once
// The legend beside a chart: a box, and in it one row for each series (or pie segment) with a
// colour mark and a text. All but the rows' heights, which are measured texts, follows from
// the graph area (X, Y, W, H) by fixed factors.

#include <cstdint>

#include "base/Geometry.h"

namespace LegendLayout
{

// Horizontal factors of W, but for the last, of H.
struct TShape {
    double dBoxLeft;
    double dBoxRight;
    double dRows; // left edge of the marks
    double dMarkWidth;
    double dMarkTop; // half of that part of H lies above a mark
};
inline constexpr TShape SeriesShape{0.95, 1.25, 0.97, 0.05, 0.03};
inline constexpr TShape PieShape{1.1, 1.75, 1.15, 0.1, 0.05};

struct TLegend {
    TRect rcBox;
    std::int32_t nLeft = 0;     // of the marks
    std::int32_t nTop = 0;      // of the first row
    std::int32_t nTextLeft = 0; // of the texts
};

// lineHeight is that of the alphabet in the legend's font.
[[nodiscard]] TLegend Layout(const TShape& shape, TPoint position, TSize size, std::int32_t rows,
                             std::int32_t lineHeight) noexcept;

// The colour mark of the row that begins at `top`.
[[nodiscard]] TRect Mark(const TShape& shape, const TLegend& legend, TSize size,
                         std::int32_t top) noexcept;

} // namespace LegendLayout

#pragma once
// Layout of the label list at the right of the pie and of the percents on the elements, in
// pixels. All divisions are integer divisions where the operands are integers.

#include "pie3d/PieGeometry.h"

#include <cstdint>

namespace PieLabels
{

// What the label list takes from the window's size.
struct TSizes {
    std::int32_t nRowHeight = 0;
    std::int32_t nMarkWidth = 0;
    std::int32_t nRowGap = 0;
};

// The right limit of the pie in a window of this width: two thirds of it, at least 180.
[[nodiscard]] std::int32_t PieLimit(std::int32_t nClientWidth) noexcept;

// rowHeight = min(h / 15, 25), markWidth = min(w, 375) / 8, rowGap = min(h / 20, 18).
[[nodiscard]] TSizes SizesFor(const TRect& rcPie) noexcept;

// The height of nElements rows with gaps between them; -nRowGap without rows.
[[nodiscard]] std::int32_t HeightOfRows(std::int32_t nElements, std::int32_t nRowHeight,
                                        std::int32_t nRowGap) noexcept;

// The height of as many of those rows as fit into nPieHeight; nBefore if not even one does.
[[nodiscard]] std::int32_t HeightThatFits(std::int32_t nElements, std::int32_t nRowHeight,
                                          std::int32_t nRowGap, std::int32_t nPieHeight,
                                          std::int32_t nBefore) noexcept;

// The y of the first row: the rows centre on the pie and never start above it.
[[nodiscard]] std::int32_t FirstRow(const TRect& rcPie, std::int32_t nElements, std::int32_t nRowHeight,
                                    std::int32_t nRowGap) noexcept;

// The columns of the list from left to right.
struct TColumns {
    std::int32_t nMarkX = 0;
    std::int32_t nTextX = 0;
    float fTextWidth = 0;
    float fPercentX = 0;
    float fPercentWidth = 0;
};

// nRightLimit is the client's right edge less the scroll bar's inset: a column that would
// reach beyond it ends there, with a negative width if it starts beyond.
[[nodiscard]] TColumns ColumnsFor(const TRect& rcPie, std::int32_t nMarkWidth, std::int32_t nRightLimit,
                                  float fLongestLabel, float fWidestPercent) noexcept;

// Sizes of the fonts in points.
[[nodiscard]] std::int32_t LabelFontSize(const TRect& rcPie) noexcept;   // h / 25, at most 11
[[nodiscard]] std::int32_t PercentFontSize(const TRect& rcPie) noexcept; // h / 25, from 7 to 11

// The place of the percent of an element that sweeps fSweep from fStart on the true circle.
// Style 2 lifts it onto the upper face, the others take the pie's own centre.
[[nodiscard]] PieGeometry::TPointF PercentCentre(const TRect& rcPie, const PieGeometry::TFaces& faces,
                                                 bool bTilted, float fStart, float fSweep) noexcept;

} // namespace PieLabels

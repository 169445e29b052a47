#include "pie3d/PieLabels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace PieLabels
{
namespace
{

float WidthUpTo(float left, float width, std::int32_t rightLimit) noexcept
{
    const auto limit = static_cast<float>(rightLimit);
    return left + width > limit ? limit - left : width;
}

} // namespace

std::int32_t PieLimit(std::int32_t nClientWidth) noexcept
{
    return std::max(2 * nClientWidth / 3, 180);
}

TSizes SizesFor(const TRect& rcPie) noexcept
{
    return {std::min(rcPie.Height() / 15, 25), std::min(rcPie.Width(), 375) / 8,
            std::min(rcPie.Height() / 20, 18)};
}

std::int32_t HeightOfRows(std::int32_t nElements, std::int32_t nRowHeight, std::int32_t nRowGap) noexcept
{
    return nElements * (nRowHeight + nRowGap) - nRowGap;
}

std::int32_t HeightThatFits(std::int32_t nElements, std::int32_t nRowHeight, std::int32_t nRowGap,
                            std::int32_t nPieHeight, std::int32_t nBefore) noexcept
{
    const std::int32_t fitting = (nPieHeight + nRowGap) / (nRowHeight + nRowGap);
    const std::int32_t rows = std::min(nElements, fitting);
    return rows > 0 ? HeightOfRows(rows, nRowHeight, nRowGap) : nBefore;
}

std::int32_t FirstRow(const TRect& rcPie, std::int32_t nElements, std::int32_t nRowHeight,
                      std::int32_t nRowGap) noexcept
{
    const std::int32_t centred = PieGeometry::CentreOf(rcPie).y - (nRowGap + nRowHeight) * nElements / 2;
    return std::max(centred, rcPie.top);
}

TColumns ColumnsFor(const TRect& rcPie, std::int32_t nMarkWidth, std::int32_t nRightLimit,
                    float fLongestLabel, float fWidestPercent) noexcept
{
    TColumns columns;
    columns.nMarkX = rcPie.right + rcPie.right / 10;
    columns.nTextX = 6 * rcPie.right / 5 + nMarkWidth;
    const auto textX = static_cast<float>(columns.nTextX);
    columns.fTextWidth = WidthUpTo(textX, fLongestLabel, nRightLimit);
    const std::int32_t space = rcPie.right / 30;
    columns.fPercentX = textX + columns.fTextWidth + static_cast<float>(space);
    columns.fPercentWidth = WidthUpTo(columns.fPercentX, fWidestPercent, nRightLimit);
    return columns;
}

std::int32_t LabelFontSize(const TRect& rcPie) noexcept
{
    return std::min(rcPie.Height() / 25, 11);
}

std::int32_t PercentFontSize(const TRect& rcPie) noexcept
{
    return std::clamp(rcPie.Height() / 25, 7, 11);
}

PieGeometry::TPointF PercentCentre(const TRect& rcPie, const PieGeometry::TFaces& faces, bool bTilted,
                                   float fStart, float fSweep) noexcept
{
    const double middle = (fStart + fSweep / 2) * std::numbers::pi / 180.0;
    const std::int32_t radius = 2 * rcPie.Width() / 5;
    const TPoint centre = PieGeometry::CentreOf(rcPie);
    const double x = std::cos(middle) * radius + centre.x;
    double y = std::sin(middle) * radius;
    if (bTilted) {
        y += PieGeometry::CentreOf(faces.rcUpper).y - std::sin(middle) * (faces.nSqueeze / 5.0 * 4.0);
    } else {
        y += centre.y;
    }
    return {static_cast<float>(x), static_cast<float>(y)};
}

} // namespace PieLabels

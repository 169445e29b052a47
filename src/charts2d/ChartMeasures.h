#pragma once
// The measures that bar and line chart derive from the graph area by fixed factors.
// Position (X, Y) and size (W, H) are those of the graph area inside the window, in pixels;
// G is the number of segments, S that of series.

#include <array>
#include <cstdint>

#include "base/Geometry.h"

namespace ChartMeasures
{

// Where the two charts differ.
struct TFactors {
    double dWidth;  // share of W that the groups take
    double dBarGap; // added before the space between bars is truncated
};
inline constexpr TFactors BarFactors{0.6, 0.5};
inline constexpr TFactors LineFactors{0.65, 0.0};

struct TMeasures {
    double dArea = 0;              // A = Trunc(W * dWidth)
    std::int32_t nGap = 0;         // between two groups: Trunc(A / (G * 4))
    std::int32_t nBarGap = 0;      // between two bars: Trunc(gap * 0.125 + dBarGap)
    std::int32_t nLabelHeight = 0; // font height of the segment labels
    std::int32_t nGroupWidth = 0;  // Trunc((A - (G-1) gap + (S-1) G barGap) / G)
    std::int32_t nStartX = 0;      // left of the first group
    TPoint ptOrigin;               // where the axes meet
};

[[nodiscard]] TMeasures Measure(const TFactors& factors, TPoint position, TSize size,
                                std::int32_t segments, std::int32_t series) noexcept;

// The distance between the left edges of two neighbouring segment labels.
[[nodiscard]] std::int32_t GroupStep(const TMeasures& measures) noexcept;

// The middle of the label whose group begins at `left`.
[[nodiscard]] std::int32_t LabelCentre(const TMeasures& measures, std::int32_t left,
                                       std::int32_t series) noexcept;
[[nodiscard]] std::int32_t LabelTop(const TMeasures& measures, TSize size) noexcept;

struct TLine {
    TPoint ptFrom;
    TPoint ptTo;
    friend bool operator==(const TLine&, const TLine&) = default;
};

// The horizontal axis and its arrow, then the vertical axis and its arrow. The horizontal
// axis ends at W, not at X + W.
[[nodiscard]] std::array<TLine, 6> AxisLines(const TMeasures& measures, TPoint position,
                                             TSize size) noexcept;

// The bottom line of the bars: just above the horizontal axis.
[[nodiscard]] std::int32_t BaseLine(const TMeasures& measures, TSize size) noexcept;

struct TValueLabel {
    std::int32_t nValue;
    TPoint ptRight; // upper right corner of the text
    friend bool operator==(const TValueLabel&, const TValueLabel&) = default;
};

// The maximum, half of it, and 0.
[[nodiscard]] std::array<TValueLabel, 3> ValueLabels(const TMeasures& measures, TSize size,
                                                     std::int32_t maximum) noexcept;

} // namespace ChartMeasures

#pragma once
// Moving averages of a curve's y values. The output has the curve's own length and x values, and
// its first point is the curve's first. For every later point i the window holds
// w = min(i, span) values, the newest d[i] down to d[i-w+1]; so d[0] is in no window, and the
// window grows from one value. A span below 1 isn't refused: an empty window divides its empty
// sum by w, or by the empty sum of its weights.

#include "base/Vocabulary.h"

#include <span>

namespace MovingAverages
{
// All take outputs of the length of the points; an empty curve has none.

// sum of the window / w, summed anew at each point from the newest value to the oldest.
void Simple(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept;

// k d[i] + (1 - k) out[i-1], k = 2 / (span + 1): no window.
void Exponential(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept;

// Weights w, w-1, ..., 1 from the newest value to the oldest, over their sum.
void Linear(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average) noexcept;

// Weight of d[i-j+1] for j = 1..w: (1 - |(j - c) / c|) w with c = (w + 1) / 2, over their sum.
// May throw std::bad_alloc for the table of weights.
void Triangular(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average);

// Weight of d[i-(w-j)] for j = w..1: sin(j b) with b = pi / (span + 1), over sin b + ... + sin w b.
// The angle comes from span even while the window still grows.
// May throw std::bad_alloc for the table of weights.
void SineWeighted(std::span<const TDataPoint> points, int span, std::span<TDataPoint> average);
} // namespace MovingAverages

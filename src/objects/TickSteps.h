#pragma once
// Tick steps of plain numbers, and the rounding of a range to whole steps. The results are
// those of repeated multiplications and additions, to the last bit.

namespace TickSteps
{

// Step for n ticks over a range: 1, 2, 5 or 10 times a power of ten at or above
// (upper - lower) / n. False, and the step untouched, for a range that is empty, falling,
// infinite or undefined.
bool CalcNiceStep(int n, double lower, double upper, double& step) noexcept;

// Remainder of x by y with the sign of x. The multiple of y that is taken off is the sum
// of adding y over and over (RepeatedAddition.h).
[[nodiscard]] double FloatRemainder(double x, double y) noexcept;

// Rounds the bounds outward to multiples of the step. A bound that is a multiple stays; a
// lower bound at or above one step lands a step under the next multiple, a negative upper
// bound a step over it. A bound stays too where it has no finite result or where the step is
// too small for sums to reach it.
void AdjustRange(double& lower, double& upper, double step) noexcept;

// Room for labels in pixels over the size of one, at least 2.
[[nodiscard]] int TickCount(int room, int labelSize) noexcept;

} // namespace TickSteps

#pragma once
// Tick steps of date-times and the rounding of a date-time range. Dates are days in the OLE
// form: before 1899-12-30 the fraction counts forward from a negative day.

namespace DateTimeSteps
{

// 1970-01-01 00:00:00, the anchor of all ticks.
inline constexpr double Epoch = 25569.0;

// Whole seconds from one date to another, to the nearest half second. Not a number where
// one of the dates isn't.
[[nodiscard]] double WholeSeconds(double from, double to) noexcept;

// Step in days for n ticks: a table of seconds, minutes, hours, days, weeks and years, and
// beyond its end the quotient itself. False, and the step untouched, for a range that is
// infinite or undefined.
bool CalcDateTimeStep(int n, double lower, double upper, double& step) noexcept;

// Rounds the bounds outward to whole steps counted from Epoch. The multiples are formed in
// unsigned 32-bit seconds: bounds before 1970 wrap around. Steps under a second and dates
// without a number change nothing.
void AdjustDateTimeRange(double& lower, double& upper, double step) noexcept;

} // namespace DateTimeSteps

#pragma once
// Formats and ranges of axes, chosen by the span of what they show.

#include <string>

namespace Viewer
{

// A printf format that distinguishes the ticks of an axis from `low` to `high`.
[[nodiscard]] std::u16string NumberFormatFor(double low, double high);

// A strftime format for ticks of an axis over these OLE date-times: years alone over decades,
// down to seconds within minutes.
[[nodiscard]] std::u16string DateFormatFor(double low, double high);

// Whether the graph rounds the range of such a date axis well. It does so on a grid of unsigned
// seconds since 1970, in steps of weeks where years would be meant, so years drift through the
// calendar.
[[nodiscard]] bool GraphRoundsDatesWell(double low, double high) noexcept;

struct DateRange {
    double low;
    double high;
};

// A range around the dates low to high whose tenths are whole years (or days, within a few years),
// for axes that the graph doesn't round well. Two days are added to the start of years, so that a tick
// that leap years shift by a day stays in its year.
[[nodiscard]] DateRange RoundDateRange(double low, double high);

} // namespace Viewer

#pragma once
// Formats and ranges of axes, chosen by the span of what they show.

#include <string>

namespace Viewer
{

// A printf format that tells apart the ticks of an axis from `low` to `high`.
[[nodiscard]] std::u16string NumberFormatFor(double low, double high);

// A strftime format for ticks of an axis over these OLE date-times: years alone over decades,
// down to seconds within minutes.
[[nodiscard]] std::u16string DateFormatFor(double low, double high);

// The graph rounds date axes on a grid of unsigned seconds since 1970. True if low to high lies
// where that works.
[[nodiscard]] bool GraphCanRoundDates(double low, double high) noexcept;

struct DateRange {
    double low;
    double high;
};

// A range around the dates low to high whose tenths are whole years (or days, within a few years),
// for axes that the graph can't round. Two days are added to the start of years, so that a tick
// that leap years shift by a day stays in its year.
[[nodiscard]] DateRange RoundDateRange(double low, double high);

} // namespace Viewer

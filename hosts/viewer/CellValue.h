#pragma once
// What a cell means: a number, or a date as an OLE date-time value (days since 1899-12-30; before
// that day the fraction counts away from zero: -1.25 is 1899-12-29 06:00).

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Viewer
{

// A finite number in the usual notation ("-3.5", "+1e-3", ".5"), blanks around it allowed. The whole
// part may be set off in threes: "1,012.75". With `decimalComma` the two marks change places, "3,5"
// and "1.012,75"; a single point that doesn't set off threes is decimal there too.
[[nodiscard]] std::optional<double> ParseNumber(std::u16string_view cell, bool decimalComma);

// Whether the numbers of a column are written with decimal commas, from the first cell that leaves
// no doubt: "3,5" and "1.012,75" are, "1,012.75" isn't. Where all that have a comma could be either,
// as "1,012", the result is `otherwise`.
[[nodiscard]] bool HasDecimalCommas(std::span<const std::u16string> cells, bool otherwise);

// ISO 8601: "2012-01-31" or "2012-01", followed or not by "T" or a blank and "06:30" or "06:30:15"
// or "06:30:15.25", and that by "Z" or an offset such as "+02:00", which is taken off.
// Instead of the ISO day also "31.01.2012" or "31.1.2012". The years 100 to 9999 exist.
[[nodiscard]] std::optional<double> ParseDate(std::u16string_view cell);

struct CalendarDate {
    int year;
    int month; // 1 to 12
    int day;   // 1 to 31
};

[[nodiscard]] double DateToOle(const CalendarDate& date);
[[nodiscard]] CalendarDate OleToDate(double value);

} // namespace Viewer

#pragma once
// What a cell means: a number, or a date as an OLE date-time value (days since 1899-12-30; before
// that day the fraction counts away from zero: -1.25 is 1899-12-29 06:00).

#include <optional>
#include <string_view>

namespace Viewer
{

// A finite number in the usual notation ("-3.5", "+1e-3", ".5"), blanks around it allowed.
// With `decimalComma` also "3,5".
[[nodiscard]] std::optional<double> ParseNumber(std::u16string_view cell, bool decimalComma);

// ISO 8601: "2012-01-31" or "2012-01", followed or not by "T" or a blank and "06:30" or "06:30:15"
// or "06:30:15.25", and that by "Z" or an offset such as "+02:00", which is taken off.
// The years 100 to 9999 exist.
[[nodiscard]] std::optional<double> ParseDate(std::u16string_view cell);

struct CalendarDate {
    int year;
    int month; // 1 to 12
    int day;   // 1 to 31
};

[[nodiscard]] double DateToOle(const CalendarDate& date);
[[nodiscard]] CalendarDate OleToDate(double value);

} // namespace Viewer

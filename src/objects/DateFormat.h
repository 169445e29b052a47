#pragma once
// The text of a date-time by a format of the C run-time's wcsftime.

#include <cstddef>
#include <string>
#include <string_view>

namespace DateFormat
{

// Calendar fields as people count them.
struct TDateFields {
    int nYear = 1899;
    int nMonth = 12; // 1 to 12
    int nDay = 30;   // 1 to 31
    int nHour = 0;
    int nMinute = 0;
    int nSecond = 0;
    int nWeekDay = 6;   // 0 is Sunday
    int nYearDay = 364; // 1 to 366
};

// Units of the buffer that a text and its terminator have to fit in.
inline constexpr std::size_t BufferSize = 256;

// The text of a value that is no date.
inline constexpr std::u16string_view InvalidText = u"Invalid DateTime";

// The text in the run-time's "C" locale, with its # flag (%#d is a day without a zero before
// it, %#x a date in words). Conversions that the C standard doesn't know stay
// as they are written. A text that doesn't fit the buffer comes out empty.
[[nodiscard]] std::u16string FormatDate(std::u16string_view format, const TDateFields& fields);

} // namespace DateFormat

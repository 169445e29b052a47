#pragma once
// Number formats that come from outside, read by a parser of our own: nothing of such a
// text ever reaches the run-time's printf.
//
// An item is `%`, flags of "-+ #0", a width, `.` and a precision, an optional `l`, `h` or
// `L`, and a conversion letter. Width and precision are cut at 64. `%%` is a percent sign.
// An item that finds no argument of its kind, and every malformed one, stays as literal
// text. The results don't depend on the locale. Exponents have two digits at least;
// infinities and values that are no numbers are "inf" and "nan".

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace NumberFormat
{

inline constexpr int MaxWidth = 64; // of width and of precision

struct TInteger {
    std::int64_t value = 0;
    std::size_t size = sizeof(std::int64_t); // bytes of its own type: x, o and u show that many
};

// One argument of a composed format.
struct TArgument {
    explicit TArgument(double number) : value(number) {}
    explicit TArgument(std::int64_t number, std::size_t size = sizeof(std::int64_t))
        : value(TInteger{number, size})
    {
    }
    explicit TArgument(std::u16string text) : value(std::move(text)) {}

    std::variant<double, TInteger, std::u16string> value;
};

// The text of `format` with the value in its first floating item (aAeEfFgG). All other items
// stay as literal text. The result is at most 512 units longer than the format.
[[nodiscard]] std::u16string FormatNumber(std::u16string_view format, double value);

// A format whose texts begin with the same `longest` units as those of the given one, whatever
// the value: short, however long that one is.
[[nodiscard]] std::u16string Shortened(std::u16string_view format, std::size_t longest);

// A composed format: each item takes the next argument of its own kind, in order: integers
// (d i u x X o c), floating numbers (aAeEfFgG), texts (s).
[[nodiscard]] std::u16string FormatText(std::u16string_view format,
                                        std::span<const TArgument> arguments);

} // namespace NumberFormat

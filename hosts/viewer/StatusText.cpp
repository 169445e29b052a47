#include "viewer/StatusText.h"

#include "viewer/CellValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace Viewer
{
namespace
{

struct Operation {
    int number;
    std::u16string_view name;
    std::u16string_view hint;
};

constexpr std::array<Operation, 6> Operations = {{
    {0, u"select", u"Select: click an axis, a curve or a label; double-click for its properties"},
    {1, u"zoom", u"Zoom: drag a rectangle"},
    {3, u"pan", u"Pan: drag the view"},
    {4, u"cursor", u"Cursor: move to read off, click to leave a note"},
    {7, u"edit", u"Edit points: drag a point of a curve up or down"},
    {8, u"measure", u"Measure: drag from one point of a curve to another"},
}};

template <std::size_t size, class... Values> std::u16string Format(const char* format, Values... values)
{
    std::array<char, size> text{};
    const int length = std::snprintf(text.data(), text.size(), format, values...);
    return {text.data(),
            text.data() + (length > 0 ? std::min(static_cast<std::size_t>(length), size - 1) : 0)};
}

} // namespace

std::u16string_view OperationName(int operation) noexcept
{
    for (const Operation& known : Operations) {
        if (known.number == operation)
            return known.name;
    }
    return u"?";
}

std::u16string_view OperationHint(int operation) noexcept
{
    for (const Operation& known : Operations) {
        if (known.number == operation)
            return known.hint;
    }
    return {};
}

std::u16string NumberText(double value)
{
    return Format<48>("%.7g", value);
}

std::u16string DateText(double oleDate)
{
    constexpr double first = -657434; // the year 100
    constexpr double last = 2958466;  // the year 10000
    if (!(oleDate >= first && oleDate < last))
        return NumberText(oleDate);
    const CalendarDate date = OleToDate(oleDate);
    std::u16string text = Format<48>("%04d-%02d-%02d", date.year, date.month, date.day);
    // The fraction counts away from zero: it is the time of day also before 1899-12-30.
    const int seconds =
        std::min(static_cast<int>(std::lround(std::fabs(oleDate - std::trunc(oleDate)) * 86400)), 86399);
    if (seconds > 0)
        text += Format<48>(" %02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return text;
}

std::u16string CursorText(const CursorReading& reading)
{
    return std::u16string(reading.curve) + u": " +
           (reading.dateX ? DateText(reading.x) : NumberText(reading.x)) + u", " +
           (reading.dateY ? DateText(reading.y) : NumberText(reading.y));
}

} // namespace Viewer

#include "viewer/CellValue.h"

#include "viewer/PlainText.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <string>

namespace Viewer
{
namespace
{

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr double secondsOfDay = 86400.0;
constexpr std::size_t longestNumber = 400;
const sys_days oleEpoch{std::chrono::year{1899} / 12 / 30};

// Takes parts off the front of a text; any part that isn't there makes `good` false for good.
class Reader
{
public:
    explicit Reader(std::u16string_view text) : m_rest(text) {}

    int Digits(std::size_t count)
    {
        int value = 0;
        if (m_rest.size() < count) {
            m_good = false;
            return 0;
        }
        for (const char16_t unit : m_rest.substr(0, count)) {
            m_good = m_good && unit >= u'0' && unit <= u'9';
            value = value * 10 + (unit - u'0');
        }
        m_rest.remove_prefix(count);
        return m_good ? value : 0;
    }

    bool Take(char16_t unit)
    {
        if (m_rest.empty() || m_rest.front() != unit) {
            return false;
        }
        m_rest.remove_prefix(1);
        return true;
    }

    void Need(char16_t unit) { m_good = Take(unit) && m_good; }

    // The digits behind a decimal point, as a fraction; at least one.
    double Fraction()
    {
        double value = 0;
        double unit = 1;
        std::size_t count = 0;
        while (!m_rest.empty() && m_rest.front() >= u'0' && m_rest.front() <= u'9') {
            unit /= 10;
            value += unit * (m_rest.front() - u'0');
            m_rest.remove_prefix(1);
            ++count;
        }
        m_good = m_good && count > 0;
        return value;
    }

    void Refuse() { m_good = false; }
    [[nodiscard]] bool AtEnd() const { return m_rest.empty(); }
    [[nodiscard]] bool Good() const { return m_good; }

private:
    std::u16string_view m_rest;
    bool m_good = true;
};

double ReadClock(Reader& reader)
{
    const int hours = reader.Digits(2);
    reader.Need(u':');
    const int minutes = reader.Digits(2);
    double seconds = 0;
    if (reader.Take(u':')) {
        seconds = reader.Digits(2);
        if (reader.Take(u'.')) {
            seconds += reader.Fraction();
        }
    }
    if (hours > 23 || minutes > 59 || seconds >= 60) {
        reader.Refuse();
    }
    return (hours * 60 + minutes) * 60 + seconds;
}

double ReadOffset(Reader& reader)
{
    if (reader.Take(u'Z') || reader.AtEnd()) {
        return 0;
    }
    const double sign = reader.Take(u'-') ? -1 : 1;
    if (sign > 0) {
        reader.Need(u'+');
    }
    const int hours = reader.Digits(2);
    reader.Take(u':');
    const int minutes = reader.Digits(2);
    if (hours > 14 || minutes > 59) {
        reader.Refuse();
    }
    return sign * (hours * 60 + minutes) * 60;
}

double ToOle(sys_days day, double seconds)
{
    const double shift = std::floor(seconds / secondsOfDay);
    const double whole = static_cast<double>((day - oleEpoch).count()) + shift;
    const double fraction = (seconds - shift * secondsOfDay) / secondsOfDay;
    return whole < 0 ? whole - fraction : whole + fraction;
}

} // namespace

std::optional<double> ParseNumber(std::u16string_view cell, bool decimalComma)
{
    std::u16string_view trimmed = TrimBlanks(cell);
    if (!trimmed.empty() && trimmed.front() == u'+') {
        trimmed.remove_prefix(1);
        if (!trimmed.empty() && trimmed.front() == u'-') {
            return std::nullopt;
        }
    }
    if (trimmed.empty() || trimmed.size() > longestNumber) {
        return std::nullopt;
    }
    constexpr std::u16string_view allowed = u"0123456789.eE+-";
    std::string plain;
    plain.reserve(trimmed.size());
    for (const char16_t unit : trimmed) {
        const char16_t read = decimalComma && unit == u',' ? u'.' : unit;
        if (allowed.find(read) == allowed.npos) {
            return std::nullopt;
        }
        plain.push_back(static_cast<char>(read));
    }
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error != std::errc{} || end != plain.data() + plain.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> ParseDate(std::u16string_view cell)
{
    Reader reader(TrimBlanks(cell));
    const int year = reader.Digits(4);
    reader.Need(u'-');
    const int month = reader.Digits(2);
    const int day = reader.Take(u'-') ? reader.Digits(2) : 1;
    const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    double seconds = 0;
    if (reader.Take(u'T') || reader.Take(u't') || reader.Take(u' ')) {
        seconds = ReadClock(reader);
        seconds -= ReadOffset(reader);
    }
    if (!reader.Good() || !reader.AtEnd() || year < 100 || !date.ok()) {
        return std::nullopt;
    }
    return ToOle(sys_days{date}, seconds);
}

double DateToOle(const CalendarDate& date)
{
    const year_month_day day{std::chrono::year{date.year},
                             std::chrono::month{static_cast<unsigned>(date.month)},
                             std::chrono::day{static_cast<unsigned>(date.day)}};
    return ToOle(sys_days{day}, 0);
}

CalendarDate OleToDate(double value)
{
    const double whole = std::trunc(std::clamp(value, -657434.0, 2958465.0)); // years 100 to 9999
    const year_month_day day{oleEpoch + days{static_cast<int>(whole)}};
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

} // namespace Viewer

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

constexpr double SecondsOfDay = 86400.0;
constexpr std::size_t LongestNumber = 400;
const sys_days OleEpoch{std::chrono::year{1899} / 12 / 30};

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

    int UpToTwoDigits()
    {
        const bool two = m_rest.size() > 1 && m_rest[1] >= u'0' && m_rest[1] <= u'9';
        return Digits(two ? 2 : 1);
    }

    bool Take(char16_t unit)
    {
        if (m_rest.empty() || m_rest.front() != unit)
            return false;
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
        if (reader.Take(u'.'))
            seconds += reader.Fraction();
    }
    if (hours > 23 || minutes > 59 || seconds >= 60)
        reader.Refuse();
    return (hours * 60 + minutes) * 60 + seconds;
}

double ReadOffset(Reader& reader)
{
    if (reader.Take(u'Z') || reader.AtEnd())
        return 0;
    const double sign = reader.Take(u'-') ? -1 : 1;
    if (sign > 0)
        reader.Need(u'+');
    const int hours = reader.Digits(2);
    reader.Take(u':');
    const int minutes = reader.Digits(2);
    if (hours > 14 || minutes > 59)
        reader.Refuse();
    return sign * (hours * 60 + minutes) * 60;
}

double ToOle(sys_days day, double seconds)
{
    const double shift = std::floor(seconds / SecondsOfDay);
    const double whole = static_cast<double>((day - OleEpoch).count()) + shift;
    const double fraction = (seconds - shift * SecondsOfDay) / SecondsOfDay;
    return whole < 0 ? whole - fraction : whole + fraction;
}

} // namespace

namespace
{

bool IsDigit(char16_t unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}

// Whether the marks in a number's whole part set off groups of three digits: "1.012", "12.345.678".
bool IsGrouped(std::u16string_view whole, char16_t mark)
{
    std::size_t digits = 0;
    bool first = true;
    for (const char16_t unit : whole) {
        if (unit != mark) {
            ++digits;
            continue;
        }
        if (first ? digits == 0 || digits > 3 : digits != 3)
            return false;
        first = false;
        digits = 0;
    }
    return !first && digits == 3;
}

// The same number with a point for its decimal mark and no other mark. Whatever is no number keeps
// something that makes it none.
std::string ToPlain(std::u16string_view number, bool decimalComma)
{
    const char16_t decimal = decimalComma ? u',' : u'.';
    const char16_t group = decimalComma ? u'.' : u',';
    const std::size_t sign = number.front() == u'-' ? 1 : 0;
    const std::size_t end = std::min(number.find_first_not_of(u"0123456789.,", sign), number.size());
    const std::size_t wholeEnd = std::min(number.find(decimal), end);
    const bool grouped = IsGrouped(number.substr(sign, wholeEnd - sign), group);
    const bool point = decimalComma && !grouped && wholeEnd == end; // "3.5" is meant nevertheless
    std::string plain;
    plain.reserve(number.size());
    for (std::size_t at = 0; at < number.size(); ++at) {
        const char16_t unit = number[at];
        if (unit == group && at < wholeEnd && grouped)
            continue;
        const bool mark = unit == decimal || (unit == u'.' && point);
        plain.push_back(mark ? '.' : unit == u'.' || unit >= 0x80 ? '?' : static_cast<char>(unit));
    }
    return plain;
}

// How sure a cell is that a comma is a decimal mark: 1 and -1 are, 0 says nothing.
int VoteForComma(std::u16string_view cell)
{
    const auto commas = std::count(cell.begin(), cell.end(), u',');
    const auto points = std::count(cell.begin(), cell.end(), u'.');
    if (commas > 0 && points > 0)
        return cell.find_last_of(u",.") == cell.rfind(u',') ? 1 : -1;
    if (commas > 1 || points > 1)
        return commas > 1 ? -1 : 1;
    if (commas == 0)
        return 0;
    const std::size_t comma = cell.find(u',');
    const std::u16string_view before = cell.substr(0, comma);
    const bool group = cell.size() - comma == 4 && !before.empty() && IsDigit(before.back()) &&
                       before != u"0" && before != u"-0";
    return group ? 0 : 1;
}

} // namespace

std::optional<double> ParseNumber(std::u16string_view cell, bool decimalComma)
{
    std::u16string_view trimmed = TrimBlanks(cell);
    if (!trimmed.empty() && trimmed.front() == u'+') {
        trimmed.remove_prefix(1);
        if (!trimmed.empty() && trimmed.front() == u'-')
            return std::nullopt;
    }
    if (trimmed.empty() || trimmed.size() > LongestNumber ||
        trimmed.find_first_not_of(u"0123456789.,eE+-") != trimmed.npos) {
        return std::nullopt;
    }
    const std::string plain = ToPlain(trimmed, decimalComma);
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error != std::errc{} || end != plain.data() + plain.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool HasDecimalCommas(std::span<const std::u16string> cells, bool otherwise)
{
    bool commas = false;
    for (const std::u16string& cell : cells) {
        const std::u16string_view trimmed = TrimBlanks(cell);
        const bool number = !trimmed.empty() && IsDigit(trimmed.back()) && !ParseDate(trimmed) &&
                            trimmed.find_first_not_of(u"0123456789.,eE+-") == trimmed.npos;
        if (!number)
            continue;
        if (const int vote = VoteForComma(trimmed); vote != 0)
            return vote > 0;
        commas = commas || trimmed.find(u',') != trimmed.npos;
    }
    return commas && otherwise;
}

namespace
{

struct Day {
    int year;
    int month;
    int day;
};

// "2024-02-01" or "2024-02".
Day ReadIsoDay(Reader& reader)
{
    const int year = reader.Digits(4);
    reader.Need(u'-');
    const int month = reader.Digits(2);
    return {year, month, reader.Take(u'-') ? reader.Digits(2) : 1};
}

// "01.02.2024" or "1.2.2024", the day before the month.
Day ReadPointedDay(Reader& reader)
{
    const int day = reader.UpToTwoDigits();
    reader.Need(u'.');
    const int month = reader.UpToTwoDigits();
    reader.Need(u'.');
    return {reader.Digits(4), month, day};
}

} // namespace

std::optional<double> ParseDate(std::u16string_view cell)
{
    const std::u16string_view trimmed = TrimBlanks(cell);
    Reader reader(trimmed);
    const bool pointed = trimmed.substr(0, 3).find(u'.') != trimmed.npos;
    const Day read = pointed ? ReadPointedDay(reader) : ReadIsoDay(reader);
    const year_month_day date{std::chrono::year{read.year},
                              std::chrono::month{static_cast<unsigned>(read.month)},
                              std::chrono::day{static_cast<unsigned>(read.day)}};
    double seconds = 0;
    if (reader.Take(u'T') || reader.Take(u't') || reader.Take(u' ')) {
        seconds = ReadClock(reader);
        seconds -= ReadOffset(reader);
    }
    if (!reader.Good() || !reader.AtEnd() || read.year < 100 || !date.ok())
        return std::nullopt;
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
    const year_month_day day{OleEpoch + days{static_cast<int>(whole)}};
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

} // namespace Viewer

#include "objects/DateFormat.h"

#include <array>
#include <ctime>
#include <cwchar>
#include <span>
#include <utility>

namespace DateFormat
{

namespace
{

constexpr std::array<std::u16string_view, 7> Days = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                     u"Thursday", u"Friday", u"Saturday"};
constexpr std::array<std::u16string_view, 12> Months = {
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December"};

// Conversions that take the E modifier, and those that take O; without a locale both
// change nothing.
constexpr std::u16string_view TakesE = u"cCxXyY";
constexpr std::u16string_view TakesO = u"deHImMSuUVwWy";

// Conversions that lose leading zeros and blanks by the # flag; on others it is ignored.
constexpr std::u16string_view Filled = u"CdDeFHIjmMrRSTUVWyY";

std::u16string_view NameOf(std::span<const std::u16string_view> names, int index) noexcept
{
    return index >= 0 && index < static_cast<int>(names.size()) ? names[index]
                                                                : std::u16string_view(u"?");
}

int Modulo(int value, int by) noexcept
{
    const int rest = value % by;
    return rest < 0 ? rest + by : rest;
}

bool IsLeapYear(int year) noexcept
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// Year and number of the week that, by ISO 8601, the day belongs to.
struct TIsoWeek {
    int nYear;
    int nWeek;
};

TIsoWeek IsoWeekOf(const TDateFields& fields) noexcept
{
    const int fromMonday = Modulo(fields.nWeekDay - 1, 7);
    const int dayOfYear = fields.nYearDay - 1;
    // The week belongs to the year that has its Thursday.
    const int thursday = dayOfYear - fromMonday + 3;
    if (thursday < 0) {
        const int year = fields.nYear - 1;
        return {year, (thursday + (IsLeapYear(year) ? 366 : 365)) / 7 + 1};
    }
    const int length = IsLeapYear(fields.nYear) ? 366 : 365;
    if (thursday >= length)
        return {fields.nYear + 1, 1};
    return {fields.nYear, thursday / 7 + 1};
}

class CWriter
{
public:
    explicit CWriter(const TDateFields& fields) noexcept : m_fields(fields) {}

    // Writes one conversion; false for a letter that the C standard doesn't know.
    bool Convert(char16_t letter);
    // The form of the run-time's # flag: dates in words, numbers without leading fill.
    bool ConvertAlternate(char16_t letter);
    void Literal(std::u16string_view text) { m_text += text; }
    [[nodiscard]] std::u16string Take() noexcept { return std::move(m_text); }
    [[nodiscard]] std::size_t Length() const noexcept { return m_text.size(); }

private:
    bool ConvertDay(char16_t letter);
    bool ConvertWeek(char16_t letter);
    bool ConvertTime(char16_t letter);
    bool ConvertComposed(char16_t letter);
    void Number(int value, int width, char16_t fill = u'0');
    void All(std::u16string_view letters);
    void Zone(char16_t letter);

    const TDateFields& m_fields;
    std::u16string m_text;
    bool m_bWithoutFill = false;
};

void CWriter::Number(int value, int width, char16_t fill)
{
    const bool negative = value < 0;
    std::u16string digits;
    for (const char digit : std::to_string(value)) {
        if (digit != '-')
            digits += static_cast<char16_t>(digit);
    }
    if (!m_bWithoutFill && static_cast<int>(digits.size()) < width)
        digits.insert(0, static_cast<std::size_t>(width) - digits.size(), fill);
    if (negative)
        m_text += u'-';
    m_text += digits;
}

// A format of conversions with literal text between them.
void CWriter::All(std::u16string_view letters)
{
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (letters[i] == u'%')
            Convert(letters[++i]);
        else
            m_text += letters[i];
    }
}

// The zone is the machine's; the value names no other.
void CWriter::Zone(char16_t letter)
{
    std::tm broken = {};
    broken.tm_year = m_fields.nYear - 1900;
    broken.tm_mon = m_fields.nMonth - 1;
    broken.tm_mday = m_fields.nDay;
    broken.tm_hour = m_fields.nHour;
    broken.tm_min = m_fields.nMinute;
    broken.tm_sec = m_fields.nSecond;
    broken.tm_wday = m_fields.nWeekDay;
    broken.tm_yday = m_fields.nYearDay - 1;
    std::array<wchar_t, BufferSize> buffer = {};
    const std::size_t length =
        std::wcsftime(buffer.data(), buffer.size(), letter == u'z' ? L"%z" : L"%Z", &broken);
    m_text.append(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(length));
}

bool CWriter::ConvertDay(char16_t letter)
{
    switch (letter) {
    case u'a':
        m_text += NameOf(Days, m_fields.nWeekDay).substr(0, 3);
        return true;
    case u'A':
        m_text += NameOf(Days, m_fields.nWeekDay);
        return true;
    case u'b':
    case u'h':
        m_text += NameOf(Months, m_fields.nMonth - 1).substr(0, 3);
        return true;
    case u'B':
        m_text += NameOf(Months, m_fields.nMonth - 1);
        return true;
    case u'C':
        Number((m_fields.nYear - Modulo(m_fields.nYear, 100)) / 100, 2);
        return true;
    case u'd':
        Number(m_fields.nDay, 2);
        return true;
    case u'e':
        Number(m_fields.nDay, 2, u' ');
        return true;
    case u'j':
        Number(m_fields.nYearDay, 3);
        return true;
    case u'm':
        Number(m_fields.nMonth, 2);
        return true;
    case u'y':
        Number(Modulo(m_fields.nYear, 100), 2);
        return true;
    case u'Y':
        Number(m_fields.nYear, 1);
        return true;
    default:
        return false;
    }
}

bool CWriter::ConvertWeek(char16_t letter)
{
    const int dayOfYear = m_fields.nYearDay - 1;
    switch (letter) {
    case u'g':
        Number(Modulo(IsoWeekOf(m_fields).nYear, 100), 2);
        return true;
    case u'G':
        Number(IsoWeekOf(m_fields).nYear, 1);
        return true;
    case u'u':
        Number(Modulo(m_fields.nWeekDay - 1, 7) + 1, 1);
        return true;
    case u'U':
        Number((dayOfYear + 7 - m_fields.nWeekDay) / 7, 2);
        return true;
    case u'V':
        Number(IsoWeekOf(m_fields).nWeek, 2);
        return true;
    case u'w':
        Number(m_fields.nWeekDay, 1);
        return true;
    case u'W':
        Number((dayOfYear + 7 - Modulo(m_fields.nWeekDay - 1, 7)) / 7, 2);
        return true;
    default:
        return false;
    }
}

bool CWriter::ConvertTime(char16_t letter)
{
    switch (letter) {
    case u'H':
        Number(m_fields.nHour, 2);
        return true;
    case u'I':
        Number(Modulo(m_fields.nHour + 11, 12) + 1, 2);
        return true;
    case u'M':
        Number(m_fields.nMinute, 2);
        return true;
    case u'p':
        m_text += m_fields.nHour < 12 ? u"AM" : u"PM";
        return true;
    case u'S':
        Number(m_fields.nSecond, 2);
        return true;
    case u'z':
    case u'Z':
        Zone(letter);
        return true;
    default:
        return false;
    }
}

bool CWriter::ConvertComposed(char16_t letter)
{
    switch (letter) {
    case u'c':
        All(u"%a %b %e %H:%M:%S %Y");
        return true;
    case u'D':
    case u'x':
        All(u"%m/%d/%y");
        return true;
    case u'F':
        All(u"%Y-%m-%d");
        return true;
    case u'n':
        m_text += u'\n';
        return true;
    case u'r':
        All(u"%I:%M:%S %p");
        return true;
    case u'R':
        All(u"%H:%M");
        return true;
    case u't':
        m_text += u'\t';
        return true;
    case u'T':
    case u'X':
        All(u"%H:%M:%S");
        return true;
    case u'%':
        m_text += u'%';
        return true;
    default:
        return false;
    }
}

bool CWriter::Convert(char16_t letter)
{
    return ConvertDay(letter) || ConvertWeek(letter) || ConvertTime(letter) || ConvertComposed(letter);
}

bool CWriter::ConvertAlternate(char16_t letter)
{
    if (letter == u'c' || letter == u'x') {
        All(letter == u'c' ? u"%A, %B %d, %Y, %H:%M:%S" : u"%A, %B %d, %Y");
        return true;
    }
    m_bWithoutFill = Filled.find(letter) != std::u16string_view::npos;
    const bool bKnown = Convert(letter);
    m_bWithoutFill = false;
    return bKnown;
}

// Length of the conversion's modifier at the start of `rest`: 0, or 1 where the letter
// behind it takes one.
std::size_t ModifierLength(std::u16string_view rest) noexcept
{
    if (rest.size() < 2)
        return 0;
    const auto takes = rest[0] == u'E' ? TakesE : rest[0] == u'O' ? TakesO : std::u16string_view();
    return takes.find(rest[1]) != std::u16string_view::npos ? 1 : 0;
}

} // namespace

std::u16string FormatDate(std::u16string_view format, const TDateFields& fields)
{
    CWriter writer(fields);
    for (std::size_t i = 0; i < format.size() && writer.Length() < BufferSize; ++i) {
        if (format[i] != u'%' || i + 1 == format.size()) {
            writer.Literal(format.substr(i, 1));
            continue;
        }
        const bool alternate = format[i + 1] == u'#';
        const std::size_t behind = i + (alternate ? 2 : 1);
        const std::size_t letter = behind + ModifierLength(format.substr(behind));
        if (letter < format.size() &&
            (alternate ? writer.ConvertAlternate(format[letter]) : writer.Convert(format[letter])))
            i = letter;
        else
            writer.Literal(u"%");
    }
    return writer.Length() < BufferSize ? writer.Take() : std::u16string();
}

} // namespace DateFormat

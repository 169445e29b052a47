#include "base/NumberFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

namespace NumberFormat
{
namespace
{

enum class EKind { Floating, Integer, Text };

struct TItem {
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool alternate = false;
    bool zeros = false;
    int width = 0;
    int precision = -1; // -1: not given
    char16_t conversion = 0;
    EKind kind = EKind::Floating;
    std::size_t length = 0; // of the item in the format
};

bool Contains(std::u16string_view set, char16_t unit)
{
    return set.find(unit) != std::u16string_view::npos;
}

class CItemParser
{
public:
    explicit CItemParser(std::u16string_view text) : m_text(text) {}

    // The item that the text begins with; nothing if it is not one.
    std::optional<TItem> Parse()
    {
        ++m_pos; // the percent sign
        ReadFlags();
        m_item.width = ReadCount();
        if (Peek() == u'.') {
            ++m_pos;
            m_item.precision = ReadCount();
        }
        while (Contains(u"hlL", Peek()))
            ++m_pos;
        m_item.conversion = Peek();
        m_item.length = m_pos + 1;
        if (Contains(u"aAeEfFgG", m_item.conversion))
            m_item.kind = EKind::Floating;
        else if (Contains(u"diuoxXc", m_item.conversion))
            m_item.kind = EKind::Integer;
        else if (m_item.conversion == u's')
            m_item.kind = EKind::Text;
        else
            return std::nullopt;
        return m_item;
    }

private:
    // The end is a unit that no set contains.
    [[nodiscard]] char16_t Peek() const { return m_pos < m_text.size() ? m_text[m_pos] : u'\xFFFF'; }

    void ReadFlags()
    {
        for (;; ++m_pos) {
            switch (Peek()) {
            case u'-':
                m_item.left = true;
                break;
            case u'+':
                m_item.plus = true;
                break;
            case u' ':
                m_item.blank = true;
                break;
            case u'#':
                m_item.alternate = true;
                break;
            case u'0':
                m_item.zeros = true;
                break;
            default:
                return;
            }
        }
    }

    int ReadCount()
    {
        int count = 0;
        for (; Peek() >= u'0' && Peek() <= u'9'; ++m_pos)
            count = std::min(count * 10 + (Peek() - u'0'), MaxWidth);
        return count;
    }

    std::u16string_view m_text;
    std::size_t m_pos = 0;
    TItem m_item;
};

// Sign, prefix and digits set into the item's width.
std::u16string Padded(const TItem& item, std::string_view sign, std::string_view digits, bool zeros)
{
    const std::size_t used = sign.size() + digits.size();
    const auto width = static_cast<std::size_t>(item.width);
    const std::size_t fill = width > used ? width - used : 0;
    std::u16string result;
    if (!item.left && !zeros)
        result.append(fill, u' ');
    result.append(sign.begin(), sign.end());
    if (!item.left && zeros)
        result.append(fill, u'0');
    result.append(digits.begin(), digits.end());
    if (item.left)
        result.append(fill, u' ');
    return result;
}

// Of digits, signs and names of numbers.
void MakeUpper(std::string& text)
{
    for (char& unit : text) {
        if (unit >= 'a')
            unit = static_cast<char>(unit - 'a' + 'A');
    }
}

// `precision` below 0: as many digits as the number has (hexadecimal only).
std::string ToDigits(double magnitude, std::chars_format style, int precision)
{
    std::array<char, 512> buffer; // 309 digits in front of the point and 64 behind it fit
    char* const begin = buffer.data();
    char* const end = begin + buffer.size();
    const auto written = precision < 0 ? std::to_chars(begin, end, magnitude, style)
                                       : std::to_chars(begin, end, magnitude, style, precision);
    return {begin, written.ptr};
}

// The `g` conversion that keeps trailing zeros: the style follows from the exponent that the
// number has once it is rounded to the precision.
std::string GeneralWithZeros(double magnitude, int precision)
{
    std::string digits = ToDigits(magnitude, std::chars_format::scientific, precision - 1);
    int exponent = 0;
    const char* const sign = digits.data() + digits.find('e') + 1;
    std::from_chars(*sign == '+' ? sign + 1 : sign, digits.data() + digits.size(), exponent);
    if (exponent < -4 || exponent >= precision)
        return digits;
    return ToDigits(magnitude, std::chars_format::fixed, precision - 1 - exponent);
}

std::string FloatingDigits(const TItem& item, double magnitude)
{
    if (!std::isfinite(magnitude))
        return std::isnan(magnitude) ? "nan" : "inf";
    const char16_t style = item.conversion | 0x20; // lower case
    const int precision = item.precision < 0 ? 6 : item.precision;
    std::string digits;
    if (style == u'f')
        digits = ToDigits(magnitude, std::chars_format::fixed, precision);
    else if (style == u'e')
        digits = ToDigits(magnitude, std::chars_format::scientific, precision);
    else if (style == u'a')
        digits = ToDigits(magnitude, std::chars_format::hex, item.precision);
    else if (item.alternate)
        digits = GeneralWithZeros(magnitude, std::max(precision, 1));
    else
        digits = ToDigits(magnitude, std::chars_format::general, std::max(precision, 1));

    if (item.alternate && digits.find('.') == std::string::npos)
        digits.insert(std::min(digits.find_first_of(style == u'a' ? "p" : "e"), digits.size()), 1, '.');
    return digits;
}

std::u16string FormatFloating(const TItem& item, double value)
{
    const bool upper = item.conversion < u'a';
    std::string digits = FloatingDigits(item, std::fabs(value));
    std::string sign;
    if (std::signbit(value) && !std::isnan(value))
        sign = "-";
    else if (item.plus)
        sign = "+";
    else if (item.blank)
        sign = " ";
    if (std::isfinite(value) && (item.conversion | 0x20) == u'a')
        sign += "0x";
    if (upper) {
        MakeUpper(digits);
        MakeUpper(sign);
    }
    return Padded(item, sign, digits, item.zeros && std::isfinite(value));
}

// The item in its shortest form.
std::u16string Rewritten(const TItem& item)
{
    std::u16string text = u"%";
    const std::pair<bool, char16_t> flags[] = {{item.left, u'-'},
                                               {item.plus, u'+'},
                                               {item.blank, u' '},
                                               {item.alternate, u'#'},
                                               {item.zeros, u'0'}};
    for (const auto& [isSet, flag] : flags) {
        if (isSet)
            text += flag;
    }
    const auto append = [&](int count) {
        const std::string digits = std::to_string(count);
        text.append(digits.begin(), digits.end());
    };
    if (item.width > 0)
        append(item.width);
    if (item.precision >= 0) {
        text += u'.';
        append(item.precision);
    }
    return text + item.conversion;
}

std::string IntegerDigits(const TItem& item, std::uint64_t magnitude)
{
    if (magnitude == 0 && item.precision == 0)
        return {};
    const int base = Contains(u"xX", item.conversion) ? 16 : item.conversion == u'o' ? 8 : 10;
    std::array<char, 32> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, base);
    std::string digits(buffer.data(), written.ptr);
    const auto least = static_cast<std::size_t>(std::max(item.precision, 0));
    if (digits.size() < least)
        digits.insert(0, least - digits.size(), '0');
    return digits;
}

std::u16string FormatText(const TItem& item, std::u16string_view text)
{
    if (item.precision >= 0)
        text = text.substr(0, static_cast<std::size_t>(item.precision));
    const auto width = static_cast<std::size_t>(item.width);
    const std::size_t fill = width > text.size() ? width - text.size() : 0;
    std::u16string result(item.left ? 0 : fill, u' ');
    result += text;
    result.append(item.left ? fill : 0, u' ');
    return result;
}

std::u16string FormatInteger(const TItem& item, const TInteger& integer)
{
    if (item.conversion == u'c')
        return FormatText(item, std::u16string(1, static_cast<char16_t>(integer.value)));
    const bool isSigned = Contains(u"di", item.conversion);
    auto magnitude = static_cast<std::uint64_t>(integer.value);
    std::string sign;
    if (isSigned && integer.value < 0) {
        magnitude = 0 - magnitude;
        sign = "-";
    } else if (isSigned && item.plus) {
        sign = "+";
    } else if (isSigned && item.blank) {
        sign = " ";
    } else if (!isSigned && integer.size < sizeof magnitude) {
        magnitude &= (std::uint64_t{1} << (integer.size * 8)) - 1;
    }
    std::string digits = IntegerDigits(item, magnitude);
    if (item.alternate && magnitude != 0 && Contains(u"xX", item.conversion))
        sign += "0x";
    if (item.alternate && item.conversion == u'o' && !digits.starts_with('0'))
        digits.insert(0, 1, '0');
    if (item.conversion == u'X') {
        MakeUpper(digits);
        MakeUpper(sign);
    }
    return Padded(item, sign, digits, item.zeros && item.precision < 0);
}

// The arguments of each kind, taken in order.
class CArguments
{
public:
    explicit CArguments(std::span<const TArgument> arguments) : m_arguments(arguments) {}

    // Null when there is none left.
    template <class Value> const Value* Next(EKind kind)
    {
        std::size_t& next = m_next[static_cast<std::size_t>(kind)];
        while (next < m_arguments.size()) {
            if (const Value* value = std::get_if<Value>(&m_arguments[next++].value))
                return value;
        }
        return nullptr;
    }

private:
    std::span<const TArgument> m_arguments;
    std::array<std::size_t, 3> m_next{};
};

std::optional<std::u16string> Filled(const TItem& item, CArguments& arguments)
{
    switch (item.kind) {
    case EKind::Floating:
        if (const double* value = arguments.Next<double>(item.kind))
            return FormatFloating(item, *value);
        break;
    case EKind::Integer:
        if (const TInteger* value = arguments.Next<TInteger>(item.kind))
            return FormatInteger(item, *value);
        break;
    case EKind::Text:
        if (const std::u16string* value = arguments.Next<std::u16string>(item.kind))
            return FormatText(item, *value);
        break;
    }
    return std::nullopt;
}

} // namespace

std::u16string FormatText(std::u16string_view format, std::span<const TArgument> arguments)
{
    CArguments source(arguments);
    std::u16string result;
    constexpr std::size_t shortFormat = 7; // its text mostly needs no memory of its own
    if (format.size() > shortFormat)
        result.reserve(format.size() + 32);
    while (!format.empty()) {
        const std::size_t percent = std::min(format.find(u'%'), format.size());
        result += format.substr(0, percent);
        format.remove_prefix(percent);
        if (format.empty())
            break;
        if (format.starts_with(u"%%")) {
            result += u'%';
            format.remove_prefix(2);
            continue;
        }
        const std::optional<TItem> item = CItemParser(format).Parse();
        // What is no item stays as it is, but a later percent sign in it may begin one.
        const std::size_t length = item ? item->length : 1;
        const std::optional<std::u16string> text = item ? Filled(*item, source) : std::nullopt;
        if (text)
            result += *text;
        else
            result += format.substr(0, length);
        format.remove_prefix(length);
    }
    return result;
}

std::u16string FormatNumber(std::u16string_view format, double value)
{
    const TArgument arguments[] = {TArgument(value)};
    return FormatText(format, arguments);
}

std::u16string Shortened(std::u16string_view format, std::size_t longest)
{
    // Literal text is kept, with its percent signs doubled; the item that takes the
    // value gets its shortest form.
    std::u16string result;
    std::size_t literals = 0;
    bool taken = false;
    while (!format.empty() && literals < longest) {
        const std::optional<TItem> item =
            format.front() == u'%' ? CItemParser(format).Parse() : std::nullopt;
        if (item && item->kind == EKind::Floating && !taken) {
            result += Rewritten(*item);
            format.remove_prefix(item->length);
            taken = true;
            continue;
        }
        result.append(format.front() == u'%' ? 2 : 1, format.front());
        ++literals;
        format.remove_prefix(format.starts_with(u"%%") ? 2 : 1);
    }
    return result;
}

} // namespace NumberFormat

#include "framework/windowing/NumberText.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace
{

constexpr std::u16string_view Blanks = u" \t";

std::u16string_view Trimmed(std::u16string_view text) noexcept
{
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

bool IsDigit(char16_t unit) noexcept
{
    return unit >= u'0' && unit <= u'9';
}

// Takes the sign off; true for a minus.
bool TakeSign(std::u16string_view& text) noexcept
{
    const bool minus = !text.empty() && text.front() == u'-';
    if (minus || (!text.empty() && text.front() == u'+'))
        text.remove_prefix(1);
    return minus;
}

std::size_t TakeDigits(std::u16string_view& text) noexcept
{
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count;
}

// The value of digits alone, at most `limit`.
std::optional<std::int64_t> ParseDigits(std::u16string_view digits, std::int64_t limit) noexcept
{
    if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit))
        return std::nullopt;
    std::int64_t value = 0;
    for (const char16_t digit : digits)
        value = std::min(value * 10 + (digit - u'0'), limit);
    return value;
}

bool IsReal(std::u16string_view text) noexcept
{
    TakeSign(text);
    std::size_t digits = TakeDigits(text);
    if (!text.empty() && text.front() == u'.') {
        text.remove_prefix(1);
        digits += TakeDigits(text);
    }
    if (digits == 0)
        return false;
    if (text.empty())
        return true;
    if (text.front() != u'e' && text.front() != u'E')
        return false;
    text.remove_prefix(1);
    TakeSign(text);
    return TakeDigits(text) > 0 && text.empty();
}

} // namespace

std::optional<std::int32_t> NumberText::ParseInteger(std::u16string_view text) noexcept
{
    std::u16string_view digits = Trimmed(text);
    const bool minus = TakeSign(digits);
    const std::int64_t limit = std::numeric_limits<std::int32_t>::max();
    const auto value = ParseDigits(digits, minus ? limit + 1 : limit);
    if (!value)
        return std::nullopt;
    return static_cast<std::int32_t>(minus ? -*value : *value);
}

std::optional<std::uint32_t> NumberText::ParseUnsigned(std::u16string_view text) noexcept
{
    std::u16string_view digits = Trimmed(text);
    if (TakeSign(digits))
        return std::nullopt;
    const auto value = ParseDigits(digits, std::numeric_limits<std::uint32_t>::max());
    if (!value)
        return std::nullopt;
    return static_cast<std::uint32_t>(*value);
}

std::optional<double> NumberText::ParseReal(std::u16string_view text)
{
    const std::u16string_view number = Trimmed(text);
    if (!IsReal(number))
        return std::nullopt;
    std::string narrow(number.begin(), number.end()); // digits, signs, a point and an e
    if (narrow.front() == '+')
        narrow.erase(0, 1);
    double value = 0.0;
    const auto result = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const std::size_t exponent = narrow.find_first_of("eE");
        const bool small = exponent != std::string::npos && narrow[exponent + 1] == '-';
        return small ? std::optional(0.0) : std::nullopt;
    }
    return value;
}

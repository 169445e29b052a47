#include "viewer/PlainText.h"

#include <algorithm>
#include <string>

namespace Viewer
{

std::u16string ToText(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string Quote(std::u16string_view name)
{
    constexpr std::size_t longest = 60;
    std::u16string text = u"\"";
    for (const char16_t unit : name.substr(0, longest))
        text.push_back(unit < u' ' ? u' ' : unit);
    return text + (name.size() > longest ? u"...\"" : u"\"");
}

std::u16string_view TrimBlanks(std::u16string_view text)
{
    constexpr std::u16string_view blanks = u" \t\r\n\u00A0";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool EqualsIgnoringCase(std::u16string_view one, std::u16string_view other)
{
    const auto lower = [](char16_t unit) -> char16_t {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
    };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [&](char16_t left, char16_t right) { return lower(left) == lower(right); });
}

} // namespace Viewer

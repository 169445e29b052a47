#include "framework/component/RegistrarWords.h"

#include <algorithm>

namespace RegistrarScript
{

namespace
{

constexpr bool IsBlank(char16_t c) noexcept
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

constexpr int HexDigit(char16_t c) noexcept
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    const char16_t upper = Upper(c);
    return upper >= u'A' && upper <= u'F' ? upper - u'A' + 10 : -1;
}

} // namespace

bool SameWord(std::u16string_view a, std::u16string_view b) noexcept
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return Upper(x) == Upper(y); });
}

std::optional<Token> Words::Take()
{
    std::optional<Token> taken = std::move(m_next);
    m_next.reset();
    if (taken)
        Advance();
    return taken;
}

bool Words::TakeIf(std::u16string_view word)
{
    const bool is = m_next && m_next->Is(word);
    if (is)
        Take();
    return is;
}

void Words::Advance()
{
    const auto start = std::find_if_not(m_rest.begin(), m_rest.end(), IsBlank);
    m_rest.remove_prefix(static_cast<std::size_t>(start - m_rest.begin()));
    if (m_rest.empty())
        return;
    if (m_rest.front() == u'\'') {
        AdvanceQuoted();
        return;
    }
    const auto end = std::find_if(m_rest.begin(), m_rest.end(), IsBlank);
    const auto length = static_cast<std::size_t>(end - m_rest.begin());
    m_next = Token{std::u16string(m_rest.substr(0, length)), false};
    m_rest.remove_prefix(length);
}

void Words::AdvanceQuoted()
{
    Token token;
    token.quoted = true;
    std::size_t at = 1;
    while (at < m_rest.size()) {
        if (m_rest[at] != u'\'') {
            token.text += m_rest[at++];
        } else if (at + 1 < m_rest.size() && m_rest[at + 1] == u'\'') {
            token.text += u'\'';
            at += 2;
        } else {
            m_rest.remove_prefix(at + 1);
            m_next = std::move(token);
            return;
        }
    }
    m_broken = true;
}

std::optional<std::uint32_t> NumberOf(std::u16string_view text)
{
    std::uint32_t base = 10;
    if (text.size() > 2 && (SameWord(text.substr(0, 2), u"&H") || SameWord(text.substr(0, 2), u"0x"))) {
        base = 16;
        text.remove_prefix(2);
    }
    if (text.empty())
        return std::nullopt;
    std::uint64_t number = 0;
    for (const char16_t c : text) {
        const int digit = HexDigit(c);
        if (digit < 0 || static_cast<std::uint32_t>(digit) >= base)
            return std::nullopt;
        number = number * base + static_cast<std::uint32_t>(digit);
        if (number > UINT32_MAX)
            return std::nullopt;
    }
    return static_cast<std::uint32_t>(number);
}

std::optional<std::vector<std::uint8_t>> BytesOf(std::u16string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const int high = HexDigit(text[at]);
        const int low = HexDigit(text[at + 1]);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
    }
    return bytes;
}

} // namespace RegistrarScript

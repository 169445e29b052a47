#pragma once
// The words of a registrar script, and the numbers in them.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace RegistrarScript
{

// Letters of the English alphabet alone: keywords and root keys have no others.
constexpr char16_t Upper(char16_t c) noexcept
{
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

[[nodiscard]] bool SameWord(std::u16string_view a, std::u16string_view b) noexcept;

struct Token {
    std::u16string text;
    bool quoted = false;

    [[nodiscard]] bool Is(std::u16string_view word) const noexcept
    {
        return !quoted && SameWord(text, word);
    }
};

// Words of a script, one after the other, with one word of foresight.
class Words
{
public:
    explicit Words(std::u16string_view text) : m_rest(text) { Advance(); }

    // Null at the end of the text, and for good after a quote without its partner.
    [[nodiscard]] const Token* Peek() const noexcept { return m_next ? &*m_next : nullptr; }
    [[nodiscard]] bool Broken() const noexcept { return m_broken; }

    std::optional<Token> Take();
    bool TakeIf(std::u16string_view word);

private:
    void Advance();
    void AdvanceQuoted();

    std::u16string_view m_rest;
    std::optional<Token> m_next;
    bool m_broken = false;
};

// Decimal, or hexadecimal behind &H or 0x; 32 bits.
[[nodiscard]] std::optional<std::uint32_t> NumberOf(std::u16string_view text);

// Pairs of hexadecimal digits.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> BytesOf(std::u16string_view text);

} // namespace RegistrarScript

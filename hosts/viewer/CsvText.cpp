#include "viewer/CsvText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Viewer
{
namespace
{

std::u16string DecodeUtf16(std::string_view bytes, bool bigEndian)
{
    std::u16string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        text.push_back(static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first));
    }
    return text;
}

// Length of the well-formed UTF-8 sequence at the start of `bytes`, 0 if there is none.
std::size_t SequenceLength(std::string_view bytes, char32_t& code)
{
    static constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(bytes[0]);
    std::size_t length = 0;
    if (lead < 0x80) {
        code = lead;
        return 1;
    }
    if (lead >= 0xC0 && lead < 0xE0) {
        length = 2;
        code = lead & 0x1F;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        code = lead & 0x0F;
    } else if (lead >= 0xF0 && lead < 0xF8) {
        length = 4;
        code = lead & 0x07;
    }
    if (length == 0 || bytes.size() < length)
        return 0;
    for (std::size_t at = 1; at < length; ++at) {
        const auto next = static_cast<unsigned char>(bytes[at]);
        if ((next & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (next & 0x3F);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < smallest[length] || code > 0x10FFFF || surrogate ? 0 : length;
}

std::u16string DecodeUtf8(std::string_view bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        char32_t code = 0;
        std::size_t length = SequenceLength(bytes, code);
        if (length == 0) {
            code = static_cast<unsigned char>(bytes[0]);
            length = 1;
        }
        if (code >= 0x10000) {
            text.push_back(static_cast<char16_t>(0xD7C0 + (code >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (code & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(code));
        }
        bytes.remove_prefix(length);
    }
    return text;
}

char16_t FindSeparator(std::u16string_view text)
{
    static constexpr std::array<char16_t, 3> candidates = {u',', u';', u'\t'};
    std::array<std::size_t, candidates.size()> counts{};
    bool quoted = false;
    for (const char16_t unit : text) {
        if (unit == u'"') {
            quoted = !quoted;
        } else if (!quoted && (unit == u'\n' || unit == u'\r')) {
            break;
        } else if (!quoted) {
            const auto found = std::find(candidates.begin(), candidates.end(), unit);
            if (found != candidates.end())
                ++counts[static_cast<std::size_t>(found - candidates.begin())];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return candidates[static_cast<std::size_t>(most - counts.begin())];
}

// Walks the text once, cell by cell.
class Splitter
{
public:
    Splitter(std::u16string_view text, char16_t separator) : m_text(text), m_separator(separator) {}

    void Split(CsvContents& contents)
    {
        while (m_at < m_text.size()) {
            CsvRow row = ReadRow();
            const bool empty = row.cells.size() == 1 && row.cells.front().empty();
            if (!empty)
                contents.rows.push_back(std::move(row));
        }
        contents.endsInsideQuotes = m_endsInsideQuotes;
    }

private:
    [[nodiscard]] bool AtLineEnd() const
    {
        return m_at >= m_text.size() || m_text[m_at] == u'\n' || m_text[m_at] == u'\r';
    }

    void TakeLineEnd()
    {
        if (m_at >= m_text.size())
            return;
        const bool pair = m_text[m_at] == u'\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\n';
        m_at += pair ? 2 : 1;
        ++m_line;
    }

    CsvRow ReadRow()
    {
        CsvRow row;
        row.line = m_line;
        row.cells.push_back(ReadCell());
        while (m_at < m_text.size() && m_text[m_at] == m_separator) {
            ++m_at;
            row.cells.push_back(ReadCell());
        }
        TakeLineEnd();
        return row;
    }

    std::u16string ReadCell()
    {
        std::u16string cell;
        if (m_at < m_text.size() && m_text[m_at] == u'"') {
            ++m_at;
            ReadQuoted(cell);
        }
        // Also what is between a closing quote and the separator.
        const std::size_t start = m_at;
        while (!AtLineEnd() && m_text[m_at] != m_separator)
            ++m_at;
        cell.append(m_text.substr(start, m_at - start));
        return cell;
    }

    void ReadQuoted(std::u16string& cell)
    {
        for (; m_at < m_text.size(); ++m_at) {
            const char16_t unit = m_text[m_at];
            if (unit == u'"') {
                if (m_at + 1 >= m_text.size() || m_text[m_at + 1] != u'"') {
                    ++m_at;
                    return;
                }
                ++m_at;
            } else if (unit == u'\n' ||
                       (unit == u'\r' && (m_at + 1 >= m_text.size() || m_text[m_at + 1] != u'\n'))) {
                ++m_line;
            }
            cell.push_back(unit);
        }
        m_endsInsideQuotes = true;
    }

    std::u16string_view m_text;
    char16_t m_separator;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    bool m_endsInsideQuotes = false;
};

} // namespace

std::u16string DecodeText(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return DecodeUtf8(bytes.substr(3));
    if (bytes.starts_with("\xFF\xFE"))
        return DecodeUtf16(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF"))
        return DecodeUtf16(bytes.substr(2), true);
    return DecodeUtf8(bytes);
}

CsvContents SplitCsv(std::u16string_view text)
{
    CsvContents contents;
    contents.separator = FindSeparator(text);
    Splitter(text, contents.separator).Split(contents);
    return contents;
}

} // namespace Viewer

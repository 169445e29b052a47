#include "framework/windowing/ArchiveEncoding.h"

namespace ArchiveEncoding
{

namespace
{
constexpr std::uint32_t ByteEscape = 0xFF;
constexpr std::uint32_t UnicodeMark = 0xFFFE;
constexpr std::uint32_t WordEscape = 0xFFFF;
constexpr std::uint64_t LongEscape = 0xFFFFFFFF;
} // namespace

void CBytes::Append(std::uint32_t value, int width) noexcept
{
    for (; width > 0 && m_size < m_bytes.size(); --width, value >>= 8)
        m_bytes[m_size++] = static_cast<std::uint8_t>(value);
}

CBytes UnicodeLength(std::uint32_t units) noexcept
{
    CBytes bytes;
    bytes.Append(ByteEscape, 1);
    bytes.Append(UnicodeMark, 2);
    if (units < ByteEscape) {
        bytes.Append(units, 1);
        return bytes;
    }
    bytes.Append(ByteEscape, 1);
    if (units < UnicodeMark) {
        bytes.Append(units, 2);
        return bytes;
    }
    bytes.Append(WordEscape, 2);
    bytes.Append(units, 4);
    return bytes;
}

TTextLength ReadTextLength(const ReadInteger& read)
{
    TTextLength length;
    length.count = read(1);
    if (length.count < ByteEscape)
        return length;
    length.count = read(2);
    if (length.count == UnicodeMark) {
        length.isUnicode = true;
        length.count = read(1);
        if (length.count < ByteEscape)
            return length;
        length.count = read(2);
    }
    if (length.count < WordEscape)
        return length;
    length.count = read(4);
    if (length.count == LongEscape)
        length.count = read(8);
    return length;
}

TTag ReadTag(const ReadInteger& read)
{
    const auto tag = static_cast<std::uint16_t>(read(2));
    if (tag == NullTag)
        return {};
    if (tag == NewClassTag)
        return {ETagKind::NewClass, 0};
    if (tag == BigTag) {
        const auto big = static_cast<std::uint32_t>(read(4));
        return {(big & BigClassTag) ? ETagKind::Class : ETagKind::Object, big & ~BigClassTag};
    }
    if (tag & ClassTag)
        return {ETagKind::Class, static_cast<std::uint32_t>(tag & ~ClassTag)};
    return {ETagKind::Object, tag};
}

CBytes ReferenceTag(bool isClass, std::uint32_t number) noexcept
{
    CBytes bytes;
    if (number < BigTag) {
        bytes.Append(number | (isClass ? ClassTag : 0u), 2);
        return bytes;
    }
    bytes.Append(BigTag, 2);
    bytes.Append(number | (isClass ? BigClassTag : 0u), 4);
    return bytes;
}

} // namespace ArchiveEncoding

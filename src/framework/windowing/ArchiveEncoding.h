#pragma once
// The variable-length parts of an archive: lengths of texts, and the tags in front of
// objects. Integers are little-endian.
//
// A length is one byte below 255; else 0xFF and 2 bytes below 0xFFFE; else 0xFF, 0xFFFF and
// 4 bytes. UTF-16 text has the mark 0xFF 0xFE 0xFF in front of its length; without the mark
// a text is of single bytes.
//
// Classes and objects share one sequence of numbers from 1. A tag has 2 bytes; 0x7FFF says
// that the number follows in 4 bytes, with its top bit set for a class.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace ArchiveEncoding
{

inline constexpr std::uint16_t NullTag = 0x0000;
inline constexpr std::uint16_t NewClassTag = 0xFFFF;
inline constexpr std::uint16_t ClassTag = 0x8000;
inline constexpr std::uint16_t BigTag = 0x7FFF;
inline constexpr std::uint32_t BigClassTag = 0x80000000;
inline constexpr std::uint32_t MaxNumber = 0x3FFFFFFE;
inline constexpr std::uint16_t MaxClassName = 63; // characters

// A few bytes by value.
class CBytes
{
public:
    void Append(std::uint32_t value, int width) noexcept;
    [[nodiscard]] std::span<const std::uint8_t> View() const noexcept
    {
        return {m_bytes.data(), m_size};
    }

private:
    std::array<std::uint8_t, 12> m_bytes{};
    std::size_t m_size = 0;
};

// What comes before a UTF-16 text of that many units.
[[nodiscard]] CBytes UnicodeLength(std::uint32_t units) noexcept;

struct TTextLength {
    std::uint64_t count = 0; // units or bytes
    bool isUnicode = false;
};

// Returns the next bytes of a stream as one integer of 1, 2, 4 or 8 bytes; may throw.
using ReadInteger = std::function<std::uint64_t(int width)>;

[[nodiscard]] TTextLength ReadTextLength(const ReadInteger& read);

enum class ETagKind { Null, NewClass, Class, Object };

struct TTag {
    ETagKind kind = ETagKind::Null;
    std::uint32_t number = 0; // of the class or object referred to
};

[[nodiscard]] TTag ReadTag(const ReadInteger& read);
// A reference to a class or to an object that already has a number.
[[nodiscard]] CBytes ReferenceTag(bool isClass, std::uint32_t number) noexcept;

} // namespace ArchiveEncoding

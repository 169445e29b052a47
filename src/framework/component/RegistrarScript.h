#pragma once
// The registrar's script: text to a tree of registry keys. No registry here.
//
//   script  = { root "{" { entry } "}" }
//   root    = HKCR | HKCU | HKLM | HKU | HKPD | HKDD | HKCC, or the long names
//   entry   = "Delete" name
//           | "val" name "=" value
//           | [ "NoRemove" | "ForceRemove" ] name [ "=" value ] [ "{" { entry } "}" ]
//   value   = s 'text' | d 'number' | b 'hex digits' | m 'text\0text'
//
// Words are parted by white space; a word with blanks, or one that looks like a sign, stands in
// single quotes, where '' is one quote. Keywords count in any case of letters. %NAME% is replaced
// from a map before all else, and %% is one per cent sign.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace RegistrarScript
{

enum class RootKey {
    ClassesRoot,
    CurrentUser,
    LocalMachine,
    Users,
    PerformanceData,
    DynData,
    CurrentConfig
};
enum class KeyMode { Plain, NoRemove, ForceRemove, Delete };
enum class ValueKind { String, Number, Binary, MultiString };

struct Value {
    ValueKind kind = ValueKind::String;
    std::u16string text;             // String; MultiString with a NUL after each part
    std::uint32_t number = 0;        // Number
    std::vector<std::uint8_t> bytes; // Binary
};

struct NamedValue {
    std::u16string name;
    Value value;
};

struct Key {
    KeyMode mode = KeyMode::Plain;
    std::u16string name; // may hold several levels, parted by single backslashes
    std::optional<Value> value;
    std::vector<NamedValue> values;
    std::vector<Key> keys;
};

struct Root {
    RootKey root = RootKey::ClassesRoot;
    std::vector<NamedValue> values;
    std::vector<Key> keys;
};

// Names (without the per cent signs, any case) to texts. Keys are held in upper case.
class Replacements
{
public:
    void Add(std::u16string_view name, std::u16string_view text);
    [[nodiscard]] const std::u16string* Find(std::u16string_view name) const;

private:
    std::map<std::u16string, std::u16string> m_texts;
};

// Nothing if a per cent sign has no partner, if a name is unknown, or if the result would grow
// beyond a million characters.
[[nodiscard]] std::optional<std::u16string> Expand(std::u16string_view text,
                                                   const Replacements& replacements);

// Nothing if the text is not a script. Keys nest 64 levels at most; a part of a key's name has
// 1 to 255 characters, a value's name up to 16383.
[[nodiscard]] std::optional<std::vector<Root>> Parse(std::u16string_view text);

// Names of keys that are never removed where they are right under a root.
[[nodiscard]] bool IsProtected(std::u16string_view keyName);

// Text doubled in its single quotes, so that it can be written between quotes.
[[nodiscard]] std::u16string EscapeSingleQuotes(std::u16string_view text);

} // namespace RegistrarScript

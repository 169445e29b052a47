#include "framework/component/RegistrarScript.h"

#include "framework/component/RegistrarWords.h"

#include <algorithm>
#include <array>

namespace RegistrarScript
{

namespace
{

constexpr std::size_t DeepestLevel = 64;
constexpr std::size_t LongestText = 1'000'000;
constexpr std::size_t LongestKeyPart = 255;
constexpr std::size_t LongestValueName = 16383;

std::optional<RootKey> RootOf(const Token& token)
{
    struct Name {
        std::u16string_view brief;
        std::u16string_view full;
        RootKey root;
    };
    static constexpr std::array<Name, 7> names{{
        {u"HKCR", u"HKEY_CLASSES_ROOT", RootKey::ClassesRoot},
        {u"HKCU", u"HKEY_CURRENT_USER", RootKey::CurrentUser},
        {u"HKLM", u"HKEY_LOCAL_MACHINE", RootKey::LocalMachine},
        {u"HKU", u"HKEY_USERS", RootKey::Users},
        {u"HKPD", u"HKEY_PERFORMANCE_DATA", RootKey::PerformanceData},
        {u"HKDD", u"HKEY_DYN_DATA", RootKey::DynData},
        {u"HKCC", u"HKEY_CURRENT_CONFIG", RootKey::CurrentConfig},
    }};
    for (const Name& name : names)
        if (token.Is(name.brief) || token.Is(name.full))
            return name.root;
    return std::nullopt;
}

// "one\0two" to one NUL two NUL; the list ends with a further NUL when it is written.
std::u16string PartsOf(std::u16string_view text)
{
    std::u16string parts;
    while (!text.empty()) {
        const std::size_t end = text.find(u"\\0");
        const std::u16string_view part = text.substr(0, end);
        if (!part.empty()) // an empty part would end the list before its time
        {
            parts += part;
            parts += u'\0';
        }
        text.remove_prefix(end == std::u16string_view::npos ? text.size() : end + 2);
    }
    return parts;
}

std::optional<Value> TakeValue(Words& words)
{
    const std::optional<Token> kind = words.Take();
    const std::optional<Token> data = words.Take();
    if (!kind || !data)
        return std::nullopt;
    Value value;
    if (kind->Is(u"s")) {
        value.text = data->text;
        return value;
    }
    if (kind->Is(u"m")) {
        value.kind = ValueKind::MultiString;
        value.text = PartsOf(data->text);
        return value;
    }
    if (kind->Is(u"d")) {
        const auto number = NumberOf(data->text);
        value.kind = ValueKind::Number;
        value.number = number.value_or(0);
        return number ? std::optional(value) : std::nullopt;
    }
    if (kind->Is(u"b")) {
        auto bytes = BytesOf(data->text);
        if (bytes) {
            value.kind = ValueKind::Binary;
            value.bytes = std::move(*bytes);
            return value;
        }
    }
    return std::nullopt;
}

bool IsSign(const Token& token) noexcept
{
    return token.Is(u"{") || token.Is(u"}") || token.Is(u"=");
}

// An empty name, or an empty part of one, would name the parent itself.
bool IsKeyName(std::u16string_view name) noexcept
{
    while (true) {
        const std::size_t end = name.find(u'\\');
        const std::u16string_view part = name.substr(0, end);
        if (part.empty() || part.size() > LongestKeyPart || part.find(u'\0') != part.npos)
            return false;
        if (end == name.npos)
            return true;
        name.remove_prefix(end + 1);
    }
}

std::optional<std::u16string> TakeKeyName(Words& words)
{
    std::optional<Token> name = words.Take();
    if (!name || IsSign(*name) || !IsKeyName(name->text))
        return std::nullopt;
    return std::move(name->text);
}

bool TakeBlock(Words& words, std::vector<NamedValue>& values, std::vector<Key>& keys, std::size_t depth);

bool TakeNamedValue(Words& words, std::vector<NamedValue>& values)
{
    std::optional<Token> name = words.Take();
    if (!name || IsSign(*name) || name->text.size() > LongestValueName || !words.TakeIf(u"="))
        return false;
    std::optional<Value> value = TakeValue(words);
    if (!value)
        return false;
    values.push_back({std::move(name->text), std::move(*value)});
    return true;
}

KeyMode TakeMode(Words& words)
{
    if (words.TakeIf(u"NoRemove"))
        return KeyMode::NoRemove;
    if (words.TakeIf(u"ForceRemove"))
        return KeyMode::ForceRemove;
    return words.TakeIf(u"Delete") ? KeyMode::Delete : KeyMode::Plain;
}

bool TakeEntry(Words& words, std::vector<NamedValue>& values, std::vector<Key>& keys, std::size_t depth)
{
    if (words.TakeIf(u"val"))
        return TakeNamedValue(words, values);
    Key key;
    key.mode = TakeMode(words);
    auto name = TakeKeyName(words);
    if (!name)
        return false;
    key.name = std::move(*name);
    if (key.mode != KeyMode::Delete) {
        if (words.TakeIf(u"=")) {
            key.value = TakeValue(words);
            if (!key.value)
                return false;
        }
        if (words.TakeIf(u"{") && !TakeBlock(words, key.values, key.keys, depth + 1))
            return false;
    }
    keys.push_back(std::move(key));
    return true;
}

// Behind the opening brace; takes the closing one.
bool TakeBlock(Words& words, std::vector<NamedValue>& values, std::vector<Key>& keys, std::size_t depth)
{
    if (depth > DeepestLevel)
        return false;
    while (!words.TakeIf(u"}"))
        if (!words.Peek() || !TakeEntry(words, values, keys, depth))
            return false;
    return true;
}

} // namespace

void Replacements::Add(std::u16string_view name, std::u16string_view text)
{
    std::u16string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
    m_texts[std::move(upper)] = text;
}

const std::u16string* Replacements::Find(std::u16string_view name) const
{
    std::u16string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
    const auto found = m_texts.find(upper);
    return found == m_texts.end() ? nullptr : &found->second;
}

std::optional<std::u16string> Expand(std::u16string_view text, const Replacements& replacements)
{
    std::u16string expanded;
    while (true) {
        const std::size_t open = text.find(u'%');
        expanded += text.substr(0, open);
        if (open == text.npos)
            return expanded.size() > LongestText ? std::nullopt : std::optional(std::move(expanded));
        text.remove_prefix(open + 1);
        const std::size_t close = text.find(u'%');
        if (close == text.npos || expanded.size() > LongestText)
            return std::nullopt;
        if (close == 0)
            expanded += u'%';
        else if (const std::u16string* found = replacements.Find(text.substr(0, close)))
            expanded += *found;
        else
            return std::nullopt;
        text.remove_prefix(close + 1);
    }
}

std::optional<std::vector<Root>> Parse(std::u16string_view text)
{
    Words words(text);
    std::vector<Root> roots;
    while (words.Peek()) {
        const auto which = RootOf(*words.Take());
        Root root;
        if (!which || !words.TakeIf(u"{") || !TakeBlock(words, root.values, root.keys, 1))
            return std::nullopt;
        root.root = *which;
        roots.push_back(std::move(root));
    }
    return words.Broken() || roots.empty() ? std::nullopt : std::optional(std::move(roots));
}

bool IsProtected(std::u16string_view keyName)
{
    static constexpr std::array<std::u16string_view, 12> names{
        u"Interface", u"CLSID",  u"TypeLib",  u"AppID", u"Hardware", u"SAM",
        u"SECURITY",  u"SYSTEM", u"Software", u"Mime",  u"FileType", u"Component Categories"};
    return std::any_of(names.begin(), names.end(),
                       [&](std::u16string_view name) { return SameWord(keyName, name); });
}

std::u16string EscapeSingleQuotes(std::u16string_view text)
{
    std::u16string escaped;
    escaped.reserve(text.size());
    for (const char16_t c : text) {
        escaped += c;
        if (c == u'\'')
            escaped += c;
    }
    return escaped;
}

} // namespace RegistrarScript

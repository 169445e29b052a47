#include "framework/component/RegistrarScript.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace RegistrarScript;

namespace
{

std::vector<Root> Parsed(std::u16string_view text)
{
    auto roots = Parse(text);
    EXPECT_TRUE(roots.has_value());
    return roots.value_or(std::vector<Root>{});
}

Key OnlyKey(std::u16string_view text)
{
    auto roots = Parsed(text);
    EXPECT_EQ(roots.size(), 1U);
    if (roots.empty() || roots[0].keys.size() != 1) {
        ADD_FAILURE() << "not exactly one key";
        return {};
    }
    return roots[0].keys[0];
}

bool Refuses(std::u16string_view text)
{
    return !Parse(text).has_value();
}

} // namespace

TEST(RegistrarScript, KeyWithDefaultValueAndSubkey)
{
    const Key key = OnlyKey(u"HKCR { Product.Thing.1 = s 'Thing Class' { CLSID = s '{0001}' } }");

    EXPECT_EQ(key.mode, KeyMode::Plain);
    EXPECT_TRUE(key.name == u"Product.Thing.1");
    ASSERT_TRUE(key.value.has_value());
    EXPECT_EQ(key.value->kind, ValueKind::String);
    EXPECT_TRUE(key.value->text == u"Thing Class");
    ASSERT_EQ(key.keys.size(), 1U);
    EXPECT_TRUE(key.keys[0].name == u"CLSID");
    EXPECT_TRUE(key.keys[0].value->text == u"{0001}");
}

TEST(RegistrarScript, AllRootsInBothForms)
{
    const std::pair<std::u16string, RootKey> names[] = {
        {u"HKCR", RootKey::ClassesRoot},
        {u"HKEY_CLASSES_ROOT", RootKey::ClassesRoot},
        {u"HKCU", RootKey::CurrentUser},
        {u"HKEY_CURRENT_USER", RootKey::CurrentUser},
        {u"HKLM", RootKey::LocalMachine},
        {u"HKEY_LOCAL_MACHINE", RootKey::LocalMachine},
        {u"HKU", RootKey::Users},
        {u"HKEY_USERS", RootKey::Users},
        {u"HKPD", RootKey::PerformanceData},
        {u"HKEY_PERFORMANCE_DATA", RootKey::PerformanceData},
        {u"HKDD", RootKey::DynData},
        {u"HKEY_DYN_DATA", RootKey::DynData},
        {u"HKCC", RootKey::CurrentConfig},
        {u"HKEY_CURRENT_CONFIG", RootKey::CurrentConfig},
        {u"hkcr", RootKey::ClassesRoot},
    };
    for (const auto& [name, root] : names) {
        const auto roots = Parsed(name + u" { Key }");
        ASSERT_EQ(roots.size(), 1U);
        EXPECT_EQ(roots[0].root, root) << std::string(name.begin(), name.end());
    }
}

TEST(RegistrarScript, SeveralRootsInOneScript)
{
    const auto roots = Parsed(u"HKCR { A }\r\nHKCU\t{ B }");

    ASSERT_EQ(roots.size(), 2U);
    EXPECT_TRUE(roots[0].keys[0].name == u"A");
    EXPECT_TRUE(roots[1].keys[0].name == u"B");
}

TEST(RegistrarScript, KeywordsSetTheMode)
{
    const auto roots = Parsed(
        u"HKCR { NoRemove CLSID { ForceRemove {1} } Delete Old ForceRemove 'Programmable' Plain }");

    const auto& keys = roots[0].keys;
    ASSERT_EQ(keys.size(), 4U);
    EXPECT_EQ(keys[0].mode, KeyMode::NoRemove);
    EXPECT_EQ(keys[0].keys[0].mode, KeyMode::ForceRemove);
    EXPECT_TRUE(keys[0].keys[0].name == u"{1}");
    EXPECT_EQ(keys[1].mode, KeyMode::Delete);
    EXPECT_EQ(keys[2].mode, KeyMode::ForceRemove);
    EXPECT_FALSE(keys[2].value.has_value());
    EXPECT_EQ(keys[3].mode, KeyMode::Plain);
}

TEST(RegistrarScript, QuotedKeywordIsAName)
{
    EXPECT_TRUE(OnlyKey(u"HKCR { 'Delete' = s 'x' }").name == u"Delete");
    EXPECT_EQ(OnlyKey(u"HKCR { 'Delete' }").mode, KeyMode::Plain);
}

TEST(RegistrarScript, NamedValuesStandApartFromKeys)
{
    const Key key = OnlyKey(u"HKCR { K { val ThreadingModel = s 'Apartment' Sub val '' = d '7' } }");

    ASSERT_EQ(key.values.size(), 2U);
    EXPECT_TRUE(key.values[0].name == u"ThreadingModel");
    EXPECT_TRUE(key.values[0].value.text == u"Apartment");
    EXPECT_TRUE(key.values[1].name.empty());
    EXPECT_EQ(key.values[1].value.number, 7U);
    ASSERT_EQ(key.keys.size(), 1U);
}

TEST(RegistrarScript, FourKindsOfValues)
{
    const Key key = OnlyKey(uR"(HKCU { K {
        val Text = s 'it''s'
        val Number = d '4294967295'
        val Hex = d '&H10'
        val Other = d '0X1f'
        val Bytes = b '00ff7A'
        val None = b ''
        val Many = m 'one\0two'
        val Empty = m ''
    } })");

    ASSERT_EQ(key.values.size(), 8U);
    EXPECT_TRUE(key.values[0].value.text == u"it's");
    EXPECT_EQ(key.values[1].value.number, 4294967295U);
    EXPECT_EQ(key.values[2].value.number, 16U);
    EXPECT_EQ(key.values[3].value.number, 31U);
    EXPECT_EQ(key.values[4].value.bytes, (std::vector<std::uint8_t>{0, 0xFF, 0x7A}));
    EXPECT_TRUE(key.values[5].value.bytes.empty());
    EXPECT_TRUE(key.values[6].value.text == std::u16string(u"one\0two\0", 8));
    EXPECT_TRUE(key.values[7].value.text.empty());
}

TEST(RegistrarScript, EmptyPartsOfAListAreLeftOut)
{
    const Key key = OnlyKey(uR"(HKCU { K = m '\0a\0\0b\0' })");

    EXPECT_TRUE(key.value->text == std::u16string(u"a\0b\0", 4));
}

TEST(RegistrarScript, BadNumbersAndBytesAreRefused)
{
    for (const char16_t* value :
         {u"d '4294967296'", u"d ''", u"d '-1'", u"d '1a'", u"d '&H'", u"d '&H1FFFFFFFF'", u"b '0'",
          u"b '0g'", u"x '1'", u"'s' 'quoted kind'", u"s", u""}) {
        EXPECT_TRUE(Refuses(std::u16string(u"HKCR { K = ") + value + u" }"));
    }
}

TEST(RegistrarScript, TextsThatAreNoScriptAreRefused)
{
    for (const char16_t* text : {u"",
                                 u"   ",
                                 u"HKCR",
                                 u"HKCR {",
                                 u"HKCR }",
                                 u"HKXX { K }",
                                 u"K = s 'x'",
                                 u"HKCR { K = }",
                                 u"HKCR { = s 'x' }",
                                 u"HKCR { { } }",
                                 u"HKCR { K { }",
                                 u"HKCR { K } }",
                                 u"HKCR { K = s 'open }",
                                 u"HKCR { val = s 'x' }",
                                 u"HKCR { val K }",
                                 u"HKCR { val 'open",
                                 u"HKCR { K = s 'x'",
                                 u"HKCR { NoRemove }",
                                 u"HKCR { ForceRemove { } }",
                                 u"HKCR { Delete K = s 'x' }",
                                 u"HKCR { Delete K { } }",
                                 u"HKCR{ K }",
                                 u"HKCR { K } 'open"}) {
        EXPECT_TRUE(Refuses(text)) << std::string(std::u16string_view(text).begin(),
                                                  std::u16string_view(text).end());
    }
}

TEST(RegistrarScript, NamesThatWouldMeanTheParentAreRefused)
{
    for (const char16_t* name : {u"''", u"'\\'", u"'a\\'", u"'\\a'", u"a\\\\b"}) {
        EXPECT_TRUE(Refuses(std::u16string(u"HKCR { ForceRemove ") + name + u" }"));
        EXPECT_TRUE(Refuses(std::u16string(u"HKCR { Delete ") + name + u" }"));
    }
    EXPECT_TRUE(Refuses(std::u16string_view(u"HKCR { 'a\0b' }", 14)))
        << "ends for the registry at its zero";
    EXPECT_TRUE(OnlyKey(u"HKCR { 'a b\\c' }").name == u"a b\\c");
}

TEST(RegistrarScript, LengthOfNamesIsBounded)
{
    const std::u16string longest(255, u'k');

    EXPECT_FALSE(Refuses(u"HKCR { " + longest + u" }"));
    EXPECT_TRUE(Refuses(u"HKCR { " + longest + u"k }"));
    EXPECT_TRUE(Refuses(u"HKCR { K { val " + std::u16string(16384, u'v') + u" = s '' } }"));
}

TEST(RegistrarScript, NestingIsBounded)
{
    const auto nested = [](int levels) {
        std::u16string text = u"HKCR { ";
        for (int level = 1; level < levels; ++level)
            text += u"k { ";
        for (int level = 1; level < levels; ++level)
            text += u"} ";
        return text + u"}";
    };

    EXPECT_FALSE(Refuses(nested(64)));
    EXPECT_TRUE(Refuses(nested(65)));
    EXPECT_TRUE(Refuses(nested(100000)));
}

TEST(RegistrarScript, ReplacementsIgnoreCase)
{
    Replacements map;
    map.Add(u"Module", u"C:\\p\\x.dll");

    EXPECT_TRUE(Expand(u"'%MODULE%' %module%", map) == u"'C:\\p\\x.dll' C:\\p\\x.dll");
}

TEST(RegistrarScript, ReplacedTextIsNotReplacedAgain)
{
    Replacements map;
    map.Add(u"A", u"%A%%B%");

    EXPECT_TRUE(Expand(u"<%A%>", map) == u"<%A%%B%>");
}

TEST(RegistrarScript, TwoPerCentSignsAreOne)
{
    EXPECT_TRUE(Expand(u"100%%", {}) == u"100%");
}

TEST(RegistrarScript, UnknownOrOpenReplacementIsRefused)
{
    Replacements map;
    map.Add(u"Module", u"x");

    EXPECT_FALSE(Expand(u"%Other%", map).has_value());
    EXPECT_FALSE(Expand(u"50% of", map).has_value());
    EXPECT_FALSE(Expand(u"%Module%", {}).has_value());
}

TEST(RegistrarScript, ReplacementCannotGrowWithoutBound)
{
    Replacements map;
    map.Add(u"A", std::u16string(300'000, u'x'));

    EXPECT_TRUE(Expand(u"%A%%A%%A%", map).has_value());
    EXPECT_FALSE(Expand(u"%A%%A%%A%%A%", map).has_value());
    EXPECT_FALSE(Expand(u"%A%%A%%A%%A%%A%", map).has_value()) << "in the midst of it";
}

TEST(RegistrarScript, QuotesInAReplacementAreDoubledFirst)
{
    Replacements map;
    map.Add(u"Module", EscapeSingleQuotes(u"C:\\it's\\x.dll"));
    const auto text = Expand(u"HKCR { K = s '%MODULE%' }", map);

    ASSERT_TRUE(text.has_value());
    EXPECT_TRUE(OnlyKey(*text).value->text == u"C:\\it's\\x.dll");
}

TEST(RegistrarScript, ProtectedNamesIgnoreCase)
{
    for (const char16_t* name :
         {u"Interface", u"clsid", u"TypeLib", u"APPID", u"Hardware", u"SAM", u"Security", u"System",
          u"software", u"Mime", u"FileType", u"Component Categories"}) {
        EXPECT_TRUE(IsProtected(name));
    }
    EXPECT_FALSE(IsProtected(u"CLSID2"));
    EXPECT_FALSE(IsProtected(u"Vantoplex.SGraph"));
}

TEST(RegistrarScript, AnyMixOfItsWordsEndsWithoutHarm)
{
    const std::u16string_view words[] = {
        u"HKCR", u"{",   u"}",        u"=",           u"s",      u"d", u"b",  u"m",  u"'x'", u"'",
        u"''",   u"val", u"NoRemove", u"ForceRemove", u"Delete", u"%", u"%%", u"\\", u"k"};
    std::mt19937 random(20240601);
    Replacements map;
    int scripts = 0;
    for (int round = 0; round < 20000; ++round) {
        std::u16string text = u"HKCR { ";
        for (unsigned length = random() % 24; length > 0; --length) {
            text += words[random() % std::size(words)];
            text += u' ';
        }
        const auto expanded = Expand(text + u"}", map);
        scripts += expanded && Parse(*expanded) ? 1 : 0;
    }
    EXPECT_GT(scripts, 0);
    EXPECT_LT(scripts, 20000);
}

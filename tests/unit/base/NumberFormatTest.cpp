#include "base/NumberFormat.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>

using NumberFormat::FormatNumber;
using NumberFormat::TArgument;

namespace
{

std::string Narrow(const std::u16string& text)
{
    return {text.begin(), text.end()};
}

std::string Number(const char* format, double value)
{
    const std::string text(format);
    return Narrow(FormatNumber(std::u16string(text.begin(), text.end()), value));
}

template <class... Args> std::string Text(std::u16string_view format, const Args&... args)
{
    const TArgument arguments[] = {TArgument(args)...};
    return Narrow(NumberFormat::FormatText(format, arguments));
}

// The reference: the C library in the "C" locale.
std::string Printed(const char* format, double value)
{
    char buffer[1024];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

} // namespace

TEST(NumberFormat, AShortenedFormatGivesTheSameBeginning)
{
    const std::u16string zeros(5000, u'0');
    const std::u16string text(5000, u'x');
    const std::u16string percents(5000, u'%');
    const std::u16string formats[] = {u"",
                                      u"%5.1f",
                                      u"%%%d%s%n%.3e%g%",
                                      u"%+g of it",
                                      u"100%% of %+ #012.4Lg of 100%",
                                      u"%" + zeros + u"8.2f" + text,
                                      text + u"%g",
                                      u"a%" + zeros,
                                      percents + u"%.2f",
                                      percents + u"f",
                                      u"%.99999f" + percents,
                                      u"%-" + zeros + u"d%e"};
    for (const std::u16string& format : formats) {
        for (const std::size_t longest : {0u, 1u, 7u, 1024u}) {
            const std::u16string shortened = NumberFormat::Shortened(format, longest);
            EXPECT_LE(shortened.size(), 2 * longest + 16) << longest;
            for (const double value : {0.0, -3.25, 1e300})
                EXPECT_EQ(Narrow(FormatNumber(shortened, value).substr(0, longest)),
                          Narrow(FormatNumber(format, value).substr(0, longest)))
                    << Narrow(format.substr(0, 40)) << ' ' << longest;
        }
    }
}

TEST(NumberFormat, AgreesWithTheStandardForEveryFloatingItem)
{
    const double values[] = {0.0,       -0.0, 1.0,   -1.0,    0.1,     123.456,    -123456.789, 1e-5,
                             9.9999995, 1e6,  1e10,  1.5e-10, 1e100,   DBL_MAX,    DBL_MIN,     0.5,
                             2.5,       1e-4, 12345, 99999.5, 1234567, 0.00001234, 100.0};
    const char* const flags[] = {"", "-", "+", " ", "#", "0", "+0", "-#", "# 0"};
    const char* const sizes[] = {"", "5", "20", ".0", ".1", ".3", "12.4", ".20", "30.15"};
    for (const char* flag : flags) {
        for (const char* size : sizes) {
            for (const char letter : std::string("eEfFgG")) {
                const std::string format = std::string("<%") + flag + size + letter + ">";
                for (const double value : values)
                    EXPECT_EQ(Number(format.c_str(), value), Printed(format.c_str(), value)) << format;
            }
        }
    }
}

// Some C libraries lose the zeros here, so the expected text is that of the standard's words.
TEST(NumberFormat, KeptZerosFollowTheRoundedExponent)
{
    EXPECT_EQ(Number("%#g", 999999.5), "1.00000e+06");
    EXPECT_EQ(Number("%#g", 99999.96), "100000.");
    EXPECT_EQ(Number("%g", 999999.5), "1e+06");
}

TEST(NumberFormat, HexadecimalItemsAgreeWithTheStandard)
{
    for (const double value : {0.0, 1.0, -1.5, 0.1, 1024.0, 1e300}) {
        for (const char* format : {"%a", "%A", "%.3a", "%20.2a", "%020a", "%+a", "%#.0a"})
            EXPECT_EQ(Number(format, value), Printed(format, value)) << format;
    }
}

TEST(NumberFormat, ExponentHasTwoDigitsAtLeast)
{
    EXPECT_EQ(Number("%5.2e", 1e6), "1.00e+06");
    EXPECT_EQ(Number("%5.2e", 1e-7), "1.00e-07");
    EXPECT_EQ(Number("%.1e", 1e120), "1.0e+120");
}

TEST(NumberFormat, ValueFillsOneItemAndLaterItemsStandAsText)
{
    EXPECT_EQ(Number("%.1f and %.2f", 1.25), "1.2 and %.2f");
}

TEST(NumberFormat, ForeignItemsStandAsText)
{
    EXPECT_EQ(Number("%d %s %n %p %S %x %c|%f", 2.0), "%d %s %n %p %S %x %c|2.000000");
    EXPECT_EQ(Number("%*.*f", 2.0), "%*.*f");
    EXPECT_EQ(Number("%I64d %f", 2.0), "%I64d 2.000000");
    EXPECT_EQ(Number("%5d", 2.0), "%5d");
}

TEST(NumberFormat, PercentSignsAndBrokenItemsStandAsText)
{
    EXPECT_EQ(Number("100%%", 2.0), "100%");
    EXPECT_EQ(Number("%.1f%%", 2.0), "2.0%");
    EXPECT_EQ(Number("%", 2.0), "%");
    EXPECT_EQ(Number("%5", 2.0), "%5");
    EXPECT_EQ(Number("%-+ #0", 2.0), "%-+ #0");
    EXPECT_EQ(Number("%5.", 2.0), "%5.");
    EXPECT_EQ(Number("%5.%.1f", 2.0), "%5.2.0");
    EXPECT_EQ(Number("%q%.0f", 2.0), "%q2");
    EXPECT_EQ(Number("", 2.0), "");
    EXPECT_EQ(Number("no item", 2.0), "no item");
}

TEST(NumberFormat, LengthMarksOfFloatingItemsAreAccepted)
{
    EXPECT_EQ(Number("%lf %Lf", 2.0), "2.000000 %Lf");
    EXPECT_EQ(Number("%.1Lf", 2.0), "2.0");
}

TEST(NumberFormat, WidthAndPrecisionAreCutAt64)
{
    EXPECT_EQ(Number("%4000000000f", 1.0).size(), 64u);
    EXPECT_EQ(Number("%99999999999999999999999999.1f", 1.0), Printed("%64.1f", 1.0));
    EXPECT_EQ(Number("%.100000000f", 0.25), Printed("%.64f", 0.25));
    EXPECT_EQ(Number("%.100e", 0.25), Printed("%.64e", 0.25));
    EXPECT_EQ(Number("%#.100g", 0.25), Printed("%#.64g", 0.25));
    EXPECT_EQ(Number("%.64f", -DBL_MAX), Printed("%.64f", -DBL_MAX));
}

TEST(NumberFormat, InfinityAndNoNumberHaveNamesAndNoZeros)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Number("%05.1f", infinity), "  inf");
    EXPECT_EQ(Number("%05.1f", -infinity), " -inf");
    EXPECT_EQ(Number("%G", infinity), "INF");
    EXPECT_EQ(Number("%f", std::nan("")), "nan");
    EXPECT_EQ(Number("%a", -std::nan("")), "nan");
}

TEST(NumberFormat, LocaleDoesNotMatter)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE", "German", "fr_FR.UTF-8"})
        std::setlocale(LC_ALL, name);
    EXPECT_EQ(Number("%.2f", 1234.5), "1234.50");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(NumberFormat, TextOutsideOfItemsIsKeptUnitByUnit)
{
    EXPECT_EQ(FormatNumber(u"\u6E29\u5EA6 %.1f \u2103\xD800", 21.5), u"\u6E29\u5EA6 21.5 \u2103\xD800");
    EXPECT_EQ(FormatNumber(std::u16string_view(u"a\0%.0f", 6), 3.0), std::u16string(u"a\0003", 3));
}

TEST(ComposedFormat, EachItemTakesTheNextArgumentOfItsKind)
{
    EXPECT_EQ(Text(u"X[%02d] : %5.1f %s", std::int64_t{3}, 2.25, std::u16string(u"time")),
              "X[03] :   2.2 time");
    EXPECT_EQ(Text(u"%s %s|%d", std::u16string(u"a"), std::int64_t{7}, std::u16string(u"b")), "a b|7");
}

TEST(ComposedFormat, ItemsWithoutAnArgumentStandAsText)
{
    EXPECT_EQ(Text(u"%d %d %s %f", std::int64_t{1}), "1 %d %s %f");
}

TEST(ComposedFormat, ArgumentTextIsNotReadAsAFormat)
{
    EXPECT_EQ(Text(u"%s %d", std::u16string(u"%d%s%n"), std::int64_t{1}), "%d%s%n 1");
}

TEST(ComposedFormat, IntegersFollowTheStandard)
{
    EXPECT_EQ(Text(u"%5d|", std::int64_t{-42}), "  -42|");
    EXPECT_EQ(Text(u"%-5d|", std::int64_t{-42}), "-42  |");
    EXPECT_EQ(Text(u"%05d", std::int64_t{-42}), "-0042");
    EXPECT_EQ(Text(u"%+d % d", std::int64_t{1}, std::int64_t{2}), "+1  2");
    EXPECT_EQ(Text(u"%8.3d", std::int64_t{7}), "     007");
    EXPECT_EQ(Text(u"%08.3d", std::int64_t{7}), "     007");
    EXPECT_EQ(Text(u"%.0d|", std::int64_t{0}), "|");
    EXPECT_EQ(Text(u"%d", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(Text(u"%#X %#o", std::int64_t{255}, std::int64_t{8}), "0XFF 010");
    EXPECT_EQ(Text(u"%#x %#o %#d", std::int64_t{0}, std::int64_t{0}, std::int64_t{5}), "0 0 5");
    EXPECT_EQ(Text(u"%#.3o", std::int64_t{8}), "010");
    EXPECT_EQ(Text(u"%c", std::int64_t{'A'}), "A");
}

TEST(ComposedFormat, UnsignedItemsShowTheBytesOfTheirOwnType)
{
    const TArgument arguments[] = {TArgument(std::int64_t{-1}, 4), TArgument(std::int64_t{-1}, 1),
                                   TArgument(std::int64_t{-1}, 8)};
    EXPECT_EQ(Narrow(NumberFormat::FormatText(u"%u %x %x", arguments)),
              "4294967295 ff ffffffffffffffff");
}

TEST(ComposedFormat, TextIsCutAndPadded)
{
    EXPECT_EQ(
        Text(u"%.2s|%5s|%-5s|", std::u16string(u"abc"), std::u16string(u"de"), std::u16string(u"fg")),
        "ab|   de|fg   |");
}

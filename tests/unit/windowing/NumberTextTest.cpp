#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "framework/windowing/NumberText.h"

using NumberText::ParseInteger;
using NumberText::ParseReal;
using NumberText::ParseUnsigned;

namespace
{
const std::u16string_view NoNumbers[] = {u"",    u" ",     u"abc", u"1,5", u"1 000", u"12a", u"0x10",
                                         u"--1", u"+-1",   u"1e",  u"1e+", u".",     u"-.",  u"nan",
                                         u"inf", u"1.2.3", u"1d5", u"１",  u"1e5x"};
} // namespace

TEST(NumberText, WhatIsNoNumberIsRefused)
{
    for (const std::u16string_view text : NoNumbers) {
        const std::string shown(text.begin(), text.end());
        EXPECT_FALSE(ParseInteger(text)) << shown;
        EXPECT_FALSE(ParseUnsigned(text)) << shown;
        EXPECT_FALSE(ParseReal(text)) << shown;
    }
}

TEST(NumberText, BlanksAndTabsMayStandAround)
{
    EXPECT_EQ(ParseUnsigned(u" \t7 "), 7u);
    EXPECT_EQ(ParseInteger(u"\t-7"), -7);
    EXPECT_EQ(ParseReal(u" 1.5\t"), 1.5);
}

TEST(NumberText, WholeNumbersTakeDigitsAndASign)
{
    EXPECT_EQ(ParseUnsigned(u"007"), 7u);
    EXPECT_EQ(ParseUnsigned(u"+7"), 7u);
    EXPECT_EQ(ParseInteger(u"+7"), 7);
    EXPECT_FALSE(ParseInteger(u"1.5"));
    EXPECT_FALSE(ParseUnsigned(u"1e2"));
}

TEST(NumberText, UnsignedNumbersTakeNoMinus)
{
    EXPECT_FALSE(ParseUnsigned(u"-1"));
    EXPECT_FALSE(ParseUnsigned(u"-0"));
}

TEST(NumberText, WholeNumbersBeyondTheTypeAreItsEnd)
{
    EXPECT_EQ(ParseUnsigned(u"4294967295"), 4294967295u);
    EXPECT_EQ(ParseUnsigned(u"4294967296"), 4294967295u);
    EXPECT_EQ(ParseUnsigned(std::u16string(5000, u'9')), 4294967295u);
    EXPECT_EQ(ParseInteger(u"2147483648"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(ParseInteger(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ParseInteger(u"-99999999999999999999"), std::numeric_limits<std::int32_t>::min());
}

TEST(NumberText, RealNumbersTakeAPointAndAnExponent)
{
    EXPECT_EQ(ParseReal(u"-12.25"), -12.25);
    EXPECT_EQ(ParseReal(u"+.5"), 0.5);
    EXPECT_EQ(ParseReal(u"5."), 5.0);
    EXPECT_EQ(ParseReal(u"1e-7"), 1e-7);
    EXPECT_EQ(ParseReal(u"-1.5E+10"), -1.5e10);
    EXPECT_EQ(ParseReal(u"0.1"), 0.1);
}

TEST(NumberText, RealNumbersReachTheEndsOfTheType)
{
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(ParseReal(u"1.7976931348623157e308"), largest);
    EXPECT_EQ(ParseReal(u"-1.7976931348623157e308"), -largest);
    EXPECT_EQ(ParseReal(u"5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(NumberText, TooLargeRealsAreRefusedAndTooSmallOnesAreZero)
{
    EXPECT_FALSE(ParseReal(u"1e309"));
    EXPECT_FALSE(ParseReal(u"-1e999999999999"));
    EXPECT_FALSE(ParseReal(std::u16string(400, u'9')));
    EXPECT_EQ(ParseReal(u"1e-400"), 0.0);
}

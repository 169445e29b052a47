#include "viewer/CellValue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Viewer::DateToOle;
using Viewer::OleToDate;
using Viewer::ParseDate;
using Viewer::ParseNumber;

namespace
{

TEST(CellValue, ReadsNumbersInTheUsualNotation)
{
    EXPECT_EQ(-3.5, ParseNumber(u"-3.5", false));
    EXPECT_EQ(0.5, ParseNumber(u" .5\t", false));
    EXPECT_EQ(0.001, ParseNumber(u"+1e-3", false));
    EXPECT_EQ(315.70, ParseNumber(u"315.70", false));
}

TEST(CellValue, RefusesWhatIsNoFiniteNumber)
{
    for (const char16_t* cell : {u"", u" ", u"n/a", u"nan", u"inf", u"-inf", u"1e999", u"0x10", u"1,5",
                                 u"1 5", u"--1", u"+-1", u"1.2.3", u"12abc", u"-", u".", u"e5"}) {
        EXPECT_FALSE(ParseNumber(cell, false))
            << std::string(cell, cell + std::u16string_view(cell).size());
    }
    EXPECT_FALSE(ParseNumber(std::u16string_view(u"1\0", 2), false));
    EXPECT_FALSE(ParseNumber(std::u16string(100'000, u'1'), false));
}

TEST(CellValue, ReadsADecimalCommaWhereItIsUsual)
{
    EXPECT_EQ(3.5, ParseNumber(u"3,5", true));
    EXPECT_EQ(3.5, ParseNumber(u"3.5", true));
    EXPECT_FALSE(ParseNumber(u"3,5,7", true));
    EXPECT_FALSE(ParseNumber(u"1.2.3", true));
    EXPECT_FALSE(ParseNumber(u"1,012.75", true));
}

TEST(CellValue, ReadsNumbersSetOffInThrees)
{
    EXPECT_EQ(1012.75, ParseNumber(u"1,012.75", false));
    EXPECT_EQ(-12345678.0, ParseNumber(u"-12,345,678", false));
    EXPECT_EQ(1012.75, ParseNumber(u"1.012,75", true));
    EXPECT_EQ(1012.0, ParseNumber(u"1.012", true));
    EXPECT_EQ(1500.0, ParseNumber(u"1,500e0", false));
    for (const char16_t* cell :
         {u"1,01.5", u"1,0123", u"1234,567", u",123", u"1.0,123", u"1,,123", u"1e1,000"}) {
        EXPECT_FALSE(ParseNumber(cell, false))
            << std::string(cell, cell + std::u16string_view(cell).size());
    }
}

TEST(CellValue, TheFirstCellThatLeavesNoDoubtDecidesAboutCommas)
{
    const auto has = [](std::vector<std::u16string> cells, bool otherwise) {
        return Viewer::HasDecimalCommas(cells, otherwise);
    };
    EXPECT_TRUE(has({u"n/a", u"1,012", u"3,5"}, false));
    EXPECT_TRUE(has({u"1.012,75"}, false));
    EXPECT_TRUE(has({u"1.012.345"}, false));
    EXPECT_TRUE(has({u"0,125"}, false));
    EXPECT_FALSE(has({u"1,012.75"}, true));
    EXPECT_FALSE(has({u"1,012,345"}, true));
    EXPECT_FALSE(has({u"1.5", u"2"}, true));
    EXPECT_TRUE(has({u"1,012"}, true));
    EXPECT_FALSE(has({u"1,012"}, false));
    EXPECT_FALSE(has({u"01.02.2024"}, true));
}

TEST(CellValue, ReadsIsoDatesAsOleDates)
{
    EXPECT_EQ(0.0, ParseDate(u"1899-12-30"));
    EXPECT_EQ(25569.0, ParseDate(u"1970-01-01"));
    EXPECT_EQ(40909.0, ParseDate(u" 2012-01-01 "));
    EXPECT_EQ(40909.0, ParseDate(u"2012-01"));
    EXPECT_EQ(40909.25, ParseDate(u"2012-01-01T06:00"));
    EXPECT_EQ(40909.75, ParseDate(u"2012-01-01 18:00:00"));
    EXPECT_DOUBLE_EQ(40909.0 + 0.25 / 86400, *ParseDate(u"2012-01-01T00:00:00.25Z"));
}

TEST(CellValue, ReadsDatesWithTheDayFirst)
{
    EXPECT_EQ(45323.0, ParseDate(u"01.02.2024"));
    EXPECT_EQ(45323.0, ParseDate(u"1.2.2024"));
    EXPECT_EQ(45323.25, ParseDate(u"01.02.2024 06:00"));
    for (const char16_t* cell :
         {u"1.2", u"1.2.24", u"32.1.2024", u"30.02.2024", u"1.13.2024", u"1..2024"}) {
        EXPECT_FALSE(ParseDate(cell)) << std::string(cell, cell + std::u16string_view(cell).size());
    }
}

TEST(CellValue, TakesTheOffsetOffATime)
{
    EXPECT_EQ(40909.25, ParseDate(u"2012-01-01T08:00+02:00"));
    EXPECT_EQ(40908.75, ParseDate(u"2012-01-01T00:00+0600"));
    EXPECT_EQ(40910.0, ParseDate(u"2012-01-01T19:00-05:00"));
}

TEST(CellValue, CountsTheFractionAwayFromZeroBeforeTheEpoch)
{
    EXPECT_EQ(-1.25, ParseDate(u"1899-12-29T06:00"));
    EXPECT_EQ(-1.0, ParseDate(u"1899-12-29"));
    EXPECT_EQ(-657434.0, ParseDate(u"0100-01-01"));
}

TEST(CellValue, RefusesDatesThatDoNotExist)
{
    for (const char16_t* cell : {u"",
                                 u"2012",
                                 u"2012-13-01",
                                 u"2012-00-01",
                                 u"2012-02-30",
                                 u"2013-02-29",
                                 u"0099-12-31",
                                 u"12-01-01",
                                 u"2012-1-1",
                                 u"2012-01-01x",
                                 u"2012-01-01T",
                                 u"2012-01-01T24:00",
                                 u"2012-01-01T10:60",
                                 u"2012-01-01T10:00:60",
                                 u"2012-01-01T10",
                                 u"2012-01-01T10:00+15:00",
                                 u"2012-01-01T10:00:00.",
                                 u"20120101",
                                 u"2012/01/01",
                                 u"-012-01-01"}) {
        EXPECT_FALSE(ParseDate(cell)) << std::string(cell, cell + std::u16string_view(cell).size());
    }
}

TEST(CellValue, CalendarAndOleDatesAreInverse)
{
    for (const int year : {100, 1600, 1899, 1900, 1958, 1970, 2024, 9999}) {
        const Viewer::CalendarDate date =
            OleToDate(DateToOle({year, 2, 28}) + (year > 1899 ? 0.5 : -0.5));
        EXPECT_EQ(year, date.year);
        EXPECT_EQ(2, date.month);
        EXPECT_EQ(28, date.day);
    }
    EXPECT_EQ(9999, OleToDate(1e300).year);
}

} // namespace

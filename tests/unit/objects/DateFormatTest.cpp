#include "objects/DateFormat.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <cwchar>
#include <string>

namespace
{

using DateFormat::FormatDate;
using DateFormat::TDateFields;

// Sunday, 5 July 2026, 09:04:07, the 186th day.
constexpr TDateFields Date{2026, 7, 5, 9, 4, 7, 0, 186};

TDateFields FieldsOf(const std::tm& broken)
{
    return {broken.tm_year + 1900, broken.tm_mon + 1, broken.tm_mday, broken.tm_hour,
            broken.tm_min,         broken.tm_sec,     broken.tm_wday, broken.tm_yday + 1};
}

std::u16string ByRunTime(const wchar_t* format, const std::tm& broken)
{
    std::array<wchar_t, 256> buffer = {};
    const std::size_t length = std::wcsftime(buffer.data(), buffer.size(), format, &broken);
    return {buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(length)};
}

TEST(DateFormat, DateAndTime)
{
    EXPECT_EQ(FormatDate(u"%Y-%m-%d %H:%M:%S", Date), u"2026-07-05 09:04:07");
    EXPECT_EQ(FormatDate(u"%A %a %B %b", Date), u"Sunday Sun July Jul");
    EXPECT_EQ(FormatDate(u"%I:%M %p", Date), u"09:04 AM");
}

TEST(DateFormat, TextAroundConversionsStays)
{
    EXPECT_EQ(FormatDate(u"am %d. \u5E74", Date), u"am 05. \u5E74");
    EXPECT_EQ(FormatDate(u"", Date), u"");
    EXPECT_EQ(FormatDate(u"100%%", Date), u"100%");
}

TEST(DateFormat, UnknownConversionsStandAsText)
{
    EXPECT_EQ(FormatDate(u"%Q %k %5d %#Q %# %", Date), u"%Q %k %5d %#Q %# %");
    EXPECT_EQ(FormatDate(u"%s %n%i", Date), u"%s \n%i");
    EXPECT_EQ(FormatDate(u"%E %EQ %Od %Ed %O", Date), u"%E %EQ 05 %Ed %O");
}

TEST(DateFormat, TheAlternateFlagTakesLeadingZerosAndBlanksAway)
{
    EXPECT_EQ(FormatDate(u"%#d.%#m.%#y|%#e|%#H:%#M:%#S", Date), u"5.7.26|5|9:4:7");
    EXPECT_EQ(FormatDate(u"%#j %#I %#U %#V %#W", Date), u"186 9 27 27 26");
    EXPECT_EQ(FormatDate(u"%#D|%#F|%#R|%#T|%#r", Date), u"7/5/26|2026-7-5|9:4|9:4:7|9:4:7 AM");
    EXPECT_EQ(FormatDate(u"%#d%d%#Od", Date), u"5055"); // of the one conversion alone
}

TEST(DateFormat, TheAlternateFlagWritesDatesInWords)
{
    EXPECT_EQ(FormatDate(u"%#x", Date), u"Sunday, July 05, 2026");
    EXPECT_EQ(FormatDate(u"%#c", Date), u"Sunday, July 05, 2026, 09:04:07");
}

TEST(DateFormat, ElsewhereTheAlternateFlagIsIgnored)
{
    EXPECT_EQ(FormatDate(u"%#a %#A %#b %#B %#h %#p %#X %#g %#G %#u %#w %#%", Date),
              FormatDate(u"%a %A %b %B %h %p %X %g %G %u %w %%", Date));
}

TEST(DateFormat, TextThatDoesntFitTheBufferIsEmpty)
{
    EXPECT_EQ(FormatDate(std::u16string(255, u'x'), Date).size(), 255u);
    EXPECT_EQ(FormatDate(std::u16string(256, u'x'), Date), u"");
    std::u16string many;
    for (int i = 0; i < 100000; ++i)
        many += u"%c";
    EXPECT_EQ(FormatDate(many, Date), u"");
}

TEST(DateFormat, CenturiesHaveNoLeapDayButEveryFourth)
{
    // The first of 2101 is a Saturday: of the last week of 2100, whose days count as 365.
    EXPECT_EQ(FormatDate(u"%G %V", {2101, 1, 1, 0, 0, 0, 6, 1}), u"2100 52");
    // No first of 2001 was one, but the days of 2000 would count as 366.
    EXPECT_EQ(FormatDate(u"%G %V", {2001, 1, 1, 0, 0, 0, 6, 1}), u"2000 53");
}

TEST(DateFormat, TheZoneIsTheMachines)
{
    std::tm broken = {};
    broken.tm_year = 126;
    broken.tm_mon = 6;
    broken.tm_mday = 5;
    broken.tm_yday = 185;
    EXPECT_EQ(FormatDate(u"%z", FieldsOf(broken)), ByRunTime(L"%z", broken));
    EXPECT_EQ(FormatDate(u"(%#Z)", FieldsOf(broken)), u"(" + ByRunTime(L"%Z", broken) + u")");
}

TEST(DateFormat, HostileFieldsAreHarmless)
{
    EXPECT_EQ(FormatDate(u"%A %B", {2026, 0, 1, 0, 0, 0, -1, 1}), u"? ?");
    EXPECT_EQ(FormatDate(u"%A %B", {2026, 13, 1, 0, 0, 0, 7, 1}), u"? ?");
    EXPECT_EQ(FormatDate(u"%#", Date), u"%#");
    const TDateFields fields{-5, 99, -1, 77, 61, -3, 12, -4};
    EXPECT_FALSE(FormatDate(u"%a %A %b %B %c %C %d %e %j %U %V %G %g %W %y %Y %p %I", fields).empty());
}

TEST(DateFormat, EqualsTheRunTimeForEveryLetterAndDay)
{
    constexpr const wchar_t* format =
        L"%a|%A|%b|%B|%c|%C|%d|%D|%e|%F|%g|%G|%h|%H|%I|%j|%m|%M|%n|%p|%r|%R|%S|"
        L"%t|%T|%u|%U|%V|%w|%W|%x|%X|%y|%Y|%%";
    const std::wstring wide(format);
    const std::u16string narrow(wide.begin(), wide.end());
    for (int day = 0; day < 366 * 30; ++day) {
        std::tm broken = {};
        broken.tm_year = 95;
        broken.tm_mday = 1 + day;
        broken.tm_hour = day % 24;
        broken.tm_min = day % 60;
        broken.tm_sec = day % 59;
        timegm(&broken);
        ASSERT_EQ(FormatDate(narrow, FieldsOf(broken)), ByRunTime(format, broken)) << day;
    }
}

} // namespace

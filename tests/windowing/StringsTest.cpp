#include "framework/windowing/Strings.h"

#include <gtest/gtest.h>

TEST(CString, NullIsAnEmptyText)
{
    CString text(static_cast<LPCWSTR>(nullptr));
    EXPECT_TRUE(text.IsEmpty());
    text = L"x";
    text = static_cast<LPCWSTR>(nullptr);
    EXPECT_EQ(text.GetLength(), 0);
    text += static_cast<LPCWSTR>(nullptr);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(text.Compare(nullptr), 0);
    EXPECT_EQ(text.Find(static_cast<LPCWSTR>(nullptr)), -1);
    const BSTR none = nullptr;
    EXPECT_TRUE(CString(none).IsEmpty());
}

TEST(CString, CopiesAreIndependent)
{
    const CString first(L"axis");
    CString second(first);
    second += L"es";
    EXPECT_STREQ(first, L"axis");
    EXPECT_STREQ(second, L"axises");
    EXPECT_TRUE(first == L"axis");
    EXPECT_TRUE(first != second);
    EXPECT_TRUE(L"axis" == first);
}

TEST(CString, PartsAreClampedToTheText)
{
    const CString text(L"graph");
    EXPECT_STREQ(text.Left(2), L"gr");
    EXPECT_STREQ(text.Left(99), L"graph");
    EXPECT_STREQ(text.Left(-1), L"");
    EXPECT_STREQ(text.Right(2), L"ph");
    EXPECT_STREQ(text.Right(99), L"graph");
    EXPECT_STREQ(text.Right(-1), L"");
    EXPECT_STREQ(text.Mid(1, 3), L"rap");
    EXPECT_STREQ(text.Mid(3), L"ph");
    EXPECT_STREQ(text.Mid(9), L"");
    EXPECT_STREQ(text.Mid(-1, 2), L"gr");
    EXPECT_STREQ(text.Mid(1, INT_MAX), L"raph");
}

TEST(CString, FindGivesThePositionOrMinusOne)
{
    const CString text(L"%5.1f and %d.");
    EXPECT_EQ(text.Find(L'.'), 2);
    EXPECT_EQ(text.Find(L'.', 3), 12);
    EXPECT_EQ(text.Find(L"and"), 6);
    EXPECT_EQ(text.Find(L"and", 7), -1);
    EXPECT_EQ(text.Find(L"x"), -1);
    EXPECT_EQ(text.Find(L"and", -5), -1);
    EXPECT_EQ(text.Find(L"and", 99), -1);
    EXPECT_EQ(text.ReverseFind(L'.'), 12);
}

TEST(CString, ReplaceCountsAndDoesNotReplaceItsOwnResult)
{
    CString text(L"a\nb\n");
    EXPECT_EQ(text.Replace(L"\n", L"\\n"), 2);
    EXPECT_STREQ(text, L"a\\nb\\n");
    CString grown(L"aa");
    EXPECT_EQ(grown.Replace(L"a", L"aa"), 2);
    EXPECT_STREQ(grown, L"aaaa");
    EXPECT_EQ(grown.Replace(L"aa", nullptr), 2);
    EXPECT_TRUE(grown.IsEmpty());
    EXPECT_EQ(grown.Replace(L"", L"x"), 0);
    CString units(L"a\rb\r");
    EXPECT_EQ(units.Replace(L'\r', L' '), 2);
    EXPECT_STREQ(units, L"a b ");
}

TEST(CString, CaseChangesTheTextItself)
{
    CString text(L"Sine");
    EXPECT_STREQ(text.MakeUpper(), L"SINE");
    EXPECT_STREQ(text, L"SINE");
}

TEST(CString, CompareOrdersByUnits)
{
    EXPECT_LT(CString(L"a").Compare(L"b"), 0);
    EXPECT_GT(CString(L"b").Compare(L"a"), 0);
    EXPECT_EQ(CString(L"a").Compare(L"a"), 0);
    EXPECT_TRUE(CString(L"a") < CString(L"b"));
}

TEST(CString, FormatTakesTypedArguments)
{
    CString text;
    const CString label(L"\u6E29\u5EA6");
    text.Format(L"%d %s", 3, label);
    EXPECT_STREQ(text, L"3 \u6E29\u5EA6");
    text.Format(L"[%02d]", 7L);
    EXPECT_STREQ(text, L"[07]");
    text.Format(L"(%.1f%s)  %s", 12.25, L"%", L"north");
    EXPECT_STREQ(text, L"(12.2%)  north");
    text.Format(L"%5.4e*X^%d", 1234.5, 2);
    EXPECT_STREQ(text, L"1.2345e+03*X^2");
    text.Format(L"%%5.%df", 3);
    EXPECT_STREQ(text, L"%5.3f");
    text.Format(L"%u %x", 0xFFFFFFFFu, -1);
    EXPECT_STREQ(text, L"4294967295 ffffffff");
}

TEST(CString, FormatHasNoLimitOfLength)
{
    const CString longText(std::wstring(100000, L'x'));
    CString text;
    text.Format(L"%s|%s", longText, longText);
    EXPECT_EQ(text.GetLength(), 200001);
}

TEST(CString, FormatMayTakeTheTextItself)
{
    CString text(L"inner");
    text.Format(L"<%s>", text);
    EXPECT_STREQ(text, L"<inner>");
}

TEST(CString, FormatWithMissingOrForeignArgumentsStandsAsText)
{
    CString text;
    text.Format(L"%s %d %n", L"only");
    EXPECT_STREQ(text, L"only %d %n");
}

TEST(CString, BufferIsWritableUntilReleased)
{
    CString text(L"ab");
    LPWSTR buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, L"ab");
    ::lstrcpyW(buffer, L"window");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 6);
    (void)text.GetBuffer(10);
    text.ReleaseBuffer(3);
    EXPECT_STREQ(text, L"win");
}

TEST(CString, MissingResourceStringIsEmptyAndFalse)
{
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(65000));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, NumberInAForeignFormatGoesThroughTheParser)
{
    EXPECT_STREQ(AfxFormatNumber(L"%5.1f%n", 2.25), L"  2.2%n");
}

#include "viewer/CsvText.h"

#include <gtest/gtest.h>

#include <string>

using Viewer::CsvContents;
using Viewer::DecodeText;
using Viewer::SplitCsv;

namespace
{

using Cells = std::vector<std::u16string>;

TEST(CsvText, DecodesUtf8WithAndWithoutByteOrderMark)
{
    EXPECT_EQ(u"a\u00E9\u4E2D\U0001F600", DecodeText("a\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80"));
    EXPECT_EQ(u"a,b", DecodeText("\xEF\xBB\xBF"
                                 "a,b"));
}

TEST(CsvText, DecodesUtf16OfBothByteOrders)
{
    EXPECT_EQ(u"a\u4E2D", DecodeText(std::string_view("\xFF\xFE"
                                                      "a\0\x2D\x4E",
                                                      6)));
    EXPECT_EQ(u"a\u4E2D", DecodeText(std::string_view("\xFE\xFF\0a\x4E\x2D", 6)));
}

TEST(CsvText, TakesBytesThatAreNoUtf8AsLatin1)
{
    EXPECT_EQ(u"\u00FC1", DecodeText("\xFC"
                                     "1"));
    EXPECT_EQ(u"\u00C3", DecodeText("\xC3"));                     // cut off at the end
    EXPECT_EQ(u"\u00C0\u0080", DecodeText("\xC0\x80"));           // overlong
    EXPECT_EQ(u"\u00ED\u00A0\u0080", DecodeText("\xED\xA0\x80")); // a surrogate
    EXPECT_EQ(u"\u00F8", DecodeText("\xF8"));
}

TEST(CsvText, OddByteAtTheEndOfUtf16IsLeftOut)
{
    EXPECT_EQ(u"a", DecodeText(std::string_view("\xFF\xFE"
                                                "a\0b",
                                                5)));
}

TEST(CsvText, SplitsLinesOfAllThreeEndings)
{
    const CsvContents contents = SplitCsv(u"a,b\n1,2\r\n3,4\r5,6");

    ASSERT_EQ(4u, contents.rows.size());
    EXPECT_EQ((Cells{u"1", u"2"}), contents.rows[1].cells);
    EXPECT_EQ((Cells{u"3", u"4"}), contents.rows[2].cells);
    EXPECT_EQ((Cells{u"5", u"6"}), contents.rows[3].cells);
    EXPECT_EQ(4u, contents.rows[3].line);
}

TEST(CsvText, LeavesEmptyLinesOutAndKeepsLineNumbers)
{
    const CsvContents contents = SplitCsv(u"a,b\n\n\r\n1,2\n\n");

    ASSERT_EQ(2u, contents.rows.size());
    EXPECT_EQ(4u, contents.rows[1].line);
}

TEST(CsvText, QuotedCellsHoldSeparatorsQuotesAndLineEnds)
{
    const CsvContents contents = SplitCsv(u"\"a, b\",\"say \"\"hi\"\"\",\"two\r\nlines\"\nx,,\n");

    ASSERT_EQ(2u, contents.rows.size());
    EXPECT_EQ((Cells{u"a, b", u"say \"hi\"", u"two\r\nlines"}), contents.rows[0].cells);
    EXPECT_EQ((Cells{u"x", u"", u""}), contents.rows[1].cells);
    EXPECT_EQ(3u, contents.rows[1].line);
    EXPECT_FALSE(contents.endsInsideQuotes);
}

TEST(CsvText, QuotesInsideACellAreOrdinary)
{
    const CsvContents contents = SplitCsv(u"5\" pipe,\"a\"b\n");

    EXPECT_EQ((Cells{u"5\" pipe", u"ab"}), contents.rows[0].cells);
}

TEST(CsvText, UnclosedQuoteTakesTheRestAndIsTold)
{
    const CsvContents contents = SplitCsv(u"a,b\n1,\"2\n3,4\n");

    ASSERT_EQ(2u, contents.rows.size());
    EXPECT_EQ((Cells{u"1", u"2\n3,4\n"}), contents.rows[1].cells);
    EXPECT_TRUE(contents.endsInsideQuotes);
}

TEST(CsvText, ChoosesTheSeparatorOfTheFirstLine)
{
    EXPECT_EQ(u';', SplitCsv(u"a;b;c,d\n1;2;3\n").separator);
    EXPECT_EQ(u'\t', SplitCsv(u"a\tb\n1,5\t2\n").separator);
    EXPECT_EQ(u',', SplitCsv(u"alone\n1;2;3\n").separator);
    EXPECT_EQ(u',', SplitCsv(u"\"a;b;c\",d\n").separator);
}

TEST(CsvText, KeepsNulCharactersAsText)
{
    const CsvContents contents = SplitCsv(std::u16string_view(u"a,b\n1\0,2\n", 9));

    ASSERT_EQ(2u, contents.rows.size());
    EXPECT_EQ(std::u16string(u"1\0", 2), contents.rows[1].cells[0]);
}

TEST(CsvText, SplitsAHugeCell)
{
    const std::u16string huge(3'000'000, u'9');

    const CsvContents contents = SplitCsv(u"a,b\n" + huge + u",2\n");

    ASSERT_EQ(2u, contents.rows.size());
    EXPECT_EQ(huge.size(), contents.rows[1].cells[0].size());
    EXPECT_EQ(u"2", contents.rows[1].cells[1]);
}

TEST(CsvText, NothingGivesNoRows)
{
    EXPECT_TRUE(SplitCsv(u"").rows.empty());
    EXPECT_TRUE(SplitCsv(u"\n\r\n\r").rows.empty());
    EXPECT_EQ(1u, SplitCsv(u",").rows.size());
}

} // namespace

#include "viewer/CsvTable.h"

#include "viewer/ViewerError.h"

#include <gtest/gtest.h>

using Viewer::ColumnKind;
using Viewer::MakeTable;
using Viewer::SplitCsv;
using Viewer::Table;

namespace
{

Table Read(std::u16string_view text)
{
    return MakeTable(SplitCsv(text));
}

TEST(CsvTable, NamesColumnsByTheHeader)
{
    const Table table = Read(u"date, CO2 ,n\n2012-01-01,1,x\n2012-01-02,2,y\n");

    ASSERT_EQ(3u, table.columns.size());
    EXPECT_EQ(2u, table.Rows());
    EXPECT_EQ(u"CO2", table.columns[1].name);
    EXPECT_EQ(ColumnKind::Date, table.columns[0].kind);
    EXPECT_EQ(ColumnKind::Number, table.columns[1].kind);
    EXPECT_EQ(ColumnKind::Text, table.columns[2].kind);
}

TEST(CsvTable, AFileWithoutHeaderKeepsItsFirstRow)
{
    const Table table = Read(u"2012-01-01,1.5\n2012-01-02,2\n");

    ASSERT_EQ(2u, table.Rows());
    EXPECT_EQ(u"Column 1", table.columns[0].name);
    EXPECT_EQ(u"1.5", table.columns[1].cells[0]);
}

TEST(CsvTable, AColumnIsWhatHalfOfItsFilledCellsAre)
{
    const Table table = Read(u"a,b,c,d\n1,x,,2012-01-01\n,y,,\nn/a,3,,2012-01-02\n4,4,,n/a\n");

    EXPECT_EQ(ColumnKind::Number, table.columns[0].kind);
    EXPECT_EQ(ColumnKind::Number, table.columns[1].kind);
    EXPECT_EQ(ColumnKind::Empty, table.columns[2].kind);
    EXPECT_EQ(ColumnKind::Date, table.columns[3].kind);
}

TEST(CsvTable, ShortRowsAreFilledAndLongOnesCut)
{
    const Table table = Read(u"a,b\n1\n1,2,3\n");

    ASSERT_EQ(2u, table.columns.size());
    EXPECT_EQ(u"", table.columns[1].cells[0]);
    EXPECT_EQ(u"2", table.columns[1].cells[1]);
}

TEST(CsvTable, EmptyAndRepeatedNamesBecomeUnique)
{
    const Table table = Read(u"a,,a,a\n1,2,3,4\n");

    EXPECT_EQ(u"a", table.columns[0].name);
    EXPECT_EQ(u"Column 2", table.columns[1].name);
    EXPECT_EQ(u"a (2)", table.columns[2].name);
    EXPECT_EQ(u"a (3)", table.columns[3].name);
}

TEST(CsvTable, FindsNamesExactlyBeforeIgnoringCase)
{
    const Table table = Read(u"Wind,wind\n1,2\n");

    EXPECT_EQ(&table.columns[1], table.Find(u"wind"));
    EXPECT_EQ(&table.columns[0], table.Find(u"WIND"));
    EXPECT_EQ(nullptr, table.Find(u"win"));
}

TEST(CsvTable, ReadsDecimalCommasWhereSemicolonsSeparate)
{
    const Table table = Read(u"a;b\n1,5;2\n");

    EXPECT_TRUE(table.columns[0].decimalComma);
    EXPECT_FALSE(table.columns[1].decimalComma);
    EXPECT_EQ(ColumnKind::Number, table.columns[0].kind);
}

TEST(CsvTable, ReadsQuotedDecimalCommasWhereCommasSeparate)
{
    const Table table = Read(u"a,b,c\n\"3,5\",\"1.012,75\",\"1,012.75\"\n\"4,25\",7,8\n");

    EXPECT_TRUE(table.columns[0].decimalComma);
    EXPECT_TRUE(table.columns[1].decimalComma);
    EXPECT_FALSE(table.columns[2].decimalComma);
    for (const Viewer::Column& column : table.columns)
        EXPECT_EQ(ColumnKind::Number, column.kind);
}

TEST(CsvTable, ReadsDatesWithPoints)
{
    const Table table = Read(u"day;value\n01.02.2024;1\n2.2.2024;2\n");

    EXPECT_EQ(ColumnKind::Date, table.columns[0].kind);
}

TEST(CsvTable, RefusesFilesWithoutRows)
{
    EXPECT_THROW((void)Read(u""), Viewer::Error);
    EXPECT_THROW((void)Read(u"\n\n"), Viewer::Error);
    EXPECT_THROW((void)Read(u"a,b\n"), Viewer::Error);
}

TEST(CsvTable, RefusesMoreCellsThanMemoryShouldHold)
{
    const std::u16string wide(5'000, u',');
    std::u16string text = u"a" + wide + u"\n";
    for (int row = 0; row < 5'000; ++row)
        text += u"1\n";
    try {
        (void)Read(text);
        FAIL();
    } catch (const Viewer::Error& error) {
        EXPECT_EQ(u"the table has 5001 rows of 5001 columns; 20000000 cells can be shown at most",
                  error.text);
    }
}

} // namespace

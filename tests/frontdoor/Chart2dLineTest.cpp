// Lines and their animations, by pixels. Two segments of one series have their points at
// x = 178 and 341; y is 326 for 0 and 166 for the scale's maximum. A line is 3 pixels wide.

#include "Chart2dHost.h"

class Chart2dLine : public Chart2dTest
{
protected:
    void SetUp() override
    {
        Chart2dTest::SetUp();
        Create(Line);
        chart->ShowGraphLegend(0);
    }

    // The columns that have the color in the row, as [first, last].
    static POINT Row(const Picture& picture, int y, COLORREF color)
    {
        POINT columns = {-1, -1};
        for (int x = 0; x < 638; ++x) {
            if (picture.At(x, y) != color)
                continue;
            if (columns.x < 0)
                columns.x = x;
            columns.y = x;
        }
        return columns;
    }
    // As Row, with a pixel of tolerance for the pen's round ends.
    static void ExpectLine(const Picture& picture, int y, COLORREF color, int from, int to)
    {
        const POINT columns = Row(picture, y, color);
        EXPECT_NEAR(columns.x, from, 2);
        EXPECT_NEAR(columns.y, to, 2);
    }
};

TEST_F(Chart2dLine, LineRunsFromPointToPointThreePixelsWide)
{
    FillLines({{100, 100}, {50, 50}}); // two series: gw = 131, step 167, points at 180 and 347
    const Picture picture = Redrawn();
    EXPECT_EQ(Column(picture, 250, Red), (POINT{165, 167}));
    EXPECT_EQ(Column(picture, 250, Green), (POINT{245, 247}));
    ExpectLine(picture, 166, Red, 180, 347);
}

TEST_F(Chart2dLine, OneSegmentLeavesTheAxesAlone)
{
    const Picture empty = Redrawn();
    EXPECT_EQ(empty.At(99, 200), 0u);
    FillLines({{100}, {50}});
    EXPECT_EQ(Redrawn().CountDifferences(empty), 0);
}

TEST_F(Chart2dLine, ScaleOfNothingLeavesNoLineInSight)
{
    FillLines({{0, 50}});
    const Picture picture = Redrawn();
    EXPECT_EQ(picture.Count(Red), 0);
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"0", {20}, TA_RIGHT), 0);
}

TEST_F(Chart2dLine, LineToAFarPointKeepsItsSlope)
{
    FillLines({{1, 2147483647}});
    const Picture picture = Redrawn(); // as good as upright
    EXPECT_EQ(Column(picture, 178, Red).x, 0);
    EXPECT_NEAR(Column(picture, 178, Red).y, 166, 2);
    EXPECT_EQ(picture.Count({185, 0, 638, 398}, Red), 0);
}

TEST_F(Chart2dLine, ValuesOfADeletedSegmentStayOnTheLine)
{
    FillLines({{100, 100, 100}});
    chart->Delete2DLineGraphSegment(2);
    ExpectLine(Redrawn(), 166, Red, 178, 504); // three points, 163 apart
}

TEST_F(Chart2dLine, TwoSegmentsDrawOneLineInFiftyTicksAndHold)
{
    FillLines({{100, 100}});
    ExpectLine(AtTick(30, 25), 166, Red, 178, 178 + 81);
    Tick(25);
    ExpectLine(Picture(Handle()), 166, Red, 178, 341);
    const Picture full = Picture(Handle());
    Tick(1);
    const Picture held = Picture(Handle()); // the label of the last segment has come
    EXPECT_EQ(Column(held, 250, Red), (POINT{165, 167}));
    Tick(20);
    EXPECT_EQ(Picture(Handle()).CountDifferences(held), 0);
    Tick(2);
    EXPECT_LT(Picture(Handle()).Count(Red), full.Count(Red) / 4);
}

TEST_F(Chart2dLine, ThreeSegmentsEndAtSixtySixPercent)
{
    FillLines({{100, 100, 100}}); // gap 24, bg 3, gw 81, step 105, from 99 + 12 + 40
    ExpectLine(AtTick(30, 66), 166, Red, 151, 151 + 210);
    Tick(1);
    const Picture held = Picture(Handle());
    Tick(20);
    EXPECT_EQ(Picture(Handle()).CountDifferences(held), 0);
    Tick(1);
    EXPECT_LT(Picture(Handle()).Count(Red), held.Count(Red) / 4);
}

TEST_F(Chart2dLine, LabelsArriveWithTheLinesOrAreAllThere)
{
    FillLines({{100, 100}});
    const POINT second = {115 + 163 + (4 + 127) / 2, 332};
    const Picture together = AtTick(30, 25);
    EXPECT_EQ(TextDifferences(together, {115 + (4 + 127) / 2, 332}, L"s", {55}, TA_CENTER), 0);
    EXPECT_GT(TextDifferences(together, second, L"s", {55}, TA_CENTER), 0);
    EXPECT_EQ(TextDifferences(AtTick(31, 5), second, L"s", {55}, TA_CENTER), 0);
}

TEST_F(Chart2dLine, SeriesDrawInTurn)
{
    FillLines({{100, 100}, {50, 50}});
    const Picture first = AtTick(31, 12);
    EXPECT_EQ(first.Count(Green), 0);
    EXPECT_LT(Row(first, 166, Red).y, 270);
    Tick(26);
    const Picture second = Picture(Handle());
    ExpectLine(second, 166, Red, 180, 347);
    EXPECT_GT(second.Count(Green), 100);
    EXPECT_LT(Row(second, 246, Green).y, 300);
}

TEST_F(Chart2dLine, NewSizeLeavesTheLineWhereItWasOnItsWay)
{
    FillLines({{100, 100, 100}});
    AtTick(30, 50); // half of the second line
    chart->SetGraphSize(640, 500);
    const Picture resized = Redrawn(); // Y = 175, H = 250: the maximum is at 175 + 232 - 200
    ExpectLine(resized, 207, Red, 151, 151 + 105 + 54);
}

TEST_F(Chart2dLine, LegendIsInASerifFaceAndWiderAfterANewSize)
{
    FillLines({{1, 1}});
    chart->ShowGraphLegend(1);
    const auto textAt = [&](const TFont& font) {
        const int line = TextHeight(font);
        return TextDifferences(Redrawn(), {492, 142 + (200 - line) / 2}, L"row", font);
    };
    EXPECT_EQ(textAt({15, 0, 400, L"Times New Roman"}), 0);
    chart->SetGraphSize(640, 400);
    EXPECT_EQ(textAt({16, 15, 400, L"Times New Roman"}), 0);
}

TEST_F(Chart2dLine, NewSizeLeavesTheStartOfTheFirstLineWhereItWas)
{
    FillLines({{100, 100}});
    AtTick(30, 25);                // half of the line, from 115 and half a group
    chart->SetGraphSize(800, 400); // groupW 159, step 204
    ExpectLine(Redrawn(), 166, Red, 115 + 79, 115 + 79 + 102);
}

TEST_F(Chart2dLine, UnknownAnimationTypeHasTheValueLabels)
{
    FillLines({{100, 50}});
    const Picture picture = AtTick(32, 5);
    EXPECT_EQ(picture.Count(Red), 0);
    EXPECT_EQ(TextDifferences(picture, {91, 158}, L"100", {20}, TA_RIGHT), 0);
    EXPECT_EQ(TextDifferences(picture, {91, 238}, L"50", {20}, TA_RIGHT), 0);
    EXPECT_EQ(picture.Count({115, 332, 400, 380}, 0), 0); // no segment's label
}

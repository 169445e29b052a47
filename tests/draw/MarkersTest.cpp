#include "draw/Markers.h"
#include "Canvas.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{
constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);

using Rows = std::vector<std::string>;

constexpr MarkerPainter Painters[] = {DrawSquare,        DrawCircle,       DrawCross,
                                      DrawDiamond,       DrawTriangleLeft, DrawTriangleUp,
                                      DrawTriangleRight, DrawTriangleDown};

Rows Painted(MarkerPainter painter, int nSize)
{
    Canvas canvas(nSize + 3, nSize + 3);
    painter(CPoint(1, 1), nSize, Red, false, &canvas.dc);
    return canvas.Picture();
}
} // namespace

TEST(Markers, SquareExcludesItsRightAndBottomEdges)
{
    EXPECT_EQ(Painted(DrawSquare, 5), (Rows{"........", //
                                            ".#####..", //
                                            ".#ooo#..", //
                                            ".#ooo#..", //
                                            ".#ooo#..", //
                                            ".#####..", //
                                            "........", //
                                            "........"}));
}

TEST(Markers, CircleTouchesTheSidesOfItsSquare)
{
    const Rows rows = Painted(DrawCircle, 7);

    EXPECT_EQ(rows[1][4], '#');
    EXPECT_EQ(rows[7][4], '#');
    EXPECT_EQ(rows[4][1], '#');
    EXPECT_EQ(rows[4][7], '#');
    EXPECT_EQ(rows[4][4], 'o');
    EXPECT_EQ(rows[1][1], '.');
    EXPECT_EQ(rows[7][7], '.');
    EXPECT_EQ(rows[8], "..........");
    for (size_t row = 0; row < 4; ++row)
        EXPECT_EQ(rows[1 + row], rows[7 - row]) << "upside down it is the same";
}

TEST(Markers, CrossIsTwoStrokesInTheColour)
{
    const Rows rows = Painted(DrawCross, 8);

    for (size_t i = 1; i < 8; ++i) {
        EXPECT_EQ(rows[i + 1][i + 1], 'o') << i;
        EXPECT_EQ(rows[i + 1][9 - i], 'o') << i;
    }
    EXPECT_EQ(rows[5][1], '.');
    EXPECT_EQ(rows[1][5], '.');
    for (const std::string& row : rows)
        EXPECT_EQ(row.find('#'), std::string::npos) << "no black outline";
}

TEST(Markers, DiamondHasItsCornersAtTheMiddlesOfTheSides)
{
    EXPECT_EQ(Painted(DrawDiamond, 8), (Rows{"...........", //
                                             ".....#.....", //
                                             "....#o#....", //
                                             "...#ooo#...", //
                                             "..#ooooo#..", //
                                             ".#ooooooo#.", //
                                             "..#ooooo#..", //
                                             "...#ooo#...", //
                                             "....#o#....", //
                                             ".....#.....", //
                                             "..........."}));
}

TEST(Markers, LeftTriangleStandsOneShortOfItsRightEdge)
{
    const Rows rows = Painted(DrawTriangleLeft, 9);

    EXPECT_EQ(rows[1][9], '#');
    EXPECT_EQ(rows[10][9], '#');
    EXPECT_EQ(rows[5][1], '#') << "the tip, at half the size";
    EXPECT_EQ(rows[2][7], '#') << "the upper side falls one row in two columns";
    EXPECT_EQ(rows[3][5], '#');
    EXPECT_EQ(rows[4][3], '#');
    EXPECT_EQ(rows[5].substr(3), "oooooo#.." + std::string(rows[5].size() - 12, '.')) << "filled inside";
    for (size_t y = 1; y <= 10; ++y) {
        EXPECT_EQ(rows[y][9], '#') << y;
        EXPECT_EQ(rows[y][10], '.') << y;
    }
    EXPECT_EQ(rows[1][7], '.');
}

TEST(Markers, UpTriangleStandsOnTheLowerEdge)
{
    const Rows rows = Painted(DrawTriangleUp, 8);

    EXPECT_EQ(rows[1], ".....#.....");
    EXPECT_EQ(rows[3], "....#o#....");
    EXPECT_EQ(rows[5], "...#ooo#...");
    EXPECT_EQ(rows[7], "..#ooooo#..");
    EXPECT_EQ(rows[9], ".#########.");
    EXPECT_EQ(rows[10], "...........");
}

TEST(Markers, RightTriangleHasItsTipAtTheRightEdge)
{
    const Rows rows = Painted(DrawTriangleRight, 8);

    for (size_t y = 1; y <= 9; ++y)
        EXPECT_EQ(rows[y][1], '#') << y;
    EXPECT_EQ(rows[5].substr(1, 6), "#ooooo") << "filled inside";
    EXPECT_EQ(rows[5][9], '#') << "the tip, at half the size";
    for (size_t step = 1; step < 4; ++step) {
        EXPECT_EQ(rows[1 + step][1 + 2 * step], '#') << "the upper side falls one row in two columns";
        EXPECT_EQ(rows[9 - step][1 + 2 * step], '#') << "the lower side rises as much";
    }
    EXPECT_EQ(rows[1][3], '.');
    EXPECT_EQ(rows[5][10], '.');
}

TEST(Markers, DownTriangleHangsFromTheUpperEdge)
{
    const Rows rows = Painted(DrawTriangleDown, 8);

    EXPECT_EQ(rows[1], ".#########.");
    EXPECT_EQ(rows[3], "..#ooooo#..");
    EXPECT_EQ(rows[5], "...#ooo#...");
    EXPECT_EQ(rows[7], "....#o#....");
    EXPECT_EQ(rows[9], ".....#.....");
}

TEST(Markers, OddSizesHalveTowardZero)
{
    const Rows rows = Painted(DrawDiamond, 5); // corners at 3, with half of 5 taken as 2

    EXPECT_EQ(rows[1], "...#....");
    EXPECT_EQ(rows[3][1], '#');
    EXPECT_EQ(rows[3][6], '#');
    EXPECT_EQ(rows[6], "...#....");
}

TEST(Markers, AMonoTargetTurnsTheColourBlack)
{
    for (const MarkerPainter painter : Painters) {
        Canvas canvas(20, 20);
        canvas.dc.m_bScaleReady = true;
        canvas.dc.m_bMono = true;

        painter(CPoint(4, 4), 10, Red, true, &canvas.dc);

        bool black = false;
        for (const std::string& row : canvas.Picture()) {
            EXPECT_EQ(row.find('o'), std::string::npos);
            black = black || row.find('#') != std::string::npos;
        }
        EXPECT_TRUE(black);
    }
}

TEST(Markers, TheSpareFlagChangesNothing)
{
    for (const MarkerPainter painter : Painters) {
        Canvas with(20, 20);
        Canvas without(20, 20);
        painter(CPoint(4, 4), 10, Red, true, &with.dc);
        painter(CPoint(4, 4), 10, Red, false, &without.dc);
        EXPECT_EQ(with.Picture(), without.Picture());
    }
}

TEST(Markers, TheContextIsLeftAsItWasFound)
{
    for (const MarkerPainter painter : Painters) {
        Canvas canvas(20, 20);
        const HGDIOBJ pen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);

        painter(CPoint(4, 4), 10, Red, false, &canvas.dc);

        EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), pen);
        EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_BRUSH), brush);
    }
}

TEST(Markers, PlacesAtTheEndOfTheNumbersAreHarmless)
{
    for (const MarkerPainter painter : Painters) {
        Canvas canvas(20, 20);
        painter(CPoint(INT_MIN, INT_MAX), 10, Red, false, &canvas.dc);
        painter(CPoint(INT_MAX, INT_MIN), INT_MIN, Red, false, &canvas.dc);
        EXPECT_EQ(canvas.At(10, 10), White);
    }
}

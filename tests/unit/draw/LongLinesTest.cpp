#include "draw/LongLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using LongLines::CutPolygon;
using LongLines::CutSegment;
using LongLines::IsShort;
using LongLines::Limit;
using LongLines::TVertex;

namespace
{
constexpr std::int32_t SmallestInt = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t LargestInt = std::numeric_limits<std::int32_t>::max();

// Where the segment's line is at this x.
double HeightAt(TPoint from, TPoint to, double x)
{
    const double slope = (double(to.y) - from.y) / (double(to.x) - from.x);
    return from.y + (x - from.x) * slope;
}

// Twice the area, positive for one sense of rotation.
double TwiceArea(const std::vector<TPoint>& polygon)
{
    double area = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const TPoint a = polygon[i];
        const TPoint b = polygon[(i + 1) % polygon.size()];
        area += double(a.x) * b.y - double(b.x) * a.y;
    }
    return area;
}

std::vector<TPoint> Cut(std::vector<TPoint> polygon)
{
    return CutPolygon(std::span<const TPoint>(polygon));
}
} // namespace

TEST(LongLines, TheLimitItselfIsShort)
{
    EXPECT_TRUE(IsShort(Limit, -Limit));
    EXPECT_FALSE(IsShort(Limit + 1, 0));
    EXPECT_FALSE(IsShort(0, -Limit - 1));
    EXPECT_FALSE(IsShort(SmallestInt, 0));
}

TEST(LongLines, AShortSegmentStaysAsItIs)
{
    TPoint from{-5, 7};
    TPoint to{Limit, -Limit};

    ASSERT_TRUE(CutSegment(from, to));

    EXPECT_EQ(from, (TPoint{-5, 7}));
    EXPECT_EQ(to, (TPoint{Limit, -Limit}));
}

TEST(LongLines, ASegmentBeyondOneSideIsRefusedAndStays)
{
    constexpr double far = Limit;
    for (const auto& [from, to] : {std::pair{TVertex{far + 1, 0}, TVertex{far + 9, 5}},
                                   std::pair{TVertex{-far - 1, 0}, TVertex{-far - 9, 5}},
                                   std::pair{TVertex{0, far + 1}, TVertex{5, far + 9}},
                                   std::pair{TVertex{0, -far - 1}, TVertex{5, -far - 9}},
                                   std::pair{TVertex{0, 1e301}, TVertex{0, 0}},
                                   std::pair{TVertex{0, 0}, TVertex{std::nan(""), 0}}}) {
        for (const bool turned : {false, true}) {
            TVertex start = turned ? to : from;
            TVertex end = turned ? from : to;
            EXPECT_FALSE(CutSegment(start, end)) << from.x << ' ' << from.y;
            EXPECT_EQ(start.y, turned ? to.y : from.y);
        }
    }
}

TEST(LongLines, OneLongEndIsCutAndTheOtherStays)
{
    TPoint from{100, 200};
    TPoint to{LargestInt, 200};

    ASSERT_TRUE(CutSegment(from, to));

    EXPECT_EQ(from, (TPoint{100, 200}));
    EXPECT_EQ(to, (TPoint{Limit, 200}));
}

TEST(LongLines, ASegmentBetweenTheExtremesIsCutAtBothEnds)
{
    TPoint from{SmallestInt, SmallestInt};
    TPoint to{LargestInt, LargestInt};

    ASSERT_TRUE(CutSegment(from, to));

    EXPECT_EQ(from, (TPoint{-Limit, -Limit}));
    EXPECT_EQ(to, (TPoint{Limit, Limit}));
}

TEST(LongLines, ASegmentBesideTheSquareIsRefusedUnchanged)
{
    TPoint from{SmallestInt, Limit + 1};
    TPoint to{LargestInt, Limit + 5};

    EXPECT_FALSE(CutSegment(from, to));

    EXPECT_EQ(from, (TPoint{SmallestInt, Limit + 1}));
    EXPECT_EQ(to, (TPoint{LargestInt, Limit + 5}));
}

TEST(LongLines, ASegmentPastACornerIsRefused)
{
    TPoint from{LargestInt, 0};
    TPoint to{0, LargestInt};

    EXPECT_FALSE(CutSegment(from, to)) << "both bounding intervals meet the square, the line doesn't";
}

TEST(LongLines, ASegmentOfNoLengthOutsideIsRefused)
{
    TPoint from{LargestInt, 0};
    TPoint to{LargestInt, 0};

    EXPECT_FALSE(CutSegment(from, to));
}

TEST(LongLines, ACutLineKeepsItsPlaceOnTheCanvas)
{
    std::mt19937 random(20);
    std::uniform_int_distribution<std::int32_t> any(SmallestInt, LargestInt);
    std::uniform_int_distribution<std::int32_t> near(-2000, 2000);
    for (int round = 0; round < 10000; ++round) {
        const TPoint inside{near(random), near(random)};
        const TPoint far{any(random), any(random)};
        TPoint from = inside;
        TPoint to = far;

        ASSERT_TRUE(CutSegment(from, to));

        ASSERT_EQ(from, inside);
        ASSERT_TRUE(IsShort(to));
        if (std::abs(double(far.x) - inside.x) < std::abs(double(far.y) - inside.y))
            continue; // steep ones are the same by symmetry
        for (const double x : {inside.x - 2000.0, double(inside.x), inside.x + 2000.0})
            ASSERT_NEAR(HeightAt(from, to, x), HeightAt(inside, far, x), 0.01);
    }
}

TEST(LongLines, ASegmentWithAnEndThatIsNotANumberIsRefused)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double bad : {nan, infinity, -infinity, 1e308}) {
        TVertex from{0, 0};
        TVertex to{bad, 1};
        EXPECT_FALSE(CutSegment(from, to)) << bad;
        EXPECT_FALSE(CutSegment(to, from)) << bad;
    }
}

TEST(LongLines, AShortPolygonStaysAsItIs)
{
    const std::vector<TPoint> triangle{{0, 0}, {10, 0}, {0, 10}};

    EXPECT_EQ(Cut(triangle), triangle);
}

TEST(LongLines, APolygonAroundTheSquareBecomesTheSquare)
{
    const std::vector<TPoint> cut = Cut({{SmallestInt, SmallestInt},
                                         {LargestInt, SmallestInt},
                                         {LargestInt, LargestInt},
                                         {SmallestInt, LargestInt}});

    ASSERT_EQ(cut.size(), 4u);
    EXPECT_EQ(TwiceArea(cut), 2.0 * (2.0 * Limit) * (2.0 * Limit)) << "the same sense of rotation";
}

TEST(LongLines, APolygonOutsideIsEmpty)
{
    EXPECT_TRUE(Cut({{Limit + 1, 0}, {Limit + 9, 0}, {Limit + 5, 9}}).empty());
    EXPECT_TRUE(Cut({}).empty());
}

TEST(LongLines, ACutPolygonKeepsItsEdgesOnTheCanvas)
{
    // A wedge from (0, 0) whose edges leave the square at the right with slopes 1/2 and -1/4.
    const std::vector<TPoint> cut = Cut({{0, 0}, {2000000000, 1000000000}, {2000000000, -500000000}});

    const std::vector<TPoint> expected{{Limit, -Limit / 4}, {0, 0}, {Limit, Limit / 2}};
    ASSERT_EQ(cut.size(), 3u);
    EXPECT_EQ(cut, expected);
}

TEST(LongLines, APolygonCanBeCutToTheSurroundingsOfWhatIsVisible)
{
    const LongLines::TArea area = LongLines::AreaAround(TRect{0, 0, 800, 600}, 32768);
    EXPECT_EQ(area.left, -32768.0);
    EXPECT_EQ(area.bottom, 33368.0);
    const std::vector<TPoint> wedge{{0, 0}, {1 << 25, 1 << 24}, {1 << 25, -(1 << 23)}};

    const std::vector<TPoint> expected{{33568, -8392}, {0, 0}, {33568, 16784}};
    EXPECT_EQ(CutPolygon(std::span<const TPoint>(wedge), area), expected);
}

TEST(LongLines, ASegmentCanBeCutToTheSurroundingsOfWhatIsVisible)
{
    TVertex from{0, 0};
    TVertex to{-4000, 8000};

    ASSERT_TRUE(CutSegment(from, to, LongLines::AreaAround(TRect{0, 0, 800, 600}, 1000)));

    EXPECT_EQ(from, (TVertex{0, 0}));
    EXPECT_EQ(to, (TVertex{-800, 1600}));
}

TEST(LongLines, TheSurroundingsStayInTheSquare)
{
    const LongLines::TArea area = LongLines::AreaAround(TRect{SmallestInt, 0, LargestInt, 10}, 5);

    EXPECT_EQ(area.left, -double(Limit));
    EXPECT_EQ(area.right, double(Limit));
}

TEST(LongLines, APolygonVertexThatIsNotANumberIsLeftOut)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const TVertex polygon[] = {{0, 0}, {10, 0}, {nan, 5}, {0, 10}, {1e308, 1e308}};

    const std::vector<TPoint> expected{{0, 0}, {10, 0}, {0, 10}};
    EXPECT_EQ(CutPolygon(std::span<const TVertex>(polygon)), expected);
}

TEST(LongLines, RandomPolygonsEndInsideTheSquare)
{
    std::mt19937 random(26);
    std::uniform_int_distribution<std::int32_t> any(SmallestInt, LargestInt);
    for (int round = 0; round < 2000; ++round) {
        std::vector<TPoint> polygon(3 + round % 9);
        for (TPoint& point : polygon)
            point = {any(random), any(random)};

        const std::vector<TPoint> cut = Cut(polygon);

        ASSERT_TRUE(std::ranges::all_of(cut, [](TPoint point) { return LongLines::IsShort(point); }));
        ASSERT_LE(std::abs(TwiceArea(cut)), std::abs(2.0 * 4 * Limit * double(Limit)) * polygon.size());
    }
}

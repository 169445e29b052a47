#include "draw/PolygonRows.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using LongLines::TVertex;

namespace
{
// One text a row: '#' inside, '.' outside.
std::vector<std::string> Picture(const std::vector<TVertex>& polygon, int nWidth, int nHeight)
{
    std::vector<std::string> rows(static_cast<std::size_t>(nHeight),
                                  std::string(static_cast<std::size_t>(nWidth), '.'));
    for (const TRect& band : PolygonRows::Fill(polygon, {0, 0, nWidth, nHeight}))
        for (std::int32_t y = band.top; y < band.bottom; ++y)
            for (std::int32_t x = band.left; x < band.right; ++x)
                rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) = '#';
    return rows;
}

using Rows = std::vector<std::string>;
} // namespace

TEST(PolygonRows, ARectangleLeavesOutItsRightAndLowerEdge)
{
    EXPECT_EQ(Picture({{1, 1}, {4, 1}, {4, 3}, {1, 3}}, 6, 4),
              (Rows{"......", ".###..", ".###..", "......"}));
}

TEST(PolygonRows, TheInsideBeginsAtTheFirstColumnThatIsNotLeftOfTheEdge)
{
    EXPECT_EQ(Picture({{0, 0}, {6, 0}, {3, 4}}, 6, 4), (Rows{"######", ".#####", "..###.", "...#.."}));
}

TEST(PolygonRows, APixelCrossedTwiceIsOutside)
{
    EXPECT_EQ(Picture({{0, 0}, {6, 0}, {6, 3}, {0, 3}, {0, 0}, {2, 0}, {2, 3}, {0, 3}}, 6, 3),
              (Rows{"..####", "..####", "..####"}));
}

TEST(PolygonRows, EdgesBesideTheVisiblePartCountForTheirRows)
{
    EXPECT_EQ(Picture({{-2e9, -2e9}, {3, -2e9}, {3, 2e9}, {-2e9, 2e9}}, 5, 2), (Rows{"###..", "###.."}));
    EXPECT_EQ(Picture({{2, -2e9}, {2e9, -2e9}, {2e9, 2e9}, {2, 2e9}}, 5, 2), (Rows{"..###", "..###"}));
    EXPECT_EQ(Picture({{7, 0}, {9, 0}, {9, 2}, {7, 2}}, 5, 2), (Rows{".....", "....."}));
}

TEST(PolygonRows, EqualRowsAreOneBand)
{
    const std::vector<TVertex> two = {{1, 0}, {2, 0}, {2, 9}, {4, 9}, {4, 0}, {5, 0}, {5, 12}, {1, 12}};

    EXPECT_EQ(PolygonRows::Fill(two, {0, 0, 8, 12}),
              (std::vector<TRect>{{1, 0, 2, 9}, {4, 0, 5, 9}, {1, 9, 5, 12}}));
}

TEST(PolygonRows, NothingIsVisibleOfAnEmptyRectangle)
{
    EXPECT_TRUE(PolygonRows::Fill(std::vector<TVertex>{{0, 0}, {9, 0}, {9, 9}}, {5, 5, 5, 9}).empty());
    EXPECT_TRUE(PolygonRows::Fill(std::vector<TVertex>{{0, 0}, {9, 0}, {9, 9}}, {5, 9, 6, 3}).empty());
}

TEST(PolygonRows, AVertexWithoutAPlaceIsLeftOut)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Picture({{1, 1}, {none, 0}, {4, 1}, {1e308, -1e308}, {4, none}, {4, 3}, {1, 3}}, 6, 4),
              (Rows{"......", ".###..", ".###..", "......"}));
}

TEST(PolygonRows, TheCostIsTheSquareOfTheEdgesInEachRow)
{
    const std::vector<TVertex> vertices = {{0, 10}, {9, 10}, {9, 30}, {0, 30}};
    const std::span square(vertices);

    EXPECT_EQ(PolygonRows::Cost(square, 0, 100), 2 * 2 * 20);
    EXPECT_EQ(PolygonRows::Cost(square, 25, 100), 2 * 2 * 5) << "rows between the two alone";
    EXPECT_EQ(PolygonRows::Cost(square, 40, 100), 0);
    EXPECT_EQ(PolygonRows::Cost(square.first(0), 0, 100), 0);
}

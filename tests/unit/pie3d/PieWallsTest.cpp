#include "pie3d/PieWalls.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

using namespace PieWalls;

namespace PieWalls
{
void PrintTo(const TWallPiece& piece, std::ostream* out)
{
    *out << piece.fStart << " sweeping " << piece.fSweep << (piece.bReset ? " afresh" : " added");
}
} // namespace PieWalls

namespace
{

std::vector<TWallPiece> Pieces(float start, float sweep)
{
    const CWallPieces pieces = PiecesOf(start, sweep);
    return {pieces.Pieces().begin(), pieces.Pieces().end()};
}

using Expected = std::vector<TWallPiece>;

} // namespace

TEST(PieWalls, AnElementInFrontShowsAllOfItsWall)
{
    EXPECT_EQ(Pieces(30, 60), (Expected{{30, 60, true}}));
    EXPECT_EQ(Pieces(0, 180), (Expected{{0, 180, true}}));
}

TEST(PieWalls, AnElementThatGoesAroundTheLeftEndsThere)
{
    EXPECT_EQ(Pieces(90, 210), (Expected{{90, 90, true}}));
    EXPECT_EQ(Pieces(0, 360), (Expected{{0, 180, true}}));
}

TEST(PieWalls, AnElementAroundTheWholeBackShowsTwoPieces)
{
    EXPECT_EQ(Pieces(170, 360), (Expected{{0, 170, true}, {170, 10, false}}));
    EXPECT_EQ(Pieces(100, 300), (Expected{{0, 40, true}, {100, 80, false}}));
}

TEST(PieWalls, AnElementThatComesAroundTheRightStartsThere)
{
    EXPECT_EQ(Pieces(300, 120), (Expected{{0, 60, true}}));
    EXPECT_EQ(Pieces(180, 360), (Expected{{0, 180, true}}));
    EXPECT_EQ(Pieces(200, 350), (Expected{{0, 180, true}}));
}

TEST(PieWalls, AnElementAtTheBackShowsNone)
{
    EXPECT_TRUE(Pieces(180, 180).empty());
    EXPECT_TRUE(Pieces(200, 100).empty());
}

TEST(PieWalls, AStartBeyondAFullTurnIsTakenBackOnce)
{
    EXPECT_EQ(Pieces(390, 60), (Expected{{30, 60, true}}));
    EXPECT_EQ(Pieces(360, 30), (Expected{{0, 30, true}}));
    EXPECT_EQ(Pieces(660, 120), (Expected{{0, 60, true}}));
}

TEST(PieWalls, ThinPiecesHaveNoWidth)
{
    EXPECT_FALSE(HasWidth({0, 0.0f, true}));
    EXPECT_FALSE(HasWidth({0, 0.0009f, true}));
    EXPECT_TRUE(HasWidth({0, 0.001f, true}));
    EXPECT_TRUE(HasWidth({0, -1.0f, true}));
}

TEST(PieWalls, TheOutlineClosesAtTheEndsOfTheFrontAlone)
{
    const PieGeometry::TFaces faces{{30, 217, 500, 375}, {30, 295, 500, 453}, 156, 39};
    const TOutline inside = OutlineOf(faces, {30, 60, true});
    EXPECT_FALSE(inside.bLeftEdge);
    EXPECT_FALSE(inside.bRightEdge);

    const TOutline whole = OutlineOf(faces, {0, 180, true});
    EXPECT_TRUE(whole.bLeftEdge);
    EXPECT_TRUE(whole.bRightEdge);
    EXPECT_EQ(whole.leftEdge, (TEdge{{30, 374}, {30, 296}}));
    EXPECT_EQ(whole.rightEdge, (TEdge{{500, 374}, {500, 296}}));
}

TEST(PieWalls, APieceCutAtTheLeftEndsThereExactly)
{
    for (float start = 0.0f; start < 180.0f; start += 0.0137f) {
        const auto pieces = Pieces(start, 181.0f);
        ASSERT_FALSE(pieces.empty());
        EXPECT_TRUE(OutlineOf({}, pieces.back()).bLeftEdge) << start;
    }
}

#include "pie3d/PieLabels.h"
#include "pie3d/PieShares.h"

#include <gtest/gtest.h>

#include <limits>

using namespace PieLabels;

namespace
{

constexpr TRect Wide{30, 100, 500, 570};  // of 800 x 600
constexpr TRect Small{30, 100, 180, 250}; // the smallest
constexpr TRect Hand{30, 100, 230, 300};  // 200 a side about (130, 200)

} // namespace

TEST(PieLayout, TheLimitIsTwoThirdsOfTheWindowAndAtLeast180)
{
    EXPECT_EQ(PieLimit(800), 533);
    EXPECT_EQ(PieLimit(270), 180);
    EXPECT_EQ(PieLimit(269), 180);
    EXPECT_EQ(PieLimit(0), 180);
    EXPECT_EQ(PieLimit(273), 182);
}

TEST(PieLayout, RowsAndMarksGrowWithThePieUpToALimit)
{
    const TSizes wide = SizesFor(Wide);
    EXPECT_EQ(wide.nRowHeight, 25);
    EXPECT_EQ(wide.nMarkWidth, 46);
    EXPECT_EQ(wide.nRowGap, 18);
    const TSizes small = SizesFor(Small);
    EXPECT_EQ(small.nRowHeight, 10);
    EXPECT_EQ(small.nMarkWidth, 18);
    EXPECT_EQ(small.nRowGap, 7);
    EXPECT_EQ(SizesFor({0, 0, 150, 200}).nRowGap, 10);
}

TEST(PieLayout, HeightOfRowsLeavesOutTheLastGap)
{
    EXPECT_EQ(HeightOfRows(3, 25, 18), 111);
    EXPECT_EQ(HeightOfRows(1, 25, 18), 25);
    EXPECT_EQ(HeightOfRows(0, 25, 18), -18);
}

TEST(PieLayout, HeightThatFitsCountsWholeRows)
{
    EXPECT_EQ(HeightThatFits(3, 25, 18, 470, 1000), 111);
    EXPECT_EQ(HeightThatFits(20, 25, 18, 470, 1000), 455); // 11 rows: 11 * 43 - 18
    EXPECT_EQ(HeightThatFits(20, 25, 18, 455, 1000), 455);
    EXPECT_EQ(HeightThatFits(20, 25, 18, 454, 1000), 412);
    EXPECT_EQ(HeightThatFits(0, 25, 18, 470, 1000), 1000);
    EXPECT_EQ(HeightThatFits(5, 25, 18, 24, 77), 77);
}

TEST(PieLayout, RowsCentreOnThePieAndNeverStartAboveIt)
{
    EXPECT_EQ(FirstRow(Wide, 3, 25, 18), 271); // 335 - 129 / 2
    EXPECT_EQ(FirstRow(Wide, 10, 25, 18), 120);
    EXPECT_EQ(FirstRow(Wide, 11, 25, 18), 100);
    EXPECT_EQ(FirstRow(Wide, 10000, 25, 18), 100);
}

TEST(PieLayout, ColumnsStandRightOfThePie)
{
    const TColumns columns = ColumnsFor(Wide, 46, 760, 60.0f, 50.0f);
    EXPECT_EQ(columns.nMarkX, 550);
    EXPECT_EQ(columns.nTextX, 646);
    EXPECT_EQ(columns.fTextWidth, 60.0f);
    EXPECT_EQ(columns.fPercentX, 722.0f); // 646 + 60 + 500 / 30
    EXPECT_EQ(columns.fPercentWidth, 38.0f);
}

TEST(PieLayout, ALongTextEndsAtTheScrollBarsInset)
{
    EXPECT_EQ(ColumnsFor(Wide, 46, 760, 114.0f, 0.0f).fTextWidth, 114.0f);
    EXPECT_EQ(ColumnsFor(Wide, 46, 760, 114.5f, 0.0f).fTextWidth, 114.0f);
    EXPECT_EQ(ColumnsFor(Wide, 46, 600, 10.0f, 0.0f).fTextWidth, -46.0f);
}

TEST(PieLayout, FontsGrowWithThePieUpToEleven)
{
    EXPECT_EQ(LabelFontSize(Wide), 11);
    EXPECT_EQ(LabelFontSize(Small), 6);
    EXPECT_EQ(PercentFontSize(Wide), 11);
    EXPECT_EQ(PercentFontSize(Small), 7);
}

TEST(PiePercent, StandsOnTheElementsTrueMiddle)
{
    const PieGeometry::TFaces faces = PieGeometry::FaceRects(Hand, 45.0f, 0.5f);
    const auto flat = PercentCentre(Hand, faces, false, 0.0f, 180.0f);
    EXPECT_NEAR(flat.x, 130.0f, 0.001f);
    EXPECT_NEAR(flat.y, 280.0f, 0.001f); // radius 2 * 200 / 5
    const auto right = PercentCentre(Hand, faces, false, 300.0f, 120.0f);
    EXPECT_NEAR(right.x, 210.0f, 0.001f);
    EXPECT_NEAR(right.y, 200.0f, 0.001f);
}

TEST(PiePercent, IsLiftedOntoTheUpperFaceOfATiltedPie)
{
    // squeeze 50, depth 12: the upper centre is 188, and 80 loses 50 / 5 * 4
    const PieGeometry::TFaces faces = PieGeometry::FaceRects(Hand, 45.0f, 0.5f);
    EXPECT_NEAR(PercentCentre(Hand, faces, true, 0.0f, 180.0f).y, 228.0f, 0.001f);
    EXPECT_NEAR(PercentCentre(Hand, faces, true, 180.0f, 180.0f).y, 148.0f, 0.001f);
}

TEST(PieShare, IsThePartOfTheTotal)
{
    EXPECT_EQ(PieShares::ShareOf(1, 4), 0.25f);
    EXPECT_EQ(PieShares::ShareOf(3, 4), 0.75f);
    EXPECT_EQ(PieShares::ShareOf(-5, 5), -1.0f);
}

TEST(PieShare, OfValuesThatNearlyCancelStaysFinite)
{
    constexpr float largest = std::numeric_limits<float>::max();
    EXPECT_EQ(PieShares::ShareOf(1e300, 1e-300), largest);
    EXPECT_EQ(PieShares::ShareOf(-1e300, 1e-300), -largest);
}

TEST(PieShare, OnlyFiniteValuesAreUsable)
{
    EXPECT_TRUE(PieShares::IsUsable(1e308));
    EXPECT_TRUE(PieShares::IsUsable(-1.0));
    EXPECT_FALSE(PieShares::IsUsable(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(PieShares::IsUsable(std::numeric_limits<double>::infinity()));
}

TEST(PieShare, TextHasTwoDigitsAfterThePoint)
{
    EXPECT_EQ(PieShares::PercentText(0.25f), u"25.00%");
    EXPECT_EQ(PieShares::PercentText(1.0f), u"100.00%");
    EXPECT_EQ(PieShares::PercentText(1.0f / 3), u"33.33%");
    EXPECT_EQ(PieShares::PercentText(0.0f), u"0.00%");
    EXPECT_EQ(PieShares::PercentText(-0.5f), u"-50.00%");
}

TEST(PieShare, TextOfTheListHasTwoDigitsBeforeThePoint)
{
    EXPECT_EQ(PieShares::PercentText(0.05f, true), u"05.00%");
    EXPECT_EQ(PieShares::PercentText(0.10f, true), u"10.00%");
    EXPECT_EQ(PieShares::PercentText(0.25f, true), u"25.00%");
}

TEST(PieShare, TextOfAnyFloatIsBounded)
{
    EXPECT_LT(PieShares::PercentText(std::numeric_limits<float>::max()).size(), 64u);
    EXPECT_LT(PieShares::PercentText(-std::numeric_limits<float>::max(), true).size(), 64u);
}

TEST(PieFont, AnyWeightAtAllIsBold)
{
    EXPECT_EQ(PieShares::FontStyle(0, false, false, false), 0);
    EXPECT_EQ(PieShares::FontStyle(400, false, false, false), 1);
    EXPECT_EQ(PieShares::FontStyle(-1, true, true, true), 15);
    EXPECT_EQ(PieShares::FontStyle(0, true, false, true), 10);
}

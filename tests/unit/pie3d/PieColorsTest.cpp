#include "pie3d/PieColors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace PieColors;

TEST(PieColors, LighteningMovesEachByteTowardWhiteAndTruncates)
{
    // 100: 155/255*120 + 100 = 172.94; 150: 105/255*120 + 150 = 199.41; 200: 55/255*120 + 200 = 225.88
    EXPECT_EQ(LightenColor(0xFF6496C8, 120.0f), 0xFFACC7E1u);
    EXPECT_EQ(LightenColor(0xFF000000, 120.0f), 0xFF787878u);
    EXPECT_EQ(LightenColor(0xFFFFFFFF, 120.0f), 0xFFFFFFFFu);
}

TEST(PieColors, DarkeningMovesEachByteTowardBlackAndTruncates)
{
    // 100: 100 - 3.92 = 96.07; 150: 150 - 5.88 = 144.1; 200: 200 - 7.84 = 192.1
    EXPECT_EQ(DarkenColor(0xFF6496C8, 10.0f), 0xFF6090C0u);
    EXPECT_EQ(DarkenColor(0xFF000000, 10.0f), 0xFF000000u);
    EXPECT_EQ(DarkenColor(0xFFFFFFFF, 10.0f), 0xFFF5F5F5u);
}

TEST(PieColors, AnyAlphaBecomesOpaque)
{
    EXPECT_EQ(LightenColor(0x00102030, 0.0f), 0xFF102030u);
    EXPECT_EQ(DarkenColor(0x7F102030, 0.0f), 0xFF102030u);
}

TEST(PieColors, AmountsBeyondAByteEndAtWhiteAndBlack)
{
    EXPECT_EQ(LightenColor(0xFF204060, 300.0f), 0xFFFFFFFFu);
    EXPECT_EQ(DarkenColor(0xFF204060, 300.0f), 0xFF000000u);
    EXPECT_EQ(LightenColor(0xFF204060, std::numeric_limits<float>::max()), 0xFFFFFFFFu);
    EXPECT_EQ(DarkenColor(0xFF204060, std::numeric_limits<float>::max()), 0xFF000000u);
}

TEST(PieColors, NegativeAmountsTurnTheDirectionAndStayWithinAByte)
{
    EXPECT_EQ(LightenColor(0xFF204060, -1e9f), 0xFF000000u);
    EXPECT_EQ(DarkenColor(0xFF204060, -1e9f), 0xFFFFFFFFu);
    EXPECT_EQ(LightenColor(0xFF204060, std::nanf("")) >> 24, 0xFFu);
}

TEST(PieColors, ColorRefSwapsRedAndBlueAndBecomesOpaque)
{
    EXPECT_EQ(FromColorRef(0x000000FF), 0xFFFF0000u);
    EXPECT_EQ(FromColorRef(0x00C89664), 0xFF6496C8u);
    EXPECT_EQ(FromColorRef(0xAA0000FF), 0xFFFF0000u);
}

TEST(PieColors, WithAlphaKeepsTheColourBytes)
{
    EXPECT_EQ(WithAlpha(0xFF6BE6FF, 0x64), 0x646BE6FFu);
}

#include "draw/DeviceScale.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
constexpr std::int32_t SmallestInt = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t SolidPen = 0;
constexpr std::int32_t DottedPen = 2;
} // namespace

TEST(DeviceScale, SameResolutionGivesFactorOne)
{
    EXPECT_EQ(DeviceScale::Factor(96, 96), 1.0f);
}

TEST(DeviceScale, PrinterOf600DpiAtAScreenOf96GivesSixAndAQuarter)
{
    EXPECT_EQ(DeviceScale::Factor(96, 600), 6.25f);
}

TEST(DeviceScale, FactorIsNeverUnderOneWhicheverSideIsFiner)
{
    EXPECT_EQ(DeviceScale::Factor(96, 48), 2.0f);
    EXPECT_EQ(DeviceScale::Factor(48, 96), 2.0f);
}

TEST(DeviceScale, UnknownResolutionGivesFactorOne)
{
    EXPECT_EQ(DeviceScale::Factor(96, 0), 1.0f);
    EXPECT_EQ(DeviceScale::Factor(0, 0), 1.0f);
    EXPECT_EQ(DeviceScale::Factor(96, -1), 1.0f) << "a quotient below the smallest factor";
}

TEST(DeviceScale, UnderTwoHundredFiftySixColoursIsMono)
{
    EXPECT_TRUE(DeviceScale::IsMono(2));
    EXPECT_TRUE(DeviceScale::IsMono(255));
    EXPECT_FALSE(DeviceScale::IsMono(256));
}

TEST(DeviceScale, DeepColourDevicesAnswerMinusOneAndAreNotMono)
{
    EXPECT_FALSE(DeviceScale::IsMono(-1));
}

TEST(DeviceScale, ProductsAreTruncatedTowardZero)
{
    EXPECT_EQ(DeviceScale::Scaled(3, 6.25f), 18);   // 18.75
    EXPECT_EQ(DeviceScale::Scaled(-3, 6.25f), -18); // not -19
}

TEST(DeviceScale, ProductsAreFormedInFloat)
{
    // 16777217 needs 25 bits; a float keeps 24 and holds 16777216.
    EXPECT_EQ(DeviceScale::Scaled(16777217, 1.0f), 16777216);
}

TEST(DeviceScale, AProductBeyondAnIntBecomesTheSmallestInt)
{
    EXPECT_EQ(DeviceScale::Scaled(1 << 30, 6.25f), SmallestInt);
}

TEST(DeviceScale, RectanglesScaleTheirSidesByTheirOwnDirection)
{
    const TRect scaled = DeviceScale::Scaled(TRect{1, 2, 3, 4}, 2.0f, 10.0f);

    EXPECT_EQ(scaled, (TRect{2, 20, 6, 40}));
    EXPECT_EQ(DeviceScale::Scaled(TPoint{5, 7}, 2.0f, 10.0f), (TPoint{10, 70}));
}

TEST(DeviceScale, FontOfHeight13AtSixAndAQuarterBecomes75)
{
    EXPECT_EQ(DeviceScale::ScaledFontHeight(13, 6.25f), 75);
}

TEST(DeviceScale, FontByCharacterHeightLosesOneAwayFromZero)
{
    EXPECT_EQ(DeviceScale::ScaledFontHeight(-11, 6.25f), -75); // (-12) * 6.25
}

TEST(DeviceScale, SmallestFontHeightWraps)
{
    EXPECT_EQ(DeviceScale::ScaledFontHeight(SmallestInt, 1.0f), SmallestInt) << "2^31 fits no int";
}

TEST(DeviceScale, PatternedPenKeepsItsWidthWhileScaling)
{
    EXPECT_EQ(DeviceScale::ScaledPenWidth(1, DottedPen, true, 6.25f), 1);
}

TEST(DeviceScale, SolidPenWidensWhileScalingOnly)
{
    EXPECT_EQ(DeviceScale::ScaledPenWidth(1, SolidPen, true, 6.25f), 6);
    EXPECT_EQ(DeviceScale::ScaledPenWidth(3, SolidPen, true, 6.25f), 18);
    EXPECT_EQ(DeviceScale::ScaledPenWidth(3, SolidPen, false, 6.25f), 3);
}

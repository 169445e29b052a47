#include "objects/AxisMapping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace
{

using namespace AxisMapping;

constexpr TScale Horizontal{.fMin = 0, .fMax = 10, .nLength = 400, .nOrigin = 50};
constexpr TScale Vertical{.fMin = 0, .fMax = 10, .nLength = 400, .nOrigin = 450, .bVertical = true};
constexpr TScale Log{.fMin = 1, .fMax = 1000, .nLength = 300, .nOrigin = 10, .bLog = true};
constexpr TScale LogVertical{
    .fMin = 1, .fMax = 1000, .nLength = 300, .nOrigin = 310, .bVertical = true, .bLog = true};
constexpr std::int32_t NoPixel = std::numeric_limits<std::int32_t>::min();

TEST(AxisMapping, HorizontalGrowsFromTheLeftEdge)
{
    EXPECT_EQ(ToPixel(Horizontal, 0), 50);
    EXPECT_EQ(ToPixel(Horizontal, 10), 450);
    EXPECT_EQ(ToPixel(Horizontal, 5), 250);
    EXPECT_EQ(ToPixel(Horizontal, -10), -350);
}

TEST(AxisMapping, VerticalGrowsUpFromTheBottomEdge)
{
    EXPECT_EQ(ToPixel(Vertical, 0), 450);
    EXPECT_EQ(ToPixel(Vertical, 10), 50);
}

TEST(AxisMapping, PixelsAreCutTowardZero)
{
    EXPECT_EQ(ToPixel(Horizontal, 0.049), 51); // 51.96
    EXPECT_EQ(ToPixel(Vertical, 0.049), 448);  // 448.04
    EXPECT_EQ(ToPixel(Horizontal, -1.26), 0);  // -0.4
    EXPECT_EQ(ToPixel(Horizontal, -1.31), -2); // -2.4
}

TEST(AxisMapping, LogarithmicDecadesAreEvenlySpaced)
{
    EXPECT_EQ(ToPixel(Log, 1), 10);
    EXPECT_EQ(ToPixel(Log, 1000), 310);
    EXPECT_NEAR(ToPixel(Log, 10), 110, 1);
    EXPECT_NEAR(ToPixel(LogVertical, 10), 210, 1);
    constexpr TScale beyondOne{.fMin = 10, .fMax = 1000, .nLength = 200, .nOrigin = 10, .bLog = true};
    EXPECT_EQ(ToPixel(beyondOne, 10), 10);
    EXPECT_EQ(ToPixel(beyondOne, 1000), 210);
}

TEST(AxisMapping, FormulasHoldToTheBit)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> value(-20, 20);
    for (int i = 0; i < 2000; ++i) {
        const TScale scale{
            .fMin = value(random), .fMax = value(random) + 50, .nLength = 777, .nOrigin = 61};
        const double v = value(random);
        const double k = scale.nLength / (scale.fMax - scale.fMin);
        EXPECT_EQ(CMapper(scale).Place(v), k * (v - scale.fMin) + scale.nOrigin);
        TScale upright = scale;
        upright.bVertical = true;
        EXPECT_EQ(CMapper(upright).Place(v), scale.nOrigin - k * (v - scale.fMin));
    }
}

TEST(AxisMapping, LogarithmicFormulaHoldsToTheBit)
{
    for (const double v : {1.0, 1.5, 3.0, 99.0, 12345.0, 0.001}) {
        const double t = (std::log10(v) - std::log10(1.0)) / (std::log10(1000.0) - std::log10(1.0));
        EXPECT_EQ(CMapper(Log).Place(v), 300 * t + 10);
        EXPECT_EQ(CMapper(LogVertical).Place(v), 310 - 300 * t);
    }
}

TEST(AxisMapping, ValuesComeBackFromPixels)
{
    EXPECT_DOUBLE_EQ(ToValue(Horizontal, 250), 5);
    EXPECT_DOUBLE_EQ(ToValue(Vertical, 250), 5);
    EXPECT_DOUBLE_EQ(ToValue(Log, 110), 10);
    EXPECT_DOUBLE_EQ(ToValue(LogVertical, 210), 10);
}

TEST(AxisMapping, PixelToValueAndBackDiffersByOneAtMost)
{
    const TScale scale{.fMin = -1.1, .fMax = 7.3, .nLength = 613, .nOrigin = 37};
    for (int pixel = 37; pixel < 650; ++pixel)
        EXPECT_NEAR(ToPixel(scale, ToValue(scale, pixel)), pixel, 1);
}

TEST(AxisMapping, HostileValuesHaveNoPixel)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ToPixel(Horizontal, std::nan("")), NoPixel);
    EXPECT_EQ(ToPixel(Horizontal, infinity), NoPixel);
    EXPECT_EQ(ToPixel(Horizontal, 1e308), NoPixel);
    EXPECT_EQ(ToPixel(Log, -1), NoPixel);
    EXPECT_EQ(ToPixel(Log, 0), NoPixel);
    EXPECT_EQ(ToPixel({.fMin = 1, .fMax = 1, .nLength = 5}, 1), NoPixel);
    EXPECT_EQ(ToPixel(Horizontal, std::numeric_limits<double>::denorm_min()), 50);
}

TEST(AxisMapping, PixelDifferencesWrap)
{
    const TScale scale{.fMin = 0, .fMax = 1, .nLength = 1, .nOrigin = -2147483647};
    EXPECT_EQ(ToValue(scale, 2147483647), -2);
}

TEST(AxisMapping, OnlyAFinitePositiveLinearHorizontalScaleKeepsOrder)
{
    EXPECT_TRUE(CMapper(Horizontal).KeepsOrder());
    EXPECT_FALSE(CMapper(Vertical).KeepsOrder());
    EXPECT_FALSE(CMapper(Log).KeepsOrder());
    EXPECT_FALSE(CMapper({.fMin = 1, .fMax = 1}).KeepsOrder());
    EXPECT_FALSE(CMapper({.fMin = 2, .fMax = 1}).KeepsOrder());
    EXPECT_FALSE(CMapper({.fMin = 0, .fMax = 1, .nLength = -5}).KeepsOrder());
    EXPECT_FALSE(CMapper({.fMin = std::nan(""), .fMax = 1}).KeepsOrder());
    EXPECT_FALSE(CMapper({.fMin = -1e308, .fMax = 1.7e308}).KeepsOrder());
}

} // namespace

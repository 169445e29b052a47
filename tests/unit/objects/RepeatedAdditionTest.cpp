#include "objects/RepeatedAddition.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace
{

using RepeatedAddition::LastSum;
using RepeatedAddition::LastSumPlain;

template <class Real> bool SameSum(Real limit, Real step)
{
    const Real fast = LastSum(limit, step);
    const Real plain = LastSumPlain(limit, step);
    EXPECT_TRUE(fast == plain || (std::isnan(fast) && std::isnan(plain)))
        << std::hexfloat << "limit " << limit << " step " << step << " fast " << fast << " plain "
        << plain;
    return fast == plain;
}

float FloatOf(std::uint32_t exponent, std::uint32_t mantissa)
{
    return std::bit_cast<float>(exponent << 23 | (mantissa & 0x7FFFFF));
}

double DoubleOf(std::uint64_t exponent, std::uint64_t mantissa)
{
    return std::bit_cast<double>(exponent << 52 | (mantissa & 0xFFFFFFFFFFFFF));
}

// A float's row stalls within 2^25 additions, so it can be walked to its very end through
// every binade, with every kind of rounding: down, up, and ties from odd and even sums.
TEST(RepeatedAddition, FloatRowsEqualAdditionToTheirEnd)
{
    for (const std::uint32_t mantissa :
         {0u, 1u, 2u, 3u, 5u, 6u, 0x400000u, 0x400001u, 0x600000u, 0x555555u, 0x2AAAAAu, 0x7FFFFFu,
          0x7FFFFEu, 0x000100u, 0x0003FFu, 0x000155u})
        ASSERT_TRUE(SameSum(1e30f, FloatOf(127, mantissa)));
}

TEST(RepeatedAddition, FloatRowsEqualAdditionAtAnyLimit)
{
    std::mt19937 random(20260704);
    for (int i = 0; i < 3000; ++i) {
        const float step = FloatOf(127, random());
        const float limit = FloatOf(127 + random() % 17, random());
        ASSERT_TRUE(SameSum(limit, step));
    }
}

// Few bits in the step: its ties come late, with the sums even and odd before them.
TEST(RepeatedAddition, FloatRowsEqualAdditionForEveryPatternOfTheLastBits)
{
    for (std::uint32_t low = 0; low < 64; ++low) {
        for (const float limit : {100.0f, 4096.0f, 70000.3f, 1.1e6f})
            ASSERT_TRUE(SameSum(limit, FloatOf(127, low)));
        for (const float limit : {100.0f, 4096.0f, 70000.3f})
            ASSERT_TRUE(SameSum(limit, FloatOf(127, low << 17)));
    }
}

TEST(RepeatedAddition, LimitsNextToASumEqualAddition)
{
    std::mt19937 random(5);
    for (int i = 0; i < 2000; ++i) {
        const float step = FloatOf(127, random());
        const float sum = LastSumPlain(FloatOf(127 + random() % 12, random()), step);
        ASSERT_TRUE(SameSum(sum, step));
        ASSERT_TRUE(SameSum(std::nextafter(sum, 0.0f), step));
        ASSERT_TRUE(SameSum(std::nextafter(sum, 1e30f), step));
    }
}

TEST(RepeatedAddition, DenormalAndLargestFloatsEqualAddition)
{
    const float tiny = std::numeric_limits<float>::denorm_min();
    for (const int times : {1, 2, 3, 7, 1000, 99991}) {
        ASSERT_TRUE(SameSum(FloatOf(0, 0x7FFFFF), times * 100 * tiny));
        ASSERT_TRUE(SameSum(FloatOf(3, 0x123456), times * 100 * tiny));
    }
    ASSERT_TRUE(SameSum(std::numeric_limits<float>::max(), FloatOf(240, 0x345678)));
    ASSERT_TRUE(SameSum(std::numeric_limits<float>::infinity(), FloatOf(240, 0x345678)));
    ASSERT_TRUE(SameSum(std::numeric_limits<float>::infinity(), FloatOf(254, 0x345678)));
}

TEST(RepeatedAddition, DoubleRowsEqualAddition)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 3000; ++i)
        ASSERT_TRUE(SameSum(DoubleOf(1023 + random() % 14, random()), DoubleOf(1023, random())));
    for (int i = 0; i < 60; ++i)
        ASSERT_TRUE(SameSum(DoubleOf(1043, random()), DoubleOf(1023, random())));
    for (const double step : {0.1, 0.2, 0.05, 1e-3, 3.3, 1e-16, 5e15})
        ASSERT_TRUE(SameSum(step * 54321.9, step));
}

TEST(RepeatedAddition, ManyAdditionsTakeNoTime)
{
    EXPECT_EQ(LastSum(0x1p53, 1.0), 0x1p53);
    EXPECT_EQ(LastSum(1e9 + 0.5, 1.0), 1e9);
    EXPECT_EQ(LastSum(3e15, 7.0), 3e15 - std::fmod(3e15, 7.0));
}

TEST(RepeatedAddition, TheRowEndsWhereItStopsGrowing)
{
    EXPECT_EQ(LastSum(1e300, 1.0), 0x1p53);
    EXPECT_EQ(LastSum(5.0, 0.0), 0);
    EXPECT_EQ(LastSum(5.0, -1.0), 0);
    EXPECT_EQ(LastSum(5.0, std::nan("")), 0);
    EXPECT_EQ(LastSum(std::nan(""), 1.0), 0);
}

} // namespace

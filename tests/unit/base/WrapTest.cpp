#include "base/Wrap.h"

#include <gtest/gtest.h>

#include <climits>

TEST(Wrap, ResultsThatFitAreThePlainOnes)
{
    EXPECT_EQ(Wrap::Add(7, -9), -2);
    EXPECT_EQ(Wrap::Subtract(7, -9), 16);
    EXPECT_EQ(Wrap::Multiply(7, -9), -63);
}

TEST(Wrap, WhatLeaves32BitsComesInAtTheOtherEnd)
{
    EXPECT_EQ(Wrap::Add(INT_MAX, 1), INT_MIN);
    EXPECT_EQ(Wrap::Add(INT_MIN, INT_MIN), 0);
    EXPECT_EQ(Wrap::Subtract(INT_MIN, 1), INT_MAX);
    EXPECT_EQ(Wrap::Subtract(0, INT_MIN), INT_MIN);
    EXPECT_EQ(Wrap::Multiply(46341, 46341), 46341LL * 46341 - (1LL << 32));
    EXPECT_EQ(Wrap::Multiply(INT_MIN, -1), INT_MIN);
}

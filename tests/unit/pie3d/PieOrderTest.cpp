#include "pie3d/PieOrder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace
{

using Positions = std::vector<std::size_t>;

// The rule in words: pick the best, the last of equals, again and again.
Positions Picked(std::vector<double> values, bool descending)
{
    Positions left(values.size());
    for (std::size_t i = 0; i < left.size(); ++i)
        left[i] = i;
    Positions picked;
    while (!left.empty()) {
        std::size_t best = 0;
        for (std::size_t i = 0; i < left.size(); ++i) {
            const double value = values[left[i]];
            const double bestValue = values[left[best]];
            if (descending ? value >= bestValue : value <= bestValue)
                best = i;
        }
        picked.push_back(left[best]);
        left.erase(left.begin() + static_cast<std::ptrdiff_t>(best));
    }
    return picked;
}

} // namespace

TEST(PieOrder, DescendingTakesTheLaterOfEqualsFirst)
{
    EXPECT_EQ(PieOrder::ByValue(std::vector{2.0, 5.0, 5.0}, true), (Positions{2, 1, 0}));
}

TEST(PieOrder, AscendingTakesTheLaterOfEqualsFirst)
{
    EXPECT_EQ(PieOrder::ByValue(std::vector{5.0, 2.0, 5.0, 2.0}, false), (Positions{3, 1, 2, 0}));
}

TEST(PieOrder, InsertionOrderIsSmallestFirstAndTheLaterOfEqualsFirst)
{
    EXPECT_EQ(PieOrder::ByInsertion(std::vector<std::int32_t>{2, 0, 1, 2}), (Positions{1, 2, 3, 0}));
}

TEST(PieOrder, NothingSortsToNothing)
{
    EXPECT_TRUE(PieOrder::ByValue({}, true).empty());
    EXPECT_TRUE(PieOrder::ByInsertion({}).empty());
}

TEST(PieOrder, AgreesWithPickingTheBestAgainAndAgain)
{
    std::uint32_t state = 7;
    for (int round = 0; round < 50; ++round) {
        std::vector<double> values(static_cast<std::size_t>(round));
        for (double& value : values) {
            state = state * 1664525u + 1013904223u;
            value = static_cast<double>(state >> 28) - 5;
        }
        for (const bool descending : {false, true})
            EXPECT_EQ(PieOrder::ByValue(values, descending), Picked(values, descending));
    }
}

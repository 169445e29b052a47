#include "pie3d/PieScroll.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace PieScroll;

namespace PieScroll
{
void PrintTo(const TScrolled& scrolled, std::ostream* out)
{
    *out << "position " << scrolled.nPos << " first " << scrolled.nFirst
         << (scrolled.bToLimit ? " to limit" : "");
}
} // namespace PieScroll

namespace
{

// 20 rows of 25 with gaps of 18 in a pie 470 high: 842 in all, the bar goes to
// 842 - 470 + 1 = 373, and 20 - 445 / 43 - 1 = 9 is the first row of the end.
TList At(std::int32_t pos, std::int32_t first)
{
    return {20, 25, 18, 470, 373, pos, first};
}

TScrolled Step(const TList& list, EStep step)
{
    return Scroll(list, step, std::nullopt, 0);
}

} // namespace

TEST(PieScroll, LineDownMovesOneRow)
{
    EXPECT_EQ(Step(At(0, 0), EStep::lineDown), (TScrolled{43, 1, false}));
    EXPECT_EQ(Step(At(301, 7), EStep::lineDown), (TScrolled{344, 8, false}));
}

TEST(PieScroll, LineDownToTheEndPutsTheBarAtItsLimit)
{
    EXPECT_EQ(Step(At(344, 8), EStep::lineDown), (TScrolled{373, 9, false}));
}

TEST(PieScroll, LineDownAtTheEndKeepsTheFirstRow)
{
    // The bar itself keeps 416 at its limit.
    EXPECT_EQ(Step(At(373, 9), EStep::lineDown), (TScrolled{416, 9, false}));
}

TEST(PieScroll, LineDownBeyondEveryElementStays)
{
    EXPECT_EQ(Step(At(100, 20), EStep::lineDown), (TScrolled{100, 20, false}));
}

TEST(PieScroll, LineUpMovesOneRowAndEndsAtZero)
{
    EXPECT_EQ(Step(At(373, 9), EStep::lineUp), (TScrolled{330, 8, false}));
    EXPECT_EQ(Step(At(71, 1), EStep::lineUp), (TScrolled{0, 0, false}));
    EXPECT_EQ(Step(At(0, 0), EStep::lineUp), (TScrolled{-43, 0, false}));
}

TEST(PieScroll, PagesAreAPieHigh)
{
    TList list = At(0, 0);
    list.nLimit = 2000;
    EXPECT_EQ(Step(list, EStep::pageDown), (TScrolled{470, 10, false}));
    list.nPos = 1000;
    EXPECT_EQ(Step(list, EStep::pageUp), (TScrolled{530, 12, false}));
}

TEST(PieScroll, PagesEndAtTheBarsEnds)
{
    EXPECT_EQ(Step(At(0, 0), EStep::pageDown), (TScrolled{373, 8, false}));
    EXPECT_EQ(Step(At(373, 9), EStep::pageUp), (TScrolled{0, 0, false}));
}

TEST(PieScroll, TheThumbTakesItsTrackPosition)
{
    EXPECT_EQ(Scroll(At(0, 0), EStep::thumb, 100, 7), (TScrolled{100, 2, false}));
    EXPECT_EQ(Scroll(At(100, 2), EStep::thumb, 0, 7), (TScrolled{0, 0, false}));
}

TEST(PieScroll, TheThumbNearTheEndShowsTheLastRow)
{
    EXPECT_EQ(Scroll(At(349, 8), EStep::thumb, 360, 0), (TScrolled{360, 9, true}));
    EXPECT_EQ(Scroll(At(348, 8), EStep::thumb, 360, 0), (TScrolled{360, 8, false}));
}

TEST(PieScroll, WithoutATrackPositionTheMessagesOwnCounts)
{
    EXPECT_EQ(Scroll(At(100, 2), EStep::thumb, std::nullopt, 55), (TScrolled{55, 2, false}));
}

TEST(PieScroll, OtherCodesLeaveThePosition)
{
    EXPECT_EQ(Step(At(100, 2), EStep::none), (TScrolled{100, 2, false}));
}

TEST(PieSync, AListThatCannotScrollStaysWhileTracked)
{
    TList list = At(0, 4);
    list.nLimit = 0;
    EXPECT_EQ(SyncFirstLabel(list, 100, true), (TSynced{4, false}));
    EXPECT_EQ(SyncFirstLabel(list, 100, false), (TSynced{2, false}));
}

TEST(PieSync, ZeroIsTheFirstRowAndANegativePositionChangesNothing)
{
    EXPECT_EQ(SyncFirstLabel(At(100, 4), 0, false), (TSynced{0, false}));
    EXPECT_EQ(SyncFirstLabel(At(100, 4), -1, false), (TSynced{4, false}));
    EXPECT_EQ(SyncFirstLabel(At(100, 4), 1, false), (TSynced{0, false}));
    EXPECT_EQ(SyncFirstLabel(At(100, 4), 86, false), (TSynced{2, false}));
}

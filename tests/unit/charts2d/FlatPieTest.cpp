#include "FlatPieParts.h"

#include "charts2d/FlatPieGeometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace FlatPieParts;

TEST(FlatPieData, SecondSegmentIsCutToWhatIsLeftAndAThirdGetsNothing)
{
    CFlatPieData data;
    Fill(data, {60, 60, 60});
    EXPECT_EQ(Percents(data), (TPercents{60, 40}));
    EXPECT_EQ(data.m_nSegments, 2);
    EXPECT_EQ(data.m_dTotalPercent, 100);
}

TEST(FlatPieData, PercentAboveAHundredCountsAsAHundredWhateverIsThere)
{
    CFlatPieData data;
    Fill(data, {150});
    EXPECT_EQ(Percents(data), (TPercents{100}));
    CFlatPieData fuller;
    Fill(fuller, {30, 150});
    EXPECT_EQ(Percents(fuller), (TPercents{30, 100}));
    EXPECT_EQ(fuller.m_dTotalPercent, 130);
}

TEST(FlatPieData, NothingNegativeAndNotANumberAddNothing)
{
    CFlatPieData data;
    Fill(data,
         {0, -1, std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()});
    EXPECT_EQ(data.m_nSegments, 0);
    EXPECT_EQ(data.m_dTotalPercent, 0);
    Fill(data, {std::numeric_limits<double>::infinity()});
    EXPECT_EQ(Percents(data), (TPercents{100}));
}

TEST(FlatPieData, UpdateHasNoUpperLimitButALowerOne)
{
    CFlatPieData data;
    Fill(data, {50, 20});
    EXPECT_EQ(data.UpdateSegment(0, 5, 0, u""), ERefusal::indexOutOfBounds);
    EXPECT_EQ(data.UpdateSegment(3, 0, 0, u""), ERefusal::indexOutOfBounds);
    EXPECT_EQ(data.UpdateSegment(1, 0, 0, u""), ERefusal::percentNotValid);
    EXPECT_EQ(data.UpdateSegment(1, -7, 0, u""), ERefusal::percentNotValid);
    EXPECT_EQ(Percents(data), (TPercents{50, 20}));
    ASSERT_EQ(data.UpdateSegment(2, 400, 0xFF, u"more"), ERefusal::none);
    EXPECT_EQ(Percents(data), (TPercents{50, 400}));
    EXPECT_EQ(data.m_dTotalPercent, 450);
    EXPECT_EQ(data.m_pSegments->pNext->strName, u"more");
}

TEST(FlatPieData, DeletionOutsideTheCountIsRefused)
{
    CFlatPieData data;
    Fill(data, {50, 20});
    for (const int index : {-1, 0, 3})
        EXPECT_EQ(data.DeleteSegment(index), ERefusal::indexOutOfBounds);
    EXPECT_EQ(Percents(data), (TPercents{50, 20}));
}

TEST(FlatPieData, DeletionRenumbersAndSumsAnew)
{
    CFlatPieData data;
    Fill(data, {10, 20, 30});
    EXPECT_EQ(data.DeleteSegment(4), ERefusal::indexOutOfBounds);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    EXPECT_EQ(Percents(data), (TPercents{20, 30}));
    EXPECT_EQ(data.m_pSegments->nId, 1);
    EXPECT_EQ(data.m_pSegments->pNext->nId, 2);
    EXPECT_EQ(data.m_dTotalPercent, 50);
}

TEST(FlatPieData, TotalOutlivesAClearUntilTheNextSegment)
{
    CFlatPieData data;
    Fill(data, {70});
    data.Clear();
    EXPECT_EQ(data.m_nSegments, 0);
    EXPECT_EQ(data.m_dTotalPercent, 70);
    Fill(data, {-1});
    EXPECT_EQ(data.m_dTotalPercent, 0);
}

TEST(FlatPieGeometry, PointsGoCounterclockwiseFromTheRight)
{
    using namespace FlatPieGeometry;
    EXPECT_EQ(Start(Position, Size), Right);
    EXPECT_EQ(ByHalves(Position, Size, Angle(25)), Top);
    EXPECT_EQ(ByHalves(Position, Size, Angle(50)), Left);
    EXPECT_EQ(ByHalves(Position, Size, Angle(75)), Bottom);
    EXPECT_EQ(Rounded(Position, Size, Angle(25), {}), Top);
    EXPECT_EQ(Rounded(Position, Size, Angle(50), {}), Left);
    EXPECT_EQ(Rounded(Position, Size, Angle(75), {}), Bottom);
}

TEST(FlatPieGeometry, TheTwoWaysOfRoundingDifferOnAnOddBox)
{
    using namespace FlatPieGeometry;
    constexpr TSize odd{101, 51};
    EXPECT_EQ(ByHalves({0, 0}, odd, 0), (TPoint{100, 25}));           // halves of 50 and 25
    EXPECT_EQ(Rounded({0, 0}, odd, 0, {}), (TPoint{101, 26}));        // 101.5 and 26
    EXPECT_EQ(ByHalves({0, 0}, odd, Angle(10)), (TPoint{90, 11}));    // 40.4, 14.6
    EXPECT_EQ(Rounded({0, 0}, odd, Angle(10), {}), (TPoint{91, 11})); // 40.85 + 51, 26 - 14.98
}

TEST(FlatPieGeometry, AngleOutsideTheCircleLeavesThePointBefore)
{
    using namespace FlatPieGeometry;
    EXPECT_EQ(Rounded(Position, Size, -0.1, {1, 2}), (TPoint{1, 2}));
    EXPECT_EQ(Rounded(Position, Size, 6.3, {1, 2}), (TPoint{1, 2}));
    EXPECT_EQ(Rounded(Position, Size, FullCircle, {1, 2}), Right);
    EXPECT_EQ(Rounded(Position, Size, std::nextafter(FullCircle, 7.0), {1, 2}), (TPoint{1, 2}));
}

TEST(FlatPieGeometry, BoundsHoldTheMiddleTheEndsAndTheFarthestPoints)
{
    using FlatPieGeometry::Bounds;
    EXPECT_EQ(Bounds(Position, Size, Right, Top), (TRect{108, 20, 210, 73}));
    EXPECT_EQ(Bounds(Position, Size, Top, Bottom), (TRect{10, 20, 113, 120}));
    EXPECT_EQ(Bounds(Position, Size, Bottom, Right), (TRect{108, 68, 210, 120}));
    EXPECT_EQ(Bounds(Position, Size, Right, Right), (TRect{10, 20, 210, 120}));
    EXPECT_EQ(Bounds(Position, Size, Left, Top), (TRect{10, 20, 210, 120})); // three quarters
}

TEST(FlatPieGeometry, PointsOnOneRadialAreToldFromThoseOnOppositeOnes)
{
    using FlatPieGeometry::OnOneRadial;
    EXPECT_TRUE(OnOneRadial(Position, Size, Right, Right));
    EXPECT_TRUE(OnOneRadial(Position, Size, Left, {Left.x + 1, Left.y}));
    EXPECT_FALSE(OnOneRadial(Position, Size, Left, Right));
    EXPECT_FALSE(OnOneRadial(Position, Size, Left, {Left.x, Left.y + 1}));
}

TEST(FlatPieData, TotalIsTheSumOfTheListToTheLastBit)
{
    std::mt19937 random(11);
    CFlatPieData data;
    for (int step = 0; step < 2000; ++step) {
        const unsigned kind = random() % 10;
        const auto index = static_cast<std::int32_t>(1 + random() % 20);
        if (kind == 0)
            std::ignore = data.DeleteSegment(index);
        else if (kind == 1)
            std::ignore = data.UpdateSegment(index, static_cast<std::int32_t>(random() % 9), 0, u"");
        else if (kind == 2 && step % 50 == 0)
            data.Clear();
        else
            data.AddSegment(static_cast<double>(random() % 1000) / 700, 0, u"slice");
        double sum = 0;
        for (const double percent : Percents(data))
            sum += percent;
        if (data.m_nSegments > 0) { // a total outlives a clear
            ASSERT_EQ(data.m_dTotalPercent, sum) << step;
        }
    }
}

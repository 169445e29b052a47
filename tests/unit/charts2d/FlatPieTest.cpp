#include "charts2d/FlatPieAnimation.h"
#include "charts2d/FlatPieData.h"
#include "charts2d/FlatPiePicture.h"

#include "charts2d/FlatPieGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

namespace
{

constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 100};
constexpr TPoint Right{210, 70};
constexpr TPoint Left{10, 70};
constexpr TPoint Top{110, 20};
constexpr TPoint Bottom{110, 120};

std::vector<double> Percents(const CFlatPieData& data)
{
    std::vector<double> percents;
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext)
        percents.push_back(segment->dPercent);
    return percents;
}

void Fill(CFlatPieData& data, std::initializer_list<double> percents)
{
    for (const double percent : percents)
        data.AddSegment(percent, 0, u"slice");
}

TFlatPiePicture Compose(const CFlatPieData& data, CFlatPieAnimation& animation)
{
    return FlatPiePicture::Compose(data, animation, Position, Size);
}

using TPercents = std::vector<double>;

} // namespace

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

TEST(FlatPiePicture, StillSlicesFollowOneAnother)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 50});
    const auto picture = Compose(data, animation);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[0], (TFlatPieSlice{data.m_pSegments, Right, Top}));
    EXPECT_EQ(picture.Slices[1], (TFlatPieSlice{data.m_pSegments->pNext, Top, Bottom}));
}

TEST(FlatPiePicture, FullCircleIsWholeWhenStillAndMissingFromASweep)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {100});
    auto picture = Compose(data, animation);
    ASSERT_EQ(picture.Slices.size(), 1U);
    EXPECT_EQ(picture.Slices[0].ptStart, picture.Slices[0].ptEnd);

    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    animation.m_dAnimationPercent = 101;
    EXPECT_TRUE(Compose(data, animation).Slices.empty());
    EXPECT_EQ(animation.m_dDrawnPercent, 100);
}

TEST(FlatPiePicture, StillSliceTooThinForAPixelIsDrawnWhateverItsEnds)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {30, 0.0001, 10});
    const auto slices = Compose(data, animation).Slices;
    ASSERT_EQ(slices.size(), 3U);
    EXPECT_EQ(slices[1].ptStart, slices[1].ptEnd);
}

TEST(FlatPiePicture, SweepLeavesOutEqualPointsAndDrawsThoseOnOneRadial)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {30, 0.0001, 10});
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    animation.m_dAnimationPercent = 101;
    EXPECT_EQ(Compose(data, animation).Slices.size(), 2U);

    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    animation.m_ptStart = {Right.x + 20, Right.y}; // on the radial of the sweep's end
    const auto begun = Compose(data, animation).Slices;
    ASSERT_EQ(begun.size(), 1U);
    EXPECT_EQ(begun[0], (TFlatPieSlice{data.m_pSegments, {Right.x + 20, Right.y}, Right}));
}

TEST(FlatPiePicture, SweepLeavesOutASliceThatRoundingSendsPastTheCircle)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {7, 93});
    using FlatPieGeometry::Angle;
    ASSERT_GT(Angle(7) + Angle(93), FlatPieGeometry::FullCircle);
    ASSERT_EQ(data.m_dTotalPercent, 100);
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    animation.m_dAnimationPercent = 101;
    EXPECT_EQ(Compose(data, animation).Slices.size(), 1U);
}

TEST(FlatPieGeometry, PointsOnOneRadialAreToldFromThoseOnOppositeOnes)
{
    using FlatPieGeometry::OnOneRadial;
    EXPECT_TRUE(OnOneRadial(Position, Size, Right, Right));
    EXPECT_TRUE(OnOneRadial(Position, Size, Left, {Left.x + 1, Left.y}));
    EXPECT_FALSE(OnOneRadial(Position, Size, Left, Right));
    EXPECT_FALSE(OnOneRadial(Position, Size, Left, {Left.x, Left.y + 1}));
}

TEST(FlatPiePicture, SweepDrawsWholeSlicesAndTheOneInProgress)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 50, 25});
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    for (int tick = 0; tick < 50; ++tick) {
        animation.Animate(data.m_dTotalPercent, data.m_nSegments, Right);
        Compose(data, animation);
    }
    auto picture = Compose(data, animation);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[0], (TFlatPieSlice{data.m_pSegments, Right, Top}));
    EXPECT_EQ(picture.Slices[1], (TFlatPieSlice{data.m_pSegments->pNext, Top, Left}));
    EXPECT_EQ(animation.m_dDrawnPercent, 25);
}

TEST(FlatPiePicture, SweepEndsWhereTheSumEnds)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 25});
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    for (int tick = 0; tick < 100; ++tick)
        animation.Animate(data.m_dTotalPercent, data.m_nSegments, Right);
    const auto picture = Compose(data, animation);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[1], (TFlatPieSlice{data.m_pSegments->pNext, Top, Left}));
}

TEST(FlatPieAnimation, SweepRunsPastAHundredAndStartsAgainWithoutAHold)
{
    CFlatPieAnimation animation;
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    for (int tick = 0; tick < 101; ++tick)
        animation.Animate(50, 3, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 101);
    animation.Animate(50, 3, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 1);
    EXPECT_DOUBLE_EQ(animation.m_dSweepAngle, FlatPieGeometry::FullCircle / 200);
}

TEST(FlatPieAnimation, FadeGoesOnToTheNextSegmentAfterFiftyTicks)
{
    CFlatPieAnimation animation;
    animation.SetAnimation(1, CFlatPieAnimation::fade, Right);
    for (int tick = 0; tick < 50; ++tick)
        animation.Animate(100, 2, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 100);
    animation.Animate(100, 2, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 2);
    EXPECT_EQ(animation.m_nFadeSegment, 1);
    for (int tick = 0; tick < 50; ++tick)
        animation.Animate(100, 2, Right);
    EXPECT_EQ(animation.m_nFadeSegment, 0);
}

TEST(FlatPieAnimation, OnlyOneAnimates)
{
    CFlatPieAnimation animation;
    animation.SetAnimation(2, CFlatPieAnimation::sweep, Right);
    animation.Animate(100, 2, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 0);
    animation.SetAnimation(1, 12, Right);
    animation.Animate(100, 2, Right);
    EXPECT_EQ(animation.m_dAnimationPercent, 0);
}

TEST(FlatPiePicture, FadingSliceGoesAsideAndEarlierOnesAreWhole)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 50, 25});
    animation.SetAnimation(1, CFlatPieAnimation::fade, Right);
    auto picture = Compose(data, animation);
    ASSERT_TRUE(picture.Fading);
    EXPECT_EQ(*picture.Fading, (TFlatPieSlice{data.m_pSegments, Right, Top}));
    EXPECT_TRUE(picture.Slices.empty());

    animation.m_nFadeSegment = 2;
    animation.m_ptStart = Bottom;
    picture = Compose(data, animation);
    ASSERT_TRUE(picture.Fading);
    EXPECT_EQ(picture.Fading->ptStart, Bottom);
    EXPECT_EQ(picture.Fading->ptEnd, Right);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[1], (TFlatPieSlice{data.m_pSegments->pNext, Top, Bottom}));
}

TEST(FlatPiePicture, FadingAndFinishedSlicesAreDrawnWhateverTheirEnds)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {30, 0.0001, 0.0001});
    animation.SetAnimation(1, CFlatPieAnimation::fade, Right);
    animation.m_nFadeSegment = 2;
    animation.m_ptStart = FlatPieGeometry::ByHalves(Position, Size, FlatPieGeometry::Angle(30));
    const auto picture = Compose(data, animation);
    ASSERT_TRUE(picture.Fading);
    EXPECT_EQ(picture.Fading->ptStart, picture.Fading->ptEnd);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[1].ptStart, picture.Slices[1].ptEnd);
}

TEST(FlatPiePicture, FadeWithoutASegmentToFadeHasNoSlice)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 25, 25});
    animation.SetAnimation(1, CFlatPieAnimation::fade, Right);
    animation.m_nFadeSegment = 2;
    ASSERT_EQ(data.DeleteSegment(3), ERefusal::none);
    const auto picture = Compose(data, animation);
    EXPECT_FALSE(picture.Fading);
    EXPECT_TRUE(picture.Slices.empty());
}

TEST(FlatPiePicture, FadeStartsWhereTheLastOneThatWasShownWholeEnded)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {25, 25, 25});
    animation.SetAnimation(1, CFlatPieAnimation::fade, Right);
    animation.m_dAnimationPercent = 98;
    EXPECT_EQ(Compose(data, animation).Fading->ptEnd, Top);
    EXPECT_EQ(animation.m_ptStart, Right); // not at its full strength yet
    animation.m_dAnimationPercent = 100;
    Compose(data, animation);
    EXPECT_EQ(animation.m_ptStart, Top);

    animation.Animate(data.m_dTotalPercent, data.m_nSegments, Right);
    EXPECT_EQ(Compose(data, animation).Fading->ptStart, Top);
    animation.m_nFadeSegment = 2; // the frame at the second's full strength was never painted
    EXPECT_EQ(Compose(data, animation).Fading->ptStart, Top);
    animation.m_dAnimationPercent = 100;
    animation.Animate(data.m_dTotalPercent, data.m_nSegments, Right);
    EXPECT_EQ(animation.m_nFadeSegment, 0);
    EXPECT_EQ(animation.m_ptStart, Right);
}

TEST(FlatPieAnimation, StartPointIsResetWithEveryRunAndRestart)
{
    CFlatPieAnimation animation;
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    EXPECT_EQ(animation.m_ptStart, Right);
    animation.m_ptStart = Top;
    animation.m_dAnimationPercent = 100;
    animation.Animate(100, 2, Left); // to 101
    EXPECT_EQ(animation.m_ptStart, Top);
    animation.Animate(100, 2, Left); // starts again
    EXPECT_EQ(animation.m_ptStart, Left);
    animation.Restart(Bottom);
    EXPECT_EQ(animation.m_ptStart, Bottom);
}

TEST(FlatPiePicture, EmptyPieAndUnknownAnimationShowNothing)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    EXPECT_TRUE(Compose(data, animation).Slices.empty());
    Fill(data, {25});
    animation.SetAnimation(1, 12, Right);
    EXPECT_TRUE(Compose(data, animation).Slices.empty());
    animation.SetAnimation(7, 10, Right); // not 1: still
    EXPECT_EQ(Compose(data, animation).Slices.size(), 1U);
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

#include "FlatPieParts.h"

#include "charts2d/FlatPieGeometry.h"

#include <gtest/gtest.h>

using namespace FlatPieParts;

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

TEST(FlatPiePicture, StillSlicesOfMoreThanAHundredPercentGoOnAroundTheCircle)
{
    CFlatPieData data;
    CFlatPieAnimation animation;
    Fill(data, {50, 150}); // which are 50 and 100
    ASSERT_EQ(data.UpdateSegment(2, 75, 0, u""), ERefusal::none);
    const TFlatPiePicture picture = Compose(data, animation);
    ASSERT_EQ(picture.Slices.size(), 2U);
    EXPECT_EQ(picture.Slices[0].ptEnd, Left);
    EXPECT_EQ(picture.Slices[1].ptEnd, Top);
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

TEST(FlatPieAnimation, SweepStartsAgainWhenAllIsDrawn)
{
    CFlatPieAnimation animation;
    animation.SetAnimation(1, CFlatPieAnimation::sweep, Right);
    for (int tick = 0; tick < 50; ++tick)
        animation.Animate(50, 3, Right);
    animation.m_dDrawnPercent = 50.5;
    animation.Animate(50, 3, Right);
    EXPECT_EQ(animation.m_dDrawnPercent, 0);
    EXPECT_EQ(animation.m_dAnimationPercent, 1);
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

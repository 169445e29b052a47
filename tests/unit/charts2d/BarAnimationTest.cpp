#include "charts2d/BarAnimation.h"

#include <gtest/gtest.h>

namespace
{

// An animation under way, with a chart of that many segments and series.
struct TRun {
    TRun(std::int32_t type, std::int32_t segments, std::int32_t series)
        : nSegments(segments), nSeries(series)
    {
        animation.SetAnimation(1, type);
    }

    void Tick(int ticks = 1)
    {
        while (ticks-- > 0)
            animation.Animate(nSegments, nSeries);
    }

    CBarAnimation animation;
    std::int32_t nSegments;
    std::int32_t nSeries;
};

} // namespace

TEST(BarAnimation, IsOffAtFirst)
{
    CBarAnimation animation;
    animation.Animate(3, 3);
    EXPECT_EQ(animation.m_bAnimation, 0);
    EXPECT_EQ(animation.m_nAnimationPercent, 0);
}

TEST(BarAnimation, AllBarsGrowForAHundredTicksAndHoldForTwentyOne)
{
    TRun run(CBarAnimation::allGrow, 3, 2);
    run.Tick(99);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 99);
    run.Tick();
    EXPECT_EQ(run.animation.m_nAnimationPercent, 100);
    EXPECT_EQ(run.animation.m_bAnimationHold, 0);

    run.Tick(21);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 100);
    EXPECT_EQ(run.animation.m_bAnimationHold, 1);
    EXPECT_EQ(run.animation.m_nHoldCount, 21);

    run.Tick();
    EXPECT_EQ(run.animation.m_nAnimationPercent, 1);
    EXPECT_EQ(run.animation.m_bAnimationHold, 0);
    EXPECT_EQ(run.animation.m_nHoldCount, 0);
}

TEST(BarAnimation, GroupsGrowInTurnAndTheLastIsHeld)
{
    TRun run(CBarAnimation::groupsGrow, 2, 5);
    run.Tick(50);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 100);
    EXPECT_EQ(run.animation.m_nGrowSegment, 0);
    run.Tick();
    EXPECT_EQ(run.animation.m_nGrowSegment, 1);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 2);

    run.Tick(49);
    run.Tick(); // the last group has grown: the first tick of the hold
    EXPECT_EQ(run.animation.m_nGrowSegment, 2);
    EXPECT_EQ(run.animation.m_bAnimationHold, 1);
    EXPECT_EQ(run.animation.m_nHoldCount, 1);
    run.Tick(19);
    EXPECT_EQ(run.animation.m_nHoldCount, 20);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 100);
    run.Tick(); // the twenty-first ends it
    EXPECT_EQ(run.animation.m_nGrowSegment, 0);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 2);
    EXPECT_EQ(run.animation.m_bAnimationHold, 0);
}

TEST(BarAnimation, SeriesGrowInTurnByTheNumberOfSeries)
{
    TRun run(CBarAnimation::seriesGrow, 9, 1);
    run.Tick(50);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 100);
    run.Tick();
    EXPECT_EQ(run.animation.m_nGrowSeries, 1);
    EXPECT_EQ(run.animation.m_bAnimationHold, 1);
    EXPECT_EQ(run.animation.m_nGrowSegment, 0);
}

TEST(BarAnimation, FadesStartAgainAtOnce)
{
    TRun groups(CBarAnimation::groupsFade, 2, 5);
    groups.Tick(50);
    EXPECT_EQ(groups.animation.m_nAnimationPercent, 100);
    groups.Tick();
    EXPECT_EQ(groups.animation.m_nFadeSegment, 1);
    EXPECT_EQ(groups.animation.m_nAnimationPercent, 2);
    groups.Tick(50);
    EXPECT_EQ(groups.animation.m_nFadeSegment, 0);
    EXPECT_EQ(groups.animation.m_nAnimationPercent, 2);
    EXPECT_EQ(groups.animation.m_bAnimationHold, 0);

    TRun series(CBarAnimation::seriesFade, 2, 3);
    series.Tick(51);
    EXPECT_EQ(series.animation.m_nFadeSeries, 1);
    series.Tick(100);
    EXPECT_EQ(series.animation.m_nFadeSeries, 0);
}

TEST(BarAnimation, CountsThatFellMeanwhileEndTheRunAllTheSame)
{
    TRun run(CBarAnimation::groupsFade, 5, 1);
    run.Tick(50 * 4);
    EXPECT_EQ(run.animation.m_nFadeSegment, 3);
    run.nSegments = 1;
    run.Tick(51);
    EXPECT_EQ(run.animation.m_nFadeSegment, 0);
}

TEST(BarAnimation, OtherValuesThanOneStandStill)
{
    CBarAnimation animation;
    animation.SetAnimation(1, CBarAnimation::allGrow);
    animation.Animate(1, 1);
    animation.SetAnimation(2, CBarAnimation::allGrow);
    animation.Animate(1, 1);
    EXPECT_EQ(animation.m_bAnimation, 2);
    EXPECT_EQ(animation.m_nAnimationPercent, 0);
}

TEST(BarAnimation, UnknownTypeNeverMoves)
{
    TRun run(23, 3, 3);
    run.Tick(300);
    EXPECT_EQ(run.animation.m_nAnimationPercent, 0);
    EXPECT_FALSE(FindBarAnimation(23));
    EXPECT_FALSE(FindBarAnimation(24));
    EXPECT_TRUE(FindBarAnimation(22));
    EXPECT_TRUE(FindBarAnimation(26));
}

TEST(BarAnimation, RunsOnAnEmptyChart)
{
    for (const std::int32_t type : {20, 21, 22, 25, 26}) {
        TRun run(type, 0, 0);
        run.Tick(500);
        EXPECT_LE(run.animation.m_nAnimationPercent, 100) << type;
    }
}

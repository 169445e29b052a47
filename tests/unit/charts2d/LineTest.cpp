#include "charts2d/LineAnimation.h"
#include "charts2d/LinePicture.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 100};
constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();

class LineTest : public testing::Test
{
protected:
    void Fill(int segments, int series)
    {
        for (int i = 0; i < segments; ++i)
            data.AddSegment(u"segment");
        for (int i = 1; i <= series; ++i) {
            ASSERT_EQ(data.AddSeries(u"series", 0), ERefusal::none);
            for (int segment = 1; segment <= segments; ++segment)
                ASSERT_EQ(data.SetValue(segment, i, segment * 10 / i), ERefusal::none);
        }
    }

    void Start(std::int32_t type)
    {
        animation.SetAnimation(1, type, data.m_nSegments, data.m_nSeries, StartPoint());
    }
    void Tick(int ticks = 1)
    {
        while (ticks-- > 0) {
            animation.Animate(data.m_nSegments, data.m_nSeries, StartPoint());
            Compose();
        }
    }
    TPoint StartPoint() const { return LineGeometry::StartPoint(Position, Size, data.m_nSegments); }
    TLinePicture Compose() { return LinePicture::Compose(CValueTable(data), animation, Position, Size); }

    // The frame as a line: L label, and each line as series:from-to.
    std::string Text()
    {
        const auto point = [](TPoint p) { return std::to_string(p.x) + "," + std::to_string(p.y); };
        std::string text;
        for (const TLineStep& step : Compose().Steps) {
            if (step.kind == TLineStep::EKind::label)
                text += "L" + std::to_string(step.nIndex) + " ";
            else
                text += std::to_string(step.nIndex) + ":" + point(step.ptFrom) + "-" + point(step.ptTo) +
                        " ";
        }
        return text;
    }

    CBarData data;
    CLineAnimation animation;
};

} // namespace

// Three segments, two series in 200 x 100: A = 130, gap = trunc(130 / 12) = 10, barGap = 1,
// groupW = trunc((110 + 3) / 3) = 37, step 47, start 44, so points at x = 62, 109, 156;
// y = 20 + 93 - trunc(v / M * 80).
TEST_F(LineTest, MeasuresUseAWiderAreaAndNoRoundingOfTheBarGap)
{
    const auto plot = LineGeometry::Measure(Position, Size, 3, 2);
    EXPECT_EQ(plot.Measures.nGap, 10);
    EXPECT_EQ(plot.Measures.nBarGap, 1); // 1.25
    EXPECT_EQ(plot.Measures.nGroupWidth, 37);
    EXPECT_EQ(plot.nStep, 47);
    EXPECT_EQ(LineGeometry::Point(plot, 0, 10, 10), (TPoint{62, 33}));
    EXPECT_EQ(LineGeometry::Point(plot, 2, 5, 10), (TPoint{156, 73}));
    EXPECT_EQ(LineGeometry::Point(plot, 1, -1, 3), (TPoint{109, 139})); // 26.6
}

TEST_F(LineTest, HeightFactorIsTruncatedBeforeTheShare)
{
    const auto plot = LineGeometry::Measure(Position, {200, 99}, 3, 1); // 79, not 79.2
    EXPECT_EQ(plot.nHeight, 79);
    EXPECT_EQ(LineGeometry::PointY(plot, 1000, 1), plot.nBase - 79000);
}

TEST_F(LineTest, OverAScaleOfNothingPointsLieFarOutside)
{
    const auto plot = LineGeometry::Measure(Position, Size, 3, 2);
    EXPECT_EQ(LineGeometry::PointY(plot, 0, 0), Lowest + 113);
    TPoint from{62, 100};
    TPoint to{109, Lowest + 113};
    ASSERT_TRUE(LineGeometry::CutToDevice(from, to));
    EXPECT_EQ(from, (TPoint{62, 100}));
    EXPECT_EQ(to.y, -(1 << 16));
    EXPECT_EQ(to.x, 62); // 47 * 2^16 / 2^31 of the way
    TPoint far{1, Lowest};
    TPoint farther{2, Lowest};
    EXPECT_FALSE(LineGeometry::CutToDevice(far, farther));
}

TEST_F(LineTest, StillPictureHasAllLabelsThenEachSeries)
{
    Fill(3, 2); // 10 20 30 and 5 10 15 over 10
    EXPECT_EQ(Text(), "L0 L1 L2 0:62,33-109,-47 0:109,-47-156,-127 1:62,73-109,33 1:109,33-156,-7 ");
    EXPECT_EQ(Compose().Steps[1].ptFrom, (TPoint{44 + 47 + 19, 116})); // (1 * 2 + 37) / 2
}

TEST_F(LineTest, OneSegmentLeavesTheAxesAlone)
{
    Fill(1, 3);
    EXPECT_FALSE(Compose().bValueLabels);
    EXPECT_EQ(Text(), "");
}

TEST_F(LineTest, ValuesOfADeletedSegmentKeepTheirPlaceOnTheLine)
{
    Fill(3, 1);
    ASSERT_EQ(data.DeleteSegment(2), ERefusal::none);
    int labels = 0;
    int lines = 0;
    for (const TLineStep& step : Compose().Steps)
        ++(step.kind == TLineStep::EKind::label ? labels : lines);
    EXPECT_EQ(labels, 2);
    EXPECT_EQ(lines, 2);
}

TEST_F(LineTest, StartPointLiesBesideTheFirstPoint)
{
    // 140 / 12 = 11, 11 * 0.125 = 1: here the two agree but for half a group
    EXPECT_EQ(LineGeometry::StartPoint(Position, Size, 3), (TPoint{44, 114}));
    EXPECT_EQ(LineGeometry::StartPoint(Position, {640, 100}, 2), (TPoint{10 + 96 + 4 * 7, 114}));
    // the plot's own: 416 / 8 = 52, 52 * 0.125 = 6
    EXPECT_EQ(LineGeometry::Measure(Position, {640, 100}, 2, 1).Measures.nStartX, 10 + 96 + 4 * 6);
    EXPECT_EQ(LineGeometry::StartPoint(Position, {640, 100}, 1).x, 10 + 96 + 2 * 14);
}

TEST_F(LineTest, TwoSegmentsAreOneLineOfFiftyPercentAndThenHeld)
{
    Fill(2, 1);
    Start(CLineAnimation::allDraw);
    EXPECT_EQ(animation.m_nSegmentPercent, 50);
    Tick(50);
    EXPECT_EQ(animation.m_nAnimationPercent, 50);
    EXPECT_EQ(animation.m_bAnimationHold, 0);
    Tick();
    EXPECT_EQ(animation.m_nGrowSegment, 1);
    EXPECT_EQ(animation.m_bAnimationHold, 1);
    Tick(20);
    EXPECT_EQ(animation.m_nHoldCount, 21);
    EXPECT_EQ(animation.m_nAnimationPercent, 50);
    Tick();
    EXPECT_EQ(animation.m_nAnimationPercent, 1);
    EXPECT_EQ(animation.m_nGrowSegment, 0);
    EXPECT_EQ(animation.m_bAnimationHold, 0);
}

TEST_F(LineTest, ThreeSegmentsEndAtSixtySixPercent)
{
    Fill(3, 2);
    Start(CLineAnimation::allDraw);
    EXPECT_EQ(animation.m_nSegmentPercent, 33);
    for (int tick = 0; tick < 200; ++tick) {
        Tick();
        ASSERT_LE(animation.m_nAnimationPercent, 66);
    }
}

TEST_F(LineTest, SeriesDrawInTurnAtTwiceTheSpeed)
{
    Fill(2, 2);
    Start(CLineAnimation::seriesDraw);
    Tick(25);
    EXPECT_EQ(animation.m_nAnimationPercent, 50);
    EXPECT_EQ(animation.m_nGrowSeries, 0);
    Tick();
    EXPECT_EQ(animation.m_nGrowSeries, 1);
    EXPECT_EQ(animation.m_nGrowSegment, 0);
    EXPECT_EQ(animation.m_nAnimationPercent, 2);
    Tick(24 + 21);
    EXPECT_EQ(animation.m_nHoldCount, 21);
    Tick();
    EXPECT_EQ(animation.m_nGrowSeries, 0);
    EXPECT_EQ(animation.m_nAnimationPercent, 2);
}

TEST_F(LineTest, LabelsArriveWithTheLines)
{
    Fill(3, 1); // 10 20 30 over 10
    Start(CLineAnimation::allDraw);
    animation.m_nAnimationPercent = 11; // a third of the first line
    // groupW = 36, step 46: from (62, 33) to (108, -47), of which a third is (15, -26)
    EXPECT_EQ(Text(), "L0 0:62,33-77,7 ");
    animation.m_nAnimationPercent = 44; // a third of the second
    animation.m_nGrowSegment = 1;
    EXPECT_EQ(Text(), "L0 0:62,33-108,-47 L1 0:108,-47-123,-73 ");
    EXPECT_EQ(animation.m_pPoints[0], (TPoint{108, -47}));
    animation.m_nAnimationPercent = 66;
    animation.m_nGrowSegment = 2;
    EXPECT_EQ(Text(), "L0 L1 0:62,33-108,-47 0:108,-47-154,-127 L2 ");
}

TEST_F(LineTest, SeriesInTurnStandUnderAllLabels)
{
    Fill(3, 2);
    Start(CLineAnimation::seriesDraw);
    animation.m_nAnimationPercent = 11;
    EXPECT_EQ(Text(), "L0 L1 L2 0:62,33-77,7 ");
    animation.m_nGrowSeries = 1;
    EXPECT_EQ(Text(), "L0 L1 L2 0:62,33-109,-47 0:109,-47-156,-127 1:62,73-77,60 ");
    animation.m_nGrowSeries = 2;
    EXPECT_EQ(Text(), "L0 L1 L2 0:62,33-109,-47 0:109,-47-156,-127 1:62,73-109,33 1:109,33-156,-7 ");
}

TEST_F(LineTest, ASeriesEndsBeforeASegmentThatItHasNoValueFor)
{
    Fill(3, 0);
    ASSERT_EQ(data.DeleteSegment(1), ERefusal::none);
    Fill(0, 1); // has values for the ids 1 and 2; the segments are 2 and 3
    Start(CLineAnimation::allDraw);
    animation.m_nGrowSegment = 2;
    const TLinePicture picture = Compose();
    std::string kinds;
    for (const TLineStep& step : picture.Steps)
        kinds += step.kind == TLineStep::EKind::label ? 'L' : '-';
    EXPECT_EQ(kinds, "L-L");
}

TEST_F(LineTest, LinesThatAreAllFinishedStandOverAllLabels)
{
    Fill(3, 1);
    Start(CLineAnimation::allDraw);
    animation.m_nGrowSegment = 2;
    ASSERT_EQ(data.DeleteSegment(3), ERefusal::none); // the one in progress
    std::string kinds;
    for (const TLineStep& step : Compose().Steps)
        kinds += step.kind == TLineStep::EKind::label ? 'L' : '-';
    EXPECT_EQ(kinds, "LL--");

    Start(CLineAnimation::seriesDraw);
    animation.m_nGrowSegment = 2;
    kinds.clear();
    for (const TLineStep& step : Compose().Steps)
        kinds += step.kind == TLineStep::EKind::label ? 'L' : '-';
    EXPECT_EQ(kinds, "LL--");
}

TEST_F(LineTest, SegmentsWithoutASeriesLeaveTheAxesAlone)
{
    Fill(3, 0);
    EXPECT_FALSE(Compose().bValueLabels);
    EXPECT_EQ(Text(), "");
}

TEST_F(LineTest, WithoutAnimationNothingMoves)
{
    Fill(3, 1);
    animation.SetAnimation(0, CLineAnimation::allDraw, 3, 1, StartPoint());
    Tick(50);
    EXPECT_EQ(animation.m_nAnimationPercent, 0);
}

TEST_F(LineTest, BothEndsAreCutToTheDevice)
{
    TPoint from{-100000, 10};
    TPoint to{100000, 10};
    ASSERT_TRUE(LineGeometry::CutToDevice(from, to));
    EXPECT_EQ(from, (TPoint{-(1 << 16), 10}));
    EXPECT_EQ(to, (TPoint{1 << 16, 10}));
    ASSERT_TRUE(LineGeometry::CutToDevice(from, to));
    EXPECT_EQ(from, (TPoint{-(1 << 16), 10}));
    EXPECT_EQ(to, (TPoint{1 << 16, 10}));
}

TEST_F(LineTest, SeriesAddedAfterTheStartHasNoLineInProgress)
{
    Fill(3, 1);
    Start(CLineAnimation::allDraw);
    ASSERT_EQ(data.AddSeries(u"late", 0), ERefusal::none);
    Tick(11);
    for (const TLineStep& step : Compose().Steps)
        EXPECT_EQ(step.nIndex, 0);
    Tick(30);
    EXPECT_EQ(animation.m_nGrowSegment, 1);
    EXPECT_EQ(animation.m_pPoints.size(), 1U);
}

// The platform's conversion returns the smallest int for what isn't a number.
TEST_F(LineTest, PartOfALineThatHasNoLengthEndsFarToTheUpperLeft)
{
    Fill(150, 2);
    Start(CLineAnimation::allDraw);
    EXPECT_EQ(animation.m_nSegmentPercent, 0);
    const auto steps = Compose().Steps;
    ASSERT_EQ(steps.size(), 3U); // the first label, and the line in progress of each series
    EXPECT_EQ(steps[1].ptTo, (TPoint{Lowest + steps[1].ptFrom.x, Lowest + steps[1].ptFrom.y}));
    EXPECT_EQ(steps[2].ptTo, (TPoint{Lowest + steps[2].ptFrom.x, Lowest + steps[2].ptFrom.y}));
}

TEST_F(LineTest, UnknownAnimationHasItsValueLabelsAlone)
{
    Fill(3, 2);
    Start(32);
    EXPECT_TRUE(Compose().bValueLabels);
    EXPECT_EQ(Compose().nMaximum, 10);
    EXPECT_EQ(Text(), "");
    animation.SetAnimation(2, CLineAnimation::allDraw, 3, 2, StartPoint());
    EXPECT_FALSE(Compose().bValueLabels);
}

TEST_F(LineTest, EveryAnimationRunsOnEveryCount)
{
    for (int segments = 0; segments < 4; ++segments) {
        for (const std::int32_t type : {30, 31, 32}) {
            data.Clear();
            Fill(segments, segments > 0 ? 2 : 0);
            Start(type);
            Tick(300);
            EXPECT_LE(animation.m_nAnimationPercent, 100);
        }
    }
}

TEST_F(LineTest, PartOfALineFollowsItsDirection)
{
    EXPECT_EQ(LineGeometry::PartialEnd({1, 1}, {1, 1}, 1, 2), (TPoint{Lowest + 1, Lowest + 1}));
    EXPECT_EQ(LineGeometry::PartialEnd({1, 1}, {5, 5}, 0, 0), (TPoint{Lowest + 1, Lowest + 1}));
    EXPECT_EQ(LineGeometry::PartialEnd({1, 1}, {5, 1}, 1, 0), (TPoint{Lowest + 1, Lowest + 1}));
    EXPECT_EQ(LineGeometry::PartialEnd({0, 0}, {0, 10}, 1, 2), (TPoint{0, 5}));
    EXPECT_EQ(LineGeometry::PartialEnd({0, 0}, {10, 0}, 1, 3), (TPoint{3, 0})); // a quotient of doubles
}

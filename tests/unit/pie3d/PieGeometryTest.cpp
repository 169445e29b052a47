#include "pie3d/PieGeometry.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <ostream>
#include <vector>

using namespace PieGeometry;

void PrintTo(const TRect& rc, std::ostream* out)
{
    *out << '(' << rc.left << ", " << rc.top << ", " << rc.right << ", " << rc.bottom << ')';
}

namespace
{

constexpr float Near = 0.001f;
constexpr TRect Hand{30, 100, 230, 300}; // 200 a side about (130, 200)

std::vector<TProjection> Projected(float incline, float start, const std::vector<float>& sweeps)
{
    std::vector<TProjection> projections(sweeps.size());
    ProjectAngles(Hand, FaceRects(Hand, incline, 0.5f), start, sweeps, projections);
    return projections;
}

} // namespace

TEST(PieSquare, AWideWindowIsFilledFromTopToBottom)
{
    EXPECT_EQ(PieSquare({0, 0, 800, 600}, 533), (TRect{30, 100, 500, 570}));
}

TEST(PieSquare, ATallWindowIsFilledToThePieLimit)
{
    EXPECT_EQ(PieSquare({0, 0, 600, 600}, 400), (TRect{30, 100, 400, 470}));
}

TEST(PieSquare, IsNeverSmallerThan150)
{
    const TRect smallest{30, 100, 180, 250};
    EXPECT_EQ(PieSquare({0, 0, 0, 0}, 180), smallest);
    EXPECT_EQ(PieSquare({0, 0, 1, 1}, 180), smallest);
    EXPECT_EQ(PieSquare({0, 0, 200, 200}, 180), smallest);
    EXPECT_EQ(PieSquare({0, 0, 200, 1000}, 180), smallest);
    EXPECT_EQ(PieSquare({0, 0, 100, 1000}, 20), smallest);
}

TEST(PieFaces, TiltFlattensAndDepthMovesTheFacesApart)
{
    // 470 * 60 / 180 = 156.67; 156 * 0.5 * 0.5 = 39
    const TFaces faces = FaceRects({30, 100, 500, 570}, 60.0f, 0.5f);
    EXPECT_EQ(faces.nSqueeze, 156);
    EXPECT_EQ(faces.nDepth, 39);
    EXPECT_EQ(faces.rcUpper, (TRect{30, 217, 500, 375}));
    EXPECT_EQ(faces.rcLower, (TRect{30, 295, 500, 453}));
}

TEST(PieFaces, WithoutTiltBothFacesAreTheCircle)
{
    const TFaces faces = FaceRects(Hand, 0.0f, 0.5f);
    EXPECT_EQ(faces.nSqueeze, 0);
    EXPECT_EQ(faces.nDepth, 0);
    EXPECT_EQ(faces.rcUpper, Hand);
    EXPECT_EQ(faces.rcLower, Hand);
}

TEST(PieFaces, ATiltBeyondNinetyTurnsTheRectanglesOver)
{
    const TFaces faces = FaceRects(Hand, 120.0f, 0.0f); // 200 * 120 / 180 = 133.3
    EXPECT_EQ(faces.rcUpper, (TRect{30, 233, 230, 167}));
}

TEST(PieFaces, HugeTiltsAndDepthsStayWithinWhatAWindowCanShow)
{
    const float huge = std::numeric_limits<float>::max();
    const TFaces faces = FaceRects(Hand, huge, huge);
    EXPECT_EQ(faces.nSqueeze, 0x4000);
    EXPECT_EQ(faces.nDepth, 0x4000);
    const TFaces undefined = FaceRects(Hand, std::nanf(""), std::nanf(""));
    EXPECT_EQ(undefined.rcUpper, Hand);
}

TEST(PieDepth, IsRelativeToTheTiltOfEightyFive)
{
    EXPECT_FLOAT_EQ(RatioForDepth({30, 100, 500, 570}, 20.0f), 20.0f / 221); // 470 * 85 / 180 = 221.9
    EXPECT_FLOAT_EQ(RatioForDepth({30, 100, 180, 250}, 35.0f), 0.5f);        // 150 * 85 / 180 = 70.8
}

TEST(PieAngle, FullTurnsAreTakenOff)
{
    EXPECT_EQ(BelowFullTurn(725.0f), 5.0f);
    EXPECT_EQ(BelowFullTurn(360.0f), 0.0f);
    EXPECT_EQ(BelowFullTurn(359.5f), 359.5f);
    EXPECT_EQ(BelowFullTurn(-5.0f), -5.0f);
    EXPECT_LT(BelowFullTurn(1e30f), 360.0f);
}

TEST(PieAngle, OfAPointGoesClockwiseFromTheRight)
{
    EXPECT_FLOAT_EQ(AngleOfPoint({230, 200}, Hand), 0.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({140, 210}, Hand), 45.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({130, 210}, Hand), 90.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({120, 210}, Hand), 135.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({30, 200}, Hand), 180.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({120, 190}, Hand), 225.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({130, 190}, Hand), 270.0f);
    EXPECT_FLOAT_EQ(AngleOfPoint({140, 190}, Hand), 315.0f);
}

TEST(PieAngle, OfTheCentreIsZero)
{
    EXPECT_EQ(AngleOfPoint({130, 200}, Hand), 0.0f);
}

TEST(PieRim, PointsLieOnTheCircleWithIntegerHalves)
{
    const TPointF down = RimPoint({30, 100, 181, 251}, 90.0f); // 151 / 2 = 75 about (105, 175)
    EXPECT_NEAR(down.x, 105, Near);
    EXPECT_NEAR(down.y, 250, Near);
    const TPointF left = RimPoint(Hand, 180.0f);
    EXPECT_NEAR(left.x, 30, Near);
    EXPECT_NEAR(left.y, 200, Near);
}

TEST(PieProjection, AnglesOfAHalvedEllipse)
{
    // 200 * 45 / 180 = 50: half axes 100 and 50, so 45 degrees become atan(0.5) = 26.565
    const auto projections = Projected(45.0f, 0.0f, {45.0f, 45.0f, 270.0f});
    EXPECT_NEAR(projections[0].fDrawSweep, 26.565f, Near);
    EXPECT_NEAR(projections[1].fDrawSweep, 63.435f, Near);
    EXPECT_NEAR(projections[2].fDrawSweep, 270.0f, Near);
    EXPECT_NEAR(projections[0].fLabelX, 200.711f, Near); // 130 + 70.711
    EXPECT_NEAR(projections[0].fLabelY, 235.355f, Near); // 200 + 70.711 - 35.355
    EXPECT_NEAR(projections[1].fLabelY, 250.0f, Near);
}

TEST(PieProjection, TheStartAngleIsProjectedToo)
{
    std::array<TProjection, 1> projections;
    const std::array sweeps{90.0f};
    const float start = ProjectAngles(Hand, FaceRects(Hand, 45.0f, 0.5f), 45.0f, sweeps, projections);
    EXPECT_NEAR(start, 26.565f, Near);
    EXPECT_NEAR(projections[0].fDrawSweep, 126.870f, Near); // to 153.435
}

TEST(PieProjection, WithoutTiltTheAnglesStay)
{
    const std::vector<float> sweeps{10.0f, 75.5f, 180.0f, 94.5f};
    const auto projections = Projected(0.0f, 33.0f, sweeps);
    for (std::size_t i = 0; i < sweeps.size(); ++i)
        EXPECT_NEAR(projections[i].fDrawSweep, sweeps[i], Near);
}

TEST(PieProjection, ALoneElementStaysWholeFromAnyStartAtAnyTilt)
{
    for (float start = -360.0f; start < 360.0f; start += 0.37f) {
        for (const float incline : {0.0f, 0.5f, 30.0f, 60.0f, 85.0f, 90.0f, 120.0f}) {
            EXPECT_EQ(Projected(incline, start, {360.0f})[0].fDrawSweep, 360.0f)
                << start << ' ' << incline;
        }
    }
}

TEST(PieProjection, SliversNeverGrowIntoTheWholePie)
{
    std::vector<float> sweeps(200, 3e-7f);
    sweeps.insert(sweeps.begin() + 50, 360.0f - 200 * 3e-7f);
    for (float start = 0.0f; start < 360.0f; start += 7.3f) {
        const auto projections = Projected(60.0f, start, sweeps);
        float sum = 0;
        for (const TProjection& projection : projections) {
            EXPECT_GE(projection.fDrawSweep, 0.0f);
            sum += projection.fDrawSweep;
        }
        EXPECT_NEAR(sum, 360.0f, 0.01f) << start;
    }
}

TEST(PieProjection, FromTheEdgeSlicesOfOneSideHaveNoWidth)
{
    const auto projections = Projected(90.0f, 20.0f, {30.0f, 100.0f, 30.0f});
    const auto turned = [&](std::size_t i) { // there is nothing to draw, so once around is nothing too
        return std::abs(std::remainder(projections[i].fDrawSweep, 360.0f));
    };
    EXPECT_NEAR(turned(0), 0.0f, Near) << "on the right";
    EXPECT_NEAR(turned(1), 180.0f, Near) << "from the right to the left";
    EXPECT_NEAR(turned(2), 0.0f, Near) << "on the left";
}

TEST(PieProjection, MoreSweepsThanPlacesFillThePlaces)
{
    std::vector<TProjection> one(1);
    ProjectAngles(Hand, FaceRects(Hand, 0.0f, 0.5f), 0.0f, std::vector<float>{90.0f, 180.0f, 90.0f},
                  one);
    EXPECT_NEAR(one[0].fDrawSweep, 90.0f, Near);
}

TEST(PieProjection, SweepsAddUpToAFullTurn)
{
    const auto projections = Projected(70.0f, 300.0f, {120.0f, 90.0f, 150.0f});
    float sum = 0;
    for (const TProjection& projection : projections)
        sum += projection.fDrawSweep;
    EXPECT_NEAR(sum, 360.0f, Near);
}

TEST(PieProjection, StaysFiniteForHostileSweeps)
{
    const float huge = std::numeric_limits<float>::max();
    for (const float incline : {0.0f, 90.0f, huge}) {
        for (const TProjection& projection :
             Projected(incline, 90.0f, {huge, -huge, 720.0f, -360.0f, huge, huge})) {
            EXPECT_TRUE(std::isfinite(projection.fDrawSweep));
        }
    }
}

TEST(PieRects, InsetAndCentredSquares)
{
    EXPECT_EQ(Inset(Hand, 8.0f), (TRectF{38, 108, 184, 184}));
    EXPECT_EQ(AboutCentre(Hand, 40.0f), (TRectF{90, 160, 80, 80}));
}

TEST(PieAngle, DrawableAnglesAreFiniteAndWithinATurn)
{
    float start = 1e9f;
    float sweep = 4e9f;
    EXPECT_TRUE(DrawableAngles(start, sweep));
    EXPECT_LT(std::abs(start), 360.0f);
    EXPECT_EQ(sweep, 360.0f);

    start = 470.0f; // what a running angle reaches stays as it is
    sweep = -90.0f;
    EXPECT_TRUE(DrawableAngles(start, sweep));
    EXPECT_EQ(start, 470.0f);
    EXPECT_EQ(sweep, -90.0f);

    start = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(DrawableAngles(start, sweep));
    start = 0;
    sweep = std::nanf("");
    EXPECT_FALSE(DrawableAngles(start, sweep));
    sweep = 0.0009f;
    EXPECT_FALSE(DrawableAngles(start, sweep));
    sweep = -0.001f;
    EXPECT_TRUE(DrawableAngles(start, sweep));
}

namespace
{

constexpr TRectF Ellipse{30, 100, 470, 470};

float Outlined(const TRectF& rc, float start, float sweep)
{
    return OutlineAngles(rc, start, sweep) == EOutline::whole ? sweep : 0.0f;
}

} // namespace

TEST(PieOutline, OrdinaryAnglesStay)
{
    for (const float sweep : {1.0f, 45.0f, 89.5f, 91.0f, 200.0f, 300.0f, -60.0f}) {
        EXPECT_EQ(Outlined(Ellipse, 33.0f, sweep), sweep);
        EXPECT_EQ(Outlined({30, 200, 470, 60}, 33.0f, sweep), sweep);
    }
}

TEST(PieOutline, SweepsAboutWholeQuartersEndJustShortOfThem)
{
    for (const float quarters : {90.0f, 180.0f, 270.0f, 360.0f}) {
        for (const float beyond : {-1e-4f, 0.0f, 1e-4f, 0.01f}) {
            const float sweep = Outlined(Ellipse, 33.0f, quarters + beyond);
            EXPECT_LT(sweep, quarters - 1e-4f);
            EXPECT_NEAR(sweep, quarters, 0.01f);
            EXPECT_NEAR(Outlined(Ellipse, 33.0f, -quarters - beyond), -sweep, 0.0002f);
        }
    }
}

TEST(PieOutline, QuartersOfAFlatEllipseAreThoseOfItsCircle)
{
    // Half axes 235 and 117.5: from 26.565 (45 on the circle) a quarter ends at 153.435.
    const TRectF flat{30, 100, 470, 235};
    const float sweep = Outlined(flat, 26.56505f, 126.8699f);
    EXPECT_LT(sweep, 126.8699f);
    EXPECT_NEAR(sweep, 126.8699f, 0.01f);
    EXPECT_EQ(Outlined(flat, 26.56505f, 90.0f), 90.0f);
}

TEST(PieOutline, OnAVeryFlatEllipseTheStepBeforeAQuarterIsAsLargeAsFloatsNeedIt)
{
    // Half axes 2000 and 0.6: a step of 1e-5 * 2000 / 0.6 = 0.0333 on the circle, and 0.03 beyond the
    // quarter.
    const TRectF flat{-2000, 100, 4000, 1.2f};
    EXPECT_NEAR(Outlined(flat, 0.0f, 179.427f), 0.516f, 0.002f); // atan2(0.6, 2000 * 0.0333)
    EXPECT_EQ(Outlined(flat, 0.0f, 179.6f), 179.6f);             // 0.043 beyond
}

TEST(PieOutline, ArcsThatAreAsGoodAsStraightHaveNone)
{
    // rise 570 * 4e-7 = 2.3e-4; 235 * (1 - cos(half)) reaches it at a sweep of 0.16 degrees
    EXPECT_EQ(Outlined(Ellipse, 10.0f, 0.15f), 0.0f);
    EXPECT_EQ(Outlined(Ellipse, 10.0f, -0.15f), 0.0f);
    EXPECT_NE(Outlined(Ellipse, 10.0f, 0.17f), 0.0f);
    EXPECT_EQ(Outlined({30, 300, 470, 20}, 85.0f, 10.0f), 0.0f); // 10 * (1 - cos) of a half degree
    EXPECT_EQ(Outlined({30, 300, 470, 0.9f}, 0.0f, 200.0f), 0.0f);
    EXPECT_EQ(Outlined({30, 300, 470, 0}, 0.0f, 200.0f), 0.0f);
}

TEST(PieOutline, TheTipOfAnEllipseAsFlatAsALineHasNoArc)
{
    float start = -0.0019f;
    float sweep = 0.0038f;
    EXPECT_EQ(OutlineAngles({0, 0, 20000, 1.2f}, start, sweep), EOutline::radii);
}

TEST(PieOutline, ASliceTooThinForItsArcKeepsItsRadiiDownToAThousandthOfADegree)
{
    float start = 10.0f;
    for (float sweep : {0.15f, 0.01f, 0.001f, -0.001f})
        EXPECT_EQ(OutlineAngles(Ellipse, start, sweep), EOutline::radii) << sweep;
    float none = 0.0009f;
    EXPECT_EQ(OutlineAngles(Ellipse, start, none), EOutline::nothing);
    float around = 200.0f;
    EXPECT_EQ(OutlineAngles({30, 300, 470, 0.9f}, start, around), EOutline::nothing);
}

TEST(PieOutline, RadiiRunFromTheCentreToTheEllipse)
{
    const TRadii circle = RadiiOf(Ellipse, 0.0f, 90.0f);
    EXPECT_EQ(circle.centre, (TPointF{265, 335}));
    EXPECT_NEAR(circle.first.x, 500.0f, 1e-3f);
    EXPECT_NEAR(circle.first.y, 335.0f, 1e-3f);
    EXPECT_NEAR(circle.last.x, 265.0f, 1e-3f);
    EXPECT_NEAR(circle.last.y, 570.0f, 1e-3f);
    // 26.565 degrees on half axes 235 and 117.5 are 45 on the circle.
    const TRadii flat = RadiiOf({30, 100, 470, 235}, 26.56505f, 0.0f);
    EXPECT_NEAR(flat.first.x, 265 + 235 * 0.70710678f, 1e-3f);
    EXPECT_NEAR(flat.first.y, 217.5f + 117.5f * 0.70710678f, 1e-3f);
}

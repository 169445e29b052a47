#include "objects/ColumnWalk.h"

#include <gtest/gtest.h>

#include "objects/IndexSearch.h"
#include "objects/SegmentHit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace
{

using AxisMapping::CMapper;
using AxisMapping::TScale;
using ColumnWalk::TColumns;
using ColumnWalk::TCurve;
using ColumnWalk::TEnds;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr TColumns Plot{100, 500};

struct TWalked {
    std::vector<TSegment> segments;
    TEnds ends;
};

class CWalker
{
public:
    CWalker(std::vector<TDataPoint> points, TScale x)
        : m_points(std::move(points)), m_x(x), m_y({.nLength = 300, .nOrigin = 400, .bVertical = true})
    {
    }

    // All segments that could be seen: those not wholly left or wholly right of the plot.
    TWalked Plain(TColumns visible) const
    {
        TWalked walked;
        walked.ends = WalkEverySegment(Curve(false), [&](TPoint from, TPoint to) {
            const bool left = from.x < visible.nFirst && to.x < visible.nFirst;
            const bool right = from.x > visible.nLast && to.x > visible.nLast;
            if (!left && !right)
                walked.segments.push_back({from, to});
        });
        return walked;
    }

    TWalked Fast(TColumns visible, bool ascending) const
    {
        TWalked walked;
        walked.ends = WalkVisibleSegments(Curve(ascending), visible, [&](TPoint from, TPoint to) {
            walked.segments.push_back({from, to});
        });
        return walked;
    }

    void ExpectSame(TColumns visible) const
    {
        const TWalked plain = Plain(visible);
        for (const bool ascending : {false, true}) {
            if (ascending && !IndexSearch::IsAscending(m_points))
                continue;
            const TWalked fast = Fast(visible, ascending);
            ASSERT_EQ(fast.segments, plain.segments) << (ascending ? "search" : "scan");
            ASSERT_EQ(fast.ends.ptFirst, plain.ends.ptFirst);
            ASSERT_EQ(fast.ends.ptLast, plain.ends.ptLast) << (ascending ? "search" : "scan");
        }
    }

private:
    TCurve Curve(bool ascending) const { return {m_points, m_x, m_y, ascending}; }

    std::vector<TDataPoint> m_points;
    CMapper m_x;
    CMapper m_y;
};

constexpr TScale Scale{.fMin = 0, .fMax = 100, .nLength = 400, .nOrigin = 100};

std::vector<TDataPoint> EvenPoints(int count, double from, double step)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < count; ++i)
        points.push_back({from + i * step, 0.5 + 0.4 * std::sin(i * 0.7)});
    return points;
}

TEST(ColumnWalk, ARunOnOneColumnKeepsItsFirstPointAlone)
{
    const CWalker walker({{0, 0}, {0.1, 1}, {0.2, 0.5}, {10, 1}, {10.1, 0}, {20, 0}}, Scale);
    const TWalked walked = walker.Plain({INT32_MIN, INT32_MAX});
    const std::vector<TSegment> expected{{{100, 400}, {140, 100}}, {{140, 100}, {180, 400}}};
    EXPECT_EQ(walked.segments, expected);
    EXPECT_EQ(walked.ends.ptLast, (TPoint{180, 400}));
    walker.ExpectSame(Plot);
}

TEST(ColumnWalk, AColumnMayComeAgain)
{
    const CWalker walker({{0, 0}, {10, 0}, {0, 1}, {10, 1}}, Scale);
    EXPECT_EQ(walker.Plain(Plot).segments.size(), 3u);
    walker.ExpectSame(Plot);
}

TEST(ColumnWalk, OnePointHasNoSegments)
{
    const CWalker walker({{50, 0}}, Scale);
    EXPECT_TRUE(walker.Fast(Plot, true).segments.empty());
    walker.ExpectSame(Plot);
}

TEST(ColumnWalk, SegmentsAcrossThePlotAreKept)
{
    const CWalker walker({{-50, 0}, {150, 1}, {-50, 0.2}}, Scale);
    EXPECT_EQ(walker.Fast(Plot, false).segments.size(), 2u);
    walker.ExpectSame(Plot);
}

TEST(ColumnWalk, DenseAndSparseAscendingCurvesEqualThePlainWalk)
{
    for (const double step : {1e-4, 0.013, 0.25, 1.0, 7.0, 61.0})
        CWalker(EvenPoints(5000, -200 * step, step), Scale).ExpectSame(Plot);
}

TEST(ColumnWalk, ZoomedCurvesEqualThePlainWalk)
{
    const auto points = EvenPoints(20000, 0, 1);
    for (const double width : {0.5, 3.0, 40.0, 1000.0, 19999.0}) {
        for (const double from : {-5000.0, 0.0, 7777.7, 19990.0, 50000.0}) {
            const TScale scale{.fMin = from, .fMax = from + width, .nLength = 400, .nOrigin = 100};
            CWalker(points, scale).ExpectSame(Plot);
        }
    }
}

TEST(ColumnWalk, CurvesWithoutAnythingInThePlotEqualThePlainWalk)
{
    CWalker(EvenPoints(100, -1000, 1), Scale).ExpectSame(Plot);
    CWalker(EvenPoints(100, 1000, 1), Scale).ExpectSame(Plot);
    EXPECT_TRUE(CWalker(EvenPoints(100, 1000, 1), Scale).Fast(Plot, true).segments.empty());
}

// Places past the largest int fall on the column of those past the smallest.
TEST(ColumnWalk, AscendingPlacesBeyondTheIntsEqualThePlainWalk)
{
    const std::vector<double> xs{-Infinity, -1e308, -1e12, -1e9, -1e8, -3,      0,
                                 20,        50,     3e8,   1e9,  1e12, Infinity};
    for (std::size_t first = 0; first < xs.size(); ++first) {
        for (std::size_t last = first + 1; last <= xs.size(); ++last) {
            std::vector<TDataPoint> points;
            for (std::size_t i = first; i < last; ++i)
                points.push_back({xs[i], 0.1 * static_cast<double>(i)});
            CWalker(points, Scale).ExpectSame(Plot);
        }
    }
}

TEST(ColumnWalk, RandomCurvesEqualThePlainWalk)
{
    std::mt19937 random(2026);
    const double specials[] = {Infinity, -Infinity, std::nan(""), 1e308, -1e308, 5e-324, 1e10, -1e10};
    for (int round = 0; round < 4000; ++round) {
        std::vector<TDataPoint> points(1 + random() % 60);
        const double spread = std::exp2(random() % 14);
        for (TDataPoint& point : points) {
            point.fXVal = (random() % 2001 / 1000.0 - 1) * spread + 50;
            point.fYVal = random() % 1001 / 1000.0;
            if (random() % 50 == 0)
                point.fXVal = specials[random() % 8];
            if (random() % 50 == 0)
                point.fYVal = specials[random() % 8];
        }
        if (round % 2 == 0)
            std::sort(points.begin(), points.end(),
                      [](const TDataPoint& a, const TDataPoint& b) { return a.fXVal < b.fXVal; });
        CWalker(points, Scale).ExpectSame(Plot);
        if (HasFailure())
            return;
    }
}

TEST(ColumnWalk, HostileScalesEqualThePlainWalk)
{
    const auto points = EvenPoints(300, -20, 0.5);
    for (const auto& [low, high] :
         {std::pair{10.0, 10.0}, std::pair{90.0, 10.0}, std::pair{-Infinity, Infinity},
          std::pair{std::nan(""), 1.0}, std::pair{-1e308, 1e308}, std::pair{0.0, 5e-324},
          std::pair{0.0, 1e300}, std::pair{1.0, Infinity}, std::pair{1.0, std::nextafter(1.0, 2.0)}}) {
        for (const int length : {400, 1, 0, -7}) {
            CWalker(points, {.fMin = low, .fMax = high, .nLength = length, .nOrigin = 100})
                .ExpectSame(Plot);
            CWalker(points, {.fMin = low, .fMax = high, .nLength = length, .nOrigin = 100, .bLog = true})
                .ExpectSame(Plot);
        }
    }
}

TEST(ColumnWalk, AVerticalScaleEqualsThePlainWalk)
{
    const TScale up{.fMin = 0, .fMax = 100, .nLength = 400, .nOrigin = 500, .bVertical = true};
    CWalker(EvenPoints(300, -20, 0.5), up).ExpectSame(Plot);
}

TEST(ColumnWalk, AnyColumnsOfInterestEqualThePlainWalk)
{
    const CWalker walker(EvenPoints(400, -30, 0.5), Scale);
    for (const TColumns visible :
         {TColumns{INT32_MIN, INT32_MAX}, TColumns{INT32_MIN, 100}, TColumns{300, INT32_MAX},
          TColumns{200, 200}, TColumns{INT32_MAX, INT32_MAX}})
        walker.ExpectSame(visible);
}

constexpr TScale LogScale{.fMin = 0.01, .fMax = 1000, .nLength = 400, .nOrigin = 100, .bLog = true};

// Even on the screen, so that each column has as many points.
std::vector<TDataPoint> GrowingPoints(int count, double from, double factor)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < count; ++i, from *= factor)
        points.push_back({from, 0.5 + 0.4 * std::sin(i * 0.7)});
    return points;
}

TEST(ColumnWalk, LogarithmicCurvesEqualThePlainWalk)
{
    for (const double factor : {1.00001, 1.0007, 1.01, 1.3, 9.0})
        CWalker(GrowingPoints(20000, 1e-4, factor), LogScale).ExpectSame(Plot);
    for (const double step : {1e-4, 0.013, 1.0, 61.0})
        CWalker(EvenPoints(20000, -200 * step, step), LogScale).ExpectSame(Plot);
}

TEST(ColumnWalk, LogarithmicCurvesOnTheEdgesOfColumnsEqualThePlainWalk)
{
    // Every value whose place is a whole pixel, and its neighbours to both sides.
    std::vector<TDataPoint> points;
    for (int pixel = -40; pixel <= 440; ++pixel) {
        double value = std::pow(10.0, -2 + pixel / 400.0 * 5);
        for (int i = 0; i < 20; ++i)
            value = std::nextafter(value, 0.0);
        for (int i = 0; i < 41; ++i, value = std::nextafter(value, Infinity))
            points.push_back({value, 0.001 * i});
    }
    const CWalker walker(points, LogScale);
    for (const TColumns visible : {Plot, TColumns{INT32_MIN, INT32_MAX}, TColumns{-5, 3},
                                   TColumns{200, 200}, TColumns{INT32_MIN, 99}})
        walker.ExpectSame(visible);
}

TEST(ColumnWalk, ZoomedAndShiftedLogarithmicCurvesEqualThePlainWalk)
{
    const auto points = GrowingPoints(30000, 1e-3, 1.0005);
    for (const int origin : {-700, -1, 0, 1, 100}) {
        for (const double high : {0.011, 0.02, 1.0, 1e9, 1e300})
            CWalker(points,
                    {.fMin = 0.01, .fMax = high, .nLength = 400, .nOrigin = origin, .bLog = true})
                .ExpectSame({origin, origin + 400});
    }
}

TEST(ColumnWalk, RandomLogarithmicCurvesEqualThePlainWalk)
{
    std::mt19937 random(12);
    const double specials[] = {Infinity, -Infinity, std::nan(""), 1e308, -1.0, 5e-324, 0.0, -0.0};
    for (int round = 0; round < 3000; ++round) {
        std::vector<TDataPoint> points(1 + random() % 300);
        const double spread = 1 + random() % 6;
        for (TDataPoint& point : points) {
            point.fXVal = std::pow(10.0, (random() % 2001 / 1000.0 - 1) * spread);
            if (random() % 3 == 0)
                point.fXVal = 1 + random() % 3; // many alike
            point.fYVal = random() % 1001 / 1000.0;
            if (random() % 50 == 0)
                point.fXVal = specials[random() % 8];
        }
        if (round % 2 == 0)
            std::sort(points.begin(), points.end(),
                      [](const TDataPoint& a, const TDataPoint& b) { return a.fXVal < b.fXVal; });
        CWalker(points, LogScale).ExpectSame(Plot);
        if (HasFailure())
            return;
    }
}

TEST(ColumnWalk, ABandHoldsOnlyValuesOfItsColumns)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        const TScale scale{.fMin = std::pow(10.0, static_cast<int>(random() % 600) - 300.0),
                           .fMax = std::pow(10.0, static_cast<int>(random() % 600) - 300.0),
                           .nLength = static_cast<std::int32_t>(random() % 3000),
                           .nOrigin = static_cast<std::int32_t>(random() % 200) - 100,
                           .bLog = true};
        const CMapper x(scale);
        const auto first = static_cast<std::int32_t>(random() % 1000) - 300;
        const TColumns columns{random() % 5 == 0 ? INT32_MIN : first,
                               random() % 5 == 0 ? INT32_MAX : first + static_cast<int>(random() % 3)};
        const ColumnWalk::TBand band = ColumnWalk::SureBand(x, columns);
        if (!(band.fLow <= band.fHigh))
            continue;
        const double low = std::isfinite(band.fLow) ? band.fLow : -5.0;
        for (const double value : {low, std::nextafter(low, Infinity), low / 2 + band.fHigh / 2,
                                   std::nextafter(band.fHigh, 0.0), band.fHigh}) {
            ASSERT_TRUE(columns.Contains(x.Pixel(value))) << value << " on " << x.Pixel(value) << " of "
                                                          << columns.nFirst << " to " << columns.nLast;
        }
    }
    // Wide enough to be of use: most of a column.
    const CMapper x(LogScale);
    const ColumnWalk::TBand band = ColumnWalk::SureBand(x, {300, 300});
    EXPECT_NEAR(x.Place(band.fLow), 300, 1e-6);
    EXPECT_NEAR(x.Place(band.fHigh), 301, 1e-6);
}

} // namespace

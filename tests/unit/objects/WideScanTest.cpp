// The wide scans against the loops point by point, on random and extreme values.

#include "objects/WideScan.h"

#include <gtest/gtest.h>

#include "objects/AxisMapping.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace
{

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

class WideScans : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!WideScan::IsAvailable())
            GTEST_SKIP() << "this processor has no wide registers";
    }
    // Mostly within 0 to 10; now and then what is no such number.
    double Draw()
    {
        static constexpr double specials[] = {Nan,    Infinity, -Infinity, 0.0,      -0.0,
                                              5e-324, -5e-324,  DBL_MAX,   -DBL_MAX, 2147483648.0};
        if (m_random() % 60 == 0)
            return specials[m_random() % std::size(specials)];
        return static_cast<double>(m_random()) / 4294967296.0 * 10;
    }
    std::vector<TDataPoint> Points()
    {
        std::vector<TDataPoint> points(m_random() % 90);
        for (TDataPoint& point : points)
            point = {Draw(), Draw()};
        return points;
    }
    // Whole turns that pass, from an index up.
    template <class Passes>
    static std::size_t Up(const std::vector<TDataPoint>& points, std::size_t from, Passes passes)
    {
        std::size_t end = from;
        while (end < points.size() && passes(points[end].fXVal))
            ++end;
        return from + (end - from) / WideScan::Turn * WideScan::Turn;
    }
    std::mt19937 m_random{2026};
};

} // namespace

TEST_F(WideScans, ColumnsAreThoseOfTheMapping)
{
    for (int round = 0; round < 20000; ++round) {
        const std::vector<TDataPoint> points = Points();
        const std::size_t from = points.empty() ? 0 : m_random() % points.size();
        const AxisMapping::TScale scale{.fMin = Draw(),
                                        .fMax = Draw(),
                                        .nLength = static_cast<std::int32_t>(m_random() % 900),
                                        .nOrigin = static_cast<std::int32_t>(m_random() % 100)};
        const AxisMapping::CMapper x(scale);
        const auto first = static_cast<std::int32_t>(m_random() % 400);
        const WideScan::TColumnTest test{x.Start(), x.Factor(), x.Origin(),
                                         m_random() % 4 == 0 ? INT32_MIN : first,
                                         m_random() % 4 == 0 ? INT32_MAX : first + 500};
        const std::size_t expected = Up(points, from, [&](double value) {
            const std::int32_t pixel = x.Pixel(value);
            return test.nFirst <= pixel && pixel <= test.nLast;
        });
        ASSERT_EQ(WideScan::SkipColumns(points, from, test), expected) << "round " << round;
    }
}

TEST_F(WideScans, BoundsBelongToTheValuesWithinThem)
{
    for (int round = 0; round < 20000; ++round) {
        const std::vector<TDataPoint> points = Points();
        const std::size_t from = points.empty() ? 0 : m_random() % points.size();
        const double low = m_random() % 3 == 0 ? -Infinity : Draw();
        const double high = m_random() % 2 == 0 ? 9.9 : Draw();
        const std::size_t expected =
            Up(points, from, [&](double value) { return low <= value && value <= high; });
        ASSERT_EQ(WideScan::SkipWithin(points, from, low, high), expected) << "round " << round;
    }
}

TEST_F(WideScans, DownwardsATurnEndsAtTheIndexAndTheBoundIsNotAboveItself)
{
    for (int round = 0; round < 20000; ++round) {
        const std::vector<TDataPoint> points = Points();
        if (points.empty())
            continue;
        const std::size_t from = m_random() % points.size();
        const double bound = m_random() % 2 == 0 ? 0.1 : points[m_random() % points.size()].fXVal;
        std::size_t expected = from;
        const auto passes = [&](std::size_t last) {
            for (std::size_t i = 0; i < WideScan::Turn; ++i) {
                if (!(points[last - i].fXVal > bound))
                    return false;
            }
            return true;
        };
        while (expected >= WideScan::Turn && passes(expected))
            expected -= WideScan::Turn;
        ASSERT_EQ(WideScan::SkipDownAbove(points, from, bound), expected) << "round " << round;
    }
}

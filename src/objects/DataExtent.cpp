#include "objects/DataExtent.h"

#include <algorithm>
#include <emmintrin.h>

namespace DataExtent
{

namespace
{

// Several lanes find a bound in another order than the plain walk. That shows in one case
// only: a bound of zero has the sign of the zero that came first.
double FirstZero(double bound, double start, std::span<const TDataPoint> points,
                 double TDataPoint::*coordinate) noexcept
{
    if (bound != 0.0 || start == 0.0)
        return bound;
    // A bound other than the start came from a point.
    return (*std::find_if(points.begin(), points.end(),
                          [coordinate](const TDataPoint& point) { return point.*coordinate == 0.0; })).*
           coordinate;
}

struct Lanes {
    __m128d low;
    __m128d high;

    // The instruction keeps its second operand where one is not a number or both are equal,
    // exactly as "if (value > bound) bound = value" does.
    void Widen(__m128d point) noexcept
    {
        low = _mm_min_pd(point, low);
        high = _mm_max_pd(point, high);
    }
};

} // namespace

TDataExtent WidenPlain(TDataExtent start, std::span<const TDataPoint> points) noexcept
{
    TDataExtent extent = start;
    for (const TDataPoint& point : points) {
        if (point.fXVal > extent.fMaxX)
            extent.fMaxX = point.fXVal;
        if (point.fXVal < extent.fMinX)
            extent.fMinX = point.fXVal;
        if (point.fYVal > extent.fMaxY)
            extent.fMaxY = point.fYVal;
        if (point.fYVal < extent.fMinY)
            extent.fMinY = point.fYVal;
    }
    return extent;
}

TDataExtent Widen(TDataExtent start, std::span<const TDataPoint> points) noexcept
{
    constexpr std::size_t count = 4;
    const Lanes first{_mm_setr_pd(start.fMinX, start.fMinY), _mm_setr_pd(start.fMaxX, start.fMaxY)};
    Lanes lanes[count] = {first, first, first, first};

    std::size_t i = 0;
    for (; i + count <= points.size(); i += count) {
        for (std::size_t lane = 0; lane < count; ++lane)
            lanes[lane].Widen(_mm_loadu_pd(&points[i + lane].fXVal));
    }
    for (; i < points.size(); ++i)
        lanes[0].Widen(_mm_loadu_pd(&points[i].fXVal));
    for (std::size_t lane = 1; lane < count; ++lane) {
        lanes[0].low = _mm_min_pd(lanes[lane].low, lanes[0].low);
        lanes[0].high = _mm_max_pd(lanes[lane].high, lanes[0].high);
    }

    double low[2];
    double high[2];
    _mm_storeu_pd(low, lanes[0].low);
    _mm_storeu_pd(high, lanes[0].high);
    return {FirstZero(low[0], start.fMinX, points, &TDataPoint::fXVal),
            FirstZero(high[0], start.fMaxX, points, &TDataPoint::fXVal),
            FirstZero(low[1], start.fMinY, points, &TDataPoint::fYVal),
            FirstZero(high[1], start.fMaxY, points, &TDataPoint::fYVal)};
}

TDataExtent Widen(TDataExtent start, const TDataExtent& other) noexcept
{
    if (other.fMaxX > start.fMaxX)
        start.fMaxX = other.fMaxX;
    if (other.fMinX < start.fMinX)
        start.fMinX = other.fMinX;
    if (other.fMaxY > start.fMaxY)
        start.fMaxY = other.fMaxY;
    if (other.fMinY < start.fMinY)
        start.fMinY = other.fMinY;
    return start;
}

} // namespace DataExtent

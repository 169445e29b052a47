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
    void Widen(const TDataPoint& point) noexcept { Widen(_mm_loadu_pd(&point.fXVal)); }
    void Widen(const Lanes& other) noexcept
    {
        low = _mm_min_pd(other.low, low);
        high = _mm_max_pd(other.high, high);
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
    // By name rather than in an array, which the compiler would keep in memory.
    Lanes a{_mm_setr_pd(start.fMinX, start.fMinY), _mm_setr_pd(start.fMaxX, start.fMaxY)};
    Lanes b = a;
    Lanes c = a;
    Lanes d = a;

    std::size_t i = 0;
    for (; i + 4 <= points.size(); i += 4) {
        a.Widen(points[i]);
        b.Widen(points[i + 1]);
        c.Widen(points[i + 2]);
        d.Widen(points[i + 3]);
    }
    for (; i < points.size(); ++i)
        a.Widen(points[i]);
    a.Widen(b);
    a.Widen(c);
    a.Widen(d);

    double low[2];
    double high[2];
    _mm_storeu_pd(low, a.low);
    _mm_storeu_pd(high, a.high);
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

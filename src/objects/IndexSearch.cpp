#include "objects/IndexSearch.h"

#include "base/Trunc.h"
#include "objects/WideScan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <emmintrin.h>
#include <limits>

namespace IndexSearch
{

namespace
{

int GuessIndex(std::span<const TDataPoint> points, double x) noexcept
{
    const double spacing = std::fabs(points[1].fXVal - points[0].fXVal);
    const int guess = Trunc((x - points[0].fXVal) / spacing);
    return std::clamp(guess, 0, static_cast<int>(points.size()) - 1);
}

// Long walks go by blocks, whose points are tested without a branch.
constexpr int Block = 16;

template <class Condition> bool HoldsInBlock(const TDataPoint* block, Condition condition) noexcept
{
    unsigned holds = 1;
    for (int i = 0; i < Block; ++i)
        holds &= static_cast<unsigned>(condition(block[i].fXVal));
    return holds != 0;
}

} // namespace

int FindIndexForX(std::span<const TDataPoint> points, double x) noexcept
{
    if (points.size() < 2)
        return 0;
    const int count = static_cast<int>(points.size());
    int index = GuessIndex(points, x);
    if (points[index].fXVal > x) {
        const auto isPast = [x](double value) { return value > x; };
        if (WideScan::IsAvailable())
            index =
                static_cast<int>(WideScan::SkipDownAbove(points, static_cast<std::size_t>(index), x));
        while (index >= Block && HoldsInBlock(&points[index - Block + 1], isPast))
            index -= Block;
        while (index > 0 && isPast(points[index].fXVal))
            --index;
    } else {
        const auto isNotPast = [x](double value) { return x >= value; };
        if (WideScan::IsAvailable())
            index = static_cast<int>(WideScan::SkipWithin(points, static_cast<std::size_t>(index),
                                                          -std::numeric_limits<double>::infinity(), x));
        while (count - index >= Block && HoldsInBlock(&points[index], isNotPast))
            index += Block;
        while (index < count && isNotPast(points[index].fXVal))
            ++index;
    }
    return index;
}

int FindIndexForXAscending(std::span<const TDataPoint> points, double x) noexcept
{
    if (points.size() < 2)
        return 0;
    const int guess = GuessIndex(points, x);
    const auto first = points.begin();
    if (points[guess].fXVal > x) {
        const auto past = std::partition_point(first, first + guess,
                                               [x](const TDataPoint& p) { return !(p.fXVal > x); });
        return past == first ? 0 : static_cast<int>(past - first) - 1;
    }
    const auto past = std::partition_point(first + guess, points.end(),
                                           [x](const TDataPoint& p) { return x >= p.fXVal; });
    return static_cast<int>(past - first);
}

bool IsAscending(std::span<const TDataPoint> points) noexcept
{
    // What is not a number equals nothing, not even itself.
    if (points.empty() || !(points[0].fXVal == points[0].fXVal))
        return false;
    constexpr std::size_t block = 1024;
    __m128d last = _mm_loadu_pd(&points[0].fXVal);
    for (std::size_t start = 1; start < points.size(); start += block) {
        const std::size_t end = std::min(start + block, points.size());
        __m128d ordered = _mm_cmpeq_pd(_mm_setzero_pd(), _mm_setzero_pd());
        for (std::size_t i = start; i < end; ++i) {
            const __m128d point = _mm_loadu_pd(&points[i].fXVal); // y, too, which is not asked
            ordered = _mm_and_pd(ordered, _mm_cmple_pd(last, point));
            last = point;
        }
        if ((_mm_movemask_pd(ordered) & 1) == 0)
            return false;
    }
    return true;
}

} // namespace IndexSearch

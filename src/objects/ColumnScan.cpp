#include "objects/ColumnScan.h"

#include "objects/WideScan.h"

#include <algorithm>
#include <bit>
#include <emmintrin.h>

namespace ColumnWalk
{

namespace
{

// First index in [from, to) for which `holds` is false, given that it never turns true again.
template <class Holds> std::size_t FirstFailing(std::size_t from, std::size_t to, Holds&& holds) noexcept
{
    while (from < to) {
        const std::size_t middle = from + (to - from) / 2;
        if (holds(middle))
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}

} // namespace

std::size_t CColumnScan::FirstOutside(std::size_t from, TColumns columns) const noexcept
{
    std::size_t index = m_x.IsLinearHorizontal() ? FirstOutsideLinear(from, columns) : from;
    while (index < m_points.size() && columns.Contains(m_x.Pixel(m_points[index].fXVal)))
        ++index;
    return index;
}

// By the very operations of the mapping, several points a turn. Ends at most four in front of the
// answer.
std::size_t CColumnScan::FirstOutsideLinear(std::size_t from, TColumns columns) const noexcept
{
    // Most runs are shorter than it takes the wide registers to pay.
    constexpr std::size_t nNear = 32;
    const std::size_t end = m_points.size();
    const std::size_t close = from + std::min(nNear, end - from);
    from = SkipFours(from, close, columns);
    if (from + 4 <= close)
        return from;
    if (WideScan::IsAvailable())
        from = WideScan::SkipColumns(
            m_points, from, {m_x.Start(), m_x.Factor(), m_x.Origin(), columns.nFirst, columns.nLast});
    return SkipFours(from, end, columns);
}

// Past the whole fours, up to an end, that lie in the columns.
std::size_t CColumnScan::SkipFours(std::size_t from, std::size_t to, TColumns columns) const noexcept
{
    const __m128d start = _mm_set1_pd(m_x.Start());
    const __m128d factor = _mm_set1_pd(m_x.Factor());
    const __m128d origin = _mm_set1_pd(m_x.Origin());
    const __m128i first = _mm_set1_epi32(columns.nFirst);
    const __m128i last = _mm_set1_epi32(columns.nLast);
    const auto pixels = [&](const TDataPoint* pair) {
        const __m128d values =
            _mm_unpacklo_pd(_mm_loadu_pd(&pair[0].fXVal), _mm_loadu_pd(&pair[1].fXVal));
        return _mm_cvttpd_epi32(_mm_add_pd(_mm_mul_pd(factor, _mm_sub_pd(values, start)), origin));
    };
    for (; from + 4 <= to; from += 4) {
        const TDataPoint* four = &m_points[from];
        const __m128i column = _mm_unpacklo_epi64(pixels(four), pixels(four + 2));
        const __m128i outside =
            _mm_or_si128(_mm_cmplt_epi32(column, first), _mm_cmpgt_epi32(column, last));
        if (_mm_movemask_epi8(outside) != 0)
            break;
    }
    return from;
}

std::size_t CColumnScan::RunStart(std::size_t from, std::size_t index) const noexcept
{
    const std::int32_t column = m_x.Pixel(m_points[index].fXVal);
    while (index > from && m_x.Pixel(m_points[index - 1].fXVal) == column)
        --index;
    return index;
}

std::size_t CColumnSearch::FirstOutside(std::size_t from, TColumns columns) noexcept
{
    const auto isIn = [&](std::size_t index) { return columns.Contains(ColumnAt(index)); };
    const std::size_t guess = from + std::min(m_nRun, m_points.size() - from);
    std::size_t low = from; // all in front of it are in the columns
    std::size_t high = guess;
    // Growing strides, as the answer is mostly near: on from the guess, or back.
    std::size_t stride = 1;
    if (guess == m_points.size() || !isIn(guess)) {
        while (high > low) {
            const std::size_t before = high - std::min(stride, high - low);
            if (isIn(before)) {
                low = before + 1;
                break;
            }
            high = before;
            stride *= 2;
        }
    } else {
        while (high < m_points.size() && isIn(high)) {
            low = high + 1;
            high += std::min(stride, m_points.size() - high);
            stride *= 2;
        }
    }
    const std::size_t found = FirstFailing(low, high, isIn);
    m_nRun = found - from;
    return found;
}

std::size_t CColumnSearch::RunStart(std::size_t from, std::size_t index) const noexcept
{
    const std::int32_t column = ColumnAt(index);
    return FirstFailing(from, index, [&](std::size_t before) { return ColumnAt(before) != column; });
}

std::size_t CountWithColumn(std::span<const TDataPoint> points, const AxisMapping::CMapper& x) noexcept
{
    return FirstFailing(0, points.size(),
                        [&](std::size_t index) { return x.Place(points[index].fXVal) < 2147483648.0; });
}

} // namespace ColumnWalk

#include "objects/WideScan.h"

#include <immintrin.h>

// The compiler's stack on Windows doesn't hold such registers where they have to lie, so nothing
// here may have more values than there are registers: each function is one small loop, and without
// optimisation, which keeps everything on the stack, there is none.
#if defined(__OPTIMIZE__)
#define WIDE_SCAN 1
#else
#define WIDE_SCAN 0
#endif

#define WIDE __attribute__((target("avx2")))

namespace WideScan
{

namespace
{

constexpr int AllFour = 15;

// The x of four points, in the order 0 2 1 3.
WIDE inline __attribute__((always_inline)) __m256d FourX(const TDataPoint* point) noexcept
{
    return _mm256_unpacklo_pd(_mm256_loadu_pd(&point[0].fXVal), _mm256_loadu_pd(&point[2].fXVal));
}

WIDE inline __attribute__((always_inline)) bool AreWithin(const TDataPoint* point, __m256d low,
                                                          __m256d high) noexcept
{
    const __m256d lower = FourX(point);
    const __m256d upper = FourX(point + 4);
    const __m256d above =
        _mm256_and_pd(_mm256_cmp_pd(lower, low, _CMP_GE_OQ), _mm256_cmp_pd(upper, low, _CMP_GE_OQ));
    const __m256d below =
        _mm256_and_pd(_mm256_cmp_pd(lower, high, _CMP_LE_OQ), _mm256_cmp_pd(upper, high, _CMP_LE_OQ));
    return _mm256_movemask_pd(_mm256_and_pd(above, below)) == AllFour;
}

} // namespace

bool IsAvailable() noexcept
{
    static const bool available = WIDE_SCAN && __builtin_cpu_supports("avx2") != 0;
    return available;
}

WIDE std::size_t SkipColumns(std::span<const TDataPoint> points, std::size_t from,
                             const TColumnTest& test) noexcept
{
    const __m256d start = _mm256_set1_pd(test.fStart);
    const __m256d factor = _mm256_set1_pd(test.fFactor);
    const __m256d origin = _mm256_set1_pd(test.fOrigin);
    const __m128i first = _mm_set1_epi32(test.nFirst);
    const __m128i last = _mm_set1_epi32(test.nLast);
    for (; from + Turn <= points.size(); from += Turn) {
        const TDataPoint* point = &points[from];
        const __m128i lower = _mm256_cvttpd_epi32(
            _mm256_add_pd(_mm256_mul_pd(factor, _mm256_sub_pd(FourX(point), start)), origin));
        const __m128i upper = _mm256_cvttpd_epi32(
            _mm256_add_pd(_mm256_mul_pd(factor, _mm256_sub_pd(FourX(point + 4), start)), origin));
        const __m128i before =
            _mm_or_si128(_mm_cmplt_epi32(lower, first), _mm_cmplt_epi32(upper, first));
        const __m128i behind = _mm_or_si128(_mm_cmpgt_epi32(lower, last), _mm_cmpgt_epi32(upper, last));
        if (_mm_movemask_epi8(_mm_or_si128(before, behind)) != 0)
            break;
    }
    return from;
}

WIDE std::size_t SkipWithin(std::span<const TDataPoint> points, std::size_t from, double fLow,
                            double fHigh) noexcept
{
    const __m256d low = _mm256_set1_pd(fLow);
    const __m256d high = _mm256_set1_pd(fHigh);
    while (from + Turn <= points.size() && AreWithin(&points[from], low, high))
        from += Turn;
    return from;
}

WIDE std::size_t SkipDownAbove(std::span<const TDataPoint> points, std::size_t from,
                               double fBound) noexcept
{
    const __m256d bound = _mm256_set1_pd(fBound);
    while (from >= Turn) {
        const TDataPoint* point = &points[from - (Turn - 1)];
        const __m256d above = _mm256_and_pd(_mm256_cmp_pd(FourX(point), bound, _CMP_GT_OQ),
                                            _mm256_cmp_pd(FourX(point + 4), bound, _CMP_GT_OQ));
        if (_mm256_movemask_pd(above) != AllFour)
            break;
        from -= Turn;
    }
    return from;
}

} // namespace WideScan

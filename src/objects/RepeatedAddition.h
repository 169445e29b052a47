#pragma once
// Sums of one step added over and over to zero, rounding errors included.
//
// Why such a row can be jumped: within one binade [2^e, 2^(e+1)) all sums are multiples of
// one spacing u, and each is the last one plus the step, rounded to u. With
// step = q u + r the row grows by q u for r < u/2 and by (q+1) u for r > u/2. For r = u/2
// the tie goes to the even multiple: after one such addition the sum is even, and from there
// it grows by whichever of q u and (q+1) u is even. So from the second sum of a binade on
// the growth is constant, and every further sum below the binade's end is exact.

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

namespace RepeatedAddition
{

// Largest sum of the row that is at most `limit`. The row ends where it stops growing.
template <std::floating_point Real> [[nodiscard]] Real LastSumPlain(Real limit, Real step) noexcept
{
    Real sum = 0;
    while (limit >= sum + step && sum + step > sum)
        sum = sum + step;
    return sum;
}

namespace Details
{

// `sum` is a sum of the row. Returns a later one of its binade that is at most `limit`, or
// `sum` itself.
template <std::floating_point Real>
[[nodiscard]] Real SkipWithinBinade(Real sum, Real step, Real limit) noexcept
{
    using Limits = std::numeric_limits<Real>;
    int exponent = 0; // of the binade's end
    std::frexp(sum, &exponent);
    // Below the smallest normal number the spacing doesn't shrink on.
    exponent = std::max(exponent, Limits::min_exponent);
    const Real end =
        exponent > Limits::max_exponent - 1 ? Limits::infinity() : std::ldexp(Real(1), exponent);
    const Real spacing = std::ldexp(Real(1), exponent - Limits::digits);

    const Real second = sum + step;
    const Real third = second + step;
    if (!(third < end) || !(third <= limit) || !(third > second))
        return sum;
    const Real last = std::min(limit, std::nextafter(end, Real(0)));
    const auto room = static_cast<std::uint64_t>((last - second) / spacing);
    const auto growth = static_cast<std::uint64_t>((third - second) / spacing);
    const std::uint64_t steps = room / growth;
    return second + static_cast<Real>(steps * growth) * spacing;
}

} // namespace Details

// The same, in a time that depends on the number of binades alone.
template <std::floating_point Real> [[nodiscard]] Real LastSum(Real limit, Real step) noexcept
{
    Real sum = 0;
    while (limit >= sum + step && sum + step > sum)
        sum = Details::SkipWithinBinade(sum + step, step, limit);
    return sum;
}

} // namespace RepeatedAddition

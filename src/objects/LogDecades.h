#pragma once
// Bounds and ticks of logarithmic scales, found by walking decades with repeated products
// and the steps of a decade with repeated sums, so that bounds and ticks agree to the bit.

namespace LogDecades
{

inline constexpr double LowestLower = 1e-16;
inline constexpr double LowestUpper = 1e-15;

// Bounds as a logarithmic scale takes them: equal ones a decade apart on each side, then
// nothing under the lowest.
void FloorBounds(double& lower, double& upper) noexcept;

// Brings each bound to the step of its decade (350 goes to 300 below and to 400 above), a bound
// that is a step moving on only where `strict` is set, and only above. Bounds in the last
// tenth of a decade stay.
void WalkBounds(double& lower, double& upper, bool strict) noexcept;

// WalkBounds without `strict`, then outward to whole decades.
void AutoScale(double& lower, double& upper) noexcept;

// First decade of the ticks of a range, and the decade that ends them.
struct TDecades {
    double fFirst;
    double fEnd;
};
[[nodiscard]] TDecades DecadesOf(double lower, double upper) noexcept;

// Calls visit(value, isDecade) for every step of every decade that lies within the bounds.
// Bounds without a logarithm have no ticks.
template <class Visit> void WalkTicks(double lower, double upper, Visit&& visit)
{
    const TDecades decades = DecadesOf(lower, upper);
    if (!(decades.fFirst > 0))
        return;
    for (double decade = decades.fFirst; decade < decades.fEnd; decade *= 10) {
        for (double value = decade; value < 10 * decade; value += decade) {
            if (lower <= value && value <= upper)
                visit(value, value == decade);
        }
    }
}

} // namespace LogDecades

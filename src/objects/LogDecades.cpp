#include "objects/LogDecades.h"

#include <cmath>
#include <optional>

namespace LogDecades
{

namespace
{

struct TStep {
    double fValue;  // the first step at or past the bound
    double fDecade; // the decade that it belongs to
};

std::optional<TStep> FindStep(double bound, bool strict) noexcept
{
    for (double decade = LowestLower; bound > decade; decade *= 10) {
        for (double value = decade; value < 10 * decade; value += decade) {
            if (strict ? value > bound : value >= bound)
                return TStep{value, decade};
        }
    }
    return std::nullopt;
}

} // namespace

void FloorBounds(double& lower, double& upper) noexcept
{
    if (lower == upper) {
        lower *= 0.1;
        upper *= 10.0;
    }
    if (lower < LowestLower)
        lower = LowestLower;
    if (upper < LowestUpper)
        upper = LowestUpper;
}

void WalkBounds(double& lower, double& upper, bool strict) noexcept
{
    if (const auto step = FindStep(lower, strict))
        lower = step->fValue - step->fDecade;
    if (const auto step = FindStep(upper, strict))
        upper = step->fValue;
}

void AutoScale(double& lower, double& upper) noexcept
{
    WalkBounds(lower, upper, false);
    lower = std::pow(10.0, std::floor(std::log10(lower)));
    upper = std::pow(10.0, std::ceil(std::log10(upper)));
}

TDecades DecadesOf(double lower, double upper) noexcept
{
    return {std::pow(10.0, std::floor(std::log10(lower))), std::pow(10.0, std::ceil(std::log10(upper)))};
}

} // namespace LogDecades

#include "objects/TickSteps.h"

#include "base/Trunc.h"
#include "objects/RepeatedAddition.h"

#include <algorithm>
#include <cmath>

namespace TickSteps
{

namespace
{

// Brings a positive value into [1, 10) by repeated products and returns the decimal exponent.
int SplitDecimal(double& value) noexcept
{
    int count = 0;
    if (value >= 1) {
        while (value >= 1) {
            value *= 0.1;
            ++count;
        }
        value *= 10;
        return count - 1;
    }
    while (value < 1) {
        value *= 10;
        --count;
    }
    return count;
}

// Of 1 to 10.
double RoundUpMantissa(double mantissa) noexcept
{
    for (const double bound : {1.0, 2.0, 5.0}) {
        if (mantissa <= bound)
            return bound;
    }
    return 10.0;
}

} // namespace

bool CalcNiceStep(int n, double lower, double upper, double& step) noexcept
{
    double mantissa = (upper - lower) / n;
    if (!(mantissa > 0) || !std::isfinite(mantissa))
        return false;
    const int exponent = SplitDecimal(mantissa);
    const double nice = std::pow(10.0, exponent) * Trunc(RoundUpMantissa(mantissa));
    step = nice == 0 ? 0.1 : nice;
    return true;
}

double FloatRemainder(double x, double y) noexcept
{
    const double sum = RepeatedAddition::LastSum(std::fabs(x), y);
    return x < 0 ? sum + x : x - sum;
}

namespace
{

// The bound moved by the remainder; as it was where the sums of the step stall before they
// reach it, or where the remainder is no number.
double Moved(double bound, double remainder, double by, double step) noexcept
{
    const bool reached = std::fabs(remainder) <= 2 * step;
    return remainder != 0 && reached ? bound - by : bound;
}

} // namespace

void AdjustRange(double& lower, double& upper, double step) noexcept
{
    const double below = FloatRemainder(lower - step, step);
    lower = Moved(lower, below, below + step, step);
    const double above = FloatRemainder(step + upper, step);
    upper = Moved(upper, above, above - step, step);
}

int TickCount(int room, int labelSize) noexcept
{
    return std::max(Trunc(static_cast<double>(room) / labelSize), 2);
}

} // namespace TickSteps

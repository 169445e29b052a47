#include "objects/DateTimeSteps.h"

#include "base/Trunc.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace DateTimeSteps
{

namespace
{

constexpr double SecondsADay = 86400.0;
constexpr double HalfSecond = 5.787037037037037e-6;

constexpr int Steps[] = {1,        2,        5,         10,        15,        20,        30,
                         60,       120,      300,       600,       900,       1800,      3600,
                         7200,     14400,    28800,     36000,     43200,     86400,     172800,
                         345600,   604800,   1209600,   2419200,   4838400,   7257600,   15724800,
                         31449600, 62899200, 157248000, 314496000, 628992000, 1572480000};

// Days from the origin as a plain number line.
double Unfold(double date) noexcept
{
    return date < 0 ? std::ceil(date) - (date - std::ceil(date)) : date;
}

// Whether a count of seconds fits into 64 bits with room to spare.
bool Countable(double seconds) noexcept
{
    return std::fabs(seconds) < 0x1p62;
}

double FromEpoch(std::uint32_t seconds) noexcept
{
    return seconds / 24.0 / 3600.0 + Epoch;
}

} // namespace

double WholeSeconds(double from, double to) noexcept
{
    const double span = Unfold(to) - Unfold(from);
    return std::trunc((span + (span < 0 ? -HalfSecond : HalfSecond)) * SecondsADay);
}

bool CalcDateTimeStep(int n, double lower, double upper, double& step) noexcept
{
    const double seconds = WholeSeconds(lower, upper);
    if (!std::isfinite(seconds))
        return false;
    double perTick = n <= 0 ? 0.0 : seconds / n;
    if (perTick > 0) {
        for (const int candidate : Steps) {
            if (perTick <= candidate) {
                perTick = candidate;
                break;
            }
        }
    }
    step = perTick / SecondsADay;
    return true;
}

void AdjustDateTimeRange(double& lower, double& upper, double step) noexcept
{
    const double exact = step * SecondsADay;
    if (!(exact > 0))
        return;
    // In 32 bits: a step of 68 years and more is the smallest int.
    const std::int64_t seconds = Trunc(exact);
    const auto unit = static_cast<std::uint32_t>(seconds);
    if (unit == 0)
        return;

    const double toLower = WholeSeconds(Epoch, lower);
    if (Countable(toLower)) {
        const auto whole = static_cast<std::int64_t>(toLower);
        if ((whole - seconds) % seconds != 0)
            lower = FromEpoch(unit * (static_cast<std::uint32_t>(whole) / unit));
    }
    const double toUpper = WholeSeconds(Epoch, upper);
    if (Countable(toUpper)) {
        const auto whole = static_cast<std::int64_t>(toUpper);
        if ((whole - seconds) % seconds != 0)
            upper = FromEpoch((static_cast<std::uint32_t>(whole) / unit + 1) * unit);
    }
}

} // namespace DateTimeSteps

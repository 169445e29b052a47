#include "dialogs/TimeUnits.h"

#include "base/Trunc.h"

namespace
{
constexpr double HalfSecond = 5.787037037037037e-6; // in days

bool IsAboveAndMultiple(int nSeconds, int nUnitSeconds)
{
    return nSeconds > nUnitSeconds && nSeconds % nUnitSeconds == 0;
}
} // namespace

TimeUnits::TStep TimeUnits::Split(double fDays) noexcept
{
    const int nSeconds = Trunc((fDays + (fDays < 0 ? -HalfSecond : HalfSecond)) * 86400.0);
    if (IsAboveAndMultiple(nSeconds, 86400))
        return {static_cast<unsigned>(nSeconds / 86400), Days};
    if (IsAboveAndMultiple(nSeconds, 1440))
        return {static_cast<unsigned>(nSeconds / 1440), Hours};
    if (IsAboveAndMultiple(nSeconds, 60))
        return {static_cast<unsigned>(nSeconds / 60), Minutes};
    return {static_cast<unsigned>(nSeconds), Seconds};
}

double TimeUnits::InDays(TStep step) noexcept
{
    double fUnitSeconds = 1;
    if (step.nUnit == Days)
        fUnitSeconds = 86400;
    else if (step.nUnit == Hours)
        fUnitSeconds = 3600;
    else if (step.nUnit == Minutes)
        fUnitSeconds = 60;
    return step.nCount * fUnitSeconds / 86400.0;
}

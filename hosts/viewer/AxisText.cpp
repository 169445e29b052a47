#include "viewer/AxisText.h"

#include "viewer/CellValue.h"
#include "viewer/PlainText.h"

#include <algorithm>
#include <cmath>

namespace Viewer
{
namespace
{

constexpr double DaysOfYear = 365.2425;
constexpr double Epoch1970 = 25569.0;
constexpr double LastUnsignedSecond = Epoch1970 + 4294967295.0 / 86400.0;
// From this span on, ticks are on whole years and their labels name nothing else.
constexpr double YearsAlone = 8 * DaysOfYear;
constexpr int PartsOfRange = 10; // an axis without a step of its own divides its range so

// A graph of usual height has this many ticks at most.
constexpr double MostTicks = 30.0;

} // namespace

std::u16string NumberFormatFor(double low, double high)
{
    const double largest = std::max(std::abs(low), std::abs(high));
    const double span = high - low;
    if (!(span > 0) || !std::isfinite(span))
        return u"%g";
    const double decimals = std::ceil(-std::log10(span / MostTicks));
    if (largest >= 1e7 || decimals > 6) {
        const double digits = std::ceil(std::log10(largest) - std::log10(span / MostTicks));
        return u"%." + ToText(static_cast<std::size_t>(std::clamp(digits, 1.0, 14.0))) + u"e";
    }
    return u"%." + ToText(static_cast<std::size_t>(std::max(decimals, 0.0))) + u"f";
}

std::u16string DateFormatFor(double low, double high)
{
    const double days = high - low;
    if (days >= YearsAlone)
        return u"%Y";
    if (days >= DaysOfYear)
        return u"%Y-%m";
    if (days >= 10)
        return u"%Y-%m-%d";
    if (days >= 1)
        return u"%m-%d %H:%M";
    return days >= 10.0 / (24 * 60) ? u"%H:%M" : u"%H:%M:%S";
}

bool GraphRoundsDatesWell(double low, double high) noexcept
{
    if (high - low >= YearsAlone)
        return false;
    // Rounding outward moves a bound by up to its distance to the next tick, at most the span.
    const double room = std::max(high - low, 1.0);
    return low - room >= Epoch1970 && high + room <= LastUnsignedSecond;
}

DateRange RoundDateRange(double low, double high)
{
    const double days = high - low;
    if (days < YearsAlone) {
        const double step = std::max(std::ceil(days / PartsOfRange), 1.0);
        const double start = std::floor(low);
        const bool fits = start + step * PartsOfRange >= high;
        return {start, start + (fits ? step : step + 1) * PartsOfRange};
    }
    constexpr double intoTheYear = 2;
    const int first = OleToDate(low - intoTheYear).year;
    const int last = OleToDate(high).year + 1;
    const int step = (last - first + PartsOfRange - 1) / PartsOfRange;
    // What is left over goes to both ends, with the start on a round year if it can be.
    const int spare = step * PartsOfRange - (last - first);
    const int rounded = first - first % 5;
    const int start = std::max(first - rounded <= spare ? rounded : first, 100);
    return {DateToOle({start, 1, 1}) + intoTheYear,
            DateToOle({std::min(start + step * PartsOfRange, 9999), 1, 1}) + intoTheYear};
}

} // namespace Viewer

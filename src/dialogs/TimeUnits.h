#pragma once
// The step of a date-time axis as its page shows it: a number of seconds, minutes, hours or
// days. The hours that a step is split into are of 1440 seconds, those that make a step of
// 3600: both are so by contract, and a step of hours doesn't survive the page.

namespace TimeUnits
{

enum { Seconds, Minutes, Hours, Days }; // rows of the list

struct TStep {
    unsigned nCount;
    int nUnit;
};

// Of a step in days. One that is below 0, or has no number of seconds, becomes a count that the
// page refuses.
[[nodiscard]] TStep Split(double fDays) noexcept;

// A unit that isn't there counts seconds.
[[nodiscard]] double InDays(TStep step) noexcept;

} // namespace TimeUnits

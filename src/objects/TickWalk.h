#pragma once
// The walk over the ticks of a linear or date-time scale. It always ends: a step that
// doesn't move the value on ends it, and so does the largest number of ticks.

namespace TickWalk
{

inline constexpr int MostTicks = 100'000;

struct TWalk {
    double fFrom;      // value of the first tick
    double fTo;        // visible upper bound
    double fStep;      // between values
    double fPlace;     // pixel of the first tick
    double fPlaceStep; // between pixels
    bool bIncludeEnd;  // whether the upper bound itself has a tick
};

// Calls visit(value, place) for every tick and returns their number.
template <class Visit> int Walk(const TWalk& walk, Visit&& visit)
{
    double value = walk.fFrom;
    double place = walk.fPlace;
    int count = 0;
    while (count < MostTicks && (walk.bIncludeEnd ? value <= walk.fTo : value < walk.fTo)) {
        visit(value, place);
        ++count;
        const double next = value + walk.fStep;
        if (!(next > value))
            break;
        value = next;
        place += walk.fPlaceStep;
    }
    return count;
}

} // namespace TickWalk

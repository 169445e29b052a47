#pragma once
// The parts of the net's fixed script.

#include "Watch.h"

namespace Scripts
{
// What a hand can do to a graph, on each scale and in both buffer modes.
void Gestures(Watch& watch);
// What a host can ask of a graph: settings, structure, files, pictures, print jobs, sizes.
void Calls(Watch& watch);
// The business chart, by its three kinds.
void BusinessCharts(Watch& watch);
void Pies(Watch& watch);
} // namespace Scripts

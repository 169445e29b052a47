#pragma once

// How the costs of many pieces grow with their number: elements of a pie, groups and series of a
// business chart.
void BenchGrowth(int nMost);

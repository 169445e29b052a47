#pragma once

// Times saving and loading a curve of a million points against plainly writing and reading the
// same bytes, and the analyses of that curve. Prints medians in milliseconds.
void BenchAnalysis(int nRuns);

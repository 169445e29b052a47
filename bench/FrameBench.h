#pragma once

// Whole frames of the XY graph up to nMost points, beside the same picture by the fewest calls.
void BenchFrames(int nMost, int nRuns);

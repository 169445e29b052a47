#pragma once

// Data's way into a graph: SetData, files, and the memory of ten million points.
void BenchHandOver(int nMost, int nRuns);

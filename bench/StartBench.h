#pragma once

// From the start of a process to what it shows first: an empty window, and a chart of the DLL
// that lies beside the program.
void BenchStart(int nRuns);

// The child process's part. Returns its exit code.
int ShowEmptyWindow();
int ShowFirstChart();

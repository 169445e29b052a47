#pragma once

// How long the property sheet takes to open, beside a plain empty dialog of its size.
void BenchDialogs(int nRuns);

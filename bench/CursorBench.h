#pragma once

// Times the cursor's moves and hit tests over 10 curves of a million ascending points each. Prints
// medians of one call in milliseconds.
void BenchCursor(int nRuns);

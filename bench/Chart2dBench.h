#pragma once

// Times one tick of each animation of the business chart with its frame, and the still frames:
// 20 segments of 5 series in 640 by 400 pixels. One line a case: the median in milliseconds,
// and the share of the 50 milliseconds from tick to tick.
void BenchChart2d(int nRuns);

#pragma once

// Times the 3D pie: a repaint of 12 elements in 800 by 600 pixels in each style and tilted, a
// click on it, and a table of 10,000 elements: its insertion, one step of scrolling with its
// paint, and a whole repaint. One line a case: the median in milliseconds, and the ratio to a
// bare fill of as many pixels with a gradient of GDI+ and its way to the screen.
void BenchPie(int nRuns);

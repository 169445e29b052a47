#pragma once
// What is to be plotted: curves, axes and their texts, chosen from a table. No window takes part.

#include "viewer/CommandLine.h"
#include "viewer/CsvTable.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

struct Point {
    double x;
    double y;
};

struct Curve {
    std::u16string label;
    int yAxis = 0;
    std::vector<Point> points;
    std::size_t skipped = 0;          // rows that gave no point
    std::size_t firstSkippedLine = 0; // line of the file of the first of them
};

struct Axis {
    std::u16string title;
    std::u16string format; // of the tick labels: for one double (printf), or for a date (strftime)
    bool date = false;
    // The axis may round its range to whole steps itself. If not, low to high is the range to give
    // it, and a tenth of that the distance between ticks.
    bool autoScale = true;
    double low = 0;
    double high = 0;
};

struct PlotPlan {
    Axis x;
    std::vector<Axis> y; // one or two
    std::vector<Curve> curves;
    std::size_t rows = 0;
    bool rowNumbers = false; // X is the number of the row, since the first column holds words
    bool endsInsideQuotes = false;
};

// Throws Error(BadData) if a column doesn't exist or nothing can be plotted.
[[nodiscard]] PlotPlan MakePlan(const Table& table, const Options& options);

// What was read and what was left out, in lines for a person.
[[nodiscard]] std::u16string Describe(const PlotPlan& plan, std::u16string_view fileName);

} // namespace Viewer

#pragma once
// What bar, line and pie charts show: categories, series and whole values, from a table.

#include "viewer/CommandLine.h"
#include "viewer/CsvTable.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

struct Series {
    std::u16string name;
    std::vector<double> values; // one per category; rows of the same category are summed
};

struct Slice {
    std::u16string name;
    double value;   // above 0
    double percent; // of all slices
};

struct CategoryPlan {
    std::vector<std::u16string> categories; // in the order of the file
    std::vector<Series> series;
    std::vector<Slice> slices; // of a pie
    std::u16string sliceTitle; // what the slices are shares of
    std::size_t rows = 0;
    std::size_t skipped = 0;       // cells without a number
    std::size_t slicesLeftOut = 0; // of 0 or less: a pie has no room for them
};

// Throws Error(BadData) if a column doesn't exist, nothing can be shown or there is far too much.
[[nodiscard]] CategoryPlan MakeCategoryPlan(const Table& table, const Options& options);

[[nodiscard]] std::u16string Describe(const CategoryPlan& plan, std::u16string_view fileName);

// To the nearest whole number that 32 bits hold.
[[nodiscard]] int ToWholeValue(double value) noexcept;

} // namespace Viewer

#pragma once
// A CSV file as named columns.

#include "viewer/CsvText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

enum class ColumnKind { Empty, Text, Number, Date };

struct Column {
    std::u16string name;
    ColumnKind kind = ColumnKind::Empty; // what at least half of the cells that aren't empty hold
    bool decimalComma = false;           // in its numbers
    std::vector<std::u16string> cells;   // one per row, empty where the row is too short
};

struct Table {
    std::vector<Column> columns;
    std::vector<std::size_t> lines; // line of the file that each row starts in
    bool endsInsideQuotes = false;

    [[nodiscard]] std::size_t Rows() const { return lines.size(); }
    // By name, first as it is written, then without regard to the case of ASCII letters; null if none.
    [[nodiscard]] const Column* Find(std::u16string_view name) const;
};

// The first row holds the names. If every cell of it is a number or a date, the file has no header:
// the columns are then called "Column 1", "Column 2"... A name that is empty is called so too, and
// a name that comes again gets a number behind it. Cells beyond the header are left out.
// Throws Error(BadData) if there is no row of data.
[[nodiscard]] Table MakeTable(CsvContents contents);

} // namespace Viewer

#pragma once
// From the bytes of a CSV file to rows of cells. Nothing is refused here: whatever a file holds,
// it has some rows and cells, and what they mean is decided later.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Viewer
{

// UTF-8 with or without a byte-order mark, or UTF-16 with one. A byte that is no UTF-8 is taken
// as Latin-1, so a file in an old code page keeps its digits and separators.
[[nodiscard]] std::u16string DecodeText(std::string_view bytes);

struct CsvRow {
    std::size_t line = 0; // line of the file that the row starts in, counted from 1
    std::vector<std::u16string> cells;
};

struct CsvContents {
    char16_t separator = u',';
    std::vector<CsvRow> rows;      // empty lines are left out
    bool endsInsideQuotes = false; // the last quoted cell was never closed: it took all the rest
};

// The separator is the one of comma, semicolon and tab that occurs most often in the first line.
// Quotes as in RFC 4180; lines end in LF, CR LF or CR.
[[nodiscard]] CsvContents SplitCsv(std::u16string_view text);

} // namespace Viewer

#include "viewer/CsvTable.h"

#include "viewer/CellValue.h"
#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Viewer
{
namespace
{

// A file of a few bytes per row can name far more cells than it holds.
constexpr std::size_t MostCells = 20'000'000;

bool IsValue(std::u16string_view cell)
{
    return ParseDate(cell) || ParseNumber(cell, false) || ParseNumber(cell, true);
}

ColumnKind FindKind(const Column& column)
{
    std::size_t filled = 0;
    std::size_t dates = 0;
    std::size_t numbers = 0;
    for (const std::u16string& cell : column.cells) {
        if (cell.empty())
            continue;
        ++filled;
        if (ParseDate(cell)) {
            ++dates;
        } else if (ParseNumber(cell, column.decimalComma)) {
            ++numbers;
        }
    }
    if (filled == 0)
        return ColumnKind::Empty;
    if (dates * 2 >= filled && dates >= numbers)
        return ColumnKind::Date;
    return numbers * 2 >= filled ? ColumnKind::Number : ColumnKind::Text;
}

void NameColumns(std::vector<Column>& columns)
{
    std::set<std::u16string> taken;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        std::u16string& name = columns[at].name;
        name = std::u16string(TrimBlanks(name));
        if (name.empty())
            name = u"Column " + ToText(at + 1);
        const std::u16string plain = name;
        for (std::size_t number = 2; !taken.insert(name).second; ++number)
            name = plain + u" (" + ToText(number) + u")";
    }
}

} // namespace

const Column* Table::Find(std::u16string_view name) const
{
    for (const Column& column : columns) {
        if (column.name == name)
            return &column;
    }
    for (const Column& column : columns) {
        if (EqualsIgnoringCase(column.name, name))
            return &column;
    }
    return nullptr;
}

Table MakeTable(CsvContents contents)
{
    Table table;
    table.endsInsideQuotes = contents.endsInsideQuotes;
    if (contents.rows.empty())
        throw Error{ExitCode::BadData, u"the file is empty"};
    std::vector<std::u16string>& first = contents.rows.front().cells;
    const bool header = !std::all_of(first.begin(), first.end(),
                                     [](const std::u16string& cell) { return IsValue(cell); });
    if (first.size() > MostCells / contents.rows.size()) {
        throw Error{ExitCode::BadData, u"the table has " + ToText(contents.rows.size()) + u" rows of " +
                                           ToText(first.size()) + u" columns; " + ToText(MostCells) +
                                           u" cells can be shown at most"};
    }
    table.columns.resize(first.size());
    if (header) {
        for (std::size_t at = 0; at < first.size(); ++at)
            table.columns[at].name = std::move(first[at]);
    }
    for (std::size_t row = header ? 1 : 0; row < contents.rows.size(); ++row) {
        std::vector<std::u16string>& cells = contents.rows[row].cells;
        table.lines.push_back(contents.rows[row].line);
        for (std::size_t at = 0; at < table.columns.size(); ++at) {
            table.columns[at].cells.push_back(at < cells.size() ? std::move(cells[at])
                                                                : std::u16string());
        }
    }
    if (table.lines.empty())
        throw Error{ExitCode::BadData, u"the file has a header but no rows of data"};
    NameColumns(table.columns);
    for (Column& column : table.columns) {
        column.decimalComma = HasDecimalCommas(column.cells, contents.separator == u';');
        column.kind = FindKind(column);
    }
    return table;
}

} // namespace Viewer

#pragma once
// The CSV file that is shown, and how.

#include "viewer/CommandLine.h"
#include "viewer/CsvTable.h"

#include <string>

namespace Viewer
{

struct Document {
    Options options;
    Table table;
    std::u16string name; // "co2.csv"
};

// Reads `options.file`; a title that isn't given becomes the file's name. Throws Error(BadData).
[[nodiscard]] Document ReadDocument(const Options& options);

} // namespace Viewer

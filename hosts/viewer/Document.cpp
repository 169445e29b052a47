#include "viewer/Document.h"

#include "viewer/CsvText.h"
#include "viewer/InputFile.h"

namespace Viewer
{

Document ReadDocument(const Options& options)
{
    Document document{options, MakeTable(SplitCsv(DecodeText(ReadWholeFile(options.file)))),
                      NameOfFile(options.file)};
    if (options.title.empty())
        document.options.title = document.name.substr(0, document.name.find_last_of(u'.'));
    return document;
}

} // namespace Viewer

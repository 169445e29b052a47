#include "viewer/CommandLine.h"

#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <array>

namespace Viewer
{
namespace
{

constexpr int smallestSide = 64;
constexpr int largestSide = 8192;

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::BadCommandLine, std::move(text)};
}

// Digits alone; anything longer than five of them is beyond every limit anyway.
std::optional<int> ParseSide(std::u16string_view text)
{
    if (text.empty() || text.size() > 5) {
        return std::nullopt;
    }
    int value = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9') {
            return std::nullopt;
        }
        value = value * 10 + (unit - u'0');
    }
    return value >= smallestSide && value <= largestSide ? std::optional(value) : std::nullopt;
}

void ParseSize(std::u16string_view text, Options& options)
{
    const std::size_t cross = text.find_first_of(u"xX");
    if (cross != text.npos) {
        const std::optional<int> width = ParseSide(text.substr(0, cross));
        const std::optional<int> height = ParseSide(text.substr(cross + 1));
        if (width && height) {
            options.width = *width;
            options.height = *height;
            return;
        }
    }
    Refuse(u"--size takes WIDTHxHEIGHT, each from 64 to 8192, not " + Quote(text));
}

bool ParseFlag(std::u16string_view name, Options& options)
{
    struct Flag {
        std::u16string_view name;
        bool Options::*field;
        bool value;
    };
    static constexpr std::array<Flag, 7> flags = {{
        {u"--points", &Options::points, true},
        {u"--no-legend", &Options::legend, false},
        {u"--registered", &Options::registered, true},
        {u"--help", &Options::help, true},
        {u"-h", &Options::help, true},
        {u"/?", &Options::help, true},
        {u"--version", &Options::version, true},
    }};
    for (const Flag& flag : flags) {
        if (flag.name == name) {
            options.*flag.field = flag.value;
            return true;
        }
    }
    return false;
}

bool TakesValue(std::u16string_view name)
{
    static constexpr std::array<std::u16string_view, 6> names = {u"--x",     u"--y",   u"--y2",
                                                                 u"--group", u"--png", u"--size"};
    for (const std::u16string_view known : names) {
        if (known == name) {
            return true;
        }
    }
    return false;
}

void StoreValue(std::u16string_view name, std::u16string_view value, Options& options)
{
    if (value.empty()) {
        Refuse(std::u16string(name) + u" needs a value");
    }
    if (name == u"--x") {
        options.x = value;
    } else if (name == u"--y") {
        options.y.emplace_back(value);
    } else if (name == u"--y2") {
        options.y2.emplace_back(value);
    } else if (name == u"--group") {
        options.group = value;
    } else if (name == u"--png") {
        options.png = value;
    } else {
        ParseSize(value, options);
    }
}

void StoreFile(const std::u16string& argument, Options& options)
{
    if (!options.file.empty()) {
        Refuse(u"one file at a time: " + Quote(options.file) + u" or " + Quote(argument) + u"?");
    }
    if (argument.empty()) {
        Refuse(u"the name of the file is empty");
    }
    options.file = argument;
}

} // namespace

Options ParseCommandLine(std::span<const std::u16string> arguments)
{
    Options options;
    bool onlyFiles = false;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::u16string& argument = arguments[at];
        if (!onlyFiles && argument == u"--") {
            onlyFiles = true;
            continue;
        }
        if (onlyFiles || (!argument.starts_with(u"-") && argument != u"/?")) {
            StoreFile(argument, options);
            continue;
        }
        if (ParseFlag(argument, options)) {
            continue;
        }
        const std::size_t equals = argument.find(u'=');
        const std::u16string name = argument.substr(0, equals);
        if (!TakesValue(name)) {
            Refuse(u"unknown option " + Quote(argument));
        }
        if (equals != argument.npos) {
            StoreValue(name, std::u16string_view(argument).substr(equals + 1), options);
        } else if (at + 1 < arguments.size()) {
            StoreValue(name, arguments[++at], options);
        } else {
            Refuse(name + u" needs a value");
        }
    }
    if (!options.help && !options.version && !options.png.empty() && options.file.empty()) {
        Refuse(u"--png needs a CSV file to draw");
    }
    return options;
}

std::u16string_view HelpText() noexcept
{
    return uR"(vantoplex-viewer [OPTIONS] [FILE.csv]

Shows the columns of a CSV file as a graph. The first row names the columns; ISO dates
(2012-01-31, 2012-01-31T06:30) become a date axis. A row with an empty or unreadable cell
is left out, counted and told. Without a FILE the program asks for one.

  --x NAME         column along the X axis (default: the first column)
  --y NAME         column for the Y axis; may be given again (default: all numeric ones)
  --y2 NAME        column for a second Y axis on the right; may be given again
  --group NAME     one curve for each word in this column
  --points         single points instead of lines
  --no-legend      no legend beside the graph
  --png FILE       draws into a PNG file and ends, without a person
  --size WxH       size of the picture or the window in pixels (default: 800x600)
  --registered     uses the Vantoplex.dll that is registered on this machine,
                   not the one beside this program
  --help           this text
  --version        the version of this program

Exit codes: 0 done, 1 the file can't be read or plotted, 2 wrong command line,
3 the chart server can't be started, 4 the picture can't be drawn or written.
)";
}

} // namespace Viewer

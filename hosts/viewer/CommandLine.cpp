#include "viewer/CommandLine.h"

#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <array>

namespace Viewer
{
namespace
{

constexpr int SmallestSide = 64;
constexpr int LargestSide = 8192;

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::BadCommandLine, std::move(text)};
}

// Digits alone; anything longer than five of them is beyond every limit anyway.
std::optional<int> ParseWhole(std::u16string_view text)
{
    if (text.empty() || text.size() > 5)
        return std::nullopt;
    int value = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9')
            return std::nullopt;
        value = value * 10 + (unit - u'0');
    }
    return value;
}

std::optional<int> ParseSide(std::u16string_view text)
{
    const std::optional<int> value = ParseWhole(text);
    return value && *value >= SmallestSide && *value <= LargestSide ? value : std::nullopt;
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
    static constexpr std::array<Flag, 8> flags = {{
        {u"--points", &Options::points, true},
        {u"--no-legend", &Options::legend, false},
        {u"--registered", &Options::registered, true},
        {u"--gradient", &Options::gradient, true},
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

using Store = void (*)(std::u16string_view value, Options& options);

template <auto find, auto field> void StoreWord(std::u16string_view value, Options& options)
{
    const auto found = find(value);
    if (!found)
        Refuse(u"there is no " + Quote(value) + u" to choose");
    options.*field = *found;
}

template <auto field, int low, int high> void StoreNumber(std::u16string_view value, Options& options)
{
    const std::optional<int> number = ParseWhole(value);
    if (!number || *number < low || *number > high) {
        Refuse(u"a whole number from " + ToText(low) + u" to " + ToText(high) + u" is wanted, not " +
               Quote(value));
    }
    options.*field = *number;
}

template <auto field> void StoreText(std::u16string_view value, Options& options)
{
    options.*field = value;
}

template <auto field> void AppendText(std::u16string_view value, Options& options)
{
    (options.*field).emplace_back(value);
}

struct ValueOption {
    std::u16string_view name;
    Store store;
};

constexpr std::array ValueOptions = {
    ValueOption{u"--x", StoreText<&Options::x>},
    ValueOption{u"--y", AppendText<&Options::y>},
    ValueOption{u"--y2", AppendText<&Options::y2>},
    ValueOption{u"--group", StoreText<&Options::group>},
    ValueOption{u"--png", StoreText<&Options::png>},
    ValueOption{u"--size", ParseSize},
    ValueOption{u"--script", StoreText<&Options::script>},
    ValueOption{u"--chart", StoreWord<FindChartKind, &Options::chart>},
    ValueOption{u"--pick", StoreText<&Options::pick>},
    ValueOption{u"--title", StoreText<&Options::title>},
    ValueOption{u"--subtitle", StoreText<&Options::subtitle>},
    ValueOption{u"--animation", StoreText<&Options::animation>},
    ValueOption{u"--tick", StoreNumber<&Options::tick, 0, 10000>},
    ValueOption{u"--style", StoreWord<FindPieStyle, &Options::style>},
    ValueOption{u"--tilt", StoreNumber<&Options::tilt, 0, 85>},
    ValueOption{u"--start", StoreNumber<&Options::start, 0, 359>},
    ValueOption{u"--depth", StoreNumber<&Options::depth, 0, 1000>},
    ValueOption{u"--sort", StoreWord<FindPieOrder, &Options::order>},
};

Store FindStore(std::u16string_view name)
{
    for (const ValueOption& option : ValueOptions) {
        if (option.name == name)
            return option.store;
    }
    Refuse(u"unknown option " + Quote(name));
}

void StoreValue(std::u16string_view name, std::u16string_view value, Options& options)
{
    const Store store = FindStore(name);
    if (value.empty())
        Refuse(std::u16string(name) + u" needs a value");
    try {
        store(value, options);
    } catch (const Error& error) {
        const bool named = error.text.starts_with(name);
        Refuse(named ? error.text : std::u16string(name) + u": " + error.text);
    }
}

// Options that mean something only together.
void CheckTogether(const Options& options)
{
    if (options.help || options.version)
        return;
    if (!options.png.empty() && options.file.empty())
        Refuse(u"--png needs a CSV file to draw");
    if (!options.script.empty() && options.file.empty())
        Refuse(u"--script needs a CSV file to work with");
    if (!options.script.empty() && !options.png.empty())
        Refuse(u"--script takes its own pictures; leave --png out");
    if (!options.animation.empty() && !FindAnimation(options.chart, options.animation))
        Refuse(u"--animation: this kind of chart has no " + Quote(options.animation));
    if (options.tick >= 0 && options.animation.empty())
        Refuse(u"--tick needs an --animation");
}

void StoreFile(const std::u16string& argument, Options& options)
{
    if (!options.file.empty())
        Refuse(u"one file at a time: " + Quote(options.file) + u" or " + Quote(argument) + u"?");
    if (argument.empty())
        Refuse(u"the name of the file is empty");
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
        if (ParseFlag(argument, options))
            continue;
        const std::size_t equals = argument.find(u'=');
        const std::u16string name = argument.substr(0, equals);
        (void)FindStore(name);
        if (equals != argument.npos) {
            StoreValue(name, std::u16string_view(argument).substr(equals + 1), options);
        } else if (at + 1 < arguments.size()) {
            StoreValue(name, arguments[++at], options);
        } else {
            Refuse(name + u" needs a value");
        }
    }
    CheckTogether(options);
    return options;
}

} // namespace Viewer

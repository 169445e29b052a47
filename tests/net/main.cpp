// A net under changes of the product: drives a DLL as a plain host does and prints what it sees
// after every step, so that two builds can be compared line by line (scripts/net.sh).
//
//   vantoplex-net DLL [--saved] [--masked] [--out FILE] [--against FILE]
//   vantoplex-net DLL --frames N [--seed S] [--first K] [--bare] [--pictures FOLDER] [...]
//
//   vantoplex-net DLL --recorded NAME [--out FILE] [--against FILE]
//
//   --saved          prints what graphs write to files instead of what they show
//   --masked         leaves out what the platform's fonts decide
//   --out FILE       prints into the file
//   --against FILE   compares the lines with those of the file, prints the first that differ and
//                    ends with code 1 if there are any
//   --frames N       instead of the script, N random graphs of a few frames each, as checksums of
//                    all pixels and values; --bare shows nothing that fonts decide, and --first K
//                    with --pictures FOLDER shows the frames of graph K
//   --recorded NAME  the run that recorded-NAME.txt keeps: values, saved or frames

#include "Comparison.h"
#include "Frames.h"
#include "Scripts.h"

#include <cstdlib>
#include <string>

namespace
{
struct TOptions {
    std::wstring dll;
    std::wstring out;
    std::wstring against;
    bool bSaved = false;
    bool bMasked = false;
    Frames::TPlan frames;
};

// What holds on every machine with this platform, whatever its fonts.
bool SetRecorded(const std::wstring& name, TOptions& options)
{
    options.bMasked = true;
    options.bSaved = name == L"saved";
    options.frames.bBare = name == L"frames";
    if (options.frames.bBare) {
        options.frames.nGraphs = 100;
        options.frames.seed = 2;
    }
    return name == L"values" || options.bSaved || options.frames.bBare;
}

bool Read(int nArguments, wchar_t** arguments, TOptions& options)
{
    for (int i = 1; i < nArguments; ++i) {
        const std::wstring word = arguments[i];
        const bool bMore = i + 1 < nArguments;
        if (word == L"--saved")
            options.bSaved = true;
        else if (word == L"--masked")
            options.bMasked = true;
        else if (word == L"--bare")
            options.frames.bBare = true;
        else if (word == L"--frames" && bMore)
            options.frames.nGraphs = ::_wtoi(arguments[++i]);
        else if (word == L"--first" && bMore)
            options.frames.nFirst = ::_wtoi(arguments[++i]);
        else if (word == L"--seed" && bMore)
            options.frames.seed = ::wcstoull(arguments[++i], nullptr, 10);
        else if (word == L"--pictures" && bMore)
            options.frames.pictures = arguments[++i];
        else if (word == L"--out" && bMore)
            options.out = arguments[++i];
        else if (word == L"--against" && bMore)
            options.against = arguments[++i];
        else if (word == L"--recorded" && bMore && SetRecorded(arguments[++i], options))
            continue;
        else if (options.dll.empty() && word[0] != L'-')
            options.dll = word;
        else
            return false;
    }
    return !options.dll.empty();
}

void Drive(const Server& server, Report& report, const TOptions& options)
{
    if (options.frames.nGraphs > 0)
        return Frames::Run(server, report, options.frames);
    Watch watch(server, report, options.bSaved ? Pass::saved : Pass::values);
    Scripts::Gestures(watch);
    Scripts::Calls(watch);
    if (options.bSaved)
        return; // the other charts save nothing
    Scripts::BusinessCharts(watch);
    Scripts::Pies(watch);
}

int Run(const TOptions& options)
{
    const Server server(options.dll);
    if (!server.IsLoaded()) {
        std::fprintf(stderr, "the DLL does not load: %lu\n", ::GetLastError());
        return 2;
    }
    const std::wstring path = options.out.empty() ? options.against + L".now" : options.out;
    const bool bConsole = options.out.empty() && options.against.empty();
    std::FILE* pFile = bConsole ? stdout : ::_wfopen(path.c_str(), L"wb");
    if (pFile == nullptr)
        return 2;
    Report report(pFile, options.bMasked);
    Drive(server, report, options);
    if (bConsole)
        return 0;
    std::fclose(pFile);
    std::printf("%d steps\n", report.StepCount());
    return options.against.empty() ? 0 : Comparison::Print(options.against, path);
}
} // namespace

int wmain(int nArguments, wchar_t** arguments)
{
    TOptions options;
    if (!Read(nArguments, arguments, options)) {
        std::fputs("vantoplex-net DLL [options]: see the head of its source\n", stderr);
        return 2;
    }
    // The screen's pointer reports its place to the window under it, and must not be in ours.
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    ::CoInitialize(nullptr);
    const int nCode = Run(options);
    ::CoUninitialize();
    return nCode;
}

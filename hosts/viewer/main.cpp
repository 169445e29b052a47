// vantoplex-viewer: shows a CSV file in an SGraph, or draws it into a PNG file.

#include "viewer/ChartServer.h"
#include "viewer/CommandLine.h"
#include "viewer/InputFile.h"
#include "viewer/MainWindow.h"
#include "viewer/Output.h"
#include "viewer/Picture.h"
#include "viewer/PlainText.h"
#include "viewer/PlotPlan.h"
#include "viewer/ViewerError.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <new>
#include <span>
#include <vector>

namespace
{

using namespace Viewer;

std::vector<std::u16string> ReadArguments()
{
    int count = 0;
    wchar_t** texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::u16string> arguments;
    for (int at = 1; texts && at < count; ++at) {
        arguments.push_back(FromWide(texts[at]));
    }
    LocalFree(texts);
    return arguments;
}

PlotPlan ReadPlan(const Options& options)
{
    try {
        return MakePlan(MakeTable(SplitCsv(DecodeText(ReadWholeFile(options.file)))), options);
    } catch (const Error& error) {
        const bool named = error.text.find(NameOfFile(options.file)) != std::u16string::npos;
        throw Error{error.exitCode, named ? error.text : NameOfFile(options.file) + u": " + error.text};
    }
}

std::size_t SkippedRows(const PlotPlan& plan)
{
    std::size_t skipped = 0;
    for (const Curve& curve : plan.curves) {
        skipped += curve.skipped;
    }
    return skipped;
}

int RunMessageLoop()
{
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

int DrawPicture(const Options& options, const PlotPlan& plan, const ChartServer& server)
{
    MainWindow window(FrameKind::ForPicture, options.width, options.height, u"");
    window.ShowPlan(server, plan, options);
    ShowWindow(window.Window(), SW_SHOWNOACTIVATE);
    SaveWindowAsPng(window.GraphWindow(), options.png);
    return 0;
}

int ShowToPerson(const Options& options, const PlotPlan& plan, const ChartServer& server)
{
    MainWindow window(FrameKind::ForPerson, options.width, options.height,
                      NameOfFile(options.file) + u" - Vantoplex Viewer");
    window.ShowPlan(server, plan, options);
    const std::size_t skipped = SkippedRows(plan);
    window.SetStatus(ToText(plan.rows) + u" rows, " +
                     (skipped ? ToText(skipped) : std::u16string(u"none")) +
                     u" skipped for want of a value");
    ShowWindow(window.Window(), SW_SHOWDEFAULT);
    UpdateWindow(window.Window());
    return RunMessageLoop();
}

int Run()
{
    Options options = ParseCommandLine(ReadArguments());
    if (options.help) {
        Tell(Stream::Output, HelpText());
        return 0;
    }
    if (options.version) {
        Tell(Stream::Output, u"vantoplex-viewer 1.0.0\n");
        return 0;
    }
    if (options.file.empty()) {
        options.file = AskForFile(nullptr);
        if (options.file.empty()) {
            return 0;
        }
    }
    const PlotPlan plan = ReadPlan(options);
    Print(Stream::Output, Describe(plan, NameOfFile(options.file)));
    const ChartServer server(options.registered ? ServerSource::Registered
                                                : ServerSource::BesideProgram);
    return options.png.empty() ? ShowToPerson(options, plan, server)
                               : DrawPicture(options, plan, server);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    InitCommonControls();
    try {
        return Run();
    } catch (const Error& error) {
        std::u16string text = u"vantoplex-viewer: " + error.text + u"\n";
        if (error.exitCode == ExitCode::BadCommandLine) {
            text += u"Try --help.\n";
        }
        Tell(Stream::Error, text);
        return static_cast<int>(error.exitCode);
    } catch (const std::bad_alloc&) {
        Tell(Stream::Error, u"vantoplex-viewer: the file needs more memory than there is\n");
        return static_cast<int>(ExitCode::BadData);
    }
}

// vantoplex-viewer: shows a CSV file in a chart, draws it into a PNG file, or works with it as a script
// says.

#include "viewer/Capture.h"
#include "viewer/ChartServer.h"
#include "viewer/CommandLine.h"
#include "viewer/CsvText.h"
#include "viewer/Document.h"
#include "viewer/FileDialogs.h"
#include "viewer/HelpText.h"
#include "viewer/InputFile.h"
#include "viewer/MainMenu.h"
#include "viewer/MainWindow.h"
#include "viewer/MenuCommands.h"
#include "viewer/Output.h"
#include "viewer/Picture.h"
#include "viewer/PlainText.h"
#include "viewer/RecentFiles.h"
#include "viewer/ScriptRunner.h"
#include "viewer/Session.h"
#include "viewer/ViewerError.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

namespace
{

using namespace Viewer;

std::vector<std::u16string> ReadArguments()
{
    int count = 0;
    wchar_t** texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::u16string> arguments;
    for (int at = 1; texts && at < count; ++at)
        arguments.push_back(FromWide(texts[at]));
    LocalFree(texts);
    return arguments;
}

// The graph says nothing of a view that a wheel, a key or a drag in its pan mode has moved.
void ReportMove(HWND frame, const MSG& message)
{
    if (!IsChild(frame, message.hwnd))
        return;
    if (message.message == WM_MOUSEWHEEL || message.message == WM_KEYDOWN) {
        SendMessageW(frame, WM_COMMAND, MenuCommand::ViewMoved, 0);
    } else if (message.message == WM_MOUSEMOVE && (message.wParam & MK_LBUTTON) != 0) {
        SendMessageW(frame, WM_COMMAND, MenuCommand::ViewDragged, 0);
    }
}

int RunMessageLoop(HWND frame)
{
    const std::unique_ptr<HACCEL__, decltype(&DestroyAcceleratorTable)> keys(MakeAccelerators(),
                                                                             DestroyAcceleratorTable);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        // A label that is being written in keeps its keys.
        wchar_t name[8] = L"";
        GetClassNameW(message.hwnd, name, 8);
        const bool writing = lstrcmpiW(name, L"Edit") == 0;
        if (writing || !TranslateAcceleratorW(frame, keys.get(), &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
            ReportMove(frame, message);
        }
    }
    return static_cast<int>(message.wParam);
}

Document Read(const Options& options)
{
    try {
        return ReadDocument(options);
    } catch (const Error& error) {
        const bool named = error.text.find(NameOfFile(options.file)) != std::u16string::npos;
        throw Error{error.exitCode, named ? error.text : NameOfFile(options.file) + u": " + error.text};
    }
}

int DrawPicture(const Options& options, const ChartServer& server)
{
    MainWindow window(FrameKind::ForPicture, options.width, options.height, u"");
    Session session(server, window, Read(options), true);
    Print(Stream::Output, session.ShowChart());
    ShowWindow(window.Window(), SW_SHOWNOACTIVATE);
    session.StopAtTick();
    SaveAsPng(Capture(window.Window(), Capture::Paint::Again), options.png);
    return 0;
}

int RunScript(const Options& options, const ChartServer& server)
{
    const std::vector<Step> steps = ParseScript(DecodeText(ReadWholeFile(options.script)));
    MainWindow window(FrameKind::ForPerson, options.width, options.height, u"");
    SetWindowPos(window.Window(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    RECT frame{};
    GetWindowRect(window.Window(), &frame);
    if (frame.right > GetSystemMetrics(SM_CXSCREEN) || frame.bottom > GetSystemMetrics(SM_CYSCREEN))
        throw Error{ExitCode::BadCommandLine, u"--script: the window is larger than the screen"};
    Session session(server, window, Read(options), true);
    Print(Stream::Output, session.ShowChart());
    ShowWindow(window.Window(), SW_SHOW);
    session.StopAtTick();
    SetFocus(session.ChartWindow());
    ScriptRunner(session).Run(steps);
    return 0;
}

// Of what was read, for the status bar: the first line, and one about rows that were left out.
std::u16string Summary(std::u16string_view description)
{
    std::u16string summary;
    while (!description.empty()) {
        const std::u16string_view line = description.substr(0, description.find(u'\n'));
        description.remove_prefix(std::min(line.size() + 1, description.size()));
        if (summary.empty()) {
            summary = line;
        } else if (line.find(u"skipped") != line.npos || line.find(u"without") != line.npos) {
            return summary + u"; " + std::u16string(TrimBlanks(line));
        }
    }
    return summary;
}

int ShowToPerson(const Options& options, const ChartServer& server)
{
    MainWindow window(FrameKind::ForPerson, options.width, options.height,
                      NameOfFile(options.file) + u" - Vantoplex Viewer");
    Session session(server, window, Read(options), false);
    const std::u16string description = session.ShowChart();
    RecentFiles::Add(options.file);
    Print(Stream::Output, description);
    window.SetStatus(MainWindow::StatusPart::Text, Summary(description));
    ShowWindow(window.Window(), SW_SHOWDEFAULT);
    UpdateWindow(window.Window());
    session.StopAtTick();
    SetFocus(session.ChartWindow());
    return RunMessageLoop(window.Window());
}

int Run()
{
    Options options = ParseCommandLine(ReadArguments());
    if (options.help) {
        Tell(Stream::Output, HelpText());
        return 0;
    }
    if (options.version) {
        Tell(Stream::Output, VersionText());
        return 0;
    }
    if (options.file.empty()) {
        options.file = AskForCsv(nullptr);
        if (options.file.empty())
            return 0;
    }
    const ChartServer server(options.registered ? ServerSource::Registered
                                                : ServerSource::BesideProgram);
    if (!options.script.empty())
        return RunScript(options, server);
    return options.png.empty() ? ShowToPerson(options, server) : DrawPicture(options, server);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    InitCommonControls();
    try {
        return Run();
    } catch (const Error& error) {
        std::u16string text = u"vantoplex-viewer: " + error.text + u"\n";
        if (error.exitCode == ExitCode::BadCommandLine)
            text += u"Try --help.\n";
        Tell(Stream::Error, text);
        return static_cast<int>(error.exitCode);
    } catch (const std::bad_alloc&) {
        Tell(Stream::Error, u"vantoplex-viewer: the file needs more memory than there is\n");
        return static_cast<int>(ExitCode::BadData);
    }
}

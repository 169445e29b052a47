// What the menu commands of a session do.

#include "viewer/BusinessView.h"
#include "viewer/Capture.h"
#include "viewer/ClipboardCopy.h"
#include "viewer/FileDialogs.h"
#include "viewer/GraphCommands.h"
#include "viewer/HelpText.h"
#include "viewer/KeysBox.h"
#include "viewer/MenuCommands.h"
#include "viewer/Output.h"
#include "viewer/Picture.h"
#include "viewer/PieView.h"
#include "viewer/PlainText.h"
#include "viewer/RecentFiles.h"
#include "viewer/Session.h"
#include "viewer/StatusText.h"

#include <algorithm>

namespace Viewer
{
namespace
{

using namespace MenuCommand;

bool IsIn(unsigned command, unsigned first, unsigned last)
{
    return command >= first && command <= last;
}

} // namespace

void Session::Tell(std::u16string_view text)
{
    if (m_scripted) {
        Print(Stream::Output, std::u16string(text) + u"\n");
    } else {
        MessageBoxW(m_window.Window(), ToWide(text).c_str(), L"Vantoplex Viewer", MB_OK);
    }
}

// What a person sees in a box ends a script at this step.
void Session::Fail(std::u16string_view text)
{
    if (m_scripted) {
        m_failure = text;
    } else {
        Tell(text);
    }
}

void Session::OnCommand(unsigned command)
{
    try {
        Run(command);
    } catch (const Error& error) {
        Fail(error.text);
    } catch (const std::bad_alloc&) {
        Fail(u"There is not enough memory for that.");
    }
}

void Session::Run(unsigned command)
{
    if (command == Exit) {
        PostMessageW(m_window.Window(), WM_CLOSE, 0, 0);
    } else if (command == Keys) {
        m_scripted ? Tell(KeysText()) : ShowKeys(m_window.Window());
    } else if (command == About) {
        Tell(VersionText());
    } else {
        (void)(RunFile(command) || RunPicture(command) || RunGraph(command) || RunChart(command));
    }
}

bool Session::RunFile(unsigned command)
{
    const HWND owner = m_window.Window();
    if (command == OpenCsv) {
        const std::u16string path = AskForCsv(owner);
        if (!path.empty())
            Open(path);
    } else if (IsIn(command, FirstRecent, LastRecent)) {
        const std::vector<std::u16string> files = RecentFiles::List();
        if (command - FirstRecent < files.size())
            Open(files[command - FirstRecent]);
    } else if (command == Follow) {
        ToggleFollowing();
    } else if (command == OpenGraph) {
        const std::u16string path = AskForGraph(owner);
        if (!path.empty() && !LoadGraph(path))
            Fail(u"The graph file can't be read: only settings can be, not curves and objects.");
    } else if (command == MenuCommand::SaveGraph) {
        const GraphTarget target = AskForGraphTarget(owner);
        if (!target.path.empty() && !SaveGraph(target.path, target.sections))
            Fail(u"The graph file can't be written.");
    } else {
        return false;
    }
    return true;
}

void Session::Open(const std::u16string& path)
{
    Options options = m_document.options;
    options.file = path;
    // Columns of the last file mean nothing in another one.
    options.x.reset();
    options.group.reset();
    options.title.clear();
    options.y.clear();
    options.y2.clear();
    options.pick.clear();
    Show(ReadDocument(options));
    if (!m_scripted)
        RecentFiles::Add(path);
    if (m_followed)
        m_followed.emplace(path);
}

// If it can't be shown, the document before stays.
void Session::Show(Document document)
{
    Document before = std::exchange(m_document, std::move(document));
    try {
        m_window.SetStatus(MainWindow::StatusPart::Text, ShowChart());
    } catch (...) {
        m_document = std::move(before);
        throw;
    }
}

void Session::ToggleFollowing()
{
    if (m_followed) {
        m_followed.reset();
    } else {
        m_followed.emplace(m_document.options.file);
    }
    m_window.Tick(m_followed.has_value());
}

// Nothing is taken out of a person's hands: a view that is zoomed and a mouse button that is held
// down wait. A file that can't be read now may be at the next tick.
void Session::OnTick()
{
    const bool busy = GetCapture() != nullptr || (m_control && m_control->ZoomDepth() > 0 && !m_isReset);
    if (!m_followed || busy || !m_followed->HasChanged())
        return;
    const int operation = m_control ? m_control->Operation() : opNone;
    try {
        Show(ReadDocument(m_document.options));
        if (m_control && operation != opNone) {
            m_control->SetOperation(operation);
            ShowState();
        }
    } catch (const Error& error) {
        m_window.SetStatus(MainWindow::StatusPart::Text, error.text);
    }
}

void Session::OnFileDropped(const std::u16string& path)
{
    try {
        Open(path);
    } catch (const Error& error) {
        Fail(error.text);
    }
}

bool Session::RunPicture(unsigned command)
{
    using Paint = Capture::Paint;
    if (command == ExportPng) {
        const std::u16string path = AskForPng(m_window.Window());
        if (!path.empty()) {
            UpdateWindow(m_window.Window()); // the dialog has just gone from above it
            SaveAsPng(Capture(ChartWindow(), Paint::AsIs), path);
        }
    } else if (command == CopyBitmap) {
        CopyAsBitmap(m_window.Window(), Capture(ChartWindow(), Paint::AsIs));
    } else if (command == CopyMetafile) {
        CopyAsMetafile(m_window.Window(), Capture(ChartWindow(), Paint::AsIs), m_document.name);
    } else {
        return false;
    }
    return true;
}

bool Session::RunGraph(unsigned command)
{
    if (!m_control)
        return false;
    if (command == DeleteMeasures) {
        m_control->DeleteMeasures();
    } else if (command == ViewMoved || (command == ViewDragged && m_control->Operation() == opPan)) {
        m_isReset = false;
        ShowState();
    } else if (command == Legend) {
        m_control->ToggleLegend();
    } else if (command == Snap) {
        m_control->ToggleSnap();
    } else if (IsIn(command, FirstDegree, LastDegree)) {
        Analyse(Analysis::PolynomialTrend, static_cast<int>(command - FirstDegree) + 2);
    } else if (IsIn(command, FirstAverage, LastAverage)) {
        const int analysis =
            static_cast<int>(Analysis::SimpleAverage) + static_cast<int>(command - FirstAverage);
        Analyse(static_cast<Analysis>(analysis), spans[static_cast<std::size_t>(m_span)]);
    } else if (IsIn(command, FirstSpan, LastSpan)) {
        m_span = static_cast<int>(command - FirstSpan);
    } else if (IsIn(command, FirstCurve, LastCurve)) {
        m_control->ChooseCurve(static_cast<int>(command - FirstCurve));
    } else if (command == VPX_COMMAND_LINEAR_TREND) {
        Analyse(Analysis::LinearTrend, 0);
    } else if (command == VPX_COMMAND_CUBIC_TREND) {
        Analyse(Analysis::CubicTrend, 0);
    } else if (IsIn(command, VPX_COMMAND_SELECT, VPX_COMMAND_MEASURE)) {
        m_control->Send(command);
        m_isReset = command == VPX_COMMAND_RESET_ZOOM || (m_isReset && command != VPX_COMMAND_ZOOM_BACK);
        m_window.SetStatus(MainWindow::StatusPart::Text, OperationHint(m_control->Operation()));
        ShowState();
    } else {
        return false;
    }
    return true;
}

void Session::Analyse(Analysis analysis, int parameter)
{
    if (!m_control->Analyse(analysis, parameter))
        Fail(u"This can't be worked out from the curve.");
}

bool Session::RunChart(unsigned command)
{
    Options& options = m_document.options;
    if (IsIn(command, FirstKind, LastKind)) {
        Switch(static_cast<ChartKind>(command - FirstKind));
    } else if (command == NoAnimation) {
        Animate(u"");
    } else if (IsIn(command, FirstAnimation, LastAnimation)) {
        Animate(Animations()[command - FirstAnimation].word);
    } else if (IsIn(command, FirstStyle, LastStyle)) {
        options.style = static_cast<PieStyle>(command - FirstStyle);
        Tilt(0);
    } else if (IsIn(command, FirstOrder, LastOrder)) {
        options.order = static_cast<PieOrder>(command - FirstOrder);
        Tilt(0);
    } else if (command == TiltMore || command == TiltLess) {
        Tilt(command == TiltMore ? 5 : -5);
    } else {
        return false;
    }
    return true;
}

void Session::Switch(ChartKind kind)
{
    const ChartKind before = std::exchange(m_document.options.chart, kind);
    const std::u16string animation = std::exchange(m_document.options.animation, u"");
    try {
        ShowChart();
    } catch (...) {
        m_document.options.chart = before;
        m_document.options.animation = animation;
        throw;
    }
}

void Session::Animate(std::u16string_view word)
{
    if (m_business) {
        m_document.options.animation = word;
        m_business->Animate(word);
    }
}

void Session::StopAtTick()
{
    if (m_business && m_document.options.tick >= 0)
        m_business->StopAtTick(m_document.options.tick);
}

// By so many degrees; 0 shows the other looks anew.
void Session::Tilt(int degrees)
{
    Options& options = m_document.options;
    options.tilt = std::clamp(options.tilt + degrees, 0, 85);
    if (m_pie)
        m_pie->SetLooks(options);
}

void Session::OnOpenMenu(HMENU menu)
{
    UpdateMenu(menu, StateOfMenu());
}

bool Session::OnChartMessage(UINT message, WPARAM wParam)
{
    try {
        return m_control && AnswerGraph(message, wParam);
    } catch (const Error& error) {
        m_window.SetStatus(MainWindow::StatusPart::Text, error.text);
        return true;
    }
}

bool Session::AnswerGraph(UINT message, WPARAM wParam)
{
    using Part = MainWindow::StatusPart;
    switch (message) {
    case XG_CURVECLICK:
        m_control->ChooseCurve(static_cast<int>(wParam));
        m_window.SetStatus(Part::Text, m_control->Reading());
        break;
    case XG_CURSORMOVED:
    case XG_POINTCHANGED:
        m_window.SetStatus(Part::Text, m_control->Reading());
        break;
    case XG_ZOOMCHANGE:
        m_control->FitDateLabels();
        m_isReset = false;
        ShowState();
        break;
    case XG_RBUTTONUP:
        ShowPopup();
        break;
    default:
        return false;
    }
    return true;
}

void Session::ShowPopup()
{
    if (m_scripted)
        return;
    POINT place{};
    GetCursorPos(&place);
    const HMENU menu = MakeGraphPopup();
    UpdateMenu(menu, StateOfMenu());
    const BOOL command = TrackPopupMenu(menu, TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY, place.x,
                                        place.y, 0, m_window.Window(), nullptr);
    DestroyMenu(menu);
    if (command)
        OnCommand(static_cast<unsigned>(command));
}

// A pie notifies its host of nothing: after a click one asks.
void Session::OnChartClicked()
{
    if (m_pie)
        m_window.SetStatus(MainWindow::StatusPart::Text, m_pie->SelectedName());
}

} // namespace Viewer

#include "viewer/ScriptRunner.h"

#include "viewer/Capture.h"
#include "viewer/DialogSteps.h"
#include "viewer/GraphCommands.h"
#include "viewer/MenuCommands.h"
#include "viewer/Output.h"
#include "viewer/Picture.h"
#include "viewer/PlainText.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace Viewer
{
namespace
{

using Word = std::pair<std::u16string_view, unsigned>;

constexpr std::array<Word, 25> Commands = {{
    {u"select", VPX_COMMAND_SELECT},
    {u"zoom", VPX_COMMAND_ZOOM},
    {u"pan", VPX_COMMAND_PAN},
    {u"cursor", VPX_COMMAND_CURSOR},
    {u"measure", VPX_COMMAND_MEASURE},
    {u"edit", VPX_COMMAND_EDIT},
    {u"label", VPX_COMMAND_INSERT_LABEL},
    {u"zoom-back", VPX_COMMAND_ZOOM_BACK},
    {u"reset-zoom", VPX_COMMAND_RESET_ZOOM},
    {u"delete-measures", MenuCommand::DeleteMeasures},
    {u"properties", VPX_COMMAND_PROPERTIES},
    {u"linear-trend", VPX_COMMAND_LINEAR_TREND},
    {u"cubic-trend", VPX_COMMAND_CUBIC_TREND},
    {u"polynomial", MenuCommand::FirstDegree},
    {u"simple-average", MenuCommand::FirstAverage},
    {u"exponential-average", MenuCommand::FirstAverage + 1},
    {u"linear-average", MenuCommand::FirstAverage + 2},
    {u"triangular-average", MenuCommand::LastAverage},
    {u"copy-bitmap", MenuCommand::CopyBitmap},
    {u"copy-metafile", MenuCommand::CopyMetafile},
    {u"graph", MenuCommand::FirstKind},
    {u"bar", MenuCommand::FirstKind + 1},
    {u"line", MenuCommand::FirstKind + 2},
    {u"pie", MenuCommand::FirstKind + 3},
    {u"pie3d", MenuCommand::LastKind},
}};

constexpr std::array<Word, 12> Keys = {{{u"home", VK_HOME},
                                        {u"add", VK_ADD},
                                        {u"subtract", VK_SUBTRACT},
                                        {u"left", VK_LEFT},
                                        {u"right", VK_RIGHT},
                                        {u"up", VK_UP},
                                        {u"down", VK_DOWN},
                                        {u"delete", VK_DELETE},
                                        {u"return", VK_RETURN},
                                        {u"escape", VK_ESCAPE},
                                        {u"space", VK_SPACE},
                                        {u"tab", VK_TAB}}};

template <class Words> unsigned Look(const Words& words, std::u16string_view sought)
{
    for (const auto& [word, number] : words) {
        if (word == sought)
            return number;
    }
    return 0;
}

[[noreturn]] void Refuse(const Step& step, std::u16string_view reason)
{
    throw Error{ExitCode::BadCommandLine,
                u"script, line " + ToText(step.line) + u": " + std::u16string(reason)};
}

} // namespace

void ScriptRunner::Run(std::span<const Step> steps)
{
    m_steps = steps;
    Settle();
    while (!m_steps.empty()) {
        const Step& step = m_steps.front();
        m_steps = m_steps.subspan(1);
        m_isRunning = true;
        RunStep(step);
        m_isRunning = false;
        if (m_failure)
            std::rethrow_exception(m_failure);
        Settle();
    }
}

void ScriptRunner::RunStep(const Step& step)
{
    if (RunMouse(step) || RunDialog(step))
        return;
    switch (step.verb) {
    case Verb::Mode:
    case Verb::Command:
        RunCommand(step);
        break;
    case Verb::Wheel:
        Turn(step.number);
        break;
    case Verb::Key:
        Press(Look(Keys, step.text));
        break;
    case Verb::Type:
        Type(step.text);
        break;
    case Verb::Save:
        if (!m_session.SaveGraph(step.text, PERSIST_PROPERTIES))
            throw Error{ExitCode::NoPicture, u"can't write " + Quote(step.text)};
        break;
    case Verb::Load:
        if (!m_session.LoadGraph(step.text))
            throw Error{ExitCode::BadData, u"can't read " + Quote(step.text)};
        break;
    case Verb::Picture:
        SaveAsPng(Capture(m_session.ChartWindow(), Capture::Paint::AsIs), step.text);
        break;
    case Verb::Window:
        SaveAsPng(Capture(m_session.Frame().Window(), Capture::Paint::AsIs), step.text);
        break;
    case Verb::Print:
        Print(Stream::Output, m_session.State() + u"\n");
        break;
    default:
        break;
    }
}

bool ScriptRunner::RunMouse(const Step& step)
{
    if (step.places.empty())
        return false;
    const POINT first = Find(step.places.front(), step);
    const POINT last = Find(step.places.back(), step);
    switch (step.verb) {
    case Verb::Click:
        Click(first);
        break;
    case Verb::DoubleClick:
        DoubleClick(first);
        break;
    case Verb::RightClick:
        RightClick(first);
        break;
    case Verb::Move:
        Move(first, 0);
        break;
    case Verb::Drag:
    case Verb::Hold:
        Drag(first, last, step.verb == Verb::Drag);
        break;
    default:
        Release(first);
        break;
    }
    return true;
}

// By the way that menu and buttons go.
void ScriptRunner::RunCommand(const Step& step)
{
    const unsigned command =
        step.text.empty() ? static_cast<unsigned>(step.number) : Look(Commands, step.text);
    const bool graphOnly = command >= VPX_COMMAND_SELECT;
    if (graphOnly)
        (void)Graph(step);
    SendMessageW(m_session.Frame().Window(), WM_COMMAND, command, 0);
    const std::u16string failure = m_session.TakeFailure();
    if (!failure.empty())
        throw Error{ExitCode::BadData, u"script, line " + ToText(step.line) + u": " + failure};
}

GraphControl& ScriptRunner::Graph(const Step& step) const
{
    GraphControl* graph = m_session.Graph();
    if (!graph)
        Refuse(step, u"only an XY graph can do that");
    return *graph;
}

POINT ScriptRunner::Find(const Place& place, const Step& step) const
{
    RECT client{};
    GetClientRect(m_session.ChartWindow(), &client);
    const auto pixel = [](const Coordinate& coordinate, LONG length) {
        const double part = coordinate.unit == Coordinate::Unit::Percent
                                ? length * coordinate.value / 100
                                : coordinate.value;
        return static_cast<LONG>(std::lround(part));
    };
    POINT point = {pixel(place.x, client.right), 0};
    if (place.y.unit == Coordinate::Unit::OnCurve) {
        GraphControl& graph = Graph(step);
        const int curve = static_cast<int>(place.y.value);
        if (curve >= graph.CurveCount())
            Refuse(step, u"there is no such curve");
        point.y = graph.PixelOnCurve(curve, point.x);
    } else {
        point.y = pixel(place.y, client.bottom);
    }
    return point;
}

void ScriptRunner::Move(POINT place, WPARAM held)
{
    Send(WM_MOUSEMOVE, held, place);
}

void ScriptRunner::Click(POINT place)
{
    Drag(place, place, true);
}

void ScriptRunner::DoubleClick(POINT place)
{
    Click(place);
    Settle();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    Send(WM_LBUTTONUP, 0, place);
}

void ScriptRunner::RightClick(POINT place)
{
    Move(place, 0);
    Send(WM_RBUTTONDOWN, MK_RBUTTON, place);
    Send(WM_RBUTTONUP, 0, place);
}

// What follows the press is posted before it: a press on a selected label doesn't return until the
// label has been dragged to its place.
void ScriptRunner::Drag(POINT from, POINT to, bool release)
{
    Move(from, 0);
    constexpr int steps = 8;
    if (from.x != to.x || from.y != to.y) {
        for (int at = 1; at <= steps; ++at) {
            Post(WM_MOUSEMOVE, MK_LBUTTON,
                 {from.x + (to.x - from.x) * at / steps, from.y + (to.y - from.y) * at / steps});
        }
    }
    if (release)
        Post(WM_LBUTTONUP, 0, to);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, from);
}

void ScriptRunner::Release(POINT place)
{
    Move(place, MK_LBUTTON);
    Send(WM_LBUTTONUP, 0, place);
}

void ScriptRunner::Turn(int notches)
{
    const short delta = notches < 0 ? -WHEEL_DELTA : WHEEL_DELTA;
    for (int at = 0; at < std::abs(notches); ++at)
        SendMessageW(m_session.ChartWindow(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
}

// Keys go through the queue, where the chart looks out for some of them.
void ScriptRunner::Press(WPARAM key)
{
    const HWND focus = GetFocus();
    const HWND chart = m_session.ChartWindow();
    const HWND capture = GetCapture(); // a popup of colours works by it
    const HWND target = Dialogs::Open()                  ? (capture ? capture : focus)
                        : focus && IsChild(chart, focus) ? focus
                                                         : chart;
    PostMessageW(target, WM_KEYDOWN, key, 1);
    PostMessageW(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void ScriptRunner::Type(std::u16string_view text)
{
    const HWND focus = GetFocus();
    for (const char16_t unit : text)
        SendMessageW(focus, WM_CHAR, unit, 1);
}

void ScriptRunner::Post(UINT message, WPARAM wParam, POINT place)
{
    const LPARAM lParam = MAKELPARAM(place.x, place.y);
    m_posted.push_back({message, lParam});
    PostMessageW(m_session.ChartWindow(), message, wParam, lParam);
}

void ScriptRunner::Send(UINT message, WPARAM wParam, POINT place)
{
    SendMessageW(m_session.ChartWindow(), message, wParam, MAKELPARAM(place.x, place.y));
}

// The pointer that lies on the screen by chance must not take part.
bool ScriptRunner::IsOurs(const MSG& message)
{
    const bool mouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    if (!mouse)
        return true;
    while (!m_posted.empty()) {
        const Posted next = m_posted.front();
        if (next.message == message.message && next.place == message.lParam) {
            m_posted.pop_front();
            return true;
        }
        if (message.hwnd != m_session.ChartWindow())
            return false;
        // Either the pointer's, or some of ours went through the loop of a drag.
        bool later = false;
        for (const Posted& posted : m_posted)
            later = later || (posted.message == message.message && posted.place == message.lParam);
        if (!later)
            return false;
        m_posted.pop_front();
    }
    return false;
}

void ScriptRunner::Settle()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (IsOurs(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    m_posted.clear();
    UpdateWindow(m_session.ChartWindow());
}

} // namespace Viewer

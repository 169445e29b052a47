// The steps of a script inside of dialogs.

#include "viewer/Capture.h"
#include "viewer/DialogSteps.h"
#include "viewer/Output.h"
#include "viewer/Picture.h"
#include "viewer/PlainText.h"
#include "viewer/ScriptRunner.h"

#include <utility>

namespace Viewer
{
namespace
{

ScriptRunner* g_runner = nullptr; // a timer without a window has no place for it
constexpr UINT Patience = 20;     // milliseconds between two steps in a dialog

} // namespace

ScriptRunner::ScriptRunner(Session& session) : m_session(session)
{
    // The pointer of the screen must not lie over a dialog.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    g_runner = this;
    m_timer = SetTimer(nullptr, 0, Patience, [](HWND, UINT, UINT_PTR, DWORD) {
        if (g_runner && g_runner->m_isRunning)
            g_runner->RunInDialog();
    });
}

ScriptRunner::~ScriptRunner()
{
    KillTimer(nullptr, m_timer);
    g_runner = nullptr;
}

// The system calls here: nothing may be thrown through it.
void ScriptRunner::RunInDialog()
{
    const HWND dialog = Dialogs::Open();
    const HWND menu = Dialogs::OpenMenu();
    if (!dialog && !menu)
        return;
    if (m_failure || m_steps.empty()) {
        EndMenu();
        PostMessageW(dialog, WM_CLOSE, 0, 0);
        return;
    }
    const Step& step = m_steps.front();
    m_steps = m_steps.subspan(1);
    try {
        RunStep(step);
    } catch (const Error& error) {
        m_failure = std::make_exception_ptr(
            Error{error.exitCode, error.text.starts_with(u"script,")
                                      ? error.text
                                      : u"script, line " + ToText(step.line) + u": " + error.text});
    } catch (...) {
        m_failure = std::current_exception();
    }
}

bool ScriptRunner::RunDialog(const Step& step)
{
    if (step.verb < Verb::Choose)
        return false;
    const HWND dialog = Dialogs::Open();
    const HWND menu = Dialogs::OpenMenu();
    if (step.verb == Verb::Choose ? !menu : !dialog) {
        throw Error{ExitCode::BadCommandLine, u"script, line " + ToText(step.line) + u": no " +
                                                  (step.verb == Verb::Choose ? u"menu" : u"dialog") +
                                                  u" is open"};
    }
    switch (step.verb) {
    case Verb::Choose:
        Dialogs::Choose(menu, step.number);
        break;
    case Verb::Page:
        Dialogs::TurnTo(dialog, step.text);
        break;
    case Verb::Set:
        Dialogs::Set(dialog, step.number, step.text);
        break;
    case Verb::Press:
        Dialogs::Press(dialog, step.number);
        break;
    case Verb::Read:
        Print(Stream::Output, ToText(static_cast<std::size_t>(step.number)) + u": " +
                                  Dialogs::Read(dialog, step.number) + u"\n");
        break;
    default:
        SaveAsPng(Capture(m_session.Frame().Window(), Dialogs::Over(m_session.Frame().Window())),
                  step.text);
        break;
    }
    return true;
}

} // namespace Viewer

#pragma once
// Runs the steps of a script on a session, as a person's mouse and keys would.
//
// A step that opens a dialog doesn't end before the dialog does. A timer runs the steps that
// follow it inside of the dialog's own loop.

#include "viewer/ScriptText.h"
#include "viewer/Session.h"

#include <deque>
#include <exception>
#include <span>

namespace Viewer
{

class ScriptRunner
{
public:
    explicit ScriptRunner(Session& session);
    ScriptRunner(const ScriptRunner&) = delete;
    ScriptRunner& operator=(const ScriptRunner&) = delete;
    ~ScriptRunner();

    // The session's window is shown already, and lies on the screen as a whole. Throws Error. A
    // dialog that is open at the end is closed.
    void Run(std::span<const Step> steps);

private:
    void RunStep(const Step& step);
    bool RunMouse(const Step& step);
    bool RunDialog(const Step& step);
    void RunInDialog();
    void RunCommand(const Step& step);

    void Move(POINT place, WPARAM held);
    void Click(POINT place);
    void DoubleClick(POINT place);
    void RightClick(POINT place);
    void Drag(POINT from, POINT to, bool release);
    void Release(POINT place);
    void Turn(int notches);
    void Press(WPARAM key);
    void Type(std::u16string_view text);

    void Post(UINT message, WPARAM wParam, POINT place);
    void Send(UINT message, WPARAM wParam, POINT place);
    void Settle();
    [[nodiscard]] bool IsOurs(const MSG& message);

    [[nodiscard]] POINT Find(const Place& place, const Step& step) const;
    [[nodiscard]] GraphControl& Graph(const Step& step) const;

    Session& m_session;
    struct Posted {
        UINT message;
        LPARAM place;
    };
    std::deque<Posted> m_posted;
    std::span<const Step> m_steps; // those that are still to run
    bool m_isRunning = false;      // a step is under way
    std::exception_ptr m_failure;  // of a step inside of a dialog
    UINT_PTR m_timer = 0;
};

} // namespace Viewer

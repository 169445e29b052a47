#pragma once
// Runs the steps of a script on a session, as a person's mouse and keys would.

#include "viewer/ScriptText.h"
#include "viewer/Session.h"

#include <deque>
#include <span>

namespace Viewer
{

class ScriptRunner
{
public:
    explicit ScriptRunner(Session& session) : m_session(session) {}

    // The session's window is shown already, and lies on the screen as a whole. Throws Error.
    void Run(std::span<const Step> steps);

private:
    void RunStep(const Step& step);
    bool RunMouse(const Step& step);
    void RunCommand(const Step& step);

    void Move(POINT place, WPARAM keys);
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
};

} // namespace Viewer

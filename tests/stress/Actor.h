#pragma once
// A chart on the stage, and what a host may do to it. Calls that end the process by contract are
// left out; each place that leaves one out names it.

#include "Log.h"

#include "net/Host.h"
#include "net/Random.h"

#include <memory>

class Actor
{
public:
    Actor() = default;
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;
    virtual ~Actor() = default;

    virtual void Act(Random& random, Log& log) = 0;
    [[nodiscard]] virtual HWND Window() const = 0;
};

namespace Actors
{
[[nodiscard]] std::unique_ptr<Actor> MakeGraph(const Server& server, wireHWND parent, const RECT& place);
[[nodiscard]] std::unique_ptr<Actor> MakeChart(const Server& server, wireHWND parent, const RECT& place,
                                               int nKind);
[[nodiscard]] std::unique_ptr<Actor> MakePie(const Server& server, wireHWND parent, const RECT& place);
} // namespace Actors

// Values that hosts pass: most are ordinary, some are not.
namespace Extremes
{
[[nodiscard]] int Number(Random& random, int nFrom, int nTo);
[[nodiscard]] double Value(Random& random);
[[nodiscard]] float Angle(Random& random);
[[nodiscard]] std::wstring String(Random& random);
} // namespace Extremes

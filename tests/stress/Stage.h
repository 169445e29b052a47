#pragma once
// Two windows of a host and the charts in them. A step makes, releases or bereaves a chart, or
// lets one act; the host calls back from its message loop and from every modal loop.

#include "Actor.h"
#include "DialogHand.h"
#include "FailingPrinter.h"

#include <array>
#include <memory>

class Stage
{
public:
    Stage(const Server& server, Log& log);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    // Depends on the seed, the step's number and what the stage holds.
    void Step(std::uint64_t seed, int nStep);

private:
    void Make(Random& random, std::size_t nActor);
    void Bereave(Random& random);
    void BereaveInside();
    void LetGo();
    void Pump();
    void CallBack();
    static void CALLBACK OnTimer(HWND hWnd, UINT message, UINT_PTR nTimer, DWORD nTime);

    static Stage* s_pCurrent;

    const Server& m_server;
    Log& m_log;
    DialogHand m_dialogs;
    FailingPrinter m_printer;
    std::array<std::unique_ptr<HostWindow>, 2> m_hosts;
    std::array<std::unique_ptr<Actor>, 4> m_actors;
    std::array<std::size_t, 4> m_hostOf = {};
    std::array<bool, 4> m_bereaved = {}; // to be let go when nothing of it runs any more
    Random m_callBacks{0, 0};
    bool m_bInside = false; // a call back makes no further one
    UINT_PTR m_nTimer;
};

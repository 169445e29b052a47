#include "Stage.h"

#include <utility>

Stage* Stage::s_pCurrent = nullptr;

Stage::Stage(const Server& server, Log& log)
    : m_server(server), m_log(log), m_dialogs(log), m_printer(server.Module())
{
    for (auto& host : m_hosts)
        host = std::make_unique<HostWindow>(640, 480);
    s_pCurrent = this;
    m_nTimer = ::SetTimer(nullptr, 0, 10, &OnTimer);
}

Stage::~Stage()
{
    ::KillTimer(nullptr, m_nTimer);
    s_pCurrent = nullptr;
}

void Stage::Step(std::uint64_t seed, int nStep)
{
    Random random(seed, static_cast<std::uint64_t>(nStep));
    m_callBacks = Random(seed + 1, static_cast<std::uint64_t>(nStep));
    m_dialogs.Begin(Random(seed + 2, static_cast<std::uint64_t>(nStep)));
    m_printer.Begin(Random(seed + 3, static_cast<std::uint64_t>(nStep)));
    LetGo();
    const auto nActor = static_cast<std::size_t>(random.Int(0, static_cast<int>(m_actors.size()) - 1));
    if (m_actors[nActor] == nullptr)
        Make(random, nActor);
    else if (random.OneIn(250))
        Bereave(random);
    else if (random.OneIn(120)) {
        m_log.Say("released");
        m_actors[nActor].reset();
    } else if (random.OneIn(12))
        Pump();
    else
        m_actors[nActor]->Act(random, m_log);
}

void Stage::Make(Random& random, std::size_t nActor)
{
    const auto nHost = static_cast<std::size_t>(random.Int(0, 1));
    RECT place = {random.Int(-10, 100), random.Int(-10, 100), random.Int(0, 500), random.Int(0, 400)};
    const wireHWND parent = m_hosts[nHost]->Wire();
    const int nKind = random.Int(0, 6);
    m_log.Say("chart of kind %d at %ld %ld %ld %ld", nKind, place.left, place.top, place.right,
              place.bottom);
    if (nKind < 3)
        m_actors[nActor] = Actors::MakeGraph(m_server, parent, place);
    else if (nKind < 6)
        m_actors[nActor] = Actors::MakeChart(m_server, parent, place, nKind - 3);
    else
        m_actors[nActor] = Actors::MakePie(m_server, parent, place);
    m_hostOf[nActor] = nHost;
}

// The parent goes first; its charts are called a few times more and let go.
void Stage::Bereave(Random& random)
{
    const auto nHost = static_cast<std::size_t>(random.Int(0, 1));
    m_log.Say("parent %d destroyed", static_cast<int>(nHost));
    m_hosts[nHost] = std::make_unique<HostWindow>(640, 480);
    for (std::size_t i = 0; i < m_actors.size(); ++i) {
        if (m_actors[i] != nullptr && m_hostOf[i] == nHost) {
            for (int n = random.Int(0, 3); n > 0; --n)
                m_actors[i]->Act(random, m_log);
            m_actors[i].reset();
        }
    }
}

// Its charts' calls and loops may be under way.
void Stage::BereaveInside()
{
    const auto nHost = static_cast<std::size_t>(m_callBacks.Int(0, 1));
    m_log.Say("parent %d destroyed inside", static_cast<int>(nHost));
    for (std::size_t i = 0; i < m_actors.size(); ++i)
        m_bereaved[i] = m_bereaved[i] || (m_actors[i] != nullptr && m_hostOf[i] == nHost);
    m_hosts[nHost] = std::make_unique<HostWindow>(640, 480);
}

void Stage::LetGo()
{
    for (std::size_t i = 0; i < m_actors.size(); ++i) {
        if (std::exchange(m_bereaved[i], false))
            m_actors[i].reset();
    }
}

void Stage::Pump()
{
    m_log.Say("message loop");
    MSG message;
    for (int n = 0; n < 200 && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++n) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        if (message.message >= WM_USER && message.message < 0xC000)
            CallBack();
    }
}

void Stage::CallBack()
{
    if (m_bInside || !m_callBacks.OneIn(3))
        return;
    m_bInside = true;
    const auto nActor =
        static_cast<std::size_t>(m_callBacks.Int(0, static_cast<int>(m_actors.size()) - 1));
    m_log.Say("called back:");
    if (m_callBacks.OneIn(40))
        BereaveInside();
    else if (m_actors[nActor] != nullptr)
        m_actors[nActor]->Act(m_callBacks, m_log);
    m_bInside = false;
}

// Runs wherever a loop runs: in the host's own, in a dialog, in the drag of a frame.
void Stage::OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (s_pCurrent == nullptr)
        return;
    s_pCurrent->CallBack();
    s_pCurrent->m_dialogs.GoOn();
}

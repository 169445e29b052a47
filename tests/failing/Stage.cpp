#include "Stage.h"

#include "Witness.h"

#include "net/Screen.h"

Stage::Stage(const std::wstring& dll, HWND hHost, std::FILE* pTrace)
    : m_server(std::make_unique<Server>(dll)),
      m_hFrame(::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 700, 500, hHost,
                                 nullptr, nullptr, nullptr))
{
    Witness::Follow(m_server->Module());
    m_printer = std::make_unique<Printer>(m_server->Module(), Printer::TPaper{800, 600, 96, false});
    Platform::StandBefore(m_server->Module());
    // The C++ run-time takes something at a thread's first exception, and keeps it.
    Platform::Arm(Platform::EKind::memory, 0, false);
    (void)m_server->Make<SObject, ISObject>();
    Platform::Disarm();
    Platform::BeginAccount(pTrace);
}

Stage::~Stage()
{
    End();
}

std::wstring Stage::File(const wchar_t* pszEnding) const
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"failing" + std::to_wstring(::GetCurrentProcessId()) + pszEnding;
}

bool Stage::End()
{
    if (!m_server)
        return true;
    m_printer.reset();
    ::DestroyWindow(m_hFrame);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
    const FARPROC pfn = ::GetProcAddress(m_server->Module(), "DllCanUnloadNow");
    const bool bFree =
        reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(pfn))() == S_OK;
    m_server.reset();
    return bFree;
}

std::vector<TScenario> Scenarios::All()
{
    std::vector<TScenario> scenarios;
    AddGraphs(scenarios);
    AddGraphFiles(scenarios);
    AddCharts(scenarios);
    AddPies(scenarios);
    AddModule(scenarios);
    return scenarios;
}

void Frame(HWND hWnd)
{
    if (!hWnd)
        return;
    ::InvalidateRect(hWnd, nullptr, TRUE);
    ::UpdateWindow(hWnd);
}

std::uint64_t PictureOf(HWND hWnd)
{
    if (!hWnd)
        return 0;
    Frame(hWnd);
    return Screen(hWnd).Sum();
}

#include "StartBench.h"

#include "Stopwatch.h"

#include "net/Graph.h"

#include <cstdio>
#include <string>

namespace
{
std::wstring ProgramPath()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

void RunChild(const wchar_t* pszOption)
{
    std::wstring command = L"\"" + ProgramPath() + L"\" " + pszOption;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process))
        return;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

HWND MakeWindow()
{
    return ::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr,
                             nullptr, nullptr);
}
} // namespace

int ShowEmptyWindow()
{
    ::UpdateWindow(MakeWindow());
    ::GdiFlush();
    return 0;
}

int ShowFirstChart()
{
    const std::wstring program = ProgramPath();
    const Server server(program.substr(0, program.find_last_of(L'\\') + 1) + L"Vantoplex.dll");
    if (!server.IsLoaded())
        return 1;
    const HWND hWnd = MakeWindow();
    const auto graph = server.Make<SGraph, ISGraph>();
    RECT rect = {0, 0, 800, 600};
    graph->Create(nullptr, &rect, reinterpret_cast<wireHWND>(hWnd), 1);
    TDataPoint points[] = {{0, 0}, {1, 3}, {2, 1}};
    graph->SetData(nullptr, points, 3, 0, 0, 0, 1);
    wireHWND chart = nullptr;
    graph->GetHandle(&chart);
    ::UpdateWindow(reinterpret_cast<HWND>(chart));
    ::GdiFlush();
    return 0;
}

void BenchStart(int nRuns)
{
    const auto times = Stopwatch::InTurns(
        nRuns, {[] { RunChild(L"--empty-window"); }, [] { RunChild(L"--first-chart"); }});
    std::printf("%-46s %8s %8s\n", "a process from its start to its end, ms", "p10", "median");
    std::printf("%-46s %8.1f %8.1f\n", "that shows an empty window", times[0].low, times[0].median);
    std::printf("%-46s %8.1f %8.1f\n", "that loads the DLL and shows a first chart", times[1].low,
                times[1].median);
}

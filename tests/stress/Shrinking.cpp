#include "Shrinking.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <deque>

namespace
{
// More is a hang of a run that waits; one that works has a limit of its own (ProcessorLimit.h).
constexpr DWORD MostTime = 1'800'000; // in ms
constexpr ULONGLONG MostShrinkingTime = 1'800'000;
constexpr int MostTries = 400;

std::wstring ProgramPath()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

std::wstring LogOf(const Shrinking::TRun& run)
{
    if (!run.log.empty())
        return run.log;
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"stress.log";
}

std::wstring Joined(const std::vector<int>& steps)
{
    std::wstring text;
    for (const int nStep : steps)
        text += (text.empty() ? L"" : L",") + std::to_wstring(nStep);
    return text;
}

// The steps up to the last that was begun.
std::vector<int> BegunSteps(const Shrinking::TRun& run)
{
    std::vector<int> steps;
    if (std::FILE* pFile = ::_wfopen(LogOf(run).c_str(), L"rb")) {
        char line[1024];
        int nStep = 0;
        while (std::fgets(line, sizeof line, pFile) != nullptr) {
            if (std::sscanf(line, "%d:", &nStep) == 1)
                steps.push_back(nStep);
        }
        std::fclose(pFile);
    }
    return steps;
}

// False for a hang. A busy machine is none.
bool Ends(HANDLE hProcess)
{
    return ::WaitForSingleObject(hProcess, MostTime) == WAIT_OBJECT_0;
}

void PrintLog(const Shrinking::TRun& run)
{
    if (std::FILE* pFile = ::_wfopen(LogOf(run).c_str(), L"rb")) {
        char line[1024];
        while (std::fgets(line, sizeof line, pFile) != nullptr)
            std::printf("%s", line);
        std::fclose(pFile);
    }
}
} // namespace

std::vector<int> Shrinking::Steps(const std::wstring& only, int nSteps)
{
    std::vector<int> steps;
    if (only.empty()) {
        for (int i = 0; i < nSteps; ++i)
            steps.push_back(i);
    }
    for (std::size_t nAt = 0; nAt < only.size(); nAt = only.find(L',', nAt) + 1) {
        steps.push_back(::_wtoi(only.c_str() + nAt));
        if (only.find(L',', nAt) == std::wstring::npos)
            break;
    }
    return steps;
}

bool Shrinking::Survives(const TRun& run, const std::vector<int>& steps)
{
    std::wstring command = L"\"" + ProgramPath() + L"\" \"" + run.dll + L"\" --seed " +
                           std::to_wstring(run.nSeed) + L" --steps " + std::to_wstring(run.nSteps) +
                           L" --log \"" + LogOf(run) + L"\"";
    if (!steps.empty())
        command += L" --only " + Joined(steps);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process))
        return false;
    DWORD nCode = 1;
    if (Ends(process.hProcess))
        ::GetExitCodeProcess(process.hProcess, &nCode);
    else
        ::TerminateProcess(process.hProcess, 1);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return nCode == 0;
}

void Shrinking::PrintEnd(const TRun& run)
{
    std::deque<std::string> lines;
    if (std::FILE* pFile = ::_wfopen(LogOf(run).c_str(), L"rb")) {
        char line[1024];
        while (std::fgets(line, sizeof line, pFile) != nullptr) {
            lines.emplace_back(line);
            if (lines.size() > 8)
                lines.pop_front();
        }
        std::fclose(pFile);
    }
    for (const std::string& line : lines)
        std::printf("    %s", line.c_str());
    std::printf("\n");
}

// Blocks of steps are left out, ever smaller ones, as long as the rest still fails.
void Shrinking::PrintShortest(const TRun& run)
{
    std::vector<int> steps = BegunSteps(run);
    int nTries = 0;
    const ULONGLONG nStart = ::GetTickCount64();
    const auto isOver = [&] {
        return nTries >= MostTries || ::GetTickCount64() - nStart > MostShrinkingTime;
    };
    for (std::size_t nBlock = std::max<std::size_t>(1, steps.size() / 2); !isOver();) {
        bool bShorter = false;
        for (std::size_t nAt = 0; nAt < steps.size() && !isOver();) {
            std::vector<int> fewer = steps;
            fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(nAt),
                        fewer.begin() +
                            static_cast<std::ptrdiff_t>(std::min(nAt + nBlock, steps.size())));
            ++nTries;
            if (!fewer.empty() && !Survives(run, fewer)) {
                steps = fewer;
                bShorter = true;
            } else {
                nAt += nBlock;
            }
        }
        if (nBlock == 1 && !bShorter)
            break;
        nBlock = std::max<std::size_t>(1, nBlock / 2);
    }
    const bool bFails = !Survives(run, steps);
    std::printf("shortest of seed %d: --only %ls%s\n", run.nSeed, Joined(steps).c_str(),
                bFails ? "" : " (which does not fail each time)");
    PrintLog(run);
}

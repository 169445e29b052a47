// Random hosts: long sequences of everything that interfaces, messages, commands, keys, timers,
// files and dialogs allow, from a seed. Each step is written down before it is made.
//
//   vantoplex-stress DLL [--seeds N] [--first S] [--steps M] [--log FILE] [--failures F]
//
// runs N seeds of M steps in a process each. The first that faults, ends or hangs is made again
// with fewer and fewer steps, and what is left is printed with its fault; the exit code is 1. With
// more failures allowed the end of what each wrote is printed, and the run goes on.
//
//   vantoplex-stress DLL --seed S --steps M --log FILE [--only 3,17,40]
//
// runs one seed in this process, or the steps named alone.

#include "ProcessorLimit.h"
#include "Shrinking.h"
#include "Stage.h"

#include <cstdlib>
#include <string>

namespace
{
struct TOptions {
    std::wstring dll;
    std::wstring log;
    std::wstring only;
    int nSeeds = 20;
    int nFirst = 1;
    int nSteps = 1000;
    int nFailures = 1;
    int nSeed = -1; // of a child process
};

bool Read(int nArguments, wchar_t** arguments, TOptions& options)
{
    for (int i = 1; i < nArguments; ++i) {
        const std::wstring word = arguments[i];
        const wchar_t* pszValue = i + 1 < nArguments ? arguments[i + 1] : nullptr;
        if (word[0] != L'-') {
            options.dll = word;
            continue;
        }
        if (pszValue == nullptr)
            return false;
        ++i;
        if (word == L"--seeds")
            options.nSeeds = ::_wtoi(pszValue);
        else if (word == L"--first")
            options.nFirst = ::_wtoi(pszValue);
        else if (word == L"--steps")
            options.nSteps = ::_wtoi(pszValue);
        else if (word == L"--failures")
            options.nFailures = ::_wtoi(pszValue);
        else if (word == L"--seed")
            options.nSeed = ::_wtoi(pszValue);
        else if (word == L"--log")
            options.log = pszValue;
        else if (word == L"--only")
            options.only = pszValue;
        else
            return false;
    }
    return !options.dll.empty();
}

int RunSteps(const TOptions& options)
{
    std::FILE* pFile = options.log.empty() ? stdout : ::_wfopen(options.log.c_str(), L"wb");
    const Server server(options.dll);
    if (pFile == nullptr || !server.IsLoaded())
        return 2;
    const LastWords lastWords(pFile, server.Module());
    const ProcessorLimit limit(pFile);
    Log log(pFile);
    {
        Stage stage(server, log);
        for (const int nStep : Shrinking::Steps(options.only, options.nSteps)) {
            std::fprintf(pFile, "%d: ", nStep);
            stage.Step(static_cast<std::uint64_t>(options.nSeed), nStep);
        }
    }
    log.Say("done");
    return 0;
}

int RunSeeds(const TOptions& options)
{
    long long nSteps = 0;
    int nFailed = 0;
    const ULONGLONG nStart = ::GetTickCount64();
    for (int nSeed = options.nFirst; nSeed < options.nFirst + options.nSeeds; ++nSeed) {
        const Shrinking::TRun run = {options.dll, options.log, nSeed, options.nSteps};
        if (!Shrinking::Survives(run, {})) {
            std::printf("seed %d failed after %lld steps of the seeds before\n", nSeed, nSteps);
            std::fflush(stdout);
            if (options.nFailures == 1)
                Shrinking::PrintShortest(run);
            else
                Shrinking::PrintEnd(run);
            std::fflush(stdout);
            if (++nFailed == options.nFailures)
                return 1;
            continue;
        }
        nSteps += options.nSteps;
        if (nSeed % 25 == 0) {
            const ULONGLONG nSeconds = (::GetTickCount64() - nStart) / 1000 + 1;
            std::printf("seed %d, %lld steps, %lld a second\n", nSeed, nSteps,
                        nSteps / static_cast<long long>(nSeconds));
            std::fflush(stdout);
        }
    }
    std::printf("%d seeds, %lld steps without a fault, %d seeds with one\n", options.nSeeds - nFailed,
                nSteps, nFailed);
    return nFailed == 0 ? 0 : 1;
}
} // namespace

int wmain(int nArguments, wchar_t** arguments)
{
    TOptions options;
    if (!Read(nArguments, arguments, options)) {
        std::fputs("vantoplex-stress DLL [options]: see the head of its source\n", stderr);
        return 2;
    }
    if (options.nSeed < 0)
        return RunSeeds(options);
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    ::CoInitialize(nullptr);
    return RunSteps(options);
}

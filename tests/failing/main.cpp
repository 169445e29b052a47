// A platform that fails: in each scenario the first request of a kind is refused, then the second,
// and so on until all have been. After each the same is done again without refusal and has to leave
// what it always leaves; then all ends, and nothing that the DLL took may be left.
// Kind "limit" takes all GDI objects that the process may have but for none, one, two and so on.
//
//   vantoplex-failing DLL [--scenario NAME] [--kind NAME] [--after] [--from N] [--stride N]
//
// runs every scenario with every kind, or those named (by the beginning of their name), each pair in a
// process of its own. --after refuses all requests after the N-th too. --stride 50 takes every
// fiftieth. A process that dies is reported with its number, and another goes on behind it.
// The exit code is 1 if there is a finding.

#include "Platform.h"
#include "Stage.h"
#include "Witness.h"

#include "support/GdiCount.h"

#include <cstring>
#include <optional>

namespace
{
constexpr DWORD MostQuiet = 60'000; // milliseconds without a new number: it hangs
constexpr int Never = 0x7FFFFFFF;

struct TOptions {
    std::wstring dll;
    std::string scenario;
    std::string kind;
    std::wstring log; // of a child
    int nFrom = 0;
    int nStride = 1;
    bool bAfter = false;
};

struct TOutcome {
    int nRequests = 0;
    bool bFree = true;
    std::uint64_t result = 0;
    std::map<std::string, int> held;
    int nNewGdi = 0; // GDI objects more than before the run; the platform keeps some for each module
};

struct TTask {
    TScenario scenario;
    Platform::EKind kind;
    TOptions options;
};

bool Read(int nArguments, wchar_t** arguments, TOptions& options)
{
    for (int i = 1; i < nArguments; ++i) {
        const std::wstring word = arguments[i];
        if (word == L"--after") {
            options.bAfter = true;
            continue;
        }
        if (word[0] != L'-') {
            options.dll = word;
            continue;
        }
        if (++i == nArguments)
            return false;
        const std::wstring value = arguments[i];
        if (word == L"--scenario")
            options.scenario.assign(value.begin(), value.end());
        else if (word == L"--kind")
            options.kind.assign(value.begin(), value.end());
        else if (word == L"--log")
            options.log = value;
        else if (word == L"--from")
            options.nFrom = ::_wtoi(value.c_str());
        else if (word == L"--stride")
            options.nStride = std::max(1, ::_wtoi(value.c_str()));
        else
            return false;
    }
    return !options.dll.empty();
}

std::vector<TTask> TasksOf(const TOptions& options)
{
    std::vector<TTask> tasks;
    for (const TScenario& scenario : Scenarios::All()) {
        for (int nKind = 0; nKind < static_cast<int>(Platform::EKind::count); ++nKind) {
            const auto kind = static_cast<Platform::EKind>(nKind);
            if (std::strncmp(scenario.name, options.scenario.c_str(), options.scenario.size()) == 0 &&
                std::strncmp(Platform::NameOf(kind), options.kind.c_str(), options.kind.size()) == 0)
                tasks.push_back({scenario, kind, options});
        }
    }
    return tasks;
}

TOutcome Run(const TTask& task, HWND hHost, int nNumber, std::FILE* pTrace)
{
    TOutcome outcome;
    const int nGdi = GdiCount::All();
    {
        Stage stage(task.options.dll, hHost, pTrace);
        std::unique_ptr<Scenario> scenario = task.scenario.make(stage);
        const bool bEnding = scenario->IsEnding();
        scenario->Prepare();
        if (!bEnding)
            Platform::Arm(task.kind, nNumber, task.options.bAfter);
        scenario->Act();
        outcome.nRequests = Platform::Disarm();
        scenario->Act();
        outcome.result = scenario->Result();
        if (bEnding)
            Platform::Arm(task.kind, nNumber, task.options.bAfter);
        scenario.reset();
        outcome.bFree = stage.End();
        if (bEnding)
            outcome.nRequests = Platform::Disarm();
    }
    outcome.held = Platform::Held();
    outcome.nNewGdi = GdiCount::All() - nGdi;
    if (pTrace)
        Platform::PrintHeld(pTrace);
    return outcome;
}

std::string Difference(const TOutcome& clean, const TOutcome& found)
{
    std::string text;
    if (found.result != clean.result)
        text += " leaves something else;";
    if (found.bFree != clean.bFree)
        text += " is still needed;";
    for (const auto& [name, nCount] : found.held) {
        const auto before = clean.held.find(name);
        const int nMore = nCount - (before == clean.held.end() ? 0 : before->second);
        if (nMore > 0)
            text += " keeps " + std::to_string(nMore) + " of " + name + ";";
    }
    if (found.nNewGdi > clean.nNewGdi)
        text += " keeps " + std::to_string(found.nNewGdi - clean.nNewGdi) + " GDI objects;";
    return text;
}

int RunChild(const TTask& task)
{
    std::FILE* const pLog = ::_wfopen(task.options.log.c_str(), L"ab");
    if (!pLog)
        return 2;
    Witness::Watch(pLog);
    ::CoInitialize(nullptr);
    // Else they would come and go with the DLL, which takes most of a run's time.
    for (const wchar_t* pszLibrary : {L"gdiplus", L"comctl32", L"comdlg32", L"msimg32", L"winspool.drv"})
        ::LoadLibraryW(pszLibrary);
    {
        // What the platform makes for a first message box and keeps.
        const Dialogs dialogs;
        ::MessageBoxW(nullptr, L"", L"", MB_OK);
    }
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    {
        const HostWindow host(800, 600);
        (void)Run(task, host.Handle(), Never, nullptr); // what the platform makes once and keeps
        const TOutcome clean = Run(task, host.Handle(), Never, nullptr);
        const std::string again = Difference(clean, Run(task, host.Handle(), Never, nullptr));
        if (!again.empty())
            std::fprintf(pLog, "finding: not refused anything:%s\n", again.c_str());
        std::fprintf(pLog, "requests: %d\n", clean.nRequests);
        for (int n = task.options.nFrom;; n += task.options.nStride) {
            std::fprintf(pLog, "number: %d\n", n);
            std::fflush(pLog);
            const TOutcome outcome = Run(task, host.Handle(), n, nullptr);
            if (outcome.nRequests <= n)
                break;
            if (Difference(clean, outcome).empty())
                continue;
            // Once more: what the platform makes at first use, and keeps, it doesn't make again.
            const std::string difference = Difference(clean, Run(task, host.Handle(), n, nullptr));
            if (difference.empty())
                continue;
            std::fprintf(pLog, "finding: %s, %s %d:%s\n", task.scenario.name,
                         Platform::NameOf(task.kind), n, difference.c_str());
            (void)Run(task, host.Handle(), n, pLog);
        }
    }
    std::fprintf(pLog, "done\n");
    std::fclose(pLog);
    return 0;
}

struct TLog {
    int nNumber = -1;
    int nRequests = 0;
    int nFindings = 0;
    bool bDone = false;
};

TLog ReadLog(const std::wstring& path, bool bPrint)
{
    TLog log;
    if (std::FILE* pFile = ::_wfopen(path.c_str(), L"rb")) {
        char line[4096];
        while (std::fgets(line, sizeof line, pFile)) {
            if (std::sscanf(line, "number: %d", &log.nNumber) == 1 ||
                std::sscanf(line, "requests: %d", &log.nRequests) == 1)
                continue;
            if (std::strncmp(line, "done", 4) == 0) {
                log.bDone = true;
                continue;
            }
            log.nFindings += std::strncmp(line, "finding", 7) == 0;
            if (bPrint)
                std::printf("%s", line);
        }
        std::fclose(pFile);
    }
    return log;
}

// Waits for the child as long as its numbers go on.
void Await(HANDLE hProcess, const std::wstring& log)
{
    int nLast = -2;
    for (;;) {
        if (::WaitForSingleObject(hProcess, MostQuiet) == WAIT_OBJECT_0)
            return;
        const int nNow = ReadLog(log, false).nNumber;
        if (nNow == nLast) {
            ::TerminateProcess(hProcess, 1);
            ::WaitForSingleObject(hProcess, INFINITE);
            return;
        }
        nLast = nNow;
    }
}

void Spawn(const TTask& task, int nFrom, const std::wstring& log)
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::string scenario = task.scenario.name, kind = Platform::NameOf(task.kind);
    std::wstring command = L"\"" + std::wstring(program) + L"\" \"" + task.options.dll +
                           L"\" --scenario " + std::wstring(scenario.begin(), scenario.end()) +
                           L" --kind " + std::wstring(kind.begin(), kind.end()) + L" --log \"" + log +
                           L"\" --from " + std::to_wstring(nFrom) + L" --stride " +
                           std::to_wstring(task.options.nStride) +
                           (task.options.bAfter ? L" --after" : L"");
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process))
        return;
    Await(process.hProcess, log);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

// The result is the number of findings.
int RunTask(const TTask& task)
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path =
        std::wstring(folder) + L"failing" + std::to_wstring(::GetCurrentProcessId()) + L".log";
    int nFrom = task.options.nFrom, nFindings = 0, nRequests = 0;
    for (;;) {
        ::DeleteFileW(path.c_str());
        Spawn(task, nFrom, path);
        const TLog log = ReadLog(path, true);
        nFindings += log.nFindings;
        nRequests = std::max(nRequests, log.nRequests);
        if (log.bDone)
            break;
        ++nFindings;
        std::printf("finding: %s, %s %d: ends or hangs\n", task.scenario.name,
                    Platform::NameOf(task.kind), log.nNumber);
        if (log.nNumber < 0)
            break;
        nFrom = log.nNumber + task.options.nStride;
    }
    ::DeleteFileW(path.c_str());
    std::printf("%-20s %-8s %6d requests, %d findings\n", task.scenario.name,
                Platform::NameOf(task.kind), nRequests, nFindings);
    std::fflush(stdout);
    return nFindings;
}
} // namespace

int wmain(int nArguments, wchar_t** arguments)
{
    TOptions options;
    if (!Read(nArguments, arguments, options)) {
        std::fputs("vantoplex-failing DLL [options]: see the head of its source\n", stderr);
        return 2;
    }
    const std::vector<TTask> tasks = TasksOf(options);
    if (tasks.empty())
        return 2;
    if (!options.log.empty())
        return RunChild(tasks.front());
    int nFindings = 0;
    for (const TTask& task : tasks)
        nFindings += RunTask(task);
    std::printf("%d findings\n", nFindings);
    return nFindings > 0 ? 1 : 0;
}

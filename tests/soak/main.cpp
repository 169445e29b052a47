// Hours of use in minutes: the animation's ticks, the cursor, zooms, live data and a changing pie. What
// the process holds, and how long a frame takes, is printed for the start, the middle and the end.
//
//   vantoplex-soak DLL [--hours N] [--parts N] [--untimed]
//
// An hour has 72,000 ticks; with --parts 100 only a hundredth of it is done. The exit code is 1 if
// memory or handles have grown, or a frame takes twice as long as at the start (unless --untimed).

#include "Acts.h"

#include "support/GdiCount.h"

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace
{
constexpr int TicksOfAnHour = 72'000;

struct TOptions {
    std::wstring dll;
    int nHours = 8;
    int nParts = 1;
    bool bUntimed = false;
};

bool Read(int nArguments, wchar_t** arguments, TOptions& options)
{
    for (int i = 1; i < nArguments; ++i) {
        const std::wstring word = arguments[i];
        if (word == L"--untimed")
            options.bUntimed = true;
        else if (word[0] != L'-')
            options.dll = word;
        else if (i + 1 < nArguments && word == L"--hours")
            options.nHours = std::max(1, ::_wtoi(arguments[++i]));
        else if (i + 1 < nArguments && word == L"--parts")
            options.nParts = std::max(1, ::_wtoi(arguments[++i]));
        else
            return false;
    }
    return !options.dll.empty();
}

struct THeap {
    long long nBlocks = 0;
    long long nBytes = 0;
};

THeap Heap()
{
    THeap use;
    const HANDLE hHeap = ::GetProcessHeap();
    ::HeapLock(hHeap);
    PROCESS_HEAP_ENTRY entry = {};
    while (::HeapWalk(hHeap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
            ++use.nBlocks;
            use.nBytes += entry.cbData;
        }
    }
    ::HeapUnlock(hHeap);
    return use;
}

long long PrivateBytes()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long long>(counters.PagefileUsage); // the same, which Wine has too
}

BOOL CALLBACK CountWindow(HWND hWnd, LPARAM counter)
{
    ++*reinterpret_cast<int*>(counter);
    ::EnumChildWindows(
        hWnd,
        [](HWND, LPARAM inner) -> BOOL {
            ++*reinterpret_cast<int*>(inner);
            return TRUE;
        },
        counter);
    return TRUE;
}

int Windows()
{
    int nCount = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

// The shortest of some, in milliseconds: what else runs on the machine only makes frames longer.
double FrameTime(HWND hWnd)
{
    LARGE_INTEGER frequency, before, after;
    ::QueryPerformanceFrequency(&frequency);
    double shortest = 1e9;
    for (int i = 0; i < 60; ++i) {
        ::InvalidateRect(hWnd, nullptr, TRUE);
        ::QueryPerformanceCounter(&before);
        ::UpdateWindow(hWnd);
        ::QueryPerformanceCounter(&after);
        shortest = std::min(shortest, static_cast<double>(after.QuadPart - before.QuadPart) * 1000 /
                                          static_cast<double>(frequency.QuadPart));
    }
    return shortest;
}

struct TMeasured {
    long long nPrivate = 0;
    THeap heap;
    int nGdi = 0;
    int nWindows = 0;
    std::vector<double> frames;
};

class Soak
{
public:
    explicit Soak(const Server& server)
        : m_host(1000, 760), m_bars(server, m_host, 0, {0, 0, 320, 240}),
          m_flat(server, m_host, 1, {330, 0, 650, 240}), m_lines(server, m_host, 2, {660, 0, 980, 240}),
          m_graph(server, m_host, {0, 250, 480, 600}), m_pie(server, m_host, {490, 250, 900, 600})
    {
    }

    void Part(int nTicks)
    {
        for (int i = 0; i < nTicks; ++i) {
            m_bars.Tick();
            if (i % 16 == 0) {
                m_flat.Tick();
                m_lines.Tick();
                m_graph.MoveCursor();
                m_graph.Feed();
            }
            if (i % 160 == 0) {
                m_graph.ZoomInAndOut();
                m_pie.Change();
            }
            (void)m_host.TakePosted();
        }
    }
    [[nodiscard]] TMeasured Measure() const
    {
        TMeasured measured;
        for (const HWND hWnd :
             {m_bars.Window(), m_flat.Window(), m_lines.Window(), m_graph.Window(), m_pie.Window()})
            measured.frames.push_back(FrameTime(hWnd));
        measured.nPrivate = PrivateBytes();
        measured.heap = Heap();
        measured.nGdi = GdiCount::All();
        measured.nWindows = Windows();
        return measured;
    }

private:
    HostWindow m_host;
    TickingChart m_bars, m_flat, m_lines;
    LiveGraph m_graph;
    ChangingPie m_pie;
};

void Print(const char* pszWhen, const TMeasured& measured)
{
    std::printf("%-8s %10lld %9lld %8lld %5d %8d ", pszWhen, measured.nPrivate / 1024,
                measured.heap.nBytes / 1024, measured.heap.nBlocks, measured.nGdi, measured.nWindows);
    for (const double frame : measured.frames)
        std::printf(" %6.2f", frame);
    std::printf("\n");
    std::fflush(stdout);
}

// The platform's own caches breathe: a leak of one block in an hour of ticks would be far above.
bool HasGrown(const TMeasured& start, const TMeasured& end, bool bUntimed)
{
    constexpr long long breathBytes = 256 * 1024, breathBlocks = 500, breathPrivate = 8 << 20;
    bool bGrown = end.nPrivate > start.nPrivate + breathPrivate ||
                  end.heap.nBytes > start.heap.nBytes + breathBytes ||
                  end.heap.nBlocks > start.heap.nBlocks + breathBlocks || end.nGdi > start.nGdi + 8 ||
                  end.nWindows > start.nWindows;
    for (std::size_t i = 0; i < start.frames.size(); ++i)
        bGrown = bGrown || (!bUntimed && end.frames[i] > 2 * start.frames[i] + 0.5);
    return bGrown;
}
} // namespace

int wmain(int nArguments, wchar_t** arguments)
{
    TOptions options;
    if (!Read(nArguments, arguments, options)) {
        std::fputs("vantoplex-soak DLL [options]: see the head of its source\n", stderr);
        return 2;
    }
    ::CoInitialize(nullptr);
    const Server server(options.dll);
    if (!server.IsLoaded())
        return 2;
    Soak soak(server);
    const int nPart = std::max(1, TicksOfAnHour / options.nParts);
    soak.Part(std::min(nPart, 4000)); // what is made once and kept
    std::printf(
        "KB of memory (private, in the heap), blocks, GDI objects, windows; frames in ms: bars, flat "
        "pie, lines, graph, 3D pie\n");
    const TMeasured start = soak.Measure();
    Print("start", start);
    TMeasured last = start;
    for (int nHour = 1; nHour <= options.nHours; ++nHour) {
        soak.Part(nPart);
        last = soak.Measure();
        Print((std::to_string(nHour) + " h").c_str(), last);
    }
    const bool bGrown = HasGrown(start, last, options.bUntimed);
    std::printf("%d ticks: %s\n", nPart * options.nHours, bGrown ? "grown" : "as at the start");
    return bGrown ? 1 : 0;
}

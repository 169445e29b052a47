#pragma once
// What many openings of a dialog leave behind: forty, or as many as VANTOPLEX_OPENINGS says.

#include "support/GdiCount.h"
#include "support/HostWindow.h"

#include <windows.h>

#include <psapi.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

namespace Openings
{

// All windows of this process, with their children.
inline int CountWindows()
{
    int nCount = 0;
    const auto count = [](HWND hWnd, LPARAM lParam) -> BOOL {
        DWORD nProcess = 0;
        ::GetWindowThreadProcessId(hWnd, &nProcess);
        *reinterpret_cast<int*>(lParam) += nProcess == ::GetCurrentProcessId() ? 1 : 0;
        return TRUE;
    };
    ::EnumChildWindows(::GetDesktopWindow(), count, reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

inline SIZE_T Memory()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

inline int Count()
{
    const char* pszCount = std::getenv("VANTOPLEX_OPENINGS");
    const int nCount = pszCount ? std::atoi(pszCount) : 0;
    return nCount > 0 ? nCount : 40;
}

inline void ExpectNothingLeft(const std::function<void()>& once)
{
    for (int i = 0; i < 5; ++i)
        once();
    HostWindow::Pump();
    const int nObjects = GdiCount::All();
    const int nWindows = CountWindows();
    const SIZE_T nMemory = Memory();
    const int nOpenings = Count();
    for (int i = 0; i < nOpenings; ++i)
        once();
    HostWindow::Pump();
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_EQ(CountWindows(), nWindows);
    EXPECT_LT(Memory(), nMemory + 500'000 + 10'000ULL * nOpenings) << "10 kB an opening would be a leak";
}

} // namespace Openings

#pragma once
// How many handles of the system's own objects the process holds: files, events, threads and so on.
// Each possible value is asked for, since Wine's GetProcessHandleCount always returns none.

#include <windows.h>

namespace HandleCount
{
[[nodiscard]] inline int All()
{
    int count = 0;
    for (ULONG_PTR value = 4; value < 0x8000; value += 4) {
        DWORD flags = 0;
        count += ::GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) ? 1 : 0;
    }
    return count;
}
} // namespace HandleCount

#pragma once
// How many GDI objects the process holds. Every possible handle value is asked for its type,
// which takes a fraction of a millisecond and is exact. Take one count before and one after
// the cycle under test, with one cycle run first: the platform makes some objects on first
// use and keeps them.

#include <windows.h>

namespace GdiCount
{
[[nodiscard]] inline int All()
{
    int count = 0;
    for (ULONG_PTR value = 1; value <= 0xFFFF; ++value)
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(value)) != 0 ? 1 : 0;
    return count;
}

[[nodiscard]] inline int OfType(DWORD type)
{
    int count = 0;
    for (ULONG_PTR value = 1; value <= 0xFFFF; ++value)
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(value)) == type ? 1 : 0;
    return count;
}
} // namespace GdiCount

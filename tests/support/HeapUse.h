#pragma once
// How many bytes of the process's heap are in use. The platform keeps and grows caches of its
// own, so take the difference over many cycles, after some that nobody counts, and allow
// less than the smallest object a cycle.

#include <windows.h>

#include <cstddef>

namespace HeapUse
{
[[nodiscard]] inline std::ptrdiff_t Bytes()
{
    std::ptrdiff_t bytes = 0;
    const HANDLE heap = ::GetProcessHeap();
    ::HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (::HeapWalk(heap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += static_cast<std::ptrdiff_t>(entry.cbData);
    }
    ::HeapUnlock(heap);
    return bytes;
}
} // namespace HeapUse

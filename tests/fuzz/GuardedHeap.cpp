#include "GuardedHeap.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace
{
constexpr std::size_t PageSize = 4096;
constexpr std::size_t Alignment = 16;
constexpr std::size_t MostFreed = 2000;
constexpr std::size_t MostGuarded = 8000; // blocks in use; the system maps so many pieces and no more
constexpr std::size_t MostSinceWatch = 10000;
constexpr std::uint64_t Magic = 0x5AFEB10C5AFEB10C;
constexpr std::uint64_t PlainMagic = 0x91A18B10C91A18B1;
constexpr unsigned char SlackByte = 0xA5;

struct alignas(Alignment) THeader {
    std::uint64_t nMagic;
    std::byte* pBase;
    std::size_t nCommitted;
    std::size_t nSize;
};

// No constructors: blocks are asked for before any would run. One thread uses the heap.
constinit GuardedHeap::TUse use;
constinit std::array<std::byte*, MostFreed> freed{};
constinit std::size_t nextFreed = 0;
constinit std::size_t guarded = 0;
constinit bool guards = true;
constinit std::size_t sinceWatch = 0;

std::size_t RoundUp(std::size_t nSize, std::size_t nUnit)
{
    return (nSize + nUnit - 1) / nUnit * nUnit;
}

void Count(std::size_t nSize)
{
    use.nLive += nSize;
    use.nPeak = std::max(use.nPeak, use.nLive);
    use.nLargest = std::max(use.nLargest, nSize);
}

void* AllocatePlain(std::size_t nSize)
{
    void* const base = std::malloc(sizeof(THeader) + nSize);
    if (base == nullptr)
        throw std::bad_alloc();
    Count(nSize);
    return new (base) THeader{PlainMagic, nullptr, 0, nSize} + 1;
}

void* Allocate(std::size_t nSize)
{
    constexpr std::size_t most = std::size_t{1} << 32; // far beyond any request that is in order
    if (nSize > most)
        throw std::bad_alloc();
    if (!guards || guarded >= MostGuarded || sinceWatch >= MostSinceWatch)
        return AllocatePlain(nSize);
    const std::size_t block = RoundUp(std::max<std::size_t>(nSize, 1), Alignment);
    const std::size_t committed = RoundUp(sizeof(THeader) + block, PageSize);
    auto* base = static_cast<std::byte*>(
        ::VirtualAlloc(nullptr, committed + PageSize, MEM_RESERVE, PAGE_NOACCESS));
    if (base == nullptr || ::VirtualAlloc(base, committed, MEM_COMMIT, PAGE_READWRITE) == nullptr)
        throw std::bad_alloc();

    std::byte* const result = base + committed - block;
    new (result - sizeof(THeader)) THeader{Magic, base, committed, nSize};
    std::memset(result + nSize, SlackByte, block - nSize);
    ++guarded;
    ++sinceWatch;
    Count(nSize);
    return result;
}

void Free(void* pBlock) noexcept
{
    if (pBlock == nullptr)
        return;
    auto* const block = static_cast<std::byte*>(pBlock);
    const THeader header = *reinterpret_cast<const THeader*>(block - sizeof(THeader));
    if (header.nMagic == PlainMagic) {
        use.nLive -= header.nSize;
        std::free(block - sizeof(THeader));
        return;
    }
    if (header.nMagic != Magic)
        __builtin_trap();
    for (const std::byte* slack = block + header.nSize; slack != header.pBase + header.nCommitted;
         ++slack)
        if (*slack != std::byte{SlackByte})
            __builtin_trap();
    use.nLive -= header.nSize;
    --guarded;

    DWORD before = 0;
    ::VirtualProtect(header.pBase, header.nCommitted, PAGE_NOACCESS, &before);
    std::byte*& slot = freed[nextFreed++ % MostFreed];
    if (slot != nullptr)
        ::VirtualFree(slot, 0, MEM_RELEASE);
    slot = header.pBase;
}
} // namespace

void GuardedHeap::BeginWatch() noexcept
{
    use.nPeak = use.nLive;
    sinceWatch = 0;
    use.nLargest = 0;
}

GuardedHeap::TUse GuardedHeap::Use() noexcept
{
    return use;
}

void GuardedHeap::SetGuards(bool bOn) noexcept
{
    guards = bOn;
}

void* operator new(std::size_t nSize)
{
    return Allocate(nSize);
}

void* operator new[](std::size_t nSize)
{
    return Allocate(nSize);
}

void operator delete(void* pBlock) noexcept
{
    Free(pBlock);
}

void operator delete[](void* pBlock) noexcept
{
    Free(pBlock);
}

void operator delete(void* pBlock, std::size_t) noexcept
{
    Free(pBlock);
}

void operator delete[](void* pBlock, std::size_t) noexcept
{
    Free(pBlock);
}

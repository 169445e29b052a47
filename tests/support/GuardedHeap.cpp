#include "support/GuardedHeap.h"

#include "support/CountedMemory.h"
#include "support/FailingMemory.h"

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
constexpr std::uint64_t Magic = 0x5AFEB10C5AFEB10C;
constexpr std::uint64_t PlainMagic = 0x91A18B10C91A18B1;
constexpr std::byte SlackByte{0xA5};
constexpr std::byte FreedByte{0xDD}; // eight of them are no address
constexpr std::byte FreshByte{0xC9}; // nothing is to work for a zero that was luck
constexpr std::uint32_t ProtectEvery = 16;
constexpr std::size_t Sizes = 9; // of slots: 1, 2, 4, ... pages
constexpr std::uint32_t MostSlots = 8192;

struct alignas(Alignment) THeader {
    std::uint64_t nMagic;
    std::uint32_t nSizeClass;
    std::uint32_t nSlot;
    std::size_t nSize;
};

// Slots of one size in a row, each followed by a page that is never committed. Those that are free
// wait in a ring, the one that was freed first in front.
struct TSlots {
    std::byte* pBase;
    std::uint32_t nFresh; // the first slot that was never used
    std::uint32_t nFront;
    std::uint32_t nWaiting;
    std::array<std::uint32_t, MostSlots> ring;
    std::array<std::uint32_t, MostSlots> freedSize; // bytes with the pattern; the top bit: protected
};
constexpr std::uint32_t Protected = 1U << 31;

// No constructors: blocks are asked for before any would run.
constinit SRWLOCK lock = SRWLOCK_INIT;
constinit GuardedHeap::TUse use;
constinit std::array<TSlots, Sizes> slots{};
constinit bool guards = true;
constinit std::uint32_t freedBlocks = 0;

class Locked
{
public:
    Locked() noexcept { ::AcquireSRWLockExclusive(&lock); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() { ::ReleaseSRWLockExclusive(&lock); }
};

constexpr std::size_t RoundUp(std::size_t nSize, std::size_t nUnit)
{
    return (nSize + nUnit - 1) / nUnit * nUnit;
}

constexpr std::size_t DataOf(std::size_t nClass)
{
    return PageSize << nClass;
}

// Half as many of each larger size; the address space is some 300 MB in all.
constexpr std::uint32_t CountOf(std::size_t nClass)
{
    return MostSlots >> nClass;
}

std::byte* EndOf(std::size_t nClass, std::uint32_t nSlot)
{
    return slots[nClass].pBase + (DataOf(nClass) + PageSize) * nSlot + DataOf(nClass);
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
    if (!base)
        throw std::bad_alloc();
    std::memset(base, static_cast<int>(FreshByte), sizeof(THeader) + nSize);
    Count(nSize);
    return new (base) THeader{PlainMagic, 0, 0, nSize} + 1;
}

bool Reserve(TSlots& list, std::size_t nClass)
{
    if (list.pBase == nullptr) {
        const std::size_t bytes = (DataOf(nClass) + PageSize) * CountOf(nClass);
        list.pBase = static_cast<std::byte*>(::VirtualAlloc(nullptr, bytes, MEM_RESERVE, PAGE_NOACCESS));
    }
    return list.pBase != nullptr;
}

void SetAccess(std::size_t nClass, std::uint32_t nSlot, DWORD nAccess)
{
    DWORD before = 0;
    ::VirtualProtect(EndOf(nClass, nSlot) - DataOf(nClass), DataOf(nClass), nAccess, &before);
}

// The slot that has been free the longest, if nothing has written to it since.
std::uint32_t TakeWaiting(TSlots& list, std::size_t nClass)
{
    const std::uint32_t slot = list.ring[list.nFront];
    list.nFront = (list.nFront + 1) % CountOf(nClass);
    --list.nWaiting;
    const std::uint32_t marked = list.freedSize[slot];
    if (marked & Protected) {
        SetAccess(nClass, slot, PAGE_READWRITE);
        return slot;
    }
    const std::byte* const end = EndOf(nClass, slot);
    if (std::any_of(end - marked, end, [](std::byte byte) { return byte != FreedByte; }))
        __builtin_trap();
    return slot;
}

// A quarter of the slots wait before the first of them is used again. Returns the number of slots if
// all are in use.
std::uint32_t TakeSlot(TSlots& list, std::size_t nClass)
{
    const std::uint32_t count = CountOf(nClass);
    const bool fresh = list.nFresh != count;
    if (list.nWaiting != 0 && (!fresh || list.nWaiting > count / 4))
        return TakeWaiting(list, nClass);
    if (!fresh)
        return count;
    std::byte* const data = EndOf(nClass, list.nFresh) - DataOf(nClass);
    if (::VirtualAlloc(data, DataOf(nClass), MEM_COMMIT, PAGE_READWRITE) == nullptr)
        throw std::bad_alloc();
    return list.nFresh++;
}

void* Allocate(std::size_t nSize)
{
    constexpr std::size_t most = std::size_t{1} << 32; // far beyond any request that is in order
    if (nSize > most)
        throw std::bad_alloc();
    const std::size_t block = RoundUp(std::max<std::size_t>(nSize, 1), Alignment);
    std::size_t size = 0;
    while (size != Sizes && DataOf(size) < block + sizeof(THeader))
        ++size;
    if (!guards || size == Sizes || !Reserve(slots[size], size))
        return AllocatePlain(nSize);
    const std::uint32_t slot = TakeSlot(slots[size], size);
    if (slot == CountOf(size))
        return AllocatePlain(nSize);

    std::byte* const result = EndOf(size, slot) - block;
    new (result - sizeof(THeader)) THeader{Magic, static_cast<std::uint32_t>(size), slot, nSize};
    std::memset(result, static_cast<int>(FreshByte), nSize);
    std::memset(result + nSize, static_cast<int>(SlackByte), block - nSize);
    Count(nSize);
    return result;
}

void Free(void* pBlock) noexcept
{
    if (!pBlock)
        return;
    const Locked locked;
    auto* const block = static_cast<std::byte*>(pBlock);
    const THeader header = *reinterpret_cast<const THeader*>(block - sizeof(THeader));
    if (header.nMagic == PlainMagic) {
        use.nLive -= header.nSize;
        std::free(block - sizeof(THeader));
        return;
    }
    if (header.nMagic != Magic) // freed twice, or written before its begin
        __builtin_trap();
    TSlots& list = slots[header.nSizeClass];
    std::byte* const end = EndOf(header.nSizeClass, header.nSlot);
    if (std::any_of(block + header.nSize, end, [](std::byte byte) { return byte != SlackByte; }))
        __builtin_trap();
    use.nLive -= header.nSize;

    std::byte* const begin = block - sizeof(THeader);
    std::memset(begin, static_cast<int>(FreedByte), static_cast<std::size_t>(end - begin));
    list.freedSize[header.nSlot] = static_cast<std::uint32_t>(end - begin);
    if (++freedBlocks % ProtectEvery == 0) {
        SetAccess(header.nSizeClass, header.nSlot, PAGE_NOACCESS);
        list.freedSize[header.nSlot] |= Protected;
    }
    list.ring[(list.nFront + list.nWaiting++) % CountOf(header.nSizeClass)] = header.nSlot;
}
} // namespace

void GuardedHeap::BeginWatch() noexcept
{
    use.nPeak = use.nLive;
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

// The forms for arrays call these, unless the module has its own.
void* operator new(std::size_t nSize)
{
    CountedMemory::Note(nSize);
    if (!FailingMemory::Take())
        throw std::bad_alloc();
    const Locked locked;
    return Allocate(nSize);
}

void operator delete(void* pBlock) noexcept
{
    Free(pBlock);
}

void operator delete(void* pBlock, std::size_t) noexcept
{
    Free(pBlock);
}

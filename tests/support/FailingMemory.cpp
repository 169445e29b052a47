#include "support/FailingMemory.h"

#include "support/CountedMemory.h"

#include <cstdlib>

void* operator new(std::size_t size)
{
    CountedMemory::Note(size);
    void* const memory = FailingMemory::Take() ? std::malloc(size > 0 ? size : 1) : nullptr;
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

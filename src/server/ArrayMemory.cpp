// Arrays of this module live in the task allocator, so that a host can free those it is given
// with CoTaskMemFree, and hand over its own made with CoTaskMemAlloc.

#include <windows.h>
#include <objbase.h>

#include <new>

void* operator new[](std::size_t size)
{
    if (void* memory = ::CoTaskMemAlloc(size))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return ::CoTaskMemAlloc(size);
}

void operator delete[](void* memory) noexcept
{
    ::CoTaskMemFree(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    ::CoTaskMemFree(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    ::CoTaskMemFree(memory);
}

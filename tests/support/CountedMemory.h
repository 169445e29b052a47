#pragma once
// Counts what the program takes by operator new while it lives. What the platform takes for itself
// isn't seen.

#include <cstddef>

class CountedMemory
{
public:
    CountedMemory() noexcept { s_calls = s_bytes = 0; }
    CountedMemory(const CountedMemory&) = delete;
    CountedMemory& operator=(const CountedMemory&) = delete;

    static void Note(std::size_t size) noexcept
    {
        ++s_calls;
        s_bytes += size;
    }
    [[nodiscard]] std::size_t Calls() const noexcept { return s_calls; }
    [[nodiscard]] std::size_t Bytes() const noexcept { return s_bytes; }

private:
    inline static std::size_t s_calls = 0;
    inline static std::size_t s_bytes = 0;
};

#pragma once
// Memory that runs out at a chosen point, to see what an operation leaves behind then. Holds for
// the program's own operator new, not for what the platform takes.

#include <new>

class FailingMemory
{
public:
    // The allocation with that number from here on, counted from 0, fails, and all behind it.
    explicit FailingMemory(int number) noexcept { s_left = number; }
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory() { s_left = Never; }

    // One allocation; false if it is to fail.
    static bool Take() noexcept
    {
        if (s_left == Never)
            return true;
        return s_left > 0 && s_left-- > 0;
    }

    // Runs the operation without memory from its first allocation on, then from its second, and
    // so on until it ends of itself; calls check after each run that ended for want of memory.
    // The result is the number of those.
    template <class Operation, class Check> static int Exhaust(Operation operation, Check check)
    {
        for (int number = 0;; ++number) {
            if (Completes(operation, number))
                return number;
            check();
        }
    }

private:
    template <class Operation> static bool Completes(Operation& operation, int number)
    {
        try {
            const FailingMemory failing(number);
            operation();
            return true;
        } catch (const std::bad_alloc&) {
            return false;
        }
    }

    static constexpr int Never = -1;
    inline static int s_left = Never;
};

#pragma once
// For death tests of calls that fault: ends the process at once with the fault's code, instead
// of calling a debugger first, which takes seconds.

#include <windows.h>

namespace Faults
{
inline constexpr int AccessViolation = static_cast<int>(0xC0000005);

inline void EndAtOnce()
{
    ::SetUnhandledExceptionFilter([](EXCEPTION_POINTERS* pointers) -> LONG {
        ::TerminateProcess(::GetCurrentProcess(), pointers->ExceptionRecord->ExceptionCode);
        return EXCEPTION_EXECUTE_HANDLER;
    });
}
} // namespace Faults

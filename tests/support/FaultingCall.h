#pragma once
// Whether a call ends in an access violation, without ending the program: it runs on a thread
// of its own, which a handler ends at the fault.

#include <functional>
#include <utility>

#include <windows.h>

namespace FaultingCall
{

inline constexpr DWORD Faulted = 0xFA17;

inline DWORD& WatchedThread() noexcept
{
    static DWORD id = 0;
    return id;
}

// What to look at on the faulting thread, at the fault.
inline std::function<void()>& AtFault()
{
    static std::function<void()> look;
    return look;
}

inline LONG CALLBACK EndThreadAtFault(EXCEPTION_POINTERS* info)
{
    if (info->ExceptionRecord->ExceptionCode != EXCEPTION_ACCESS_VIOLATION ||
        GetCurrentThreadId() != WatchedThread()) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    if (AtFault())
        AtFault()();
    CONTEXT& context = *info->ContextRecord;
    context.Rsp = ((context.Rsp - 0x200) & ~DWORD64{15}) - 8; // as right after a call
    context.Rcx = Faulted;
    context.Rip = reinterpret_cast<DWORD64>(&ExitThread);
    return EXCEPTION_CONTINUE_EXECUTION;
}

inline DWORD WINAPI Run(void* call)
{
    WatchedThread() = GetCurrentThreadId();
    (*static_cast<std::function<void()>*>(call))();
    return 0;
}

// True if the call faults. What it had on its stack is lost then.
[[nodiscard]] inline bool Faults(std::function<void()> call, std::function<void()> look = {})
{
    AtFault() = std::move(look);
    void* handler = AddVectoredExceptionHandler(1, &EndThreadAtFault);
    const HANDLE thread = CreateThread(nullptr, 0, &Run, &call, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    CloseHandle(thread);
    RemoveVectoredExceptionHandler(handler);
    WatchedThread() = 0;
    AtFault() = {};
    return code == Faulted;
}

} // namespace FaultingCall

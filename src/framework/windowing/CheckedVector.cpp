#include "framework/windowing/CheckedVector.h"

#include <cstdlib>

#include <windows.h>

namespace
{

// The getters of a run-time that the process has loaded; a handler of this thread goes before one
// of the process.
_invalid_parameter_handler HandlerOf(LPCWSTR runTime) noexcept
{
    const HMODULE module = ::GetModuleHandleW(runTime);
    if (!module)
        return nullptr;
    for (LPCSTR name :
         {"_get_thread_local_invalid_parameter_handler", "_get_invalid_parameter_handler"}) {
        const FARPROC getter = ::GetProcAddress(module, name);
        if (!getter)
            continue;
        const auto ask =
            reinterpret_cast<_invalid_parameter_handler (*)()>(reinterpret_cast<void*>(getter));
        if (const auto handler = ask())
            return handler;
    }
    return nullptr;
}

// The host's: which run-time it uses isn't known, so the newest that has one counts. Else that of
// the program which this code is linked into.
_invalid_parameter_handler InstalledHandler() noexcept
{
    for (LPCWSTR runTime : {L"ucrtbase.dll", L"ucrtbased.dll", L"msvcr120.dll", L"msvcr110.dll",
                            L"msvcr100.dll", L"msvcr90.dll", L"msvcr80.dll", L"msvcrt.dll"}) {
        if (const auto handler = HandlerOf(runTime))
            return handler;
    }
    return _get_invalid_parameter_handler();
}

} // namespace

void AfxInvalidParameter() noexcept
{
    if (const auto handler = InstalledHandler())
        handler(nullptr, nullptr, nullptr, 0, 0);
    // Nothing of the process runs any more: no exit routine may meet the broken state.
    constexpr UINT code = 0xC0000417; // STATUS_INVALID_CRUNTIME_PARAMETER
    ::TerminateProcess(::GetCurrentProcess(), code);
    std::abort();
}

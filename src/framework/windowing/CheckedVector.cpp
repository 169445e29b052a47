#include "framework/windowing/CheckedVector.h"

#include <cstdlib>

#include <windows.h>

void AfxInvalidParameter() noexcept
{
    if (const auto handler = _get_invalid_parameter_handler())
        handler(nullptr, nullptr, nullptr, 0, 0);
    // Nothing of the process runs any more: no exit routine may meet the broken state.
    constexpr UINT code = 0xC0000417; // STATUS_INVALID_CRUNTIME_PARAMETER
    ::TerminateProcess(::GetCurrentProcess(), code);
    std::abort();
}

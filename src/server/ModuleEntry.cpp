// The first and the last instruction of the module: around the entry point of the C run-time,
// which runs DllMain, the constructors and the destructors of statics.

#include <windows.h>

#include <cstdlib>

namespace __gnu_cxx
{
void __freeres(); // the C++ run-time's memory for exceptions in need; it has no header

// The run-time's own names the exception on a console that a host doesn't have, and brings 50 KB for it.
// NOLINTNEXTLINE(readability-identifier-naming): the name that the run-time looks for
void __verbose_terminate_handler()
{
    std::abort();
}
} // namespace __gnu_cxx

extern "C" BOOL WINAPI DllMainCRTStartup(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);

extern "C" BOOL WINAPI ModuleEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    if (dwReason != DLL_PROCESS_DETACH)
        return DllMainCRTStartup(hInstance, dwReason, lpReserved);
    // At the end of the process other threads were stopped wherever they were, perhaps inside of
    // a lock, and the host's window procedures may have lost their statics: nothing is torn down.
    const bool processEnds = lpReserved != nullptr;
    if (processEnds)
        return TRUE;
    const BOOL result = DllMainCRTStartup(hInstance, dwReason, lpReserved);
    __gnu_cxx::__freeres(); // no exception can be thrown any more
    return result;
}

// The entry point of a DLL that counts its lines: when the process ends, the DLL's own leaves
// everything as it is, and the counts would be lost.

#include <windows.h>

extern "C" BOOL WINAPI ModuleEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);
extern "C" void __gcov_dump(); // the compiler's

extern "C" BOOL WINAPI CountedEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    const BOOL result = ModuleEntry(hInstance, dwReason, lpReserved);
    const bool processEnds = dwReason == DLL_PROCESS_DETACH && lpReserved;
    if (processEnds)
        __gcov_dump();
    return result;
}

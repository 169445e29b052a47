// The first and the last instruction of the module: around the entry point of the C run-time,
// which runs DllMain, the constructors and the destructors of statics.

#include <cstdlib>

#include <windows.h>
#include <cxxabi.h>

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

namespace
{
constinit DWORD g_threadSlot = TLS_OUT_OF_INDEXES;

// What is known of the C++ run-time's reserve for exceptions. It changes only while the module is
// loaded.
enum class EReserve { unknown, missing, asked, prepared };
constinit EReserve g_reserve = EReserve::unknown;

// The C++ run-time's thread library takes a slot each time that the module is loaded and never gives it
// back, and a process has little more than a thousand. It takes no second one.
DWORD WINAPI TakeThreadSlot()
{
    const auto platforms =
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32"), "TlsAlloc"));
    return g_threadSlot = reinterpret_cast<decltype(&::TlsAlloc)>(platforms)();
}

} // namespace

extern "C" {
// NOLINTBEGIN(readability-identifier-naming): the linker's name, and the library's
constinit decltype(&::TlsAlloc) __imp_TlsAlloc = &TakeThreadSlot; // the name of the import
extern PIMAGE_TLS_CALLBACK __xl_f;                                // the thread library's own
void* __real_malloc(std::size_t nSize);                           // the C run-time's
void* __wrap_malloc(std::size_t nSize)                            // malloc, by the linker's --wrap
{
    if (g_reserve == EReserve::asked) {
        g_reserve = EReserve::prepared;
        return nullptr; // so that the reserve answers
    }
    void* const pRoom = __real_malloc(nSize);
    if (!pRoom && g_reserve == EReserve::unknown)
        g_reserve = EReserve::missing;
    return pRoom;
}
// NOLINTEND(readability-identifier-naming)
BOOL WINAPI DllMainCRTStartup(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved);
}

namespace
{
// Where no memory is left the C++ run-time throws from a reserve. The lock of the reserve and the
// state of the throwing thread take memory at their first use, and the process ends where there is
// none; so both are used once while there is some. Where memory ran out while the module was loaded
// the reserve may not have been made, and asking it would end the process.
void PrepareReserve()
{
    std::free(__wrap_malloc(4096));
    if (g_reserve == EReserve::missing)
        return;
    g_reserve = EReserve::asked;
    abi::__cxa_free_exception(abi::__cxa_allocate_exception(1));
    static_cast<void>(abi::__cxa_get_globals());
}

// For the thread library the thread that unloads it ends here: its two handles and its memory for
// exceptions go, as they would with the thread. Then the slot of all threads.
void EndThreadLibrary(HINSTANCE hInstance)
{
    if (g_threadSlot == TLS_OUT_OF_INDEXES)
        return;
    __xl_f(hInstance, DLL_THREAD_DETACH, nullptr);
    ::TlsFree(g_threadSlot);
}
} // namespace

extern "C" BOOL WINAPI ModuleEntry(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    if (dwReason != DLL_PROCESS_DETACH) {
        const BOOL started = DllMainCRTStartup(hInstance, dwReason, lpReserved);
        if (started && dwReason == DLL_PROCESS_ATTACH)
            PrepareReserve();
        return started;
    }
    // At the end of the process other threads were stopped wherever they were, perhaps inside of
    // a lock, and the host's window procedures may have lost their statics: nothing is torn down.
    const bool processEnds = lpReserved != nullptr;
    if (processEnds)
        return TRUE;
    const BOOL result = DllMainCRTStartup(hInstance, dwReason, lpReserved);
    __gnu_cxx::__freeres(); // no exception can be thrown any more
    EndThreadLibrary(hInstance);
    return result;
}

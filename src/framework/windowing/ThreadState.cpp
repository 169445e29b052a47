#include "framework/windowing/ThreadState.h"

#include <new>
#include <utility>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/Window.h"
#include "framework/windowing/WindowEntry.h"

namespace
{

// The process is past its last instruction: other threads were stopped wherever they were,
// perhaps inside of a lock, and the host's own objects may be gone.
bool IsProcessEnding() noexcept
{
    const FARPROC question =
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress");
    return question && reinterpret_cast<BOOLEAN(WINAPI*)()>(reinterpret_cast<void*>(question))();
}

void CALLBACK FreeThreadState(void* state) noexcept
{
    if (!IsProcessEnding())
        delete static_cast<AFX_THREAD_STATE*>(state);
}

constinit SRWLOCK g_ownership = SRWLOCK_INIT;
constinit AFX_THREAD_STATE* g_threads = nullptr; // all that there are

// The system's own per-thread slot rather than the compiler's: it ends with the thread in a
// library as well as in a program, and when the library goes, for all threads at once. The index
// has no destructor, for statics that go after the slot still ask.
constinit DWORD g_slotIndex = FLS_OUT_OF_INDEXES;

class CThreadSlot
{
public:
    CThreadSlot() noexcept { g_slotIndex = ::FlsAlloc(&FreeThreadState); }
    CThreadSlot(const CThreadSlot&) = delete;
    CThreadSlot& operator=(const CThreadSlot&) = delete;
    ~CThreadSlot()
    {
        const DWORD index = std::exchange(g_slotIndex, FLS_OUT_OF_INDEXES);
        if (index != FLS_OUT_OF_INDEXES)
            ::FlsFree(index);
    }
};

DWORD SlotIndex() noexcept
{
    static const CThreadSlot slot;
    return g_slotIndex;
}

} // namespace

AFX_THREAD_STATE* AfxFindThreadState() noexcept
{
    // Reading the slot clears the last error, which callers in between may still want.
    const DWORD error = ::GetLastError();
    const DWORD index = SlotIndex();
    void* const state = index == FLS_OUT_OF_INDEXES ? nullptr : ::FlsGetValue(index);
    ::SetLastError(error);
    return static_cast<AFX_THREAD_STATE*>(state);
}

AFX_THREAD_STATE& AfxGetThreadState()
{
    if (AFX_THREAD_STATE* const state = AfxFindThreadState())
        return *state;
    std::unique_ptr<AFX_THREAD_STATE> state(new (std::nothrow) AFX_THREAD_STATE);
    const DWORD index = SlotIndex();
    if (!state || index == FLS_OUT_OF_INDEXES || !::FlsSetValue(index, state.get()))
        AfxThrowMemoryException();
    return *state.release();
}

AFX_THREAD_STATE::AFX_THREAD_STATE() noexcept
{
    const CWindowOwnership lock;
    next = std::exchange(g_threads, this);
}

AFX_THREAD_STATE::~AFX_THREAD_STATE()
{
    if (hCreateHook)
        ::UnhookWindowsHookEx(hCreateHook);
    if (hMessageHook)
        ::UnhookWindowsHookEx(hMessageHook);
    windows.ReleaseWindows();
    FreeTemporaries(true);
    const CWindowOwnership lock;
    AFX_THREAD_STATE** place = &g_threads;
    while (*place != this)
        place = &(*place)->next;
    *place = next;
}

AFX_THREAD_STATE* AFX_THREAD_STATE::OwnerOf(const CWnd& wnd) noexcept
{
    AFX_THREAD_STATE* thread = g_threads;
    while (thread && !thread->windows.Holds(wnd))
        thread = thread->next;
    return thread;
}

void AFX_THREAD_STATE::FreeTemporaries(bool all) noexcept
{
    windows.FreeTemporary(all);
    if (all ? bHandlesInScope || bHandlesOutside : bHandlesInScope && !bHandlesOutside) {
        AfxFreeTemporaryGdiObjects(thread);
        AfxFreeTemporaryDCs(thread);
        bHandlesInScope = bHandlesOutside = false;
    }
}

void AFX_THREAD_STATE::UnwatchQueue() noexcept
{
    if (!windows.HasPermanent() && hMessageHook)
        ::UnhookWindowsHookEx(std::exchange(hMessageHook, nullptr));
}

void AfxNoteTemporaryHandle() noexcept
{
    if (AFX_THREAD_STATE* const state = AfxFindThreadState())
        (state->nScopeDepth > 0 ? state->bHandlesInScope : state->bHandlesOutside) = true;
}

CWindowOwnership::CWindowOwnership() noexcept
{
    ::AcquireSRWLockExclusive(&g_ownership);
}

CWindowOwnership::~CWindowOwnership()
{
    ::ReleaseSRWLockExclusive(&g_ownership);
}

CWndMap::CWndMap() = default;
CWndMap::~CWndMap() = default;

CWnd* CWndMap::LookupPermanent(HWND hWnd) const noexcept
{
    const CWindowOwnership lock;
    const auto found = m_permanent.find(hWnd);
    return found == m_permanent.end() ? nullptr : found->second;
}

CWnd* CWndMap::FromHandle(HWND hWnd, bool inScope)
{
    if (!hWnd)
        return nullptr;
    if (CWnd* const permanent = LookupPermanent(hWnd))
        return permanent;
    const auto known = m_temporary.find(hWnd);
    if (known != m_temporary.end())
        return known->second.pWnd.get();
    auto made = std::make_unique<CWnd>();
    made->m_hWnd = hWnd;
    CWnd* const result = made.get();
    m_temporary.emplace(hWnd, TTemporary{std::move(made), inScope});
    return result;
}

bool CWndMap::Holds(const CWnd& wnd) const noexcept
{
    const auto found = m_permanent.find(wnd.m_hWnd);
    return found != m_permanent.end() && found->second == &wnd;
}

void CWndMap::ReleaseWindows() noexcept
{
    const CWindowOwnership lock;
    while (!m_permanent.empty()) {
        const auto [hWnd, pWnd] = *m_permanent.begin();
        AFX_WND_ENTRY::Release(*pWnd);
        m_permanent.erase(hWnd);
    }
}

void CWndMap::FreeTemporary(bool all) noexcept
{
    std::erase_if(m_temporary, [all](const auto& entry) { return all || entry.second.inScope; });
}

#include "framework/windowing/ThreadState.h"

#include <new>
#include <utility>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/Window.h"
#include "framework/windowing/WindowEntry.h"

namespace
{

void CALLBACK FreeThreadState(void* state) noexcept
{
    delete static_cast<AFX_THREAD_STATE*>(state);
}

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

AFX_THREAD_STATE::~AFX_THREAD_STATE()
{
    if (hCreateHook)
        ::UnhookWindowsHookEx(hCreateHook);
    if (hMessageHook)
        ::UnhookWindowsHookEx(hMessageHook);
    windows.DisarmWindows();
}

CWndMap::CWndMap() = default;
CWndMap::~CWndMap() = default;

CWnd* CWndMap::LookupPermanent(HWND hWnd) const noexcept
{
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

void CWndMap::DisarmWindows() const noexcept
{
    for (const auto& entry : m_permanent) {
        if (AFX_WND_ENTRY::HasOurProcedure(entry.first))
            ::SetWindowLongPtrW(entry.first, GWLP_WNDPROC,
                                reinterpret_cast<LONG_PTR>(&::DefWindowProcW));
    }
}

void CWndMap::FreeTemporary(bool all) noexcept
{
    std::erase_if(m_temporary, [all](const auto& entry) { return all || entry.second.inScope; });
}
